#pragma once

#include "BaseDialog.h"
#include "IRemoteConnectionDialog.h"

#include <QDateTime>
#include <QMap>
#include <QTimer>

#include <memory>

class LogsListModel;
class TakeoverPanel;

QT_BEGIN_NAMESPACE
class QScreen;
namespace Ui {
class RemoteConnectionDialog;
}
QT_END_NAMESPACE

class RemoteConnectionDialog final : public BaseDialog, public virtual IRemoteConnectionDialog {
    Q_OBJECT

public:
    explicit RemoteConnectionDialog(QWidget* parent = nullptr);
    ~RemoteConnectionDialog() override;

    void addRemoteControlSession(const QString& sessionId, const QString& userName, qint64 startMsecsSinceEpoch,
                                 bool canEnd) override;
    void endRemoteControlSession(const QString& sessionId) override;
    bool hasRemoteControlSessions() const override;
    void setKeepEndedSessionPanels(bool keep) override;
    void startRemoteToolsSession(const QString& sessionId, int sessionType, const QString& userName,
                                 qint64 startMsecsSinceEpoch, bool canEnd) override;
    void endRemoteToolsSession(const QString& sessionId) override;
    bool isRemoteToolsPopupShown() const override;
    void addLogEvent(qint64 msecsSinceEpoch, const QString& category, const QString& action, const QString& path,
                     const QString& status) override;
    const QString& remoteToolsSessionId() const override;
    void setKeepRemoteToolsPopup(bool keep) override;
    void setLogExpanderEnabled(bool enabled) override;
    void clearLog() override;
    void addEmptyLogRow() override;
    int remoteToolsValue() const override;

    /// Scales the panels that come later too.
    void setRatio(float newRatio) override;
    /// Puts the window into the corner whenever it is shown.
    void setVisible(bool visible) override;
    /// Nothing: the sessions decide when the window goes.
    void accept() override;
    void reject() override;

Q_SIGNALS:
    void dialogEvent(IRemoteConnectionDialog* pSender, IRemoteConnectionDialog::TEvent eventType,
                     const QString& sessionId);

public Q_SLOTS:
    void slUpdateTime();
    void on_closeButton_clicked();
    void onFileTransferPanelExpand(bool expanded);
    void on_btnCloseRemoteToolsPopup_clicked();
    void on_btnEndRemoteToolsSession_clicked();
    void onAvailableGeometryChanged(QRect availableGeometry);
    void onEndRemoteControlSession();
    void onCloseRemoteControlPopup();

protected:
    void setupWindow() override;

private:
    TakeoverPanel* createPanel(const QString& sessionId);
    void removePanel(const QString& sessionId);
    bool isToolsSessionRunning() const;
    void closeToolsPopup();
    void showToolsButtons(bool end, bool close);
    void setToolsCloseEnabled(bool enabled);
    void announceStart(const QString& sessionName);
    void announceEnd(const QString& sessionName);
    void showForSession();
    void hideIfEmpty();
    void updateClockTimer();
    void fitPathsToWindow();

    void setPartVisible(QWidget* part, bool visible);
    void fitSize();
    void storeAnchor();
    void returnToAnchor();
    void moveToCorner();
    void followPrimaryScreen(QScreen* screen);

    const std::unique_ptr<Ui::RemoteConnectionDialog> ui;
    QMap<QString, TakeoverPanel*> panels;
    QString toolsSessionId;
    /// For screen readers: whose session it is, and of which kind.
    QString toolsSessionName;
    /// Null while no tools session runs.
    QDateTime toolsStartTime;
    bool keepPanels = false;
    bool keepToolsPopup = false;
    bool toolsPopupShown = false;
    int toolsSessionType = 0;
    /// Right and bottom of the window; null until it is shown for the first time.
    QPoint anchor;
    QTimer updateTimer{this};
    LogsListModel* const logModel;
    float ratio = 1.0F;
    QMetaObject::Connection workAreaConnection;
};
