#pragma once

#include "IBaseDialog.h"

#include <QString>

/// The agent's options: tray icon, automatic updates and the proxy. Application-modal.
///
/// Fill it before show(), read it back on evSave. No text is trimmed.
///
/// Signal: `dialogEvent(IOptionDialog* pSender, IOptionDialog::TEvent eventType)`
class IOptionDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evClose = 0,      ///< Cancel, the close button or a close request. Drop the changes.
        evDeactivate = 1, ///< Reserved: the deactivation button is never visible.
        evSave = 2,       ///< Save, Return or Enter; the latter also with an incomplete proxy, so check the values.
    };

    virtual bool isShowTrayIcon() const = 0;
    virtual void setShowTrayIcon(const bool& show) = 0;

    virtual bool isAutoUpdate() const = 0;
    virtual void setAutoUpdate(const bool& automatic) = 0;
    /// Hides (true) or shows (false) the choice of automatic updates; its value stays.
    virtual void setAutoUpdateHidden(const bool& hidden) = 0;

    virtual bool isProxyEnabled() const = 0;
    virtual void setProxyEnabled(const bool& enabled) = 0;

    /// The proxy's host name as typed.
    virtual QString getProxyAddress() const = 0;
    virtual void setProxyAddress(const QString& address) = 0;

    /// The proxy's port, 1 to 65535.
    virtual int getProxyPort() const = 0;
    /// Sets the port; 0 becomes 1.
    virtual void setProxyPort(const quint16& port) = 0;

    virtual bool isProxyAuthEnabled() const = 0;
    virtual void setProxyAuthEnabled(const bool& enabled) = 0;

    virtual QString getProxyLogin() const = 0;
    virtual void setProxyLogin(const QString& login) = 0;

    /// The proxy password as typed; it may be empty. Write it nowhere.
    virtual QString getProxyPassword() const = 0;
    virtual void setProxyPassword(const QString& password) = 0;

    /// Hides the deactivation button, whatever the argument says; it starts hidden.
    virtual void hideDeactivateButton(bool hide) = 0;
};
