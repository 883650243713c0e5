#pragma once

#include "DialogCatalogue.h"
#include "EventReceiver.h"
#include "GuiInterface.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <functional>
#include <limits>

/// Whether this build watches memory, which makes it several times slower.
inline constexpr bool hasSanitizer = GUI_SANITIZE;

/// The base of all tests that drive the built plugin: loads it as a host does, records the events of every dialog got
/// through it, takes all dialogs down after each test function, and fails the function during which a warning was
/// written or a question was left open.
class GuiTest : public QObject {
    Q_OBJECT

protected:
    GuiTest()
    {
        connect(&recorder, &EventReceiver::received, this, [this](const DialogEvent& event) {
            events << event;
            if (const auto react = std::exchange(nextReaction, nullptr))
                react();
        });
    }

    /// The plugin's root object.
    static GuiInterface& gui()
    {
        // Never unloaded: dialogs of a failed test may still be alive when the program ends.
        static QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
        auto* root = qobject_cast<GuiInterface*>(loader.instance());
        if (!root)
            qFatal("%s", qPrintable(loader.errorString()));
        return *root;
    }

    /// Gets the dialog of a family, attached to the recorder.
    template <class Interface>
    Interface* get(const QString& id = QString())
    {
        return dynamic_cast<Interface*>(get(dialogFamily<Interface>().name, id));
    }
    IBaseDialog* get(const QString& name, const QString& id = QString())
    {
        const Family& family = dialogFamily(name);
        IBaseDialog* dialog = family.get(gui(), id);
        // Returns false where the test got it before.
        family.attach(gui(), &recorder, family.receiverSlot.constData(), id);
        got.append({name, id});
        return dialog;
    }
    /// Gets and shows a dialog and gives its window the focus.
    template <class Interface>
    Interface* show(const QString& id = QString())
    {
        auto* dialog = get<Interface>(id);
        showActive(dialog);
        return dialog;
    }
    static void showActive(IBaseDialog* dialog)
    {
        dialog->show();
        window(dialog).activateWindow();
        if (!QTest::qWaitForWindowActive(&window(dialog)))
            qFatal("%s did not become active", qPrintable(window(dialog).objectName()));
    }

    /// The names of the events received so far, as in the enumeration, and forgets them: {"evClose"}.
    QStringList takeEvents()
    {
        QStringList names;
        for (const DialogEvent& event : qAsConst(events))
            names << dialogFamily(event.dialog).events.value(event.event, QString::number(event.event));
        events.clear();
        return names;
    }
    /// All events received since the last takeEvents().
    QVector<DialogEvent> events;
    /// Runs @p reaction once, in the host's slot for the next event.
    void onNextEvent(std::function<void()> reaction)
    {
        nextReaction = std::move(reaction);
    }

    static QWidget& window(IBaseDialog* dialog)
    {
        return dynamic_cast<QWidget&>(*dialog);
    }
    /// The widget of that object name; a null reference never returns: the test is aborted.
    template <class Widget = QWidget>
    static Widget& child(IBaseDialog* dialog, const char* name)
    {
        QWidget& top = window(dialog);
        auto* widget = top.findChild<Widget*>(QLatin1String(name));
        if (!widget)
            qFatal("%s has no such widget: %s", qPrintable(top.objectName()), name);
        return *widget;
    }
    static void click(IBaseDialog* dialog, const char* button)
    {
        QTest::mouseClick(&child(dialog, button), Qt::LeftButton);
    }
    /// Sends a key to where a person's would go: the focused widget of the dialog.
    static void press(IBaseDialog* dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget& top = window(dialog);
        QTest::keyClick(top.focusWidget() ? top.focusWidget() : &top, key, modifiers);
    }

