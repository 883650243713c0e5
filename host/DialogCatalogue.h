#pragma once

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVector>

#include <functional>
#include <stdexcept>
#include <typeinfo>

class GuiInterface;
class IBaseDialog;
class QObject;

/// A command, name or value that a script got wrong.
class ScriptError : public std::runtime_error {
public:
    explicit ScriptError(const QString& message) : std::runtime_error(message.toStdString()) { }
};

/// One operation of a dialog interface, callable with JSON values.
struct Operation {
    QString name;
    QVector<QJsonValue::Type> argumentTypes;
    bool isGetter = false;
    /// Converts the values, calls the member function and converts its result. Throws ScriptError when one does not
    /// fit.
    std::function<QJsonValue(IBaseDialog&, const QJsonArray&)> function;

    /// Calls the operation. Throws ScriptError when the arguments do not fit.
    QJsonValue call(IBaseDialog& dialog, const QJsonArray& arguments) const;
    /// The property that a getter reads: "message" for message() and getMessage(), "shutdown" for isShutdown().
    QString property() const;
    /// Whether the value is a secret that must not be printed.
    bool isSecret() const;
};

/// One dialog type: its three operations of GuiInterface, its events and its own operations, by name.
struct Family {
    QString name;
    /// The dialog's interface, for example typeid(IAboutDialog).
    const std::type_info* type = nullptr;
    std::function<IBaseDialog*(GuiInterface&, const QString& id)> get;
    std::function<bool(GuiInterface&, const QString& id)> remove;
    std::function<bool(GuiInterface&, const QObject* receiver, const char* slot, const QString& id)> attach;
    /// The slot of EventReceiver for this family, in the string form of SLOT().
    QByteArray receiverSlot;
    QHash<int, QString> events;
    QVector<Operation> operations;

    /// Both throw ScriptError when the interface has no such operation.
    const Operation& operation(const QString& operationName) const;
    const Operation& setter(const QString& property) const;

    /// What a host can read from the dialog now, secrets masked.
    QJsonObject values(IBaseDialog& dialog) const;
    /// Sets one property; an operation with several arguments takes an array.
    void set(IBaseDialog& dialog, const QString& property, const QJsonValue& value) const;
};

/// All thirteen families.
const QVector<Family>& dialogFamilies();

/// Throws ScriptError when there is no such family.
const Family& dialogFamily(const QString& name);

const Family& dialogFamily(const std::type_info& type);
/// The family of an interface, for example dialogFamily<IAboutDialog>().
template <class Interface>
const Family& dialogFamily()
{
    return dialogFamily(typeid(Interface));
}
