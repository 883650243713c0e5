#include "DialogCatalogue.h"

#include "GuiInterface.h"
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

#include <QDateTime>
#include <QStringList>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace {
/// "now", or "now" less a number of milliseconds as in "now-60000", as the time in milliseconds since 1970.
qint64 pointInTime(const QString& text)
{
    bool isNumber = true;
    const qint64 before = text == QLatin1String("now") ? 0 : text.mid(4).toLongLong(&isNumber);
    if (!isNumber || !(text == QLatin1String("now") || text.startsWith(QLatin1String("now-"))))
        throw ScriptError(QStringLiteral("expected a number, \"now\" or \"now-MILLISECONDS\""));
    return QDateTime::currentMSecsSinceEpoch() - before;
}

// A script calls an operation by its name and with JSON values. From the pointer to a member function the compiler
// knows the types of the arguments and of the result: operation() takes them apart, makeOperation() stores a function
// that converts each value with fromJson(), calls the member function, and converts the result with toJson(). So a
// dialog's operations below are a list of names, and an operation whose types have no conversion does not compile.

/// Throws ScriptError when @p value does not stand for a T.
template <class T>
T fromJson(const QJsonValue& value)
{
    const auto require = [](bool fits, const char* expected) {
        if (!fits)
            throw ScriptError(QStringLiteral("expected %1").arg(QLatin1String(expected)));
    };
    if constexpr (std::is_same_v<T, QString>) {
        require(value.isString(), "a string");
        return value.toString();
    } else if constexpr (std::is_same_v<T, QStringList>) {
        require(value.isArray(), "a list of strings");
        QStringList list;
        const QJsonArray elements = value.toArray();
        for (const auto& element : elements)
            list << fromJson<QString>(element);
        return list;
    } else if constexpr (std::is_same_v<T, bool>) {
        require(value.isBool(), "true or false");
        return value.toBool();
    } else if constexpr (std::is_floating_point_v<T>) {
        require(value.isDouble(), "a number");
        return static_cast<T>(value.toDouble());
    } else {
        if constexpr (std::is_same_v<T, qint64>) {
            if (value.isString())
                return pointInTime(value.toString());
        }
        const double number = value.toDouble();
        // The largest 64-bit integer has no exact double; the number above it has.
        require(value.isDouble() && number == std::floor(number)
                    && number >= static_cast<double>(std::numeric_limits<T>::min())
                    && number < static_cast<double>(std::numeric_limits<T>::max()) + 1.0,
                "a whole number in range");
        return static_cast<T>(number);
    }
}

QJsonValue toJson(const QString& value)
{
    return value;
}

QJsonValue toJson(bool value)
{
    return value;
}

QJsonValue toJson(int value)
{
    return value;
}

QJsonValue toJson(qint64 value)
{
    return value;
}

/// Calls with one argument from each value; the positions are there because a pack of types cannot be counted through
/// by itself.
template <class Result, class... Arguments, class Interface, class Function, std::size_t... Positions>
QJsonValue callWithJson(Interface& target, Function function, const QJsonArray& values,
                        std::index_sequence<Positions...>)
{
    Q_UNUSED(values)
    if constexpr (std::is_void_v<Result>) {
        (target.*function)(fromJson<std::decay_t<Arguments>>(values.at(Positions))...);
        return QJsonValue();
    } else {
        return toJson((target.*function)(fromJson<std::decay_t<Arguments>>(values.at(Positions))...));
    }
}

/// The JSON type of what a script gives for an argument of type T.
template <class T>
constexpr QJsonValue::Type jsonType()
{
    if constexpr (std::is_same_v<T, QString>)
        return QJsonValue::String;
    else if constexpr (std::is_same_v<T, QStringList>)
        return QJsonValue::Array;
    else if constexpr (std::is_same_v<T, bool>)
        return QJsonValue::Bool;
    else
        return QJsonValue::Double;
}

/// @p function has a type of its own, because a const member function differs from others in its type only.
template <class Interface, class Function, class Result, class... Arguments>
Operation makeOperation(const char* name, Function function)
{
    Operation operation;
    operation.name = QLatin1String(name);
    operation.argumentTypes = {jsonType<std::decay_t<Arguments>>()...};
    operation.isGetter = !std::is_void_v<Result> && sizeof...(Arguments) == 0;
    operation.function = [function](IBaseDialog& dialog, const QJsonArray& values) {
        return callWithJson<Result, Arguments...>(dynamic_cast<Interface&>(dialog), function, values,
                                                  std::index_sequence_for<Arguments...>());
    };
    return operation;
}

