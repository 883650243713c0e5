#pragma once

#include "BaseDialog.h"
#include "IActivationDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class ActivationDialog;
}
QT_END_NAMESPACE

class ActivationDialog final : public BaseDialog, public virtual IActivationDialog {
    Q_OBJECT

public:
    explicit ActivationDialog(QWidget* parent = nullptr);
    ~ActivationDialog() override;

    QString getServerUrl() const override;
    void setServerUrl(const QString& url) override;
    QString getToken() const override;
    void setToken(const QString& token) override;

Q_SIGNALS:
    void dialogEvent(IActivationDialog* pSender, IActivationDialog::TEvent eventType);

public Q_SLOTS:
    void toggleStep();
    void doEnableOk();
    void goToRegistration();
    void accept() override;
    void reject() override;
    void slClose();
    void slActivate();
    void slPasteEnrollDataFromClipboard();

protected:
    QWidget* startWidget() override;

private:
    /// Fills all fields from the enrollment link in @p text, if there is one.
    void takeLink(const QString& text);

    const std::unique_ptr<Ui::ActivationDialog> ui;
};
