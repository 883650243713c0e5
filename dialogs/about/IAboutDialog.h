#pragma once

#include "IBaseDialog.h"

#include <QString>

/// Shows what the agent is, which server it talks to and how to reach support.
///
/// The support contacts come from the branding file. All texts set here are shown as they are, never as markup.
/// show() brings the box to the front, also when it was minimised.
///
/// Signal: `dialogEvent(IAboutDialog* pSender, IAboutDialog::TEvent eventType)`
class IAboutDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,       ///< OK, the close button, Return, Enter or a close request. Hide or delete the box.
        evUpdateNow = 1,   ///< "Update now" was clicked.
        evLinkClicked = 2, ///< The support web site was clicked; the box opens nothing itself. Open the address from
                           ///< your own branding record, and never from a process with system rights.
    };

    /// The version number, empty at first.
    virtual QString getVersion() const = 0;
    virtual void setVersion(const QString& version) = 0;

    /// The copyright line: the year of the build and the maker's name at first.
    virtual QString getCopyright() const = 0;
    virtual void setCopyright(const QString& copyright) = 0;

    /// The management server, "n/a" at first. A name too long for its line can be read in full as its tool tip.
    virtual QString getServer() const = 0;
    virtual void setServer(const QString& server) = 0;

    /// The time of the last contact with the server in the host's own wording, "n/a" at first.
    virtual QString getLastCommunicationTime() const = 0;
    virtual void setLastCommunicationTime(QString time) = 0;

    /// Shows or hides the copyright line together with "All rights reserved"; both are visible at first.
    virtual void setCopyrightVisible(bool visible) = 0;
};
