#include "AuthorizationDialog.h"

#include "DisplayText.h"
#include "HintPicture.h"
#include "ui_AuthorizationDialog.h"

namespace {
/// Every user name is valid, the empty one included.
bool isUsernameValid(const QString&)
{
    return true;
}

QString reminderLink(const QString& text)
{
    return QStringLiteral("<p style=\"font-family:Arial; font-size:8.25pt;\">"
                          "<a href=\"https://account.brisel.example/#act=Remind\">"
                          "<span style=\"font-size:9pt; text-decoration:underline; color:#0000ff;\">%1</span></a></p>")
        .arg(text.toHtmlEscaped());
}
} // namespace

AuthorizationDialog::AuthorizationDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::AuthorizationDialog>())
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, ui->lblType, tr("Login"));
    // Translators get the words alone.
    ui->lblWebLink->setText(reminderLink(ui->lblWebLink->text()));
    ui->btnLogin->setEnabled(false);

    connect(ui->edEmail, &QLineEdit::textChanged, this, &AuthorizationDialog::doEnableOk);
    connect(ui->edPassword, &QLineEdit::textChanged, this, &AuthorizationDialog::doEnableOk);
    connect(ui->edEmail, &QLineEdit::textChanged, this, &AuthorizationDialog::doShowEmailIcon);
    connect(ui->edPassword, &QLineEdit::textChanged, this, &AuthorizationDialog::doShowPasswordIcon);
    connect(ui->btnLogin, &QPushButton::clicked, this, &AuthorizationDialog::slLogin);
    connect(ui->btnCancel, &QPushButton::clicked, this, &AuthorizationDialog::slClose);
    connect(ui->btnClose, &QPushButton::clicked, this, &AuthorizationDialog::slClose);
    connect(ui->lblWebLink, &QLabel::linkActivated, this, &AuthorizationDialog::goToWeb);

    setWindowFlag(Qt::WindowStaysOnTopHint);
}

AuthorizationDialog::~AuthorizationDialog()
{
    qDebug("AuthorizationDialog::~AuthorizationDialog()");
}

QString AuthorizationDialog::getUsername() const
{
    return ui->edEmail->text();
}

void AuthorizationDialog::setUsername(const QString& username)
{
    ui->edEmail->setText(username);
}

QString AuthorizationDialog::getPassword() const
{
    return ui->edPassword->text();
}

void AuthorizationDialog::setPassword(const QString& password)
{
    ui->edPassword->setText(password);
}

void AuthorizationDialog::doEnableOk()
{
    ui->btnLogin->setEnabled(isInputValid());
}

void AuthorizationDialog::goToWeb()
{
    Q_EMIT dialogEvent(this, evGoToWeb);
}

void AuthorizationDialog::doShowEmailIcon()
{
    showHintPicture(ui->edEmail, QStringLiteral("username"));
}

void AuthorizationDialog::doShowPasswordIcon()
{
    showHintPicture(ui->edPassword, QStringLiteral("password"));
}

void AuthorizationDialog::accept()
{
    slLogin();
}

void AuthorizationDialog::reject()
{
    slClose();
}

void AuthorizationDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void AuthorizationDialog::slLogin()
{
    if (isInputValid())
        Q_EMIT dialogEvent(this, evLogin);
}

QWidget* AuthorizationDialog::startWidget()
{
    return firstEmpty({ui->edEmail, ui->edPassword}, ui->edPassword);
}

bool AuthorizationDialog::isInputValid() const
{
    return isUsernameValid(ui->edEmail->text()) && !ui->edPassword->text().isEmpty();
}
