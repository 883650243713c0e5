#pragma once

#include "BaseDialog.h"
#include "IEnterPasswordDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class EnterPasswordDialog;
}
QT_END_NAMESPACE

class EnterPasswordDialog final : public BaseDialog, public virtual IEnterPasswordDialog {
    Q_OBJECT

public:
    explicit EnterPasswordDialog(QWidget* parent = nullptr);
    ~EnterPasswordDialog() override;

    int getAccessMode() const override;
    void setAccessMode(int mode) override;
    bool isCustomPasswordSelected() override;
    void setCustomPasswordSelected(bool selected) override;
    QString getDomain() const override;
    void setDomain(const QString& domain) override;
    QString getLogin() const override;
    void setLogin(const QString& login) override;
    QString getAdministratorPassword() const override;
    void setAdministratorPassword(const QString& password) override;
    QString getZentPassword() const override;
    void setZentPassword(const QString& password) override;
    IAttachment* getAttachment() const override;
    void setAttachment(std::unique_ptr<IAttachment>& attachment) override;

Q_SIGNALS:
    void dialogEvent(IEnterPasswordDialog* pSender, IEnterPasswordDialog::TEvent eventType);

public Q_SLOTS:
    void onOkClicked();
    void onCancelClicked();
    void onCloseClicked();
    void accept() override;

protected:
    QWidget* startWidget() override;

private:
    void applyAccessMode();

    const std::unique_ptr<Ui::EnterPasswordDialog> ui;
    int accessMode = 2;
    std::unique_ptr<IAttachment> attached;
};
