#pragma once

#include "DialogCatalogue.h"
#include "EventReceiver.h"
#include "GuiInterface.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

/// Whether this build watches memory, which makes it several times slower.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool hasSanitizer = true;
#else
inline constexpr bool hasSanitizer = false;
#endif

/// The base of all tests that drive the built plugin: loads it as a host does, records the events of every dialog got
/// through it, takes all dialogs down after each test function, and fails the function during which a warning was
/// written or a question was left open.
class GuiTest : public QObject {
    Q_OBJECT

protected:
    GuiTest();

    /// The plugin's root object.
    static GuiInterface& gui();

    /// Gets the dialog of a family, attached to the recorder.
    template <class Interface>
    Interface* get(const QString& id = QString())
    {
        return dynamic_cast<Interface*>(get(dialogFamily<Interface>().name, id));
    }
    IBaseDialog* get(const QString& family, const QString& id = QString());
    /// Gets and shows a dialog and gives its window the focus.
    template <class Interface>
    Interface* show(const QString& id = QString())
    {
        auto* dialog = get<Interface>(id);
        showActive(dialog);
        return dialog;
    }
    static void showActive(IBaseDialog* dialog);

    /// The names of the events received so far, as in the enumeration, and forgets them: {"evClose"}.
    QStringList takeEvents();
    /// All events received since the last takeEvents().
    QVector<DialogEvent> events;
    /// Runs @p reaction once, in the host's slot for the next event.
    void onNextEvent(std::function<void()> reaction);

    static QWidget& window(IBaseDialog* dialog);
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
    static void click(IBaseDialog* dialog, const char* button);
    /// Sends a key to where a person's would go: the focused widget of the dialog.
    static void press(IBaseDialog* dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Does what a name says: a key ("Return"), a slot ("reject()"), the system's "close", or a click ("btnOk").
    static void act(IBaseDialog* dialog, const QString& action);
    /// Fails unless each of the actions, separated by spaces, raises that event (none if empty) and leaves the dialog.
    void checkEvents(IBaseDialog* dialog, const QString& actions, const QString& event);
    static void paste(QWidget& field, const QString& text);

    /// Test data that is all text; rows are named by their texts.
    static void textColumns(std::initializer_list<const char*> names);
    static void textRow(std::initializer_list<const char*> texts);
    /// One row per dialog type, its name in the column "family".
    static void familyRows();

    /// Everything written through Qt's message functions during this test function.
    static QStringList messages();

    /// Lets scheduled deletions and zero-delay timers happen.
    static void settle();

    /// Fails the test function and closes the question when a message box stays open.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    EventReceiver recorder;
    QVector<QPair<QString, QString>> got;
    std::function<void()> nextReaction;
};

/// What every test program starts with; see GUI_TEST_MAIN.
void prepareTestEnvironment(const QByteArray& language = "en");

/// Runs the test functions, in an application that outlives its windows. The program's result.
int runTest(QObject& test, int argc, char** argv);

/// main() of a test program: no window system needed, English, the same fonts on every machine.
#define GUI_TEST_MAIN(TestClass)                                                                                       \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        prepareTestEnvironment();                                                                                      \
        QApplication application(argc, argv);                                                                          \
        TestClass test;                                                                                                \
        return runTest(test, argc, argv);                                                                              \
    }
