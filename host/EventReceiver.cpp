#include "EventReceiver.h"

#include "DialogCatalogue.h"

template <class Interface>
void EventReceiver::report(Interface* sender, int event, const QString& sessionId)
{
    Q_EMIT received({sender, dialogFamily<Interface>().name, event, sessionId});
}

void EventReceiver::onDialogEvent(IAboutDialog* pSender, IAboutDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IAcceptMessageDialog* pSender, IAcceptMessageDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IActivationDialog* pSender, IActivationDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IApproveRemoteConnectionDialog* pSender,
                                  IApproveRemoteConnectionDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IAuthorizationDialog* pSender, IAuthorizationDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IEnterPasswordDialog* pSender, IEnterPasswordDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IErrorMessageDialog* pSender, IErrorMessageDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IOptionDialog* pSender, IOptionDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IProgressDialog* pSender, IProgressDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IRebootDialog* pSender, IRebootDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IRemoteConnectionDialog* pSender, IRemoteConnectionDialog::TEvent eventType,
                                  const QString& sessionId)
{
    report(pSender, eventType, sessionId.isNull() ? QLatin1String("") : sessionId);
}

void EventReceiver::onDialogEvent(IServiceDeskTicketDialog* pSender, IServiceDeskTicketDialog::TEvent eventType)
{
    report(pSender, eventType);
}

void EventReceiver::onDialogEvent(IZentPasswordDialog* pSender, IZentPasswordDialog::TEvent eventType)
{
    report(pSender, eventType);
}
