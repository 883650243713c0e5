#include "GuiTest.h"

#include <QEventLoop>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>

/// The dialogs among other windows, under a real window manager and with real keys.
class WindowSystemTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void keysReachTheDialogOnTop();
    void sessionWindowLeavesTheFocus();
};

namespace {
/// Runs a program while windows go on working, and returns what it prints.
QByteArray run(const QString& command)
{
    QProcess process;
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop, &QEventLoop::quit);
    QStringList arguments = command.split(QLatin1Char(' '));
    const QString program = arguments.takeFirst();
    process.start(program, arguments);
    if (!process.waitForStarted())
        qFatal("%s does not start", qPrintable(program));
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    return process.readAllStandardOutput();
}

void pressKeys(const char* keys)
{
    run(QStringLiteral("xdotool key ") + QLatin1String(keys));
}

/// The place of a window among all from the lowest to the topmost, as the window manager has them; -1 if it has not.
int level(const QWidget& window)
{
    const QByteArray property = run(QStringLiteral("xprop -root _NET_CLIENT_LIST_STACKING"));
    QVector<WId> windows;
    for (const QByteArray& id : property.mid(property.indexOf('#') + 1).split(','))
        windows << id.trimmed().toULongLong(nullptr, 16);
    return windows.indexOf(window.winId());
}

/// A window of the host program that fills the screen's middle.
class HostWindow : public QLineEdit {
public:
    HostWindow()
    {
        setGeometry(QGuiApplication::primaryScreen()->availableGeometry().adjusted(40, 40, -40, -40));
        show();
        comeToFront();
    }

    void comeToFront()
    {
        raise();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the host's window did not become active");
    }
};
} // namespace

void WindowSystemTest::keysReachTheDialogOnTop()
{
    HostWindow host;
    auto* dialog = show<IErrorMessageDialog>();
    pressKeys("Return");
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evTryAgain")});
    auto* session = get<IRemoteConnectionDialog>();
    session->addRemoteControlSession(QStringLiteral("id"), QStringLiteral("user"), 1000, true);
    QTRY_VERIFY(level(window(session)) >= 0);
    host.comeToFront();
    QTRY_VERIFY(level(host) >= 0 && level(host) < level(window(dialog)));
    QVERIFY(level(host) < level(window(session)));
    dialog->done(0);
    QTRY_COMPARE(level(window(dialog)), -1);
}

void WindowSystemTest::sessionWindowLeavesTheFocus()
{
    HostWindow host;
    pressKeys("a");
    QTRY_COMPARE(host.text(), QStringLiteral("a"));
    auto* session = get<IRemoteConnectionDialog>();
    session->addRemoteControlSession(QStringLiteral("id"), QStringLiteral("user"), 1000, true);
    session->startRemoteToolsSession(QStringLiteral("tools"), 1, QStringLiteral("user"), 1000, true);
    QTRY_VERIFY(level(window(session)) >= 0);
    pressKeys("b space");
    QTRY_COMPARE(host.text(), QStringLiteral("ab "));
    QVERIFY(!window(session).isActiveWindow());
    QCOMPARE(takeEvents(), QStringList());
}

GUI_TEST_MAIN(WindowSystemTest)
#include "tst_windowsystem.moc"
