#include "ScriptPlayer.h"

#include "GuiInterface.h"
#include "IBaseDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QJsonDocument>
#include <QKeySequence>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace {
constexpr int defaultLimit = 10000; // milliseconds

QString text(const QJsonObject& command, const char* key)
{
    const QJsonValue value = command.value(QLatin1String(key));
    if (!value.isString())
        throw ScriptError(QStringLiteral("\"%1\" must be a string").arg(QLatin1String(key)));
    return value.toString();
}

double number(const QJsonObject& command, const char* key, double fallback)
{
    const QJsonValue value = command.value(QLatin1String(key));
    if (!value.isUndefined() && !value.isDouble())
        throw ScriptError(QStringLiteral("\"%1\" must be a number").arg(QLatin1String(key)));
    return value.toDouble(fallback);
}

int milliseconds(const QJsonObject& command, const char* key, int fallback)
{
    return static_cast<int>(qBound(0.0, number(command, key, fallback), 24 * 3600 * 1000.0));
}

/// Enrollment tokens are typed in the clear; a picture that leaves the machine must not show one.
class TokenCover {
public:
    explicit TokenCover(QWidget& window)
    {
        const auto edits = window.findChildren<QLineEdit*>();
        for (QLineEdit* edit : edits) {
            if (edit->objectName().contains(QLatin1String("Token")) && edit->echoMode() == QLineEdit::Normal) {
                edit->setEchoMode(QLineEdit::Password);
                covered << edit;
            }
        }
    }
    ~TokenCover()
    {
        for (QLineEdit* edit : qAsConst(covered))
            edit->setEchoMode(QLineEdit::Normal);
    }

private:
    Q_DISABLE_COPY(TokenCover)
    QVector<QLineEdit*> covered;
};
} // namespace

ScriptPlayer::ScriptPlayer(GuiInterface& guiInterface, Mode playMode, const QDir& directory, QObject* parent)
    : QObject(parent), gui(guiInterface), mode(playMode), pictureDirectory(directory)
{
    connect(&receiver, &EventReceiver::received, this, &ScriptPlayer::onEvent);
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, this, &ScriptPlayer::onWaitedTooLong);
}

ScriptPlayer::~ScriptPlayer()
{
    for (const Instance& instance : qAsConst(instances)) {
        if (instance.window)
            instance.family->remove(gui, instance.id);
    }
}

void ScriptPlayer::addLine(const QByteArray& line)
{
    lines.enqueue({++lastLineNumber, line});
    scheduleNext();
}

void ScriptPlayer::endInput()
{
    inputEnded = true;
    scheduleNext();
}

int ScriptPlayer::errorCount() const
{
    return errors;
}

void ScriptPlayer::scheduleNext()
{
    if (!playing)
        resume();
}

void ScriptPlayer::resume()
{
    playing = true;
    waiting = false;
    QMetaObject::invokeMethod(this, &ScriptPlayer::playNext, Qt::QueuedConnection);
}

void ScriptPlayer::playNext()
{
    if (storyOver || (lines.isEmpty() && inputEnded)) {
        Q_EMIT finished();
        return;
    }
    if (lines.isEmpty()) {
        playing = false;
        return;
    }
    const Line line = lines.dequeue();
    currentLineNumber = line.number;
    if (!line.text.trimmed().isEmpty())
        play(line.text);
    if (!waiting)
        resume();
}

void ScriptPlayer::play(const QByteArray& commandText)
{
    try {
        QJsonParseError parseError;
        const QJsonDocument document = QJsonDocument::fromJson(commandText, &parseError);
        if (!document.isObject())
            throw ScriptError(QStringLiteral("not a JSON object: %1").arg(parseError.errorString()));
        const QJsonObject object = document.object();
        const QString name = text(object, "do");
        if (!commands().contains(name))
            throw ScriptError(QStringLiteral("unknown command \"%1\"").arg(name));
        const Command command = commands().value(name);
        for (const QString& key : object.keys()) {
            if (key != QLatin1String("do") && key != QLatin1String("note") && !command.keys.contains(key))
                throw ScriptError(QStringLiteral("\"%1\" takes no \"%2\"").arg(name, key));
        }
        (this->*command.play)(object);
    } catch (const ScriptError& scriptError) {
        fail(QString::fromUtf8(scriptError.what()));
    }
}

