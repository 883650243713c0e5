#include "GuiTest.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

#include <array>
#include <limits>
#include <utility>

namespace {
using Session = IRemoteConnectionDialog;

constexpr qint64 hour = 3600 * 1000;
const QString a(QStringLiteral("a"));
const QString b(QStringLiteral("b"));
const QString jane(QStringLiteral("Jane"));
const QString endText(QStringLiteral("End session"));
const QString closeText(QStringLiteral("Close"));

qint64 ago(qint64 msecs)
{
    return QDateTime::currentMSecsSinceEpoch() - msecs;
}

void addControl(Session* session, const QString& id, bool canEnd = true, int hours = 1)
{
    session->addRemoteControlSession(id, jane, ago(hours * hour), canEnd);
}

void startTools(Session* session, const QString& id, bool canEnd = true, int hours = 1)
{
    session->startRemoteToolsSession(id, 1, jane, ago(hours * hour), canEnd);
}

QPoint screenCorner()
{
    return QGuiApplication::primaryScreen()->availableGeometry().bottomRight();
}

/// A clock that shows how many hours a session has run; a start to come leaves it as it was.
struct Clock {
    int hours = 0;
    bool running = false;
    QString text = QStringLiteral("00:00");

    void start(int newHours)
    {
        running = true;
        hours = newHours;
        if (hours > 0)
            text = QString::fromLatin1(hours < 24 ? "%1:00" : "1.%1:00").arg(hours % 24, 2, 10, QLatin1Char('0'));
    }
};

struct Panel {
    QString button;
    Clock clock;
};

/// What the window should show and tell, in the fewest words.
struct Model {
    QMap<QString, Panel> panels;
    Clock toolsClock;
    QString toolsId;
    QString toolsButton;
    bool toolsShown = false;
    bool toolsCloseEnabled = true;
    bool keepPanels = false;
    bool keepTools = false;
    bool hidden = false; ///< By the person, until the next session starts.
    QStringList events;

    bool isVisible() const
    {
        return !hidden && (toolsShown || !panels.isEmpty());
    }
    bool isRunning() const
    {
        return toolsClock.running
            || std::any_of(panels.begin(), panels.end(), [](const Panel& panel) { return panel.clock.running; });
    }
    void add(const QString& id, bool canEnd, int hours)
    {
        Panel& panel = panels[id];
        panel.button = canEnd ? endText : closeText;
        panel.clock.start(panel.clock.running ? qMax(hours, panel.clock.hours) : hours);
        toolsCloseEnabled = hidden = false;
    }
    void remove(const QString& id)
    {
        if (panels.remove(id) && panels.isEmpty())
            toolsCloseEnabled = true;
        events << QStringLiteral("evRemoteControlPopupClosed ") + id;
    }
    void end(const QString& id)
    {
        toolsCloseEnabled = toolsCloseEnabled || panels.contains(id);
        if (!keepPanels) {
            remove(id);
        } else if (panels.contains(id)) {
            panels[id].button = closeText;
            panels[id].clock.running = false;
        }
        events << QStringLiteral("evRemoteControlSessionEnded ") + id;
    }
    void click(const QString& id)
    {
        if (isVisible() && panels.value(id).button == endText)
            end(id);
        else if (isVisible() && panels.contains(id))
            remove(id);
    }
    void startTools(const QString& id, bool canEnd, int hours)
    {
        toolsId = id;
        toolsButton = canEnd ? endText : QString();
        toolsShown = true;
        hidden = false;
        if (!toolsClock.running)
            toolsClock = Clock();
        toolsClock.start(hours);
    }
    void closeTools()
    {
        toolsShown = false;
        events << QStringLiteral("evRemoteToolsPopupClosed ") + toolsId;
    }
    void endTools(const QString& id)
    {
        if (!keepTools)
            closeTools();
        toolsButton = closeText;
        if (std::exchange(toolsClock.running, false))
            events << QStringLiteral("evRemoteToolsSessionEnded ") + id;
    }
    void clickTools()
    {
        const bool canClick = isVisible() && toolsShown;
        if (canClick && toolsButton == endText) {
            toolsButton = closeText;
            events << QStringLiteral("evEndRemoteToolsSession ") + toolsId;
        } else if (canClick && toolsButton == closeText && toolsCloseEnabled) {
            closeTools();
        }
    }
};
} // namespace

