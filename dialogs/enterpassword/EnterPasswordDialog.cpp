#include "EnterPasswordDialog.h"

#include "ui_EnterPasswordDialog.h"

namespace {
enum AccessMode {
    AdministratorOnly = 0,
    CustomPasswordOnly = 1,
    EitherWay = 2,
};
} // namespace

EnterPasswordDialog::EnterPasswordDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::EnterPasswordDialog>())
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, ui->lblType, tr("Enter password"));

    setAccessMode(EitherWay);
    setCustomPasswordSelected(false);

    // Typing into a way's field chooses that way.
    const std::initializer_list<QLineEdit*> accountFields = {ui->editDomain, ui->editLogin,
                                                             ui->editAdministratorPassword};
    for (const QLineEdit* edit : accountFields)
        connect(edit, &QLineEdit::textEdited, this, [this] { setCustomPasswordSelected(false); });
    connect(ui->editZentPassword, &QLineEdit::textEdited, this, [this] { setCustomPasswordSelected(true); });
    connect(ui->buttonOk, &QPushButton::clicked, this, &EnterPasswordDialog::onOkClicked);
    connect(ui->buttonCancel, &QPushButton::clicked, this, &EnterPasswordDialog::onCancelClicked);

    setModal(true);
}

EnterPasswordDialog::~EnterPasswordDialog() = default;

int EnterPasswordDialog::getAccessMode() const
{
    return accessMode;
}

void EnterPasswordDialog::setAccessMode(int mode)
{
    accessMode = mode;
    applyAccessMode();
}

bool EnterPasswordDialog::isCustomPasswordSelected()
{
    applyAccessMode();
    return !ui->radioButtonComputerAdministrator->isChecked();
}

void EnterPasswordDialog::setCustomPasswordSelected(bool selected)
{
    (selected ? ui->radioButtonZentModeAccess : ui->radioButtonComputerAdministrator)->setChecked(true);
    applyAccessMode();
}

QString EnterPasswordDialog::getDomain() const
{
    return ui->editDomain->text();
}

void EnterPasswordDialog::setDomain(const QString& domain)
{
    ui->editDomain->setText(domain);
}

QString EnterPasswordDialog::getLogin() const
{
    return ui->editLogin->text();
}

void EnterPasswordDialog::setLogin(const QString& login)
{
    ui->editLogin->setText(login);
}

QString EnterPasswordDialog::getAdministratorPassword() const
{
    return ui->editAdministratorPassword->text();
}

void EnterPasswordDialog::setAdministratorPassword(const QString& password)
{
    ui->editAdministratorPassword->setText(password);
}

QString EnterPasswordDialog::getZentPassword() const
{
    return ui->editZentPassword->text();
}

void EnterPasswordDialog::setZentPassword(const QString& password)
{
    ui->editZentPassword->setText(password);
}

IAttachment* EnterPasswordDialog::getAttachment() const
{
    return attached.get();
}

void EnterPasswordDialog::setAttachment(std::unique_ptr<IAttachment>& attachment)
{
    // Released before the comparison: the host may hand over the object that is attached already.
    IAttachment* next = attachment.release();
    if (next != attached.get())
        attached.reset(next);
}

void EnterPasswordDialog::onOkClicked()
{
    Q_EMIT dialogEvent(this, evOk);
}

void EnterPasswordDialog::onCancelClicked()
{
    Q_EMIT dialogEvent(this, evCancel);
}

void EnterPasswordDialog::onCloseClicked()
{
    Q_EMIT dialogEvent(this, evCloseClicked);
}

void EnterPasswordDialog::accept()
{
    onOkClicked();
}

QWidget* EnterPasswordDialog::startWidget()
{
    // The checked option may be disabled by now.
    if (isCustomPasswordSelected() && ui->editZentPassword->isEnabled())
        return ui->editZentPassword;
    return firstEmpty({ui->editDomain, ui->editLogin, ui->editAdministratorPassword}, ui->editAdministratorPassword);
}

void EnterPasswordDialog::applyAccessMode()
{
    const bool administrator = accessMode == AdministratorOnly || accessMode == EitherWay;
    const bool custom = accessMode == CustomPasswordOnly || accessMode == EitherWay;

    // The checked one of two radio buttons cannot be unchecked; checking the other one moves the choice.
    ui->radioButtonComputerAdministrator->setEnabled(administrator);
    if (!administrator)
        ui->radioButtonComputerAdministrator->setChecked(false);
    ui->editDomain->setEnabled(administrator);
    ui->editLogin->setEnabled(administrator);
    ui->editAdministratorPassword->setEnabled(administrator);
    ui->radioButtonZentModeAccess->setEnabled(custom);
    if (accessMode != EitherWay)
        ui->radioButtonZentModeAccess->setChecked(custom);
    ui->editZentPassword->setEnabled(custom);

    // Qt lets Tab reach one radio button of a group only, which may be disabled by now.
    ui->radioButtonComputerAdministrator->setFocusPolicy(Qt::StrongFocus);
    ui->radioButtonZentModeAccess->setFocusPolicy(Qt::StrongFocus);
}
