#include "ErrorMessageDialog.h"

#include "ui_ErrorMessageDialog.h"

ErrorMessageDialog::ErrorMessageDialog(const QString& message, QWidget*)
    : ui(std::make_unique<Ui::ErrorMessageDialog>())
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, nullptr, QString());
    ui->lblMessage->setText(message);
    ui->btnMessageInnerButton->hide();

    connect(ui->btnMessageInnerButton, &QPushButton::clicked, this, &ErrorMessageDialog::slInnerButtonClick);
    connect(ui->btnCancel, &QPushButton::clicked, this, &ErrorMessageDialog::slClose);
    connect(ui->btnClose, &QPushButton::clicked, this, &ErrorMessageDialog::slClose);

    setWindowFlag(Qt::WindowStaysOnTopHint);
}

ErrorMessageDialog::~ErrorMessageDialog() = default;

QString ErrorMessageDialog::message() const
{
    return ui->lblMessage->text();
}

void ErrorMessageDialog::setMessage(const QString& text)
{
    ui->lblMessage->setText(text);
}

void ErrorMessageDialog::slClose()
{
    reject();
}

void ErrorMessageDialog::slInnerButtonClick()
{
    accept();
}

void ErrorMessageDialog::accept()
{
    Q_EMIT dialogEvent(this, evTryAgain);
}

void ErrorMessageDialog::reject()
{
    Q_EMIT dialogEvent(this, evClose);
}
