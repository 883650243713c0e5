#include "ActivationDialog.h"

#include "EnrollmentLink.h"
#include "ui_ActivationDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QShortcut>
#include <QUrl>

namespace {
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

/// Replaces the text of @p edit as typing would. setText() would leave nothing to undo.
void enter(const QString& text, QLineEdit* edit)
{
    edit->selectAll();
    edit->insert(text);
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
    // However a person gets a link into one of the fields, it is for all of them.
    for (LineEdit* edit : std::initializer_list<LineEdit*>{ui->edHost, ui->edPort, ui->edToken})
        connect(edit, &LineEdit::inserted, this, &ActivationDialog::takeLink);

    auto* pasteShortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), this);
    connect(pasteShortcut, &QShortcut::activated, this, &ActivationDialog::slPasteEnrollDataFromClipboard);
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
    takeLink(QGuiApplication::clipboard()->text());
}

QWidget* ActivationDialog::startWidget()
{
    return firstEmpty({ui->edHost, ui->edPort, ui->edToken}, ui->edHost);
}

void ActivationDialog::takeLink(const QString& text)
{
    const auto link = findEnrollmentLink(text);
    if (!link)
        return;
    enter(link->host, ui->edHost);
    enter(link->port, ui->edPort);
    enter(link->token, ui->edToken);
}
