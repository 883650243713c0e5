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

namespace {
/// The periods that hosts know; the form's list holds their texts.
constexpr int periodCount = 4;

// Qt takes quadratic time for nested markup, and a reason that people read is far shorter than this.
constexpr int longestRichText = 1 << 14;

// Nested tables take exponential time, and large spans make as many cells.
constexpr int mostTables = 8;

bool isQuicklyLaidOut(const QString& text)
{
    const QRegularExpression largeSpan(QStringLiteral("<[^<>]*(row|col)span\\W*\\d\\d"),
                                       QRegularExpression::CaseInsensitiveOption);
    return text.size() <= longestRichText && text.count(QLatin1String("<table"), Qt::CaseInsensitive) <= mostTables
        && !text.contains(largeSpan);
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