void ScriptPlayer::fail(const QString& message)
{
    ++errors;
    Q_EMIT error(currentLineNumber, message);
}

const QHash<QString, ScriptPlayer::Command>& ScriptPlayer::commands()
{
    const auto entry = [](void (ScriptPlayer::*play)(const QJsonObject&), std::initializer_list<const char*> keys) {
        Command command{play, {}};
        for (const char* key : keys)
            command.keys.insert(QLatin1String(key));
        return command;
    };
    static const QHash<QString, Command> table{
        {QStringLiteral("get"), entry(&ScriptPlayer::get, {"dialog", "id"})},
        {QStringLiteral("set"), entry(&ScriptPlayer::set, {"dialog", "id", "properties"})},
        {QStringLiteral("call"), entry(&ScriptPlayer::call, {"dialog", "id", "operation", "arguments"})},
        {QStringLiteral("log"), entry(&ScriptPlayer::log, {"time", "category", "action", "path", "status"})},
        {QStringLiteral("expect"), entry(&ScriptPlayer::expect, {"dialog", "id", "properties"})},
        {QStringLiteral("show"), entry(&ScriptPlayer::show, {"dialog", "id"})},
        {QStringLiteral("hide"), entry(&ScriptPlayer::hide, {"dialog", "id"})},
        {QStringLiteral("exec"), entry(&ScriptPlayer::exec, {"dialog", "id"})},
        {QStringLiteral("done"), entry(&ScriptPlayer::done, {"dialog", "id", "result"})},
        {QStringLiteral("modal"), entry(&ScriptPlayer::modal, {"dialog", "id", "value"})},
        {QStringLiteral("scale"), entry(&ScriptPlayer::scale, {"dialog", "id", "ratio"})},
        {QStringLiteral("delete"), entry(&ScriptPlayer::remove, {"dialog", "id"})},
        {QStringLiteral("deleteAll"), entry(&ScriptPlayer::removeAll, {})},
        {QStringLiteral("ratio"), entry(&ScriptPlayer::ratio, {"value"})},
        {QStringLiteral("click"), entry(&ScriptPlayer::click, {"dialog", "id", "widget"})},
        {QStringLiteral("type"), entry(&ScriptPlayer::type, {"dialog", "id", "widget", "text", "keys"})},
        {QStringLiteral("hover"), entry(&ScriptPlayer::hover, {"dialog", "id", "widget"})},
        {QStringLiteral("press"), entry(&ScriptPlayer::press, {"dialog", "id", "widget"})},
        {QStringLiteral("focus"), entry(&ScriptPlayer::focus, {"dialog", "id", "widget"})},
        {QStringLiteral("clipboard"), entry(&ScriptPlayer::clipboard, {"text"})},
        {QStringLiteral("wait"), entry(&ScriptPlayer::wait, {"dialog", "id", "event", "within"})},
        {QStringLiteral("pause"), entry(&ScriptPlayer::pause, {"milliseconds"})},
        {QStringLiteral("picture"), entry(&ScriptPlayer::picture, {"dialog", "id", "file", "title"})},
    };
    return table;
}

ScriptPlayer::Instance& ScriptPlayer::instance(const QJsonObject& command)
{
    const Family& family = dialogFamily(text(command, "dialog"));
    const QString id = command.value(QLatin1String("id")).toString();
    for (Instance& candidate : instances) {
        if (candidate.family == &family && candidate.id == id && candidate.window)
            return candidate;
    }
    throw ScriptError(QStringLiteral("%1 was not got, or is deleted").arg(family.name));
}

QWidget& ScriptPlayer::childWidget(const QJsonObject& command)
{
    QWidget& window = *instance(command).window;
    const QString name = text(command, "widget");
    QWidget* widget = window.objectName() == name ? &window : window.findChild<QWidget*>(name);
    if (!widget)
        throw ScriptError(QStringLiteral("%1 has no widget \"%2\"").arg(window.objectName(), name));
    return *widget;
}

