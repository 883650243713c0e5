#include "RebootDialog.h"

#include "DisplayText.h"
#include "WheelGuard.h"
#include "ui_RebootDialog.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {
/// The periods that hosts know; the form's list holds their texts.
constexpr int periodCount = 4;

// Qt takes quadratic time for nested markup, and a reason that people read is far shorter than this.
constexpr int longestRichText = 1 << 14;

// Nested tables take exponential time, and Qt makes a cell wherever a row and a column cross.
constexpr int mostTables = 8;
constexpr int mostTableTags = 32;

// Of a style sheet it compares every rule with every element. Qt writes one into all HTML.
constexpr int mostTagsWithStyleSheet = 100;

/// Whether Qt lays the text out at once. A few characters can keep it busy for hours.
bool isQuicklyLaidOut(const QString& text)
{
    if (text.size() > longestRichText)
        return false;
    // Only tags count, with their quoted values: what the host escapes is text, whatever it says. A regular expression
    // finds nothing in invalid Unicode, and tags are Latin-1.
    const QRegularExpression tag(QStringLiteral(R"(<(?:[^>"']++|(?<=[\s=<])(?:"[^"]*+"?|'[^']*+'?)++|["'])*+)"));
    const QString latin = QString::fromLatin1(text.toLatin1());
    QString tags;
    for (auto matches = tag.globalMatch(latin); matches.hasNext();)
        tags += matches.next().captured().replace(QLatin1Char('<'), QLatin1String("&lt;")) + QLatin1Char(' ');
    // Qt resolves entities in the names and values of tags, too.
    QString markup = QString::fromLatin1(QTextDocumentFragment::fromHtml(tags).toPlainText().toLatin1());
    const auto count = [&markup](const QString& pattern) {
        return markup.count(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption));
    };
    if (count(QStringLiteral(R"(<[^\w/]*+table)")) > mostTables
        || count(QStringLiteral(R"(<[^\w/]*+t)")) > mostTableTags
        || count(QStringLiteral(R"((row|col)span(?!["']?\s*=\s*["']?\d["'\s]))")) > 0)
        return false;
    if (count(QStringLiteral(R"(<[^\w/]*+style)")) > 0) {
        if (count(QStringLiteral("<")) > mostTagsWithStyleSheet)
            return false;
        markup += latin; // The sheet stands between tags.
    }
    return count(QStringLiteral(R"((padding|line-height|font-size|font\s*:)[^;<>"']*\d{4})")) == 0;
}

/// A document that never loads external resources: showing a text must not open files or network shares.
class InertDocument final : public QTextDocument {
public:
    using QTextDocument::QTextDocument;

protected:
    QVariant loadResource(int, const QUrl&) override
    {
        // An empty answer would make the picture's handler try the file itself.
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
};
} // namespace

RebootDialog::RebootDialog(QWidget* parent) : BaseDialog(parent), ui(std::make_unique<Ui::RebootDialog>())
{
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    ui->setupUi(this);
    moveToScreenCenter();
    showCaptionPrefix(ui->lblAppName);
    new WheelGuard(ui->timeoutComboBox);

    auto* document = new InertDocument(ui->rebootReasonLabel);
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(ui->rebootReasonLabel->font());
    ui->rebootReasonLabel->setDocument(document);
    // The text takes no focus, so its scroll bar does: a long reason can be read to its end without a mouse.
    QScrollBar* scrollBar = ui->rebootReasonLabel->verticalScrollBar();
    scrollBar->setFocusPolicy(Qt::TabFocus);
    setTabOrder(ui->postponeButton, scrollBar);
    RebootDialog::setShutdown(false);

    ui->timeoutComboBox->setFocus(Qt::OtherFocusReason);
    setModal(true);
    connect(ui->rebootNowButton, &QPushButton::clicked, this, &RebootDialog::rebootNow);
    connect(ui->postponeButton, &QPushButton::clicked, this, &RebootDialog::postponeReboot);
}

RebootDialog::~RebootDialog() = default;

QString RebootDialog::getMessage() const
{
    return ui->rebootReasonLabel->toPlainText();
}

void RebootDialog::setMessage(const QString& text)
{
    const bool canBeRich = isQuicklyLaidOut(text);
    showPlainText(ui->rebootReasonLabel, canBeRich ? QString() : text);
    if (canBeRich)
        ui->rebootReasonLabel->setText(text);
}

int RebootDialog::getPostponePeriod() const
{
    const int index = ui->timeoutComboBox->currentIndex();
    return index >= 0 && index < periodCount ? index : 0;
}

void RebootDialog::setPostponePeriod(int period)
{
    const bool known = period >= 0 && period < periodCount;
    ui->timeoutComboBox->setCurrentIndex(known ? period : 0);
}

bool RebootDialog::isShutdown() const
{
    return shutdownRequested;
}

void RebootDialog::setShutdown(bool shutdown)
{
    shutdownRequested = shutdown;
    ui->rebootNowButton->setText(shutdown ? tr("Shutdown now") : tr("Reboot now"));
    //: Name of a text for screen readers
    const QString reason = shutdown ? tr("Reason for the shutdown") : tr("Reason for the restart");
    ui->rebootReasonLabel->setAccessibleName(reason);
    ui->rebootReasonLabel->verticalScrollBar()->setAccessibleName(reason);
}

void RebootDialog::rebootNow()
{
    Q_EMIT dialogEvent(this, evRebootNow);
}

void RebootDialog::postponeReboot()
{
    Q_EMIT dialogEvent(this, evPostpone);
}

void RebootDialog::closed()
{
    Q_EMIT dialogEvent(this, evClosed);
}

QWidget* RebootDialog::startWidget()
{
    // The dialog may appear while the person types; Space opens a list here and must not press the button used last.
    return ui->timeoutComboBox;
}

void RebootDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Cancel)
        event->accept();
    else // Return presses the default button. BaseDialog would call accept(), which ends the dialog without an event.
        QDialog::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void RebootDialog::closeEvent(QCloseEvent* event)
{
    if (!qGuiApp->isSavingSession())
        closed();
    // BaseDialog would also call reject(), which emits finished().
    event->accept();
}
