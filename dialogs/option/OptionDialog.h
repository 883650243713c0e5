#pragma once

#include "BaseDialog.h"
#include "IOptionDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class OptionDialog;
}
QT_END_NAMESPACE

class OptionDialog final : public BaseDialog, public virtual IOptionDialog {
    Q_OBJECT

public:
    explicit OptionDialog(QWidget* parent = nullptr);
    ~OptionDialog() override;

    bool isShowTrayIcon() const override;
    void setShowTrayIcon(const bool& show) override;
    bool isAutoUpdate() const override;
    void setAutoUpdate(const bool& automatic) override;
    void setAutoUpdateHidden(const bool& hidden) override;
    bool isProxyEnabled() const override;
    void setProxyEnabled(const bool& enabled) override;
    QString getProxyAddress() const override;
    void setProxyAddress(const QString& address) override;
    int getProxyPort() const override;
    void setProxyPort(const quint16& port) override;
    bool isProxyAuthEnabled() const override;
    void setProxyAuthEnabled(const bool& enabled) override;
    QString getProxyLogin() const override;
    void setProxyLogin(const QString& login) override;
    QString getProxyPassword() const override;
    void setProxyPassword(const QString& password) override;
    void hideDeactivateButton(bool hide) override;

Q_SIGNALS:
    void dialogEvent(IOptionDialog* pSender, IOptionDialog::TEvent eventType);

public Q_SLOTS:
    void slDeactivateAccount();
    void slSave();
    void slClose();
    void doValidateOptions();
    void accept() override;
    void reject() override;

protected:
    QWidget* startWidget() override;

private:
    const std::unique_ptr<Ui::OptionDialog> ui;
};
