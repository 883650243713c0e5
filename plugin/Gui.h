#pragma once

#include "GuiInterface.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

class BaseDialog;

QT_BEGIN_NAMESPACE
class QDialog;
QT_END_NAMESPACE

/// The plugin's root object: creates each dialog on first request and knows the live ones by name.
class Gui : public QObject, public GuiInterface {
    Q_OBJECT
    Q_INTERFACES(GuiInterface)
    Q_PLUGIN_METADATA(IID "com.brisel.RUV.Plugin.GuiInterface" FILE "Gui.json")

public:
    Gui();
    /// Leaves the dialogs alive: those on screen may still be waiting for the person's answer.
    ~Gui() override;

    void setRatio(float ratio) override;
    float getRatio() const override;

    IAboutDialog* getAboutDialogInstance() override;
    bool deleteAboutDialogInstance() override;
    bool attachAboutDialogEventHandler(const QObject* receiver, const char* slot) override;
    IActivationDialog* getActivationDialogInstance() override;
    bool deleteActivationDialogInstance() override;
    bool attachActivationDialogEventHandler(const QObject* receiver, const char* slot) override;
    IAcceptMessageDialog* getAcceptMessageDialogInstance() override;
    bool deleteAcceptMessageDialogInstance() override;
    bool attachAcceptMessageDialogEventHandler(const QObject* receiver, const char* slot) override;
    IErrorMessageDialog* getErrorMessageDialogInstance() override;
    bool deleteErrorMessageDialogInstance() override;
    bool attachErrorMessageDialogEventHandler(const QObject* receiver, const char* slot) override;
    IProgressDialog* getProgressDialogInstance() override;
    bool deleteProgressDialogInstance() override;
    bool attachProgressDialogEventHandler(const QObject* receiver, const char* slot) override;
    IAuthorizationDialog* getAuthorizationDialogInstance() override;
    bool deleteAuthorizationDialogInstance() override;
    bool attachAuthorizationDialogEventHandler(const QObject* receiver, const char* slot) override;
    IZentPasswordDialog* getZentPasswordDialogInstance() override;
    bool deleteZentPasswordDialogInstance() override;
    bool attachZentPasswordDialogEventHandler(const QObject* receiver, const char* slot) override;
    IOptionDialog* getOptionDialogInstance() override;
    bool deleteOptionDialogInstance() override;
    bool attachOptionDialogEventHandler(const QObject* receiver, const char* slot) override;
    IRebootDialog* getRebootDialogInstance() override;
    bool deleteRebootDialogInstance() override;
    bool attachRebootDialogEventHandler(const QObject* receiver, const char* slot) override;
    IEnterPasswordDialog* getEnterPasswordDialogInstance() override;
    bool deleteEnterPasswordDialogInstance() override;
    bool attachEnterPasswordDialogEventHandler(const QObject* receiver, const char* slot) override;
    IServiceDeskTicketDialog* getServiceDeskTicketDialogInstance() override;
    bool deleteServiceDeskTicketDialogInstance() override;
    bool attachServiceDeskTicketDialogEventHandler(const QObject* receiver, const char* slot) override;
    IRemoteConnectionDialog* getRemoteConnectionDialogInstance() override;
    bool deleteRemoteConnectionDialogInstance() override;
    bool attachRemoteConnectionDialogEventHandler(const QObject* receiver, const char* slot) override;
    IApproveRemoteConnectionDialog* getApproveRemoteConnectionDialogInstance(const QString& id) override;
    bool deleteApproveRemoteConnectionDialogInstance(const QString& id) override;
    bool deleteAllApproveRemoteConnectionDialogInstances() override;
    bool attachApproveRemoteConnectionDialogEventHandler(const QObject* receiver, const char* slot,
                                                         const QString& id) override;

private:
    template <class Dialog>
    Dialog* get(const QString& id = QString());
    template <class Dialog>
    bool remove(const QString& id = QString());
    template <class Dialog>
    bool attach(const QObject* receiver, const char* slot, const QString& id = QString());

    void store(const QString& key, BaseDialog* dialog);
    bool removeEntry(const QString& key);
    void assignStyleSheet(QDialog* dialog);
    void assignTranslations();

    /// Read on first use.
    std::unique_ptr<QString> styleSheet;
    /// The live dialogs by registry key; not owned. Asking for a missing one leaves a null entry behind.
    QHash<QString, BaseDialog*> dialogs;
    float ratio = 1.0F;
};
