#include "ActivationDialog.h"

#include "EnrollmentLink.h"
#include "ui_ActivationDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QUrl>

#include <algorithm>

namespace {
constexpr int defaultPort = 443;
constexpr int highestPort = 65535;

/// Any host goes, the empty one included: getServerUrl() tells the host program whether it is usable.
bool isHostValid(const QString&)
{
    return true;
}

/// The port that @p text names, 0 if it names none.
int portNumber(const QString& text)
{
    // QString::toInt() alone would overlook blanks around the number.
    const int port = text == text.trimmed() ? text.toInt() : 0;
    return port >= 1 && port <= highestPort ? port : 0;
}

bool isInvisible(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

/// @p text without line breaks and zero-width characters, which come along when text is copied from an e-mail.
QString withoutInvisibles(QString text)
{
    const auto end = std::remove_if(text.begin(), text.end(), isInvisible);
    text.truncate(static_cast<int>(end - text.begin()));
    return text;
}
} // namespace

ActivationDialog::ActivationDialog(QWidget* parent) : BaseDialog(parent), ui(std::make_unique<Ui::ActivationDialog>())
{
    ui->setupUi(this);
    setupWindow();
    ui->btnActivateNow->setEnabled(false);
    setCaption(ui->lblAppName, ui->lblType, tr("Enroll"));

    connect(ui->btnActivateNow, &QPushButton::clicked, this, &ActivationDialog::slActivate);
    connect(ui->btnClose, &QPushButton::clicked, this, &ActivationDialog::slClose);
    connect(ui->btnCancel, &QPushButton::clicked, this, &ActivationDialog::slClose);
    connect(ui->edHost, &QLineEdit::textChanged, this, &ActivationDialog::doEnableOk);
    connect(ui->edToken, &QLineEdit::textChanged, this, &ActivationDialog::doEnableOk);
    for (QLineEdit* edit : std::initializer_list<QLineEdit*>{ui->edHost, ui->edPort, ui->edToken})
        watchInsertions(edit);

    auto* pasteShortcut = new QShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_V), this);
    connect(pasteShortcut, &QShortcut::activated, this, &ActivationDialog::slPasteEnrollDataFromClipboard);
    ui->edHost->setFocus();
}

ActivationDialog::~ActivationDialog() = default;

QString ActivationDialog::getServerUrl() const
{
    QUrl url = QUrl::fromUserInput(ui->edHost->text().trimmed());
    const int port = portNumber(ui->edPort->text());
    if (url.scheme() != QLatin1String("http") || url.host(QUrl::FullyDecoded).isEmpty()
        || !url.path(QUrl::FullyDecoded).isEmpty() || port == 0)
        return {};

    url.setScheme(QStringLiteral("https"));
    url.setPort(port);
    url.setPath(QStringLiteral("/command/windows/"), QUrl::DecodedMode);
    return url.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment);
}

void ActivationDialog::setServerUrl(const QString& url)
{
    const QUrl address(url, QUrl::TolerantMode);
    ui->edHost->setText(address.host(QUrl::FullyDecoded));
    ui->edPort->setText(QString::number(address.port(defaultPort)));
}

QString ActivationDialog::getToken() const
{
    return ui->edToken->text().trimmed();
}

void ActivationDialog::setToken(const QString& token)
{
    ui->edToken->setText(token);
}

void ActivationDialog::toggleStep()
{
    qDebug("ActivationDialog::toggleStep()");
}

void ActivationDialog::doEnableOk()
{
    ui->btnActivateNow->setEnabled(isHostValid(ui->edHost->text()) && !ui->edToken->text().isEmpty());
}

void ActivationDialog::goToRegistration()
{
    Q_EMIT dialogEvent(this, evGoToRegistration);
}

void ActivationDialog::accept()
{
    slActivate();
}

void ActivationDialog::reject()
{
    slClose();
}

void ActivationDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void ActivationDialog::slActivate()
{
    Q_EMIT dialogEvent(this, evEnroll);
}

void ActivationDialog::slPasteEnrollDataFromClipboard()
{
    if (const auto link = findEnrollmentLink(QGuiApplication::clipboard()->text()))
        fill(*link);
}

void ActivationDialog::watchInsertions(QLineEdit* edit)
{
    // A field tells that it was edited, not what was inserted. That starts where selection or cursor stood before and
    // ends at the cursor, in whichever way it was pasted or dropped.
    const auto start = std::make_shared<int>(0);
    const auto rememberStart = [edit, start] {
        *start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    };
    connect(edit, &QLineEdit::selectionChanged, this, rememberStart);
    connect(edit, &QLineEdit::cursorPositionChanged, this, rememberStart);
    connect(edit, &QLineEdit::textEdited, this, [this, edit, start] { takeInsertion(edit, *start); });
}

void ActivationDialog::takeInsertion(QLineEdit* edit, int start)
{
    if (droppingInvisibles)
        return;
    const QString inserted = edit->text().mid(start, qMax(0, edit->cursorPosition() - start));
    if (const auto link = findEnrollmentLink(inserted)) {
        fill(*link);
        return;
    }
    const QString visible = withoutInvisibles(inserted);
    if (visible != inserted) {
        // What is left is no insertion of the person's: a link that comes of it was not there.
        const QScopedValueRollback<bool> dropping(droppingInvisibles, true);
        edit->setSelection(start, inserted.size());
        edit->insert(visible);
    }
}

void ActivationDialog::fill(const EnrollmentLink& link)
{
    ui->edHost->setText(link.host);
    ui->edPort->setText(link.port);
    ui->edToken->setText(link.token);
}
