#include "GuiTest.h"

/// The dialogs among other windows, under a real window manager and with real keys and clicks.
class WindowSystemTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void staysOnTop()
    {
        QLineEdit host;
        showHost(host);
        auto* dialog = show<IErrorMessageDialog>();
        auto* session = get<IRemoteConnectionDialog>();
        session->addRemoteControlSession(QStringLiteral("id"), QStringLiteral("user"), 1000, true);
        QTRY_VERIFY(stacking().contains(window(session).winId()));
        host.raise();
        host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host));
        const auto isBelow = [](const QWidget& lower, const QWidget& upper) {
            const QVector<WId> windows = stacking();
            return windows.indexOf(lower.winId()) >= 0
                && windows.indexOf(lower.winId()) < windows.indexOf(upper.winId());
        };
        QTRY_VERIFY(isBelow(host, window(dialog)));
        QVERIFY(isBelow(host, window(session)));
        xdotool(QStringLiteral("windowminimize %1").arg(window(dialog).winId()));
        QTRY_VERIFY(window(dialog).isMinimized());
        dialog->hide();
        dialog->show();
        QTRY_VERIFY(!window(dialog).isMinimized() && stacking().contains(window(dialog).winId()));
    }

    void sessionWindowLeavesTheFocus()
    {
        QLineEdit host;
        showHost(host);
        xdotool(QStringLiteral("key a"));
        QTRY_COMPARE(host.text(), QStringLiteral("a"));
        auto* session = get<IRemoteConnectionDialog>();
        session->addRemoteControlSession(QStringLiteral("id"), QStringLiteral("user"), 1000, true);
        session->startRemoteToolsSession(QStringLiteral("tools"), 1, QStringLiteral("user"), 1000, true);
        QTRY_VERIFY(stacking().contains(window(session).winId()));
        xdotool(QStringLiteral("key b space"));
        QTRY_COMPARE(host.text(), QStringLiteral("ab "));
        xdotool(QStringLiteral("windowminimize %1").arg(window(session).winId()));
        QTRY_VERIFY(window(session).isMinimized());
        session->addRemoteControlSession(QStringLiteral("new"), QStringLiteral("user"), 1000, true);
        QTRY_VERIFY(!window(session).isMinimized() && window(session).windowHandle()->isExposed());
        xdotool(QStringLiteral("key c"));
        QTRY_COMPARE(host.text(), QStringLiteral("ab c"));
        QVERIFY(!window(session).isActiveWindow());
        QCOMPARE(takeEvents(), QStringList());
    }

    void taskBarStaysFree()
    {
        QWidget bar;
        bar.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
        bar.show();
        const QString strut = QStringLiteral("-id %1 -f _NET_WM_STRUT 32c -set _NET_WM_STRUT 300,0,0,100");
        run(QStringLiteral("xprop"), strut.arg(bar.winId()).split(QLatin1Char(' ')));
        QTRY_COMPARE(QGuiApplication::primaryScreen()->availableGeometry(), QRect(300, 0, 980, 800));
        const QWidget& dialog = window(show<IErrorMessageDialog>());
        QTRY_VERIFY((dialog.frameGeometry().center() - QPoint(790, 400)).manhattanLength() <= 2);
        auto* session = get<IRemoteConnectionDialog>();
        session->addRemoteControlSession(QStringLiteral("id"), QStringLiteral("user"), 1000, true);
        QTRY_COMPARE(window(session).geometry().bottomRight(), QPoint(1279, 799));
    }

    void dragging()
    {
        auto* prompt = get<IApproveRemoteConnectionDialog>();
        prompt->setCountdown(1000);
        auto* larger = get<IErrorMessageDialog>();
        larger->setRatio(2);
        // One without a title bar and larger than the screen, and one with a title bar.
        const QPair<IBaseDialog*, const char*> dialogs[] = {{larger, "content"}, {prompt, "buttonsBackground"}};
        for (const auto& dialog : dialogs) {
            showActive(dialog.first);
            QWidget& top = window(dialog.first);
            const QPoint start = top.pos();
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(start));
            const QPoint grip = child(dialog.first, dialog.second).mapToGlobal(QPoint(30, 30));
            moveMouse(grip);
            xdotool(QStringLiteral("mousedown 1"));
            for (int i = 1; i <= 5; ++i)
                moveMouse(grip + QPoint(20, -10) * i);
            QTRY_COMPARE(top.pos(), start + QPoint(100, -50));
            xdotool(QStringLiteral("mouseup 1"));
            moveMouse(grip);
            settle();
            QCOMPARE(top.pos(), start + QPoint(100, -50));
            dialog.first->hide();
        }
    }

    void promptLeavesTheFocus()
    {
        QLineEdit host;
        showHost(host);
        auto* prompt = get<IApproveRemoteConnectionDialog>(QStringLiteral("id"));
        prompt->setCountdown(1000);
        for (const char* typed : {"a ", "a a "}) {
            prompt->show();
            QTRY_VERIFY(stacking().contains(window(prompt).winId()));
            xdotool(QStringLiteral("key a space"));
            QTRY_COMPARE(host.text(), QLatin1String(typed));
            clickOn(child(prompt, "messageTextEdit"));
            QTRY_VERIFY(child(prompt, "cancelButton").hasFocus());
            xdotool(QStringLiteral("key y Escape space"));
            QCOMPARE(awaitEvents(), QStringList{QStringLiteral("evCancel")});
            clickOn(child(prompt, "allowButton"));
            QCOMPARE(awaitEvents(), QStringList{QStringLiteral("evAllow")});
            prompt->hide();
            host.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&host));
        }
    }

private:
    /// A window of the host program that fills the screen's middle.
    static void showHost(QWidget& host)
    {
        host.setGeometry(QGuiApplication::primaryScreen()->availableGeometry().adjusted(40, 40, -40, -40));
        host.show();
        host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host));
    }

    QStringList awaitEvents()
    {
        return QTest::qWaitFor([this] { return !events.isEmpty(); }) ? takeEvents() : QStringList();
    }

    /// Runs a program while windows go on working, and returns what it prints.
    static QByteArray run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        if (!QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, 60000))
            qFatal("%s hangs", qPrintable(program));
        return process.readAllStandardOutput();
    }

    static void xdotool(const QString& command)
    {
        run(QStringLiteral("xdotool"), command.split(QLatin1Char(' ')));
    }

    static void moveMouse(const QPoint& position)
    {
        xdotool(QStringLiteral("mousemove --sync %1 %2").arg(position.x()).arg(position.y()));
    }

    static void clickOn(const QWidget& widget)
    {
        moveMouse(widget.mapToGlobal(widget.rect().center()));
        xdotool(QStringLiteral("click 1"));
    }

    /// All windows from the lowest to the topmost, as the window manager has them.
    static QVector<WId> stacking()
    {
        const QByteArray property =
            run(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")});
        QVector<WId> windows;
        const QList<QByteArray> ids = property.mid(property.indexOf('#') + 1).split(',');
        for (const QByteArray& id : ids)
            windows << id.trimmed().toULongLong(nullptr, 16);
        return windows;
    }
};

GUI_TEST_MAIN(WindowSystemTest)
#include "tst_windowsystem.moc"
