#include "OptionDialog.h"

#include "SpinBoxAccessible.h"
#include "WheelGuard.h"
#include "ui_OptionDialog.h"

OptionDialog::OptionDialog(QWidget* parent) : BaseDialog(parent), ui(std::make_unique<Ui::OptionDialog>())
{
    installSpinBoxAccessible();
    ui->setupUi(this);
    setupWindow();
    // Not in the form: fields created within an unchecked group are disabled while they are still under construction,
    // and a screen reader that hears of it then takes them for plain widgets ever after.
    ui->proxyAuthGroupBox->setChecked(false);
    ui->proxyGroupBox->setChecked(false);
    ui->btnDeactivateAntiTheft->hide();
    setCaption(ui->lblAppName, ui->lblType, tr("Options"));

    connect(ui->btnClose, &QPushButton::clicked, this, &OptionDialog::slClose);
    connect(ui->btnCancel, &QPushButton::clicked, this, &OptionDialog::slClose);
    connect(ui->btnSave, &QPushButton::clicked, this, &OptionDialog::slSave);
    connect(ui->btnDeactivateAntiTheft, &QPushButton::clicked, this, &OptionDialog::slDeactivateAccount);
    connect(ui->proxyGroupBox, &QGroupBox::toggled, this, &OptionDialog::doValidateOptions);
    connect(ui->proxyAuthGroupBox, &QGroupBox::toggled, this, &OptionDialog::doValidateOptions);
    connect(ui->edtAdress, &QLineEdit::textChanged, this, &OptionDialog::doValidateOptions);
    connect(ui->edtProxyLogin, &QLineEdit::textChanged, this, &OptionDialog::doValidateOptions);

    new WheelGuard(ui->spnbxPort);
    doValidateOptions();
}

OptionDialog::~OptionDialog() = default;

bool OptionDialog::isShowTrayIcon() const
{
    return ui->chkShowIcon->isChecked();
}

void OptionDialog::setShowTrayIcon(const bool& show)
{
    ui->chkShowIcon->setChecked(show);
}

bool OptionDialog::isAutoUpdate() const
{
    return ui->chkAutoUpdate->isChecked();
}

void OptionDialog::setAutoUpdate(const bool& automatic)
{
    ui->chkAutoUpdate->setChecked(automatic);
}

void OptionDialog::setAutoUpdateHidden(const bool& hidden)
{
    ui->chkAutoUpdate->setHidden(hidden);
}

bool OptionDialog::isProxyEnabled() const
{
    return ui->proxyGroupBox->isChecked();
}

void OptionDialog::setProxyEnabled(const bool& enabled)
{
    ui->proxyGroupBox->setChecked(enabled);
}

QString OptionDialog::getProxyAddress() const
{
    return ui->edtAdress->text();
}

void OptionDialog::setProxyAddress(const QString& address)
{
    ui->edtAdress->setText(address);
}

int OptionDialog::getProxyPort() const
{
    return ui->spnbxPort->value();
}

void OptionDialog::setProxyPort(const quint16& port)
{
    ui->spnbxPort->setValue(port);
}

bool OptionDialog::isProxyAuthEnabled() const
{
    return ui->proxyAuthGroupBox->isChecked();
}

void OptionDialog::setProxyAuthEnabled(const bool& enabled)
{
    ui->proxyAuthGroupBox->setChecked(enabled);
}

QString OptionDialog::getProxyLogin() const
{
    return ui->edtProxyLogin->text();
}

void OptionDialog::setProxyLogin(const QString& login)
{
    ui->edtProxyLogin->setText(login);
}

QString OptionDialog::getProxyPassword() const
{
    return ui->edtProxyPassword->text();
}

void OptionDialog::setProxyPassword(const QString& password)
{
    ui->edtProxyPassword->setText(password);
}

void OptionDialog::hideDeactivateButton(bool)
{
    ui->btnDeactivateAntiTheft->hide();
}

void OptionDialog::slDeactivateAccount()
{
    Q_EMIT dialogEvent(this, evDeactivate);
}

void OptionDialog::slSave()
{
    Q_EMIT dialogEvent(this, evSave);
}

void OptionDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void OptionDialog::doValidateOptions()
{
    const bool loginMissing = isProxyAuthEnabled() && getProxyLogin().isEmpty();
    ui->btnSave->setDisabled(isProxyEnabled() && (getProxyAddress().isEmpty() || loginMissing));
}

void OptionDialog::accept()
{
    slSave();
}

void OptionDialog::reject()
{
    slClose();
}

QWidget* OptionDialog::startWidget()
{
    return ui->chkShowIcon;
}
