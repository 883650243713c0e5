#include "AcceptMessageDialog.h"

#include "ui_AcceptMessageDialog.h"

AcceptMessageDialog::AcceptMessageDialog(const QString& message, QWidget*)
    : ui(std::make_unique<Ui::AcceptMessageDialog>())
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, nullptr, QString());
    ui->lblMessage->setText(message);
    ui->btnMessageInnerButton->setEnabled(true);

    connect(ui->btnMessageInnerButton, &QPushButton::clicked, this, &AcceptMessageDialog::slInnerButtonClick);
    connect(ui->btnCancel, &QPushButton::clicked, this, &AcceptMessageDialog::slClose);
    connect(ui->btnClose, &QPushButton::clicked, this, &AcceptMessageDialog::slClose);

    setWindowFlag(Qt::WindowStaysOnTopHint);
}

AcceptMessageDialog::~AcceptMessageDialog() = default;

QString AcceptMessageDialog::message() const
{
    return ui->lblMessage->text();
}

void AcceptMessageDialog::setMessage(const QString& text)
{
    ui->lblMessage->setText(text);
}

void AcceptMessageDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void AcceptMessageDialog::slInnerButtonClick()
{
    accept();
}

void AcceptMessageDialog::accept()
{
    Q_EMIT dialogEvent(this, evOk);
}

void AcceptMessageDialog::reject()
{
    // Hosts wait for evOk also when the window is closed by other means than its buttons.
    Q_EMIT dialogEvent(this, evOk);
}

QWidget* AcceptMessageDialog::startWidget()
{
    return ui->btnMessageInnerButton;
}