template <class Interface, class Result, class... Arguments>
Operation operation(const char* name, Result (Interface::*function)(Arguments...))
{
    return makeOperation<Interface, decltype(function), Result, Arguments...>(name, function);
}

template <class Interface, class Result, class... Arguments>
Operation operation(const char* name, Result (Interface::*function)(Arguments...) const)
{
    return makeOperation<Interface, decltype(function), Result, Arguments...>(name, function);
}

using Events = QHash<int, QString>;

template <class Interface>
Family family(const char* name, Events events, QVector<Operation> operations, const char* moreSignalArguments = "")
{
    Family result;
    result.name = QLatin1String(name);
    result.type = &typeid(Interface);
    result.receiverSlot = QByteArray::number(QSLOT_CODE) + "onDialogEvent(I" + name + "*,I" + name + "::TEvent"
        + moreSignalArguments + ")";
    result.events = std::move(events);
    result.operations = std::move(operations);
    return result;
}

/// A dialog of which there is one at a time: its operations of GuiInterface take no id.
template <class Interface>
Family single(Family family, Interface* (GuiInterface::*get)(), bool (GuiInterface::*remove)(),
              bool (GuiInterface::*attach)(const QObject*, const char*))
{
    family.get = [get](GuiInterface& gui, const QString&) -> IBaseDialog* { return (gui.*get)(); };
    family.remove = [remove](GuiInterface& gui, const QString&) { return (gui.*remove)(); };
    family.attach = [attach](GuiInterface& gui, const QObject* receiver, const char* slot, const QString&) {
        return (gui.*attach)(receiver, slot);
    };
    return family;
}

/// The approval prompt, of which there is one for each connection.
Family perConnection(Family family)
{
    family.get = [](GuiInterface& gui, const QString& id) -> IBaseDialog* {
        return gui.getApproveRemoteConnectionDialogInstance(id);
    };
    family.remove = [](GuiInterface& gui, const QString& id) {
        return gui.deleteApproveRemoteConnectionDialogInstance(id);
    };
    family.attach = [](GuiInterface& gui, const QObject* receiver, const char* slot, const QString& id) {
        return gui.attachApproveRemoteConnectionDialogEventHandler(receiver, slot, id);
    };
    return family;
}

