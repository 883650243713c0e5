#pragma once

#include "BaseDialog.h"
#include "IApproveRemoteConnectionDialog.h"

#include <QTimer>

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class ApproveRemoteConnectionDialog;
}
QT_END_NAMESPACE

class ApproveRemoteConnectionDialog final : public BaseDialog, public virtual IApproveRemoteConnectionDialog {
    Q_OBJECT

public:
    explicit ApproveRemoteConnectionDialog(QWidget* parent = nullptr);
    ~ApproveRemoteConnectionDialog() override;

    qint64 getCountdown() const override;
    void setCountdown(qint64 seconds) override;
    QString getRequesterName() const override;
    void setRequesterName(const QString& name) override;
    void setCountdownOnCancel(int flag) override;
    int getCountdownOnCancel() const override;
    void setContextValue(int value) override;
    int getContextValue() const override;
    void setSessionType(int type) override;
    int getSessionType() const override;
    void setMessage(const QString& text, bool translate) override;
    const QString& getMessage() const override;
    void setAuxText1(const QString& text) override;
    const QString& getAuxText1() const override;
    void setAuxText2(const QString& text) override;
    const QString& getAuxText2() const override;
    void setConnectionId(const QString& id) override;
    const QString& getConnectionId() const override;

    int exec() override;
    /// Starts the countdown with the window, whether it appears through show() or exec(), and stops it with the window.
    void setVisible(bool visible) override;
    /// Nothing: only the two buttons and the countdown answer.
    void accept() override;
    void reject() override;

Q_SIGNALS:
    void dialogEvent(IApproveRemoteConnectionDialog* pSender, IApproveRemoteConnectionDialog::TEvent eventType);

public Q_SLOTS:
    void slCountdownTimerTick();
    void on_allowButton_clicked();
    void on_cancelButton_clicked();

protected:
    QWidget* startWidget() override;
    void setupWindow() override;

private:
    void startCountdown();
    void refreshCountdown();
    void setTitleParts(const QString& sessionText);
    void moveOffOtherPrompts();

    const std::unique_ptr<Ui::ApproveRemoteConnectionDialog> ui;
    int countdownOnCancel = 1;
    int contextValue = 0;
    int sessionType = 0;
    QString requesterName;
    qint64 countdown = 0;
    QTimer countdownTimer{this};
    QString message;
    QString auxText1;
    QString auxText2;
    QString connectionId;
    bool isEnteringExec = false;
};
