#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Asks for the custom password set in the management console. Modal; the host checks the password.
///
/// Signal: `dialogEvent(IZentPasswordDialog* pSender, IZentPasswordDialog::TEvent eventType)`
class IZentPasswordDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,    ///< Cancel or a close request.
        evContinue = 1, ///< Continue, Return or Enter; never while the password is empty.
    };

    /// The password exactly as typed. Keep it no longer than needed and write it nowhere.
    virtual QString getPassword() const = 0;
    virtual void setPassword(const QString& password) = 0;
};
