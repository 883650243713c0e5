#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Asks the person whether an incoming remote connection may proceed, against a countdown.
///
/// One prompt per pending connection, got and deleted by the connection's id; prompts are independent of each other.
/// It appears above other windows without taking the focus from what the person is typing; a click or the window
/// switcher gives the focus to Cancel. Only its two buttons and the countdown answer it. Names and messages from the
/// remote side are shown as plain text; control characters in them become visible.
///
/// Signal: `dialogEvent(IApproveRemoteConnectionDialog* pSender, IApproveRemoteConnectionDialog::TEvent eventType)`
class IApproveRemoteConnectionDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evCancel = 0,  ///< The person refused.
        evAllow = 1,   ///< The person allowed the connection.
        evTimeout = 2, ///< The countdown ran out; the host decides. A countdown of 0 or less reports it at show() and
                       ///< once more a second later.
    };

    /// The seconds left, 0 at first.
    virtual qint64 getCountdown() const = 0;
    /// Sets the seconds left. The button shows them from the next show() or tick on. The countdown runs while the
    /// prompt is shown.
    virtual void setCountdown(qint64 seconds) = 0;

    virtual QString getRequesterName() const = 0;
    /// Sets who is connecting, the first part of the window title.
    virtual void setRequesterName(const QString& name) = 0;

    /// Puts the countdown on the Cancel button (nonzero, the default) or on the Allow button (0). Show the one that
    /// tells what will happen when the time is over.
    virtual void setCountdownOnCancel(int flag) = 0;
    virtual int getCountdownOnCancel() const = 0;

    /// A value of the host's own; the prompt only keeps it. 0 at first.
    virtual void setContextValue(int value) = 0;
    virtual int getContextValue() const = 0;

    /// Sets what kind of session is asked for, the second part of the window title: 0 and 2 = remote control,
    /// 1 = remote tools, 3 = remote access; any other value leaves that part empty.
    virtual void setSessionType(int type) = 0;
    virtual int getSessionType() const = 0;

    /// Sets the message. With @p translate, @p text is a key of the context "ControllerConsts" in a translator that the
    /// host has installed; the plugin's translations hold no such keys. Without @p translate, or when the key is
    /// unknown, it is shown as it is.
    virtual void setMessage(const QString& text, bool translate) = 0;
    /// The message shown.
    virtual const QString& getMessage() const = 0;

    /// Two texts of the host's own; the prompt only keeps them.
    virtual void setAuxText1(const QString& text) = 0;
    virtual const QString& getAuxText1() const = 0;
    virtual void setAuxText2(const QString& text) = 0;
    virtual const QString& getAuxText2() const = 0;

    /// The id under which the prompt is registered. Set when the prompt is created; changing it does not move the
    /// registration.
    virtual void setConnectionId(const QString& id) = 0;
    virtual const QString& getConnectionId() const = 0;
};
