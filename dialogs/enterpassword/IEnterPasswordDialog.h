#pragma once

#include "IBaseDialog.h"

#include <QString>

#include <memory>

/// Anything a host wants to keep with a credentials prompt until it is answered, for example the action to unlock.
class IAttachment {
public:
    virtual ~IAttachment() = default;
};

/// Asks for the right to go on: a computer administrator's account, or the custom password of the management console.
/// Modal; the host checks what was typed.
///
/// A close request hides the dialog without an event. A host that must know connects to the `finished(int)` of its
/// window, a QDialog: `dynamic_cast<QDialog*>(dialog)`.
///
/// Signal: `dialogEvent(IEnterPasswordDialog* pSender, IEnterPasswordDialog::TEvent eventType)`
class IEnterPasswordDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evOk = 0,           ///< OK, Return or Enter; also with empty fields.
        evCancel = 1,       ///< Cancel was clicked.
        evCloseClicked = 2, ///< Reserved: no widget of the dialog triggers it.
    };

    /// Which ways are allowed: 0 = computer administrator, 1 = custom password, 2 = both (the default).
    virtual int getAccessMode() const = 0;
    /// Sets the ways allowed and enables the fields accordingly. Any other value is stored and disables both ways.
    virtual void setAccessMode(int mode) = 0;

    /// Whether the person chose the custom password, by its button or by typing into its field. In mode 1 always true,
    /// in mode 0 false unless the choice was moved before.
    virtual bool isCustomPasswordSelected() = 0;
    /// Preselects the custom password (true) or the computer administrator (false), as far as the mode allows it.
    virtual void setCustomPasswordSelected(bool selected) = 0;

    /// The Windows domain exactly as typed.
    virtual QString getDomain() const = 0;
    virtual void setDomain(const QString& domain) = 0;

    /// The administrator's login exactly as typed.
    virtual QString getLogin() const = 0;
    virtual void setLogin(const QString& login) = 0;

    /// The administrator's password exactly as typed. Keep it no longer than needed and write it nowhere.
    virtual QString getAdministratorPassword() const = 0;
    virtual void setAdministratorPassword(const QString& password) = 0;

    /// The custom password exactly as typed. Keep it no longer than needed and write it nowhere.
    virtual QString getZentPassword() const = 0;
    virtual void setZentPassword(const QString& password) = 0;

    /// The attached object, null at first. It stays the dialog's.
    virtual IAttachment* getAttachment() const = 0;
    /// Takes @p attachment over and leaves it empty; the object attached before is destroyed, and the last one with
    /// the dialog. Handing over an empty pointer only destroys.
    virtual void setAttachment(std::unique_ptr<IAttachment>& attachment) = 0;
};
