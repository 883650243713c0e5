#pragma once

#include "IBaseDialog.h"

#include <QString>

/// The session status window: who works on this machine remotely, for how long, and what is done there.
///
/// It stands at the bottom right of the primary screen, above other windows, and shows one panel per remote-control
/// session and one area for a remote-tools session with its activity log. A new session shows the window if it is
/// hidden or minimised, without taking the focus from what the person is typing; it hides itself when nothing is left
/// to show. It grows upward from its bottom-right corner, but its header never leaves the screen. The close button in
/// the header hides it whatever is going on and emits nothing; show() or a new session brings it back. Close requests
/// are ignored. Names, paths and keys from the remote side are shown as plain text; control characters in them become
/// visible.
///
/// The operations may be called from the slot that receives an event. An event that is just being received is not
/// emitted again for the same session unless something has changed: endRemoteToolsSession() called in
/// evRemoteToolsPopupClosed finds the area closed, and endRemoteControlSession() called in evRemoteControlPopupClosed
/// finds the panel removed, so it emits evRemoteControlSessionEnded only.
///
/// Signal: `dialogEvent(IRemoteConnectionDialog* pSender, IRemoteConnectionDialog::TEvent eventType,
/// const QString& sessionId)`
class IRemoteConnectionDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evRemoteControlSessionEnded = 0, ///< endRemoteControlSession() ran, called by the host or by a panel's End
                                         ///< button: stop that session.
        evEndRemoteToolsSession = 1,     ///< The person ended the tools session: stop it, then call
                                         ///< endRemoteToolsSession().
        evRemoteToolsPopupClosed = 2,    ///< The tools area was closed.
        evRemoteToolsSessionEnded = 4,   ///< endRemoteToolsSession() ended a running tools session.
        evRemoteControlPopupClosed = 5,  ///< A session's panel was removed.
    };

    /// Adds a panel for a remote-control session, or updates the one it has.
    /// @param sessionId identifies the session; any text, the empty one included
    /// @param userName who is working on the machine
    /// @param startMsecsSinceEpoch start of the session in milliseconds since 1970 (UTC). An update keeps the earlier
    ///        start. A start in the future leaves the clock as it is.
    /// @param canEnd whether the person may end the session: the panel then has an End button, else a Close button
    virtual void addRemoteControlSession(const QString& sessionId, const QString& userName, qint64 startMsecsSinceEpoch,
                                         bool canEnd) = 0;
    /// Ends a remote-control session: removes its panel, or keeps it with a Close button and a stopped clock, see
    /// setKeepEndedSessionPanels(). Emits evRemoteControlSessionEnded also for an id that has no panel.
    virtual void endRemoteControlSession(const QString& sessionId) = 0;
    /// Whether any panel is there, ended ones included.
    virtual bool hasRemoteControlSessions() const = 0;
    /// Whether ended sessions keep their panel until the person closes it; false at first.
    virtual void setKeepEndedSessionPanels(bool keep) = 0;

    /// Opens the tools area for a session and starts its clock.
    /// @param sessionId identifies the session and comes with the events of the tools area
    /// @param sessionType 1 = file transfer, any other value = remote tools
    /// @param userName who is working on the machine
    /// @param startMsecsSinceEpoch start of the session in milliseconds since 1970 (UTC)
    /// @param canEnd whether the person may end the session
    virtual void startRemoteToolsSession(const QString& sessionId, int sessionType, const QString& userName,
                                         qint64 startMsecsSinceEpoch, bool canEnd) = 0;
    /// Ends the tools session and closes its area, unless setKeepRemoteToolsPopup() keeps it for reading.
    virtual void endRemoteToolsSession(const QString& sessionId) = 0;
    /// Whether the tools area is open; set by startRemoteToolsSession(), cleared when the area is closed.
    virtual bool isRemoteToolsPopupShown() const = 0;

    /// Adds one line at the top of the activity log. Any text is allowed.
    /// @param msecsSinceEpoch when it happened, in milliseconds since 1970 (UTC); shown as local time
    /// @param category "file", "process", "service" or "event"; unknown ones count as "file"
    /// @param action an action key: "file-" or "dir-" with "upload", "download", "erase" or "rename", "make-dir",
    ///        "proc-kill", "serv-" with "start", "stop", "restart", "pause" or "resume", "session-suspend" or
    ///        "session-resume"; unknown ones are shown as they are
    /// @param path the file, process or service concerned
    /// @param status "reply" (done), "abort", "cancel" or "error"; unknown ones show the action key. Only uploads and
    ///        downloads have words for "abort" and "cancel", and nothing has words for "error": such a row shows time
    ///        and path alone
    virtual void addLogEvent(qint64 msecsSinceEpoch, const QString& category, const QString& action,
                             const QString& path, const QString& status) = 0;
    /// The id last given to startRemoteToolsSession(), empty before.
    virtual const QString& remoteToolsSessionId() const = 0;
    /// Whether the tools area stays open when the host ends its session; false at first.
    virtual void setKeepRemoteToolsPopup(bool keep) = 0;
    /// Whether the person may open and close the activity log; true at first.
    virtual void setLogExpanderEnabled(bool enabled) = 0;
    /// Empties the activity log.
    virtual void clearLog() = 0;
    /// Adds a blank line at the top of the activity log.
    virtual void addEmptyLogRow() = 0;
    /// The session type last given to startRemoteToolsSession(), 0 before.
    virtual int remoteToolsValue() const = 0;
};