/// The session status window: panels, tools area, clock, place, and what it survives.
class SessionWindowTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void randomWalk_data();
    void randomWalk();
    void clocks();
    void names();
    void sessionTypes();
    void onlySessionsCloseIt();
    void focus();
    void keepsItsCorner_data();
    void keepsItsCorner();
    void everyEventAnsweredByEnding();

private:
    static QMap<QString, QWidget*> panels(Session* session);
    static QPoint corner(Session* session);
    static void clickIn(QWidget* part);
    void compare(Session* session, const Model& model);
};

QMap<QString, QWidget*> SessionWindowTest::panels(Session* session)
{
    QMap<QString, QWidget*> result;
    for (QWidget* widget : window(session).findChildren<QWidget*>()) {
        const QVariant id = widget->property("P_SID");
        if (id.isValid())
            result.insert(id.toString(), widget);
    }
    return result;
}

QPoint SessionWindowTest::corner(Session* session)
{
    return window(session).geometry().bottomRight();
}

/// Clicks what a panel or the tools area lets a person click.
void SessionWindowTest::clickIn(QWidget* part)
{
    settle();
    const auto buttons = part ? part->findChildren<QPushButton*>() : QList<QPushButton*>();
    const auto shown = std::find_if(buttons.begin(), buttons.end(), [](QPushButton* one) { return one->isVisible(); });
    if (shown != buttons.end())
        QTest::mouseClick(*shown, Qt::LeftButton);
}

void SessionWindowTest::randomWalk_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 8; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void SessionWindowTest::randomWalk()
{
    using Id = const QString;
    // What a host or person does, and what it does to the model.
    static const struct {
        const char* name;
        void (*perform)(Session*, Id& id, bool flag, int hours);
        void (*expect)(Model&, Id& id, bool flag, int hours);
    } actions[] = {
        {"add", addControl, [](Model& model, Id& id, bool flag, int hours) { model.add(id, flag, hours); }},
        {"end", [](Session* session, Id& id, bool, int) { session->endRemoteControlSession(id); },
         [](Model& model, Id& id, bool, int) { model.end(id); }},
        {"click panel", [](Session* session, Id& id, bool, int) { clickIn(panels(session).value(id)); },
         [](Model& model, Id& id, bool, int) { model.click(id); }},
        {"keep panels", [](Session* session, Id&, bool flag, int) { session->setKeepEndedSessionPanels(flag); },
         [](Model& model, Id&, bool flag, int) { model.keepPanels = flag; }},
        {"start tools", startTools,
         [](Model& model, Id& id, bool flag, int hours) { model.startTools(id, flag, hours); }},
        {"end tools", [](Session* session, Id& id, bool, int) { session->endRemoteToolsSession(id); },
         [](Model& model, Id& id, bool, int) { model.endTools(id); }},
        {"click tools", [](Session* session, Id&, bool, int) { clickIn(&child(session, "fileTransportPanel")); },
         [](Model& model, Id&, bool, int) { model.clickTools(); }},
        {"keep tools", [](Session* session, Id&, bool flag, int) { session->setKeepRemoteToolsPopup(flag); },
         [](Model& model, Id&, bool flag, int) { model.keepTools = flag; }},
        {"hide", [](Session* session, Id&, bool, int) { child<QPushButton>(session, "closeButton").click(); },
         [](Model& model, Id&, bool, int) { model.hidden = true; }},
    };
    QFETCH(uint, seed);
    QRandomGenerator random(seed);
    auto* session = get<Session>();
    Model model;
    QString history;
    for (int step = 0; step < 150; ++step) {
        const QString id = QStringList{QString(), a, b, QStringLiteral("c")}.at(random.bounded(4));
        const bool flag = random.bounded(2) == 1;
        const int hours = std::array<int, 4>{-1, 1, 3, 27}.at(random.bounded(4));
        const auto& action = actions[random.bounded(int(std::size(actions)))];
        history += QStringLiteral("%1(%2,%3,%4) ").arg(QLatin1String(action.name), id).arg(flag).arg(hours);
        action.perform(session, id, flag, hours);
        action.expect(model, id, flag, hours);
        // Sometimes several things happen in one turn of the event loop.
        if (step % 5 == 0)
            continue;
        settle();
        compare(session, model);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(history));
        events.clear();
        model.events.clear();
    }
}

