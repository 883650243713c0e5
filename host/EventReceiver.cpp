#include "EventReceiver.h"

void EventReceiver::onDialogEvent(IAboutDialog* pSender, IAboutDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("AboutDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IAcceptMessageDialog* pSender, IAcceptMessageDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("AcceptMessageDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IActivationDialog* pSender, IActivationDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("ActivationDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IApproveRemoteConnectionDialog* pSender,
                                  IApproveRemoteConnectionDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("ApproveRemoteConnectionDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IAuthorizationDialog* pSender, IAuthorizationDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("AuthorizationDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IEnterPasswordDialog* pSender, IEnterPasswordDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("EnterPasswordDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IErrorMessageDialog* pSender, IErrorMessageDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("ErrorMessageDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IOptionDialog* pSender, IOptionDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("OptionDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IProgressDialog* pSender, IProgressDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("ProgressDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IRebootDialog* pSender, IRebootDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("RebootDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IRemoteConnectionDialog* pSender, IRemoteConnectionDialog::TEvent eventType,
                                  const QString& sessionId)
{
    Q_EMIT received({pSender, QStringLiteral("RemoteConnectionDialog"), eventType,
                     sessionId.isNull() ? QLatin1String("") : sessionId});
}

void EventReceiver::onDialogEvent(IServiceDeskTicketDialog* pSender, IServiceDeskTicketDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("ServiceDeskTicketDialog"), eventType, QString()});
}

void EventReceiver::onDialogEvent(IZentPasswordDialog* pSender, IZentPasswordDialog::TEvent eventType)
{
    Q_EMIT received({pSender, QStringLiteral("ZentPasswordDialog"), eventType, QString()});
}
