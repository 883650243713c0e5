#include "GuiTest.h"
#include "Surroundings.h"

#include <utility>

namespace {
QtMessageHandler previousHandler = nullptr;
QStringList allMessages;
QStringList warnings;

void recordMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // The offscreen platform says so when a window is raised or a message box is shown.
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    allMessages << message;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        warnings << message;
    else
        previousHandler(type, context, message);
}
} // namespace

void prepareTestEnvironment(const QByteArray& language)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANGUAGE", language);
    prepareSurroundings();
}

int runTest(QObject& test, int argc, char** argv)
{
    QApplication::setQuitOnLastWindowClosed(false);
    const int result = QTest::qExec(&test, argc, argv);
    // The threads of Qt Test and of Qt's picture scaler may be said to have ended while they still give back what they
    // have: the leak check would sometimes come between.
    QThreadPool::globalInstance()->waitForDone();
    const QDir threads(QStringLiteral("/proc/self/task"));
    const auto alone = [&threads] { return threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() <= 1; };
    if (hasSanitizer && !QTest::qWaitFor(alone, 1000))
        qWarning("threads are left: the leak check may report what they hold");
    return result;
}

GuiTest::GuiTest()
{
    connect(&recorder, &EventReceiver::received, this, [this](const DialogEvent& event) {
        events << event;
        if (const auto react = std::exchange(nextReaction, nullptr))
            react();
    });
}

GuiInterface& GuiTest::gui()
{
    // Never unloaded: dialogs of a failed test may still be alive when the program ends.
    static QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* root = qobject_cast<GuiInterface*>(loader.instance());
    if (!root)
        qFatal("%s", qPrintable(loader.errorString()));
    return *root;
}

IBaseDialog* GuiTest::get(const QString& name, const QString& id)
{
    const Family& family = dialogFamily(name);
    IBaseDialog* dialog = family.get(gui(), id);
    // Returns false where the test got it before.
    family.attach(gui(), &recorder, family.receiverSlot.constData(), id);
    got.append({name, id});
    return dialog;
}

void GuiTest::showActive(IBaseDialog* dialog)
{
    dialog->show();
    window(dialog).activateWindow();
    if (!QTest::qWaitForWindowActive(&window(dialog)))
        qFatal("%s did not become active", qPrintable(window(dialog).objectName()));
}

QStringList GuiTest::takeEvents()
{
    QStringList names;
    for (const DialogEvent& event : qAsConst(events))
        names << dialogFamily(event.dialog).events.value(event.event, QString::number(event.event));
    events.clear();
    return names;
}

void GuiTest::onNextEvent(std::function<void()> reaction)
{
    nextReaction = std::move(reaction);
}

QWidget& GuiTest::window(IBaseDialog* dialog)
{
    return dynamic_cast<QWidget&>(*dialog);
}

void GuiTest::click(IBaseDialog* dialog, const char* button)
{
    QTest::mouseClick(&child(dialog, button), Qt::LeftButton);
}

void GuiTest::press(IBaseDialog* dialog, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget& top = window(dialog);
    QTest::keyClick(top.focusWidget() ? top.focusWidget() : &top, key, modifiers);
}

void GuiTest::act(IBaseDialog* dialog, const QString& action)
{
    bool isKey = false;
    const int key = QMetaEnum::fromType<Qt::Key>().keyToValue(qPrintable(QLatin1String("Key_") + action), &isKey);
    if (isKey)
        press(dialog, static_cast<Qt::Key>(key));
    else if (action == QLatin1String("close"))
        window(dialog).close();
    else if (action.endsWith(QLatin1String("()")))
        QVERIFY(QMetaObject::invokeMethod(&window(dialog), qPrintable(action.chopped(2))));
    else
        click(dialog, qPrintable(action));
}

void GuiTest::checkEvents(IBaseDialog* dialog, const QString& actions, const QString& event)
{
    const QString result = QStringLiteral("%1 raises \"%2\"");
    for (const QString& action : actions.split(QLatin1Char(' '))) {
        act(dialog, action);
        QCOMPARE(result.arg(action, takeEvents().join(QLatin1Char(' '))), result.arg(action, event));
        QVERIFY2(window(dialog).isVisible(), qPrintable(action));
    }
}

void GuiTest::paste(QWidget& field, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
}

void GuiTest::textColumns(std::initializer_list<const char*> names)
{
    for (const char* name : names)
        QTest::addColumn<QString>(name);
}

void GuiTest::textRow(std::initializer_list<const char*> texts)
{
    QStringList values;
    for (const char* text : texts)
        values << QString::fromUtf8(text);
    QTestData& row = QTest::newRow(qPrintable(values.join(QLatin1String(", ")).simplified()));
    for (const QString& value : qAsConst(values))
        row << value;
}

void GuiTest::familyRows()
{
    QTest::addColumn<QString>("family");
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name;
}

QStringList GuiTest::messages()
{
    return allMessages;
}

void GuiTest::settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

bool GuiTest::eventFilter(QObject* watched, QEvent* event)
{
    // exec() of a question that no test answers would last until the whole program is killed.
    auto* question = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    if (question) {
        QTimer::singleShot(3000, question, [question] {
            QTest::qFail(qPrintable(QStringLiteral("unexpected question: ") + question->text()), __FILE__, __LINE__);
            question->reject();
        });
    }
    return QObject::eventFilter(watched, event);
}

void GuiTest::initTestCase()
{
    gui();
    qApp->installEventFilter(this);
}

void GuiTest::init()
{
    allMessages.clear();
    warnings.clear();
    previousHandler = qInstallMessageHandler(recordMessage);
}

void GuiTest::cleanup()
{
    for (const auto& dialog : qAsConst(got))
        dialogFamily(dialog.first).remove(gui(), dialog.second);
    got.clear();
    gui().setRatio(1.0F);
    settle();
    events.clear();
    nextReaction = nullptr;

    qInstallMessageHandler(previousHandler);
    QVERIFY2(warnings.isEmpty(), qPrintable(QStringLiteral("unexpected: ") + warnings.join(QLatin1Char('\n'))));
}