// Names for scripts are the names in C++, and only macros see those. EVENT and OPERATION refer to the type `Interface`
// of the function that uses them.
#define EVENT(name)                                                                                                    \
    {                                                                                                                  \
        Interface::name, QStringLiteral(#name)                                                                         \
    }
#define OPERATION(name) operation(#name, &Interface::name)
#define SINGLE(Name, ...)                                                                                              \
    single(family<I##Name>(#Name, __VA_ARGS__), &GuiInterface::get##Name##Instance,                                    \
           &GuiInterface::delete##Name##Instance, &GuiInterface::attach##Name##EventHandler)

Family aboutFamily()
{
    using Interface = IAboutDialog;
    return SINGLE(AboutDialog, Events{EVENT(evClose), EVENT(evUpdateNow), EVENT(evLinkClicked)},
                  {OPERATION(getVersion), OPERATION(setVersion), OPERATION(getCopyright), OPERATION(setCopyright),
                   OPERATION(getServer), OPERATION(setServer), OPERATION(getLastCommunicationTime),
                   OPERATION(setLastCommunicationTime), OPERATION(setCopyrightVisible)});
}

Family activationFamily()
{
    using Interface = IActivationDialog;
    return SINGLE(ActivationDialog, Events{EVENT(evClose), EVENT(evEnroll), EVENT(evGoToRegistration)},
                  {OPERATION(getServerUrl), OPERATION(setServerUrl), OPERATION(getToken), OPERATION(setToken)});
}

Family acceptMessageFamily()
{
    using Interface = IAcceptMessageDialog;
    return SINGLE(AcceptMessageDialog, Events{EVENT(evClose), EVENT(evOk)},
                  {OPERATION(message), OPERATION(setMessage)});
}

Family errorMessageFamily()
{
    using Interface = IErrorMessageDialog;
    return SINGLE(ErrorMessageDialog, Events{EVENT(evClose), EVENT(evTryAgain)},
                  {OPERATION(message), OPERATION(setMessage)});
}

Family progressFamily()
{
    using Interface = IProgressDialog;
    return SINGLE(ProgressDialog, Events{EVENT(evClose), EVENT(evCancel)},
                  {OPERATION(getMessage), OPERATION(setMessage), OPERATION(setProgress), OPERATION(getProgress),
                   OPERATION(startWaiter), OPERATION(hideProgressValue)});
}

Family authorizationFamily()
{
    using Interface = IAuthorizationDialog;
    return SINGLE(AuthorizationDialog, Events{EVENT(evClose), EVENT(evLogin), EVENT(evGoToWeb)},
                  {OPERATION(getUsername), OPERATION(setUsername), OPERATION(getPassword), OPERATION(setPassword)});
}

Family zentPasswordFamily()
{
    using Interface = IZentPasswordDialog;
    return SINGLE(ZentPasswordDialog, Events{EVENT(evClose), EVENT(evContinue)},
                  {OPERATION(getPassword), OPERATION(setPassword)});
}

Family optionFamily()
{
    using Interface = IOptionDialog;
    return SINGLE(OptionDialog, Events{EVENT(evClose), EVENT(evDeactivate), EVENT(evSave)},
                  {OPERATION(isShowTrayIcon), OPERATION(setShowTrayIcon), OPERATION(isAutoUpdate),
                   OPERATION(setAutoUpdate), OPERATION(setAutoUpdateHidden), OPERATION(isProxyEnabled),
                   OPERATION(setProxyEnabled), OPERATION(getProxyAddress), OPERATION(setProxyAddress),
                   OPERATION(getProxyPort), OPERATION(setProxyPort), OPERATION(isProxyAuthEnabled),
                   OPERATION(setProxyAuthEnabled), OPERATION(getProxyLogin), OPERATION(setProxyLogin),
                   OPERATION(getProxyPassword), OPERATION(setProxyPassword), OPERATION(hideDeactivateButton)});
}

Family rebootFamily()
{
    using Interface = IRebootDialog;
    return SINGLE(RebootDialog, Events{EVENT(evRebootNow), EVENT(evPostpone), EVENT(evClosed)},
                  {OPERATION(getMessage), OPERATION(setMessage), OPERATION(getPostponePeriod),
                   OPERATION(setPostponePeriod), OPERATION(isShutdown), OPERATION(setShutdown)});
}

Family enterPasswordFamily()
{
    using Interface = IEnterPasswordDialog;
    return SINGLE(EnterPasswordDialog, Events{EVENT(evOk), EVENT(evCancel), EVENT(evCloseClicked)},
                  {OPERATION(getAccessMode), OPERATION(setAccessMode), OPERATION(isCustomPasswordSelected),
                   OPERATION(setCustomPasswordSelected), OPERATION(getDomain), OPERATION(setDomain),
                   OPERATION(getLogin), OPERATION(setLogin), OPERATION(getAdministratorPassword),
                   OPERATION(setAdministratorPassword), OPERATION(getZentPassword), OPERATION(setZentPassword)});
}

Family serviceDeskTicketFamily()
{
    using Interface = IServiceDeskTicketDialog;
    return SINGLE(
        ServiceDeskTicketDialog, Events{EVENT(evCancel), EVENT(evSubmit)},
        {OPERATION(getSubject), OPERATION(setSubject), OPERATION(getDepartmentIndex), OPERATION(getDepartment),
         OPERATION(setDepartment), OPERATION(setDepartments), OPERATION(getPriorityIndex), OPERATION(getPriority),
         OPERATION(setPriority), OPERATION(setPriorities), OPERATION(getIssueDetails), OPERATION(setIssueDetails),
         OPERATION(isIncludeDeviceData), OPERATION(setIncludeDeviceData), OPERATION(getSubjectMaxLength),
         OPERATION(setSubjectMaxLength), OPERATION(getIssueDetailsMaxLength), OPERATION(setIssueDetailsMaxLength)});
}

Family remoteConnectionFamily()
{
    using Interface = IRemoteConnectionDialog;
    return SINGLE(
        RemoteConnectionDialog,
        Events{EVENT(evRemoteControlSessionEnded), EVENT(evEndRemoteToolsSession), EVENT(evRemoteToolsPopupClosed),
               EVENT(evRemoteToolsSessionEnded), EVENT(evRemoteControlPopupClosed)},
        {OPERATION(addRemoteControlSession), OPERATION(endRemoteControlSession), OPERATION(hasRemoteControlSessions),
         OPERATION(setKeepEndedSessionPanels), OPERATION(startRemoteToolsSession), OPERATION(endRemoteToolsSession),
         OPERATION(isRemoteToolsPopupShown), OPERATION(addLogEvent), OPERATION(remoteToolsSessionId),
         OPERATION(setKeepRemoteToolsPopup), OPERATION(setLogExpanderEnabled), OPERATION(clearLog),
         OPERATION(addEmptyLogRow), OPERATION(remoteToolsValue)},
        ",QString");
}

Family approveRemoteConnectionFamily()
{
    using Interface = IApproveRemoteConnectionDialog;
    return perConnection(family<Interface>(
        "ApproveRemoteConnectionDialog", Events{EVENT(evCancel), EVENT(evAllow), EVENT(evTimeout)},
        {OPERATION(getCountdown), OPERATION(setCountdown), OPERATION(getRequesterName), OPERATION(setRequesterName),
         OPERATION(setCountdownOnCancel), OPERATION(getCountdownOnCancel), OPERATION(setContextValue),
         OPERATION(getContextValue), OPERATION(setSessionType), OPERATION(getSessionType), OPERATION(setMessage),
         OPERATION(getMessage), OPERATION(setAuxText1), OPERATION(getAuxText1), OPERATION(setAuxText2),
         OPERATION(getAuxText2), OPERATION(setConnectionId), OPERATION(getConnectionId)}));
}

QString startingUpper(const QString& name)
{
    return name.left(1).toUpper() + name.mid(1);
}
} // namespace

QJsonValue Operation::call(IBaseDialog& dialog, const QJsonArray& arguments) const
{
    if (arguments.size() != argumentTypes.size())
        throw ScriptError(QStringLiteral("%1 takes %2 arguments").arg(name).arg(argumentTypes.size()));
    return function(dialog, arguments);
}

QString Operation::property() const
{
    for (const QLatin1String prefix : {QLatin1String("get"), QLatin1String("is")}) {
        if (name.startsWith(prefix) && name.size() > prefix.size() && name.at(prefix.size()).isUpper())
            return name.at(prefix.size()).toLower() + name.mid(prefix.size() + 1);
    }
    return name;
}

bool Operation::isSecret() const
{
    // isCustomPasswordSelected() tells a choice, not a password.
    return !name.startsWith(QLatin1String("is"))
        && (name.contains(QLatin1String("Password")) || name.contains(QLatin1String("Token")));
}

const Operation& Family::operation(const QString& operationName) const
{
    for (const Operation& candidate : operations) {
        if (candidate.name == operationName)
            return candidate;
    }
    throw ScriptError(QStringLiteral("%1 has no operation \"%2\"").arg(name, operationName));
}

const Operation& Family::setter(const QString& property) const
{
    const QString setterName = QStringLiteral("set") + startingUpper(property);
    for (const Operation& candidate : operations) {
        if (candidate.name == setterName)
            return candidate;
    }
    throw ScriptError(QStringLiteral("%1 has no property \"%2\" to set").arg(name, property));
}

QJsonObject Family::values(IBaseDialog& dialog) const
{
    QJsonObject values;
    for (const Operation& getter : operations) {
        if (!getter.isGetter)
            continue;
        QJsonValue value = getter.call(dialog, QJsonArray());
        if (getter.isSecret() && !value.toString().isEmpty())
            value = QStringLiteral("***");
        values.insert(getter.property(), value);
    }
    return values;
}

void Family::set(IBaseDialog& dialog, const QString& property, const QJsonValue& value) const
{
    const Operation& operation = setter(property);
    const bool takesSeveral = operation.argumentTypes.size() != 1 && value.isArray();
    try {
        operation.call(dialog, takesSeveral ? value.toArray() : QJsonArray{value});
    } catch (const ScriptError& error) {
        throw ScriptError(QStringLiteral("%1: %2").arg(property, QString::fromUtf8(error.what())));
    }
}

const QVector<Family>& dialogFamilies()
{
    static const QVector<Family> families{aboutFamily(),
                                          activationFamily(),
                                          acceptMessageFamily(),
                                          errorMessageFamily(),
                                          progressFamily(),
                                          authorizationFamily(),
                                          zentPasswordFamily(),
                                          optionFamily(),
                                          rebootFamily(),
                                          enterPasswordFamily(),
                                          serviceDeskTicketFamily(),
                                          remoteConnectionFamily(),
                                          approveRemoteConnectionFamily()};
    return families;
}

const Family& dialogFamily(const QString& name)
{
    for (const Family& family : dialogFamilies()) {
        if (family.name == name)
            return family;
    }
    throw ScriptError(QStringLiteral("there is no dialog \"%1\"").arg(name));
}

const Family& dialogFamily(const std::type_info& type)
{
    for (const Family& family : dialogFamilies()) {
        if (*family.type == type)
            return family;
    }
    throw ScriptError(QStringLiteral("there is no dialog of the type %1").arg(QLatin1String(type.name())));
}