    /// Does what a name says: a key ("Return"), a slot ("reject()"), the system's "close", or a click ("btnOk").
    static void act(IBaseDialog* dialog, const QString& action)
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
    /// Fails unless each of the actions, separated by spaces, raises that event (none if empty) and leaves the dialog
    /// visible, or hidden after "close!". "@edit" gives a widget the focus, "button+" and "button-" tell that it is
    /// enabled or disabled.
    void checkEvents(IBaseDialog* dialog, const QString& actions, const QString& event)
    {
        for (const QString& action : actions.split(QLatin1Char(' '))) {
            const QChar sign = action.back();
            const QString name = QStringLiteral("+-!").contains(sign) ? action.chopped(1) : action;
            if (action.startsWith(QLatin1Char('@'))) {
                child(dialog, qPrintable(action.mid(1))).setFocus();
            } else if (sign == QLatin1Char('+') || sign == QLatin1Char('-')) {
                QVERIFY2(child(dialog, qPrintable(name)).isEnabled() == (sign == QLatin1Char('+')), qPrintable(action));
            } else {
                act(dialog, name);
                QCOMPARE(name + takeEvents().join(QLatin1Char(' ')), QString(name + event));
                QVERIFY2(window(dialog).isVisible() != (sign == QLatin1Char('!')), qPrintable(action));
            }
        }
    }
    static void paste(QWidget& field, const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    }
    /// Enters @p text as an input method does.
    static void commit(QWidget& field, const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&field, &event);
    }

    /// Test data that is all text; rows are named by their texts.
    static void textColumns(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            QTest::addColumn<QString>(name);
    }
    static void textRow(std::initializer_list<const char*> texts)
    {
        QStringList values;
        for (const char* text : texts)
            values << QString::fromUtf8(text);
        QTestData& row = QTest::newRow(qPrintable(values.join(QLatin1String(", ")).simplified()));
        for (const QString& value : qAsConst(values))
            row << value;
    }
    /// One row per dialog type, its name in the column "family".
    static void familyRows()
    {
        QTest::addColumn<QString>("family");
        for (const Family& family : dialogFamilies())
            QTest::newRow(qPrintable(family.name)) << family.name;
    }

    /// Everything written through Qt's message functions during this test function.
    static inline QStringList messages;

    /// Lets scheduled deletions and zero-delay timers happen.
    static void settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    /// Fails the test function and closes the question when a message box stays open.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // exec() of a question that no test answers would last until the whole program is killed.
        auto* question = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
        if (question) {
            QTimer::singleShot(3000, question, [question] {
                QTest::qFail(qPrintable(QStringLiteral("unexpected question: ") + question->text()), __FILE__,
                             __LINE__);
                question->reject();
            });
        }
        return QObject::eventFilter(watched, event);
    }

protected Q_SLOTS:
    void initTestCase()
    {
        gui();
        qApp->installEventFilter(this);
    }
    void init()
    {
        messages.clear();
        warnings.clear();
        previousHandler = qInstallMessageHandler(recordMessage);
    }
    void cleanup()
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

private:
    static void recordMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        // The offscreen platform says so when a window is raised or a message box is shown.
        if (message.startsWith(QLatin1String("This plugin does not support ")))
            return;
        messages << message;
        if (type == QtWarningMsg || type == QtCriticalMsg)
            warnings << message;
        else
            previousHandler(type, context, message);
    }

    static inline QtMessageHandler previousHandler = nullptr;
    static inline QStringList warnings;
    EventReceiver recorder;
    QVector<QPair<QString, QString>> got;
    std::function<void()> nextReaction;
};

/// What every test program starts with: no window system needed, the same fonts on every machine, and English or the
/// language of GUI_TEST_LANGUAGE.
void prepareTestEnvironment();

/// Runs the test functions of @p test, in an application that outlives its windows. The program's result.
int runTest(QObject& test, int argc, char** argv);

#define GUI_TEST_MAIN(TestClass)                                                                                       \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        prepareTestEnvironment();                                                                                      \
        QApplication application(argc, argv);                                                                          \
        TestClass test;                                                                                                \
        return runTest(test, argc, argv);                                                                              \
    }
