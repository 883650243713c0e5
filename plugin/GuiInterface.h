#pragma once

#include <QtPlugin>

QT_BEGIN_NAMESPACE
class QString;
QT_END_NAMESPACE

class IAboutDialog;
class IAcceptMessageDialog;
class IActivationDialog;
class IApproveRemoteConnectionDialog;
class IAuthorizationDialog;
class IEnterPasswordDialog;
class IErrorMessageDialog;
class IOptionDialog;
class IProgressDialog;
class IRebootDialog;
class IRemoteConnectionDialog;
class IServiceDeskTicketDialog;
class IZentPasswordDialog;

/// The root object of the plugin: the only thing a host asks Qt's plugin loader for.
///
/// @code
/// QPluginLoader loader(QCoreApplication::applicationDirPath() + "/Gui");
/// auto* gui = qobject_cast<GuiInterface*>(loader.instance());
/// IErrorMessageDialog* dialog = gui->getErrorMessageDialogInstance();
/// gui->attachErrorMessageDialogEventHandler(
///     this, SLOT(onErrorEvent(IErrorMessageDialog*, IErrorMessageDialog::TEvent)));
/// dialog->setMessage("The download failed.");
/// dialog->show();
/// @endcode
///
/// Every dialog type has a family of three operations:
///
/// - **get** creates the dialog at the first call, hidden, styled and scaled, and returns the same object from then on
///   until it is deleted. The caller does not own it. Include `I<Name>Dialog.h` to use the result.
/// - **delete** takes the dialog out of the registry and schedules its deletion on the event loop, so that it is safe
///   inside the dialog's own event handler. Returns false when there is none. Do not touch the pointer afterwards.
/// - **attach** connects the dialog's `dialogEvent` signal to @p slot of @p receiver, a string made with `SLOT()`.
///   Returns false when the dialog was not got before, when @p receiver or @p slot is null, when the receiver has no
///   such slot, or when this very connection exists already. The connection ends with either object.
///
/// Everything happens on the GUI thread, inside the host's event loop; a QApplication must exist before the plugin is
/// loaded. Without one **get** writes a message and returns null, the branding file is not read, and the texts stay
/// English. Destroying the root object leaves dialogs that were never deleted alive. The order of the virtual functions
/// is part of the binary contract; new operations come at the end.
class GuiInterface {
public:
    virtual ~GuiInterface() = default;

    /// Sets the factor by which dialogs are scaled when they are created; dialogs that exist already keep their size.
    /// The usual value is the logical resolution of the screen divided by 96; leave it at 1 where Qt itself scales what
    /// it draws. Every value is stored, but dialogs are not scaled by one that is not a positive finite number.
    virtual void setRatio(float ratio) = 0;
    /// The value set last, 1.0 at first.
    virtual float getRatio() const = 0;

    virtual IAboutDialog* getAboutDialogInstance() = 0;
    virtual bool deleteAboutDialogInstance() = 0;
    virtual bool attachAboutDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IActivationDialog* getActivationDialogInstance() = 0;
    virtual bool deleteActivationDialogInstance() = 0;
    virtual bool attachActivationDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IAcceptMessageDialog* getAcceptMessageDialogInstance() = 0;
    virtual bool deleteAcceptMessageDialogInstance() = 0;
    virtual bool attachAcceptMessageDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IErrorMessageDialog* getErrorMessageDialogInstance() = 0;
    virtual bool deleteErrorMessageDialogInstance() = 0;
    virtual bool attachErrorMessageDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IProgressDialog* getProgressDialogInstance() = 0;
    virtual bool deleteProgressDialogInstance() = 0;
    virtual bool attachProgressDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IAuthorizationDialog* getAuthorizationDialogInstance() = 0;
    virtual bool deleteAuthorizationDialogInstance() = 0;
    virtual bool attachAuthorizationDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IZentPasswordDialog* getZentPasswordDialogInstance() = 0;
    virtual bool deleteZentPasswordDialogInstance() = 0;
    virtual bool attachZentPasswordDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IOptionDialog* getOptionDialogInstance() = 0;
    virtual bool deleteOptionDialogInstance() = 0;
    virtual bool attachOptionDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IRebootDialog* getRebootDialogInstance() = 0;
    virtual bool deleteRebootDialogInstance() = 0;
    virtual bool attachRebootDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IEnterPasswordDialog* getEnterPasswordDialogInstance() = 0;
    virtual bool deleteEnterPasswordDialogInstance() = 0;
    virtual bool attachEnterPasswordDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IServiceDeskTicketDialog* getServiceDeskTicketDialogInstance() = 0;
    virtual bool deleteServiceDeskTicketDialogInstance() = 0;
    virtual bool attachServiceDeskTicketDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    virtual IRemoteConnectionDialog* getRemoteConnectionDialogInstance() = 0;
    virtual bool deleteRemoteConnectionDialogInstance() = 0;
    virtual bool attachRemoteConnectionDialogEventHandler(const QObject* receiver, const char* slot) = 0;

    /// Creates a prompt for the pending connection @p id. Several prompts live at once, one per connection. Unlike the
    /// other families every call creates a new prompt: a second call with the same id takes the registry entry over,
    /// and the first prompt can then be reached through its pointer only. A prompt with the empty id is the exception:
    /// while it exists, every call returns it.
    virtual IApproveRemoteConnectionDialog* getApproveRemoteConnectionDialogInstance(const QString& id) = 0;
    /// Deletes the prompt got last for @p id; false when there is none.
    virtual bool deleteApproveRemoteConnectionDialogInstance(const QString& id) = 0;
    /// Deletes the registered prompts of all connections; false when there are none.
    virtual bool deleteAllApproveRemoteConnectionDialogInstances() = 0;
    virtual bool attachApproveRemoteConnectionDialogEventHandler(const QObject* receiver, const char* slot,
                                                                 const QString& id) = 0;
};

QT_BEGIN_NAMESPACE
Q_DECLARE_INTERFACE(GuiInterface, "com.brisel.RUV.Plugin.GuiInterface")
QT_END_NAMESPACE
