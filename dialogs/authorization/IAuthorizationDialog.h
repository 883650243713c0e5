#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Asks for the user name and password of the agent's online account. The host checks them.
///
/// Signal: `dialogEvent(IAuthorizationDialog* pSender, IAuthorizationDialog::TEvent eventType)`
class IAuthorizationDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,   ///< Cancel, the close button or a close request.
        evLogin = 1,   ///< Login, Return or Enter; never while the password is empty. Read both values and check them.
        evGoToWeb = 2, ///< "Forgot username or password?" was activated. The dialog opens nothing itself.
    };

    /// The user name exactly as typed, blanks included. It may be empty.
    virtual QString getUsername() const = 0;
    virtual void setUsername(const QString& username) = 0;

    /// The password exactly as typed. Keep it no longer than needed and write it nowhere.
    virtual QString getPassword() const = 0;
    virtual void setPassword(const QString& password) = 0;
};
