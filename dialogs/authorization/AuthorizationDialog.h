#pragma once

#include "BaseDialog.h"
#include "IAuthorizationDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class AuthorizationDialog;
}
QT_END_NAMESPACE

class AuthorizationDialog final : public BaseDialog, public virtual IAuthorizationDialog {
    Q_OBJECT

public:
    explicit AuthorizationDialog(QWidget* parent = nullptr);
    ~AuthorizationDialog() override;

    QString getUsername() const override;
    void setUsername(const QString& username) override;
    QString getPassword() const override;
    void setPassword(const QString& password) override;

Q_SIGNALS:
    void dialogEvent(IAuthorizationDialog* pSender, IAuthorizationDialog::TEvent eventType);

public Q_SLOTS:
    void doEnableOk();
    void goToWeb();
    void doShowEmailIcon();
    void doShowPasswordIcon();
    void accept() override;
    void reject() override;
    void slClose();
    void slLogin();

protected:
    QWidget* startWidget() override;

private:
    bool isInputValid() const;

    const std::unique_ptr<Ui::AuthorizationDialog> ui;
};
