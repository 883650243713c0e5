#include "ZentPasswordDialog.h"

#include "DisplayText.h"
#include "HintPicture.h"
#include "ui_ZentPasswordDialog.h"

ZentPasswordDialog::ZentPasswordDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::ZentPasswordDialog>())
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, ui->lblType, tr("Enter password"));
    ui->btnContinue->setEnabled(false);

    connect(ui->edPassword, &QLineEdit::textChanged, this, &ZentPasswordDialog::doEnableOk);
    connect(ui->edPassword, &QLineEdit::textChanged, this, &ZentPasswordDialog::doShowPasswordIcon);
    connect(ui->btnContinue, &QPushButton::clicked, this, &ZentPasswordDialog::slContinue);
    connect(ui->btnCancel, &QPushButton::clicked, this, &ZentPasswordDialog::slClose);

    setModal(true);
}

ZentPasswordDialog::~ZentPasswordDialog() = default;

QString ZentPasswordDialog::getPassword() const
{
    return ui->edPassword->text();
}

void ZentPasswordDialog::setPassword(const QString& password)
{
    ui->edPassword->setText(password);
}

void ZentPasswordDialog::doEnableOk()
{
    ui->btnContinue->setEnabled(hasPassword());
}

void ZentPasswordDialog::doShowPasswordIcon()
{
    showHintPicture(ui->edPassword, QStringLiteral("password"));
}

void ZentPasswordDialog::accept()
{
    slContinue();
}

void ZentPasswordDialog::reject()
{
    slClose();
}

void ZentPasswordDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void ZentPasswordDialog::slContinue()
{
    if (hasPassword())
        Q_EMIT dialogEvent(this, evContinue);
}

QWidget* ZentPasswordDialog::startWidget()
{
    return ui->edPassword;
}

bool ZentPasswordDialog::hasPassword() const
{
    return !ui->edPassword->text().isEmpty();
}
