#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Shows that the agent is busy: a turning spinner, a percentage, a line of text, and Cancel.
///
/// Signals, in this order:
/// - `progressChanged()`: the percentage changed;
/// - `cancelDownload()`: reserved, never emitted;
/// - `sigWaiterComplete()`: the waiter started with startWaiter() reached 100 percent;
/// - `dialogEvent(IProgressDialog* pSender, IProgressDialog::TEvent eventType)`.
class IProgressDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,  ///< The window was asked to close by other means than its buttons.
        evCancel = 1, ///< Cancel or the close button was clicked. Stop the work, then hide or delete the dialog.
    };

    /// The text shown, empty at first.
    virtual QString getMessage() const = 0;
    /// Sets the text, shown as it is and never taken for markup. It wraps within two lines; keep it short.
    virtual void setMessage(const QString& text) = 0;

    /// Sets the percentage to `value / (total / 100)`, both divisions in whole numbers. A total below 100, 0 included,
    /// changes nothing. The result is not limited: 150 of 100 shows 150 percent, and 199 of 199 shows 199. Only totals
    /// that are multiples of 100 are exact; 100 is the usual one.
    virtual void setProgress(unsigned int value, unsigned int total) = 0;
    /// The percentage, 0 at first.
    virtual int getProgress() const = 0;

    /// Counts the percentage from 0 to 100 in eleven steps of ten within @p seconds and then emits
    /// `sigWaiterComplete()`. Starting again starts over. Zero, a negative number or NaN completes on the next turns
    /// of the event loop; a value too large for a timer is lowered to the longest one (about 248 days).
    virtual void startWaiter(float seconds) = 0;

    /// Hides the percentage for work whose length is not known; the spinner stays.
    virtual void hideProgressValue() = 0;
};
