#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Tells the person that something succeeded, or asks for a plain confirmation: a picture, a line of text, OK and
/// Cancel.
///
/// Signal: `dialogEvent(IAcceptMessageDialog* pSender, IAcceptMessageDialog::TEvent eventType)`
class IAcceptMessageDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0, ///< Cancel or the close button was clicked.
        evOk = 1,    ///< OK was clicked, Return or Enter was pressed, or the window was asked to close.
    };

    /// The text shown, empty at first.
    virtual QString message() const = 0;
    /// Sets the text, shown as it is and never taken for markup. It wraps within two lines; keep it short.
    virtual void setMessage(const QString& text) = 0;
};
