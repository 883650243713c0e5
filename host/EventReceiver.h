#pragma once

#include "IAboutDialog.h"
#include "IAcceptMessageDialog.h"
#include "IActivationDialog.h"
#include "IApproveRemoteConnectionDialog.h"
#include "IAuthorizationDialog.h"
#include "IEnterPasswordDialog.h"
#include "IErrorMessageDialog.h"
#include "IOptionDialog.h"
#include "IProgressDialog.h"
#include "IRebootDialog.h"
#include "IRemoteConnectionDialog.h"
#include "IServiceDeskTicketDialog.h"
#include "IZentPasswordDialog.h"

#include <QObject>

/// One event of any dialog, as the host's slot received it.
struct DialogEvent {
    IBaseDialog* sender = nullptr;
    /// The dialog's class, for example "ErrorMessageDialog".
    QString dialog;
    int event = -1;
    /// The third argument of the session window's events; null for all others.
    QString sessionId;
};

/// The host's slots: one per family, because each family's signal has its own argument types.
class EventReceiver : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    void received(const DialogEvent& event);

public Q_SLOTS:
    void onDialogEvent(IAboutDialog* pSender, IAboutDialog::TEvent eventType);
    void onDialogEvent(IAcceptMessageDialog* pSender, IAcceptMessageDialog::TEvent eventType);
    void onDialogEvent(IActivationDialog* pSender, IActivationDialog::TEvent eventType);
    void onDialogEvent(IApproveRemoteConnectionDialog* pSender, IApproveRemoteConnectionDialog::TEvent eventType);
    void onDialogEvent(IAuthorizationDialog* pSender, IAuthorizationDialog::TEvent eventType);
    void onDialogEvent(IEnterPasswordDialog* pSender, IEnterPasswordDialog::TEvent eventType);
    void onDialogEvent(IErrorMessageDialog* pSender, IErrorMessageDialog::TEvent eventType);
    void onDialogEvent(IOptionDialog* pSender, IOptionDialog::TEvent eventType);
    void onDialogEvent(IProgressDialog* pSender, IProgressDialog::TEvent eventType);
    void onDialogEvent(IRebootDialog* pSender, IRebootDialog::TEvent eventType);
    void onDialogEvent(IRemoteConnectionDialog* pSender, IRemoteConnectionDialog::TEvent eventType,
                       const QString& sessionId);
    void onDialogEvent(IServiceDeskTicketDialog* pSender, IServiceDeskTicketDialog::TEvent eventType);
    void onDialogEvent(IZentPasswordDialog* pSender, IZentPasswordDialog::TEvent eventType);

private:
    template <class Interface>
    void report(Interface* sender, int event, const QString& sessionId = QString());
};