void ScriptPlayer::get(const QJsonObject& command)
{
    const Family& family = dialogFamily(text(command, "dialog"));
    const QString id = command.value(QLatin1String("id")).toString();
    IBaseDialog* dialog = family.get(gui, id);
    if (!dialog)
        throw ScriptError(QStringLiteral("the plugin has no %1").arg(family.name));
    for (const Instance& known : qAsConst(instances)) {
        if (known.dialog == dialog && known.window)
            return;
    }
    if (!family.attach(gui, &receiver, family.receiverSlot.constData(), id))
        throw ScriptError(QStringLiteral("%1 could not be attached").arg(family.name));
    // A deleted dialog may have had the same address; forget the events that it sent.
    const auto isStale = [dialog](const DialogEvent& event) { return event.sender == dialog; };
    unconsumedEvents.erase(std::remove_if(unconsumedEvents.begin(), unconsumedEvents.end(), isStale),
                           unconsumedEvents.end());
    auto* window = dynamic_cast<QWidget*>(dialog);
    window->installEventFilter(this);
    instances.append({&family, id, dialog, window});
}

void ScriptPlayer::set(const QJsonObject& command)
{
    const Instance& target = instance(command);
    const QJsonObject properties = command.value(QLatin1String("properties")).toObject();
    for (auto property = properties.begin(); property != properties.end(); ++property)
        target.family->set(*target.dialog, property.key(), property.value());
}

void ScriptPlayer::call(const QJsonObject& command)
{
    const Instance& target = instance(command);
    const Operation& operation = target.family->operation(text(command, "operation"));
    const QJsonValue result = operation.call(*target.dialog, command.value(QLatin1String("arguments")).toArray());
    if (!operation.isGetter)
        return;
    Q_EMIT output({{QStringLiteral("dialog"), target.family->name},
                   {QStringLiteral("operation"), operation.name},
                   {QStringLiteral("result"), operation.isSecret() ? QJsonValue(QStringLiteral("***")) : result}});
}

void ScriptPlayer::log(const QJsonObject& command)
{
    const Instance& target = instance({{QStringLiteral("dialog"), QStringLiteral("RemoteConnectionDialog")}});
    QJsonArray arguments{command.value(QLatin1String("time"))};
    for (const char* key : {"category", "action", "path", "status"})
        arguments.append(command.value(QLatin1String(key)).toString());
    target.family->operation(QStringLiteral("addLogEvent")).call(*target.dialog, arguments);
}

void ScriptPlayer::expect(const QJsonObject& command)
{
    // A person may have typed or chosen something else than the script expects.
    if (mode == Mode::Attended)
        return;
    const Instance& target = instance(command);
    const QJsonObject values = target.family->values(*target.dialog);
    const QJsonObject properties = command.value(QLatin1String("properties")).toObject();
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (!values.contains(property.key()))
            throw ScriptError(
                QStringLiteral("%1 has no property \"%2\" to read").arg(target.family->name, property.key()));
        if (values.value(property.key()) != property.value()) {
            throw ScriptError(QStringLiteral("expected %1")
                                  .arg(QString::fromUtf8(QJsonDocument(QJsonObject{{property.key(), property.value()},
                                                                                   {QStringLiteral("found"),
                                                                                    values.value(property.key())}})
                                                             .toJson(QJsonDocument::Compact))));
        }
    }
}

void ScriptPlayer::show(const QJsonObject& command)
{
    instance(command).dialog->show();
}

void ScriptPlayer::hide(const QJsonObject& command)
{
    instance(command).dialog->hide();
}

