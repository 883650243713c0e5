#pragma once

#include "BaseDialog.h"
#include "IRemoteConnectionDialog.h"

#include <QDateTime>
#include <QMap>
#include <QPair>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <memory>

class LogsListModel;
class RichTextDelegate;
class TakeoverPanel;
class WindowCorner;

QT_BEGIN_NAMESPACE
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

    /// Puts the window into the corner of the screen whenever it is shown.
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
    /// Scales the panels that come later too.
    void scaleBy(float newRatio) override;
    /// Nothing: the window's corner keeps the header on the screen.
    void moveIntoReach() override;

private:
    TakeoverPanel* createPanel(const QString& sessionId);
    void showAsEnded(TakeoverPanel* panel);
    void removePanel(const QString& sessionId);
    bool isToolsSessionRunning() const;
    void showToolsUserName();
    void closeToolsPopup();
    void showToolsButtons(bool end, bool close);
    void setToolsCloseEnabled(bool enabled);
    /// For screen readers: whose session it is, and of which kind.
    QString toolsSessionName() const;
    void announceStart(const QString& sessionName);
    void announceEnd(const QString& sessionName);
    void showForSession();
    void hideIfEmpty();
    void updateClockTimer();
    /// Emits an event, unless it is being emitted for that id already and nothing has changed since.
    void report(TEvent event, const QString& sessionId, bool hasChanged);

    void setPartVisible(QWidget* part, bool visible);
    void scheduleLayout();
    void layOutNow();
    void showAndHideParts();
    QSize fittingSize();
    void fitLogToWindow();

    const std::unique_ptr<Ui::RemoteConnectionDialog> ui;
    QMap<QString, TakeoverPanel*> panels;
    QString toolsSessionId;
    QString toolsUserName;
    /// Null while no tools session runs.
    QDateTime toolsStartTime;
    bool keepPanels = false;
    bool keepToolsPopup = false;
    bool toolsPopupShown = false;
    int toolsSessionType = 0;
    /// The events that the host is just being told.
    QVector<QPair<TEvent, QString>> eventsBeingEmitted;

    WindowCorner* corner = nullptr;
    /// What the next layout shows and hides.
    QVector<QPair<QPointer<QWidget>, bool>> partsToChange;
    bool isLayoutScheduled = false;

    QTimer updateTimer{this};
    LogsListModel* const logModel;
    RichTextDelegate* const logDelegate;
};
