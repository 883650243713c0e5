#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Tells the person that something failed: a picture, a line of text, and Cancel. Return means "try again".
///
/// Signal: `dialogEvent(IErrorMessageDialog* pSender, IErrorMessageDialog::TEvent eventType)`
class IErrorMessageDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,    ///< Cancel, the close button or a close request. Hide or delete the dialog.
        evTryAgain = 1, ///< Return or Enter was pressed. Repeat what failed.
    };

    /// The text shown, empty at first.
    virtual QString message() const = 0;
    /// Sets the text, shown as it is and never taken for markup. It wraps within two lines; keep it short.
    virtual void setMessage(const QString& text) = 0;
};