void SessionWindowTest::compare(Session* session, const Model& model)
{
    const auto shownButtons = [](const QWidget* part) {
        QString texts;
        for (const QPushButton* button : part->findChildren<QPushButton*>()) {
            if (button->isVisibleTo(part))
                texts += button->text() + QLatin1String(button->isEnabled() ? "" : " (disabled)");
        }
        return texts;
    };
    const auto strips = panels(session);
    QCOMPARE(strips.keys(), model.panels.keys());
    for (const QWidget* strip : strips) {
        const Panel panel = model.panels[strip->property("P_SID").toString()];
        QCOMPARE(shownButtons(strip), panel.button);
        const QString clock = strip->findChild<QLabel*>(QStringLiteral("timeElapsed"))->text();
        QVERIFY2(clock.startsWith(panel.clock.text), qPrintable(clock));
    }
    QCOMPARE(session->hasRemoteControlSessions(), !model.panels.isEmpty());

    const bool closes = model.toolsButton == closeText;
    const QString disabled = QLatin1String(closes && !model.toolsCloseEnabled ? " (disabled)" : "");
    const QWidget& tools = child(session, "fileTransportPanel");
    QCOMPARE(tools.isHidden(), !model.toolsShown);
    QVERIFY(tools.isHidden() || shownButtons(&tools) == model.toolsButton + disabled);
    QVERIFY(child<QLabel>(session, "timeElapsedFileTransfer").text().startsWith(model.toolsClock.text));
    QCOMPARE(session->isRemoteToolsPopupShown(), model.toolsShown);
    QCOMPARE(session->remoteToolsSessionId(), model.toolsId);

    QStringList told;
    for (const DialogEvent& event : qAsConst(events))
        told << dialogFamily(event.dialog).events.value(event.event) + QLatin1Char(' ') + event.sessionId;
    QCOMPARE(told, model.events);
    QCOMPARE(window(session).findChild<QTimer*>()->isActive(), model.isRunning());
    QCOMPARE(window(session).isVisible(), model.isVisible());
    QVERIFY(!model.isVisible() || corner(session) == screenCorner());
}

void SessionWindowTest::clocks()
{
    using Limits = std::numeric_limits<qint64>;
    auto* session = get<Session>();
    const auto& clock = child<QLabel>(session, "timeElapsedFileTransfer");
    for (qint64 start : {Limits::max(), Limits::min(), ago(24 * hour - 1000)}) {
        session->startRemoteToolsSession(a, 1, jane, start, true);
        settle();
        QCOMPARE(window(session).width(), 570);
    }
    QCOMPARE(clock.text(), QStringLiteral("23:59:59"));
    QTRY_VERIFY(clock.text().startsWith(QLatin1String("1.00:00:0")));
}

void SessionWindowTest::names()
{
    const QString full = QStringLiteral("Maximiliane von Hohenstein-Rabenau, Northwind Support");
    auto* session = get<Session>();
    session->addRemoteControlSession(a, full, 0, true);
    session->startRemoteToolsSession(b, 1, full, 0, true);
    session->setRatio(1.5F);
    settle();
    for (const char* label : {"username", "usernameFileTransfer"}) {
        const auto& user = child<QLabel>(session, label);
        QCOMPARE(user.toolTip(), full);
        QCOMPARE(user.text(), user.fontMetrics().elidedText(full, Qt::ElideRight, user.maximumWidth()));
        QTRY_VERIFY(user.width() >= user.sizeHint().width());
    }
    // Each button says whose session it ends.
    for (const char* button : {"btnEndRemoteControlSession", "btnEndRemoteToolsSession"})
        QVERIFY(child(session, button).accessibleName().contains(full));
}

void SessionWindowTest::sessionTypes()
{
    auto* session = get<Session>();
    QCOMPARE(session->remoteToolsValue(), 0);
    for (int type : {1, 0, -1}) {
        session->startRemoteToolsSession(a, type, QString(), 0, true);
        QCOMPARE(child<QLabel>(session, "toolSessionTypeLabel").text(),
                 type == 1 ? QStringLiteral("File Transfer Session") : QStringLiteral("Remote Tool Session"));
        QCOMPARE(session->remoteToolsValue(), type);
    }
}

