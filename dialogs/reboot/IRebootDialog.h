#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Asks the person to restart or shut down the computer now, or to be reminded later.
///
/// The dialog is modal, stays on top and neither restarts nor schedules anything: the host acts on the events and
/// shows the dialog again when the period is over.
///
/// Signal: `dialogEvent(IRebootDialog* pSender, IRebootDialog::TEvent event)`
class IRebootDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evRebootNow = 0, ///< Restart (or shut down, see setShutdown()) now.
        evPostpone = 1,  ///< Remind in getPostponePeriod().
        evClosed = 2,    ///< The window was asked to close and has hidden itself; treat it as postponed.
    };

    /// The plain text of the reason shown, empty at first.
    virtual QString getMessage() const = 0;
    /// Sets the reason. The only text of this dialog in which rich text is interpreted: escape whatever in it comes
    /// from outside the host (`QString::toHtmlEscaped()`). It is shown as plain text when it would take long to lay
    /// out: beyond 16384 characters or 8 tables, or with a row or column span of ten or more.
    virtual void setMessage(const QString& text) = 0;

    /// The period chosen: 0 = 10 minutes (the default), 1 = 30 minutes, 2 = 1 hour, 3 = 4 hours.
    virtual int getPostponePeriod() const = 0;
    /// Preselects a period by the same codes. Any other value selects 10 minutes.
    virtual void setPostponePeriod(int period) = 0;

    /// Whether the dialog asks for a shutdown instead of a restart; false at first.
    virtual bool isShutdown() const = 0;
    /// Makes the button read "Shutdown now" (true) or "Reboot now" (false). Nothing else changes: the reason is the
    /// host's.
    virtual void setShutdown(bool shutdown) = 0;
};
