#pragma once

#include "BaseDialog.h"
#include "IZentPasswordDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class ZentPasswordDialog;
}
QT_END_NAMESPACE

class ZentPasswordDialog final : public BaseDialog, public virtual IZentPasswordDialog {
    Q_OBJECT

public:
    explicit ZentPasswordDialog(QWidget* parent = nullptr);
    ~ZentPasswordDialog() override;

    QString getPassword() const override;
    void setPassword(const QString& password) override;

Q_SIGNALS:
    void dialogEvent(IZentPasswordDialog* pSender, IZentPasswordDialog::TEvent eventType);

public Q_SLOTS:
    void doEnableOk();
    void doShowPasswordIcon();
    void accept() override;
    void reject() override;
    void slClose();
    void slContinue();

protected:
    QWidget* startWidget() override;

private:
    bool hasPassword() const;

    const std::unique_ptr<Ui::ZentPasswordDialog> ui;
};
