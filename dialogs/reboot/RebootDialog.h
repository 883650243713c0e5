#pragma once

#include "BaseDialog.h"
#include "IRebootDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class RebootDialog;
}
QT_END_NAMESPACE

class RebootDialog final : public BaseDialog, public virtual IRebootDialog {
    Q_OBJECT

public:
    explicit RebootDialog(QWidget* parent = nullptr);
    ~RebootDialog() override;

    QString getMessage() const override;
    void setMessage(const QString& text) override;
    int getPostponePeriod() const override;
    void setPostponePeriod(int period) override;
    bool isShutdown() const override;
    void setShutdown(bool shutdown) override;

Q_SIGNALS:
    void dialogEvent(IRebootDialog* pSender, IRebootDialog::TEvent event);

public Q_SLOTS:
    void rebootNow();
    void postponeReboot();
    void closed();

protected:
    QWidget* startWidget() override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    const std::unique_ptr<Ui::RebootDialog> ui;
    bool shutdownRequested = false;
};