void ScriptPlayer::exec(const QJsonObject& command)
{
    // On a turn of its own, so that the script goes on inside the dialog's event loop.
    const Instance target = instance(command);
    const auto run = [this, target] {
        const int result = target.window ? target.dialog->exec() : 0;
        Q_EMIT output({{QStringLiteral("dialog"), target.family->name}, {QStringLiteral("finished"), result}});
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

void ScriptPlayer::done(const QJsonObject& command)
{
    instance(command).dialog->done(static_cast<int>(number(command, "result", 0)));
}

void ScriptPlayer::modal(const QJsonObject& command)
{
    instance(command).dialog->setModal(command.value(QLatin1String("value")).toBool());
}

void ScriptPlayer::scale(const QJsonObject& command)
{
    instance(command).dialog->setRatio(static_cast<float>(number(command, "ratio", 1)));
}

void ScriptPlayer::remove(const QJsonObject& command)
{
    Instance& target = instance(command);
    if (!target.family->remove(gui, target.id))
        throw ScriptError(QStringLiteral("%1 could not be deleted").arg(target.family->name));
    target.window.clear();
}

void ScriptPlayer::removeAll(const QJsonObject&)
{
    if (!gui.deleteAllApproveRemoteConnectionDialogInstances())
        throw ScriptError(QStringLiteral("there was no prompt to delete"));
}

void ScriptPlayer::ratio(const QJsonObject& command)
{
    gui.setRatio(static_cast<float>(number(command, "value", 1)));
}

void ScriptPlayer::click(const QJsonObject& command)
{
    QWidget& widget = childWidget(command);
    if (mode == Mode::Unattended)
        QTest::mouseClick(&widget, Qt::LeftButton);
}

void ScriptPlayer::type(const QJsonObject& command)
{
    // Without a widget the keys go where a person's would.
    QWidget* widget = nullptr;
    if (command.contains(QLatin1String("widget")))
        widget = &childWidget(command);
    else if (QWidget* window = instance(command).window)
        widget = window->focusWidget() ? window->focusWidget() : window;
    if (mode == Mode::Attended)
        return;
    if (command.contains(QLatin1String("text")))
        QTest::keyClicks(widget, text(command, "text"));
    if (command.contains(QLatin1String("keys"))) {
        const QKeySequence sequence(text(command, "keys"), QKeySequence::PortableText);
        if (sequence.isEmpty() || sequence[0] == QKeySequence(Qt::Key_unknown)[0])
            throw ScriptError(QStringLiteral("there are no such keys"));
        QTest::keySequence(widget, sequence);
    }
}

void ScriptPlayer::hover(const QJsonObject& command)
{
    QWidget& widget = childWidget(command);
    widget.setAttribute(Qt::WA_UnderMouse);
    const QPointF center = widget.rect().center();
    QEnterEvent enter(center, widget.mapTo(widget.window(), center.toPoint()), widget.mapToGlobal(center.toPoint()));
    QApplication::sendEvent(&widget, &enter);
    widget.update();
}

void ScriptPlayer::press(const QJsonObject& command)
{
    auto* button = qobject_cast<QPushButton*>(&childWidget(command));
    if (!button)
        throw ScriptError(QStringLiteral("\"%1\" is not a button").arg(text(command, "widget")));
    button->setDown(true);
}

void ScriptPlayer::focus(const QJsonObject& command)
{
    QWidget& widget = childWidget(command);
    widget.window()->activateWindow();
    widget.setFocus(Qt::TabFocusReason);
}

void ScriptPlayer::clipboard(const QJsonObject& command)
{
    QApplication::clipboard()->setText(text(command, "text"));
}

void ScriptPlayer::wait(const QJsonObject& command)
{
    const Family& family = dialogFamily(text(command, "dialog"));
    const QString eventName = text(command, "event");
    const int event = family.events.key(eventName, -1);
    if (event < 0)
        throw ScriptError(QStringLiteral("%1 has no event \"%2\"").arg(family.name, eventName));
    const int within = milliseconds(command, "within", defaultLimit);
    expected = {family.name, command.value(QLatin1String("id")).toString(), event, eventName};
    if (takeExpectedEvent())
        return;
    // A dialog that was not got sends no events: an error, instead of waiting for ever.
    instance(command);
    waiting = true;
    if (mode == Mode::Unattended)
        limit.start(within);
    else
        lookForAnswerLater();
}

void ScriptPlayer::pause(const QJsonObject& command)
{
    const int duration = milliseconds(command, "milliseconds", 0);
    if (mode == Mode::Unattended)
        return;
    waiting = true;
    expected = Expectation();
    limit.start(duration);
}

void ScriptPlayer::picture(const QJsonObject& command)
{
    const Instance& target = instance(command);
    const QString file = text(command, "file");
    const auto leavesDirectory = [](QChar c) { return QStringLiteral("/\\:").contains(c); };
    if (file.isEmpty() || std::any_of(file.cbegin(), file.cend(), leavesDirectory))
        throw ScriptError(QStringLiteral("\"file\" must be a name without a directory"));
    const QString path = pictureDirectory.filePath(file + QStringLiteral(".png"));
    // Process pending events before grabbing: zero-delay timers and polishing change the look.
    QCoreApplication::processEvents();
    if (!target.window)
        throw ScriptError(QStringLiteral("%1 was deleted").arg(target.family->name));
    const TokenCover cover(*target.window);
    if (!pictureDirectory.mkpath(QStringLiteral(".")) || !target.window->grab().save(path))
        throw ScriptError(QStringLiteral("cannot write %1").arg(path));
    Q_EMIT output({{QStringLiteral("dialog"), target.family->name},
                   {QStringLiteral("picture"), path},
                   {QStringLiteral("title"), command.value(QLatin1String("title")).toString()}});
}

void ScriptPlayer::onEvent(const DialogEvent& event)
{
    const Family& family = dialogFamily(event.dialog);
    QJsonObject object{{QStringLiteral("dialog"), event.dialog},
                       {QStringLiteral("event"), family.events.value(event.event)},
                       {QStringLiteral("values"), family.values(*event.sender)}};
    if (!event.sessionId.isNull())
        object.insert(QStringLiteral("session"), event.sessionId);
    Q_EMIT output(object);

    unconsumedEvents.append(event);
    lookForAnswerLater();
}

bool ScriptPlayer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        lookForAnswerLater();
    return QObject::eventFilter(watched, event);
}

void ScriptPlayer::lookForAnswerLater()
{
    // Queued: a dialog may hide before it emits its event.
    QMetaObject::invokeMethod(this, &ScriptPlayer::lookForAnswer, Qt::QueuedConnection);
}

void ScriptPlayer::lookForAnswer()
{
    if (!waiting || expected.event < 0)
        return;
    if (takeExpectedEvent())
        limit.stop();
    else if (mode == Mode::Attended && isAnsweredOtherwise())
        storyOver = true; // The rest of the script belongs to the answer that was not given.
    else
        return;
    resume();
}

bool ScriptPlayer::isAnsweredOtherwise() const
{
    for (const Instance& instance : instances) {
        if (instance.family->name != expected.dialog || instance.id != expected.id || !instance.window)
            continue;
        // Events of the session window, the only ones with a session id, are no answers of the person.
        const auto isAnswer = [&instance](const DialogEvent& event) {
            return event.sender == instance.dialog && event.sessionId.isNull();
        };
        return !instance.window->isVisible()
            || std::any_of(unconsumedEvents.cbegin(), unconsumedEvents.cend(), isAnswer);
    }
    return true;
}

bool ScriptPlayer::takeExpectedEvent()
{
    for (int i = 0; i < unconsumedEvents.size(); ++i) {
        const DialogEvent& event = unconsumedEvents.at(i);
        if (event.dialog != expected.dialog || event.event != expected.event)
            continue;
        const bool sentByExpected = std::any_of(instances.cbegin(), instances.cend(), [&](const Instance& instance) {
            return instance.dialog == event.sender && instance.id == expected.id;
        });
        if (sentByExpected) {
            unconsumedEvents.remove(0, i + 1);
            return true;
        }
    }
    return false;
}

void ScriptPlayer::onWaitedTooLong()
{
    if (expected.event >= 0)
        fail(QStringLiteral("%1 of %2 did not come in time").arg(expected.eventName, expected.dialog));
    resume();
}
