#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Enrolls the device: collects host, port and token from an enrollment e-mail, typed or pasted as one link.
///
/// Ctrl+Shift+V takes all three from a link on the clipboard, and so does pasting or dropping such a link into any of
/// the fields. The dialog never contacts the server.
///
/// Signal: `dialogEvent(IActivationDialog* pSender, IActivationDialog::TEvent eventType)`
class IActivationDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,            ///< Cancel, the close button or a close request.
        evEnroll = 1,           ///< Enroll, Return or Enter; the latter also with incomplete fields. Check
                                ///< getServerUrl() and getToken() and say what is wrong.
        evGoToRegistration = 2, ///< Reserved: no widget of the dialog triggers it.
    };

    /// The enrollment address made of host and port, for example `https://mdm.example.com:443/command/windows/`.
    /// Empty when they do not make one: no host, a scheme other than http, a path behind the host, or a port that is
    /// not a plain number from 1 to 65535. User info, query and fragment of the typed text are dropped.
    virtual QString getServerUrl() const = 0;
    /// Fills host and port from an address; 443 where it names no port. Scheme and path are ignored. From an invalid
    /// address, or one without a host as `mdm.example.com` alone, comes an empty host.
    virtual void setServerUrl(const QString& url) = 0;

    /// The enrollment token without white space around it. Its form is not checked.
    virtual QString getToken() const = 0;
    virtual void setToken(const QString& token) = 0;
};