void SessionWindowTest::onlySessionsCloseIt()
{
    auto* session = get<Session>();
    addControl(session, a);
    QVERIFY(window(session).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // The platform that the tests run on activates every window; those that people use ask this property.
    QVERIFY(window(session).windowHandle()->property("_q_showWithoutActivating").toBool());
    window(session).activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window(session)));
    checkEvents(session, QStringLiteral("Escape Return A accept() reject() close"), QString());
}

void SessionWindowTest::focus()
{
    auto* session = get<Session>();
    QWidget& top = window(session);
    addControl(session, a);
    addControl(session, b, false);
    startTools(session, a);
    child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").click();
    settle();
    QCOMPARE(top.focusWidget(), &top);
    press(session, Qt::Key_Tab);
    QCOMPARE(tabOrder(session),
             QStringLiteral("closeButton btnCloseRemoteControlPopup btnEndRemoteControlSession "
                            "btnEndRemoteToolsSession fileTransferInfoPanelCheckBox logsListView"));
    // The key that ends a session must not end the next one when it is pressed again.
    for (const char* button :
         {"btnCloseRemoteControlPopup", "btnEndRemoteControlSession", "btnEndRemoteToolsSession"}) {
        for (auto* one : top.findChildren<QPushButton*>(QLatin1String(button))) {
            if (one->isVisible())
                one->setFocus();
        }
        press(session, Qt::Key_Space);
        settle();
        QCOMPARE(top.focusWidget(), &top);
    }
}

void SessionWindowTest::keepsItsCorner_data()
{
    QTest::addColumn<float>("ratio");
    for (const float ratio : {1.0F, 1.5F})
        QTest::addRow("%g", double(ratio)) << ratio;
}

void SessionWindowTest::keepsItsCorner()
{
    QFETCH(float, ratio);
    auto* session = get<Session>();
    QWidget& top = window(session);
    addControl(session, a);
    settle();
    session->setRatio(ratio);
    settle();
    QSignalSpy layouts(top.windowHandle(), &QWindow::heightChanged);
    addControl(session, b);
    startTools(session, a);
    settle();
    QCOMPARE(layouts.size(), 1);
    QCOMPARE(corner(session), screenCorner());
    QCOMPARE(top.width(), static_cast<int>(570 * ratio));
    for (const QWidget* strip : panels(session))
        QCOMPARE(strip->size(), QSize(top.width(), static_cast<int>(70 * ratio) + 1));
    const auto left = [&](const char* button) { return child(session, button).mapTo(&top, QPoint()).x(); };
    QCOMPARE(left("btnEndRemoteControlSession"), left("btnEndRemoteToolsSession"));

    // Where the bottom-right corner would push the header off the screen, the header wins.
    auto& expander = child<QCheckBox>(session, "fileTransferInfoPanelCheckBox");
    const int withoutLog = top.height();
    for (const bool withLog : {true, false}) {
        expander.click();
        settle();
        QCOMPARE(top.height() > withoutLog, withLog);
        QCOMPARE(corner(session).x(), screenCorner().x());
        QCOMPARE(top.y(), qMax(0, screenCorner().y() + 1 - top.height()));
    }
    top.move(10, 20);
    QVERIFY(QMetaObject::invokeMethod(&top, "onAvailableGeometryChanged", Q_ARG(QRect, QRect())));
    QCOMPARE(corner(session), screenCorner());
    session->hide();
    top.move(10, 20);
    session->show();
    QCOMPARE(corner(session), screenCorner());

    // Where the person has moved it, it grows and shrinks, unless that is off every screen.
    top.move(top.pos() - QPoint(10, 15));
    const QPoint moved = corner(session);
    session->endRemoteControlSession(b);
    settle();
    QCOMPARE(corner(session), moved);
    top.move(20000, 20000);
    top.showMinimized();
    addControl(session, b);
    settle();
    QVERIFY(!top.isMinimized());
    QCOMPARE(corner(session), screenCorner());
}

void SessionWindowTest::everyEventAnsweredByEnding()
{
    auto* session = get<Session>();
    addControl(session, a);
    startTools(session, b);
    int answers = 0;
    const std::function<void()> answer = [&] {
        QVERIFY(++answers < 50);
        onNextEvent(answer);
        session->endRemoteControlSession(a);
        session->endRemoteToolsSession(b);
    };
    answer();
    settle();
    QVERIFY(!window(session).isVisible());
    onNextEvent(nullptr);
}

GUI_TEST_MAIN(SessionWindowTest)
#include "tst_sessionwindow.moc"
