#include "Gui.h"

#include "AboutDialog.h"
#include "AcceptMessageDialog.h"
#include "ActivationDialog.h"
#include "ApproveRemoteConnectionDialog.h"
#include "AuthorizationDialog.h"
#include "EnterPasswordDialog.h"
#include "ErrorMessageDialog.h"
#include "OptionDialog.h"
#include "ProgressDialog.h"
#include "RebootDialog.h"
#include "RemoteConnectionDialog.h"
#include "ServiceDeskTicketDialog.h"
#include "ZentPasswordDialog.h"
#include "loadTranslation.h"

#include <QApplication>
#include <QFile>
#include <QMetaMethod>
#include <QTranslator>

#include <type_traits>

namespace {
template <class Dialog>
QString registryKey(const QString& id)
{
    return QLatin1String(Dialog::staticMetaObject.className()) + id;
}

template <class Dialog>
Dialog* create()
{
    if constexpr (std::is_constructible_v<Dialog, QString, QWidget*>)
        return new Dialog(QString(), nullptr);
    else
        return new Dialog(nullptr);
}

/// The string form of a dialog's event signal, as SIGNAL() would make it. The dialog's meta-object knows its arguments.
QByteArray eventSignal(const QMetaObject& metaObject)
{
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() == QMetaMethod::Signal && method.name() == "dialogEvent")
            return QByteArray::number(QSIGNAL_CODE) + method.methodSignature();
    }
    return QByteArray();
}

/// Without a QApplication Qt ends the process as soon as a widget is created.
bool hasApplication()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        return true;
    qCritical("there are no dialogs without a QApplication: create it before this library is loaded");
    return false;
}
} // namespace

Gui::Gui()
{
    assignTranslations();
}

Gui::~Gui() = default;

void Gui::setRatio(float newRatio)
{
    ratio = newRatio;
}

float Gui::getRatio() const
{
    return ratio;
}

template <class Dialog>
Dialog* Gui::get(const QString& id)
{
    // Looked up without the id: a prompt that is kept per id is therefore created anew at every call.
    if (BaseDialog* existing = dialogs[registryKey<Dialog>(QString())])
        return static_cast<Dialog*>(existing);
    if (!hasApplication())
        return nullptr;

    auto* dialog = create<Dialog>();
    if constexpr (std::is_same_v<Dialog, ApproveRemoteConnectionDialog>)
        dialog->setConnectionId(id);
    // The session window keeps its own look.
    if constexpr (!std::is_same_v<Dialog, RemoteConnectionDialog>)
        assignStyleSheet(dialog);
    dialog->setRatio(getRatio());
    store(registryKey<Dialog>(id), dialog);
    return dialog;
}

template <class Dialog>
bool Gui::remove(const QString& id)
{
    return removeEntry(registryKey<Dialog>(id));
}

template <class Dialog>
bool Gui::attach(const QObject* receiver, const char* slot, const QString& id)
{
    auto* dialog = qobject_cast<Dialog*>(dialogs[registryKey<Dialog>(id)]);
    if (!dialog || !receiver || !slot)
        return false;
    return QObject::connect(dialog, eventSignal(Dialog::staticMetaObject).constData(), receiver, slot,
                            Qt::UniqueConnection);
}

void Gui::store(const QString& key, BaseDialog* dialog)
{
    dialogs[key] = dialog;
    // A host may also delete a dialog through its pointer; the registry must not outlive it.
    connect(dialog, &QObject::destroyed, this, [this, key, dialog] {
        const auto entry = dialogs.find(key);
        if (entry != dialogs.end() && entry.value() == dialog)
            entry.value() = nullptr;
    });
}

bool Gui::removeEntry(const QString& key)
{
    BaseDialog* dialog = dialogs.take(key);
    if (dialog)
        dialog->deleteLater();
    return dialog != nullptr;
}

void Gui::assignStyleSheet(QDialog* dialog)
{
    if (!styleSheet) {
        styleSheet = std::make_unique<QString>();
        QFile file(QStringLiteral(":/styles/appStyleSheet.qss"));
        if (file.open(QIODevice::ReadOnly))
            *styleSheet = QString::fromUtf8(file.readAll());
    }
    dialog->setStyleSheet(*styleSheet);
}

void Gui::assignTranslations()
{
    // Leaves the application when the library is unloaded.
    static QTranslator translator;
    if (!loadTranslation(translator, QStringLiteral(":/translations/Gui_"), QStringLiteral("en"))) {
        qDebug("GUI TRANSLATIONS NOT LOADED");
        return;
    }
    // Not twice when an earlier root object has installed it.
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::installTranslator(&translator);
}

// The families differ in a type.
#define DIALOG_FAMILY(Dialog)                                                                                          \
    I##Dialog* Gui::get##Dialog##Instance()                                                                            \
    {                                                                                                                  \
        return get<Dialog>();                                                                                          \
    }                                                                                                                  \
    bool Gui::delete##Dialog##Instance()                                                                               \
    {                                                                                                                  \
        return remove<Dialog>();                                                                                       \
    }                                                                                                                  \
    bool Gui::attach##Dialog##EventHandler(const QObject* receiver, const char* slot)                                  \
    {                                                                                                                  \
        return attach<Dialog>(receiver, slot);                                                                         \
    }

DIALOG_FAMILY(AboutDialog)

DIALOG_FAMILY(ActivationDialog)

DIALOG_FAMILY(AcceptMessageDialog)

DIALOG_FAMILY(ErrorMessageDialog)

DIALOG_FAMILY(ProgressDialog)

DIALOG_FAMILY(AuthorizationDialog)

DIALOG_FAMILY(ZentPasswordDialog)

DIALOG_FAMILY(OptionDialog)

DIALOG_FAMILY(RebootDialog)

DIALOG_FAMILY(EnterPasswordDialog)

DIALOG_FAMILY(ServiceDeskTicketDialog)

DIALOG_FAMILY(RemoteConnectionDialog)

IApproveRemoteConnectionDialog* Gui::getApproveRemoteConnectionDialogInstance(const QString& id)
{
    return get<ApproveRemoteConnectionDialog>(id);
}

bool Gui::deleteApproveRemoteConnectionDialogInstance(const QString& id)
{
    return remove<ApproveRemoteConnectionDialog>(id);
}

bool Gui::deleteAllApproveRemoteConnectionDialogInstances()
{
    const QString name = registryKey<ApproveRemoteConnectionDialog>(QString());
    bool anyDeleted = false;
    for (const QString& key : dialogs.keys()) {
        if (key.contains(name, Qt::CaseInsensitive) && removeEntry(key))
            anyDeleted = true;
    }
    return anyDeleted;
}

bool Gui::attachApproveRemoteConnectionDialogEventHandler(const QObject* receiver, const char* slot, const QString& id)
{
    return attach<ApproveRemoteConnectionDialog>(receiver, slot, id);
}
