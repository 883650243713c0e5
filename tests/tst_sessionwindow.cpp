#include "GuiTest.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QSet>
#include <QTimer>
#include <QWindow>

#include <limits>

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

void addControl(Session* session, const QString& id, bool canEnd = true)
{
    session->addRemoteControlSession(id, jane, ago(hour), canEnd);
}

void startTools(Session* session, const QString& id, bool canEnd = true)
{
    session->startRemoteToolsSession(id, 1, jane, ago(hour), canEnd);
}

QPoint screenCorner()
{
    return QGuiApplication::primaryScreen()->availableGeometry().bottomRight();
}

/// What the window should show and tell, in the fewest words.
struct Model {
    QMap<QString, QString> panels; ///< The button that each shows.
    QSet<QString> running;         ///< Sessions; the one of the tools area is called "tools".
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
    void add(const QString& id, bool canEnd)
    {
        panels[id] = canEnd ? endText : closeText;
        running << id;
        toolsCloseEnabled = hidden = false;
    }
    void remove(const QString& id)
    {
        running.remove(id);
        if (panels.remove(id) && panels.isEmpty())
            toolsCloseEnabled = true;
        events << QStringLiteral("evRemoteControlPopupClosed ") + id;
    }
    void end(const QString& id)
    {
        toolsCloseEnabled = toolsCloseEnabled || panels.contains(id);
        running.remove(id);
        if (!keepPanels)
            remove(id);
        else if (panels.contains(id))
            panels[id] = closeText;
        events << QStringLiteral("evRemoteControlSessionEnded ") + id;
    }
    void click(const QString& id)
    {
        if (isVisible() && panels.value(id) == endText)
            end(id);
        else if (isVisible() && panels.contains(id))
            remove(id);
    }
    void startTools(const QString& id, bool canEnd)
    {
        toolsId = id;
        toolsButton = canEnd ? endText : QString();
        toolsShown = true;
        hidden = false;
        running << QStringLiteral("tools");
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
        if (running.remove(QStringLiteral("tools")))
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
    void restartedClocks();
    void names();
    void sessionTypes();
    void onlySessionsCloseIt();
    void keepsItsCorner_data();
    void keepsItsCorner();
    void reactsFromInside_data();
    void reactsFromInside();

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
        void (*perform)(Session*, Id& id, bool flag);
        void (*expect)(Model&, Id& id, bool flag);
    } actions[] = {
        {"add", addControl, [](Model& model, Id& id, bool flag) { model.add(id, flag); }},
        {"end", [](Session* session, Id& id, bool) { session->endRemoteControlSession(id); },
         [](Model& model, Id& id, bool) { model.end(id); }},
        {"click panel", [](Session* session, Id& id, bool) { clickIn(panels(session).value(id)); },
         [](Model& model, Id& id, bool) { model.click(id); }},
        {"keep panels", [](Session* session, Id&, bool flag) { session->setKeepEndedSessionPanels(flag); },
         [](Model& model, Id&, bool flag) { model.keepPanels = flag; }},
        {"start tools", startTools, [](Model& model, Id& id, bool flag) { model.startTools(id, flag); }},
        {"end tools", [](Session* session, Id& id, bool) { session->endRemoteToolsSession(id); },
         [](Model& model, Id& id, bool) { model.endTools(id); }},
        {"click tools", [](Session* session, Id&, bool) { clickIn(&child(session, "fileTransportPanel")); },
         [](Model& model, Id&, bool) { model.clickTools(); }},
        {"keep tools", [](Session* session, Id&, bool flag) { session->setKeepRemoteToolsPopup(flag); },
         [](Model& model, Id&, bool flag) { model.keepTools = flag; }},
        {"hide", [](Session* session, Id&, bool) { child<QPushButton>(session, "closeButton").click(); },
         [](Model& model, Id&, bool) { model.hidden = true; }},
    };
    QFETCH(uint, seed);
    QRandomGenerator random(seed);
    auto* session = get<Session>();
    Model model;
    QString history;
    for (int step = 0; step < 150; ++step) {
        const QString id = QStringList{QString(), a, b, QStringLiteral("c")}.at(random.bounded(4));
        const bool flag = random.bounded(2) == 1;
        const auto& action = actions[random.bounded(int(std::size(actions)))];
        history += QStringLiteral("%1(%2,%3) ").arg(QLatin1String(action.name), id).arg(flag);
        action.perform(session, id, flag);
        action.expect(model, id, flag);
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
    QMap<QString, QString> buttons;
    for (const QWidget* strip : panels(session))
        buttons[strip->property("P_SID").toString()] = shownButtons(strip);
    QCOMPARE(buttons, model.panels);
    QCOMPARE(session->hasRemoteControlSessions(), !model.panels.isEmpty());

    const bool closes = model.toolsButton == closeText;
    const QString disabled = QLatin1String(closes && !model.toolsCloseEnabled ? " (disabled)" : "");
    const QWidget& tools = child(session, "fileTransportPanel");
    QCOMPARE(tools.isHidden(), !model.toolsShown);
    QVERIFY(tools.isHidden() || shownButtons(&tools) == model.toolsButton + disabled);
    QCOMPARE(session->isRemoteToolsPopupShown(), model.toolsShown);
    QCOMPARE(session->remoteToolsSessionId(), model.toolsId);

    QStringList told;
    for (const DialogEvent& event : qAsConst(events))
        told << dialogFamily(event.dialog).events.value(event.event) + QLatin1Char(' ') + event.sessionId;
    QCOMPARE(told, model.events);
    QCOMPARE(window(session).findChild<QTimer*>()->isActive(), !model.running.isEmpty());
    QCOMPARE(window(session).isVisible(), model.isVisible());
    QVERIFY(!model.isVisible() || corner(session) == screenCorner());
}

void SessionWindowTest::clocks()
{
    using Limits = std::numeric_limits<qint64>;
    auto* session = get<Session>();
    QCOMPARE(window(session).findChild<QTimer*>()->interval(), 1000);
    // Times to come leave a clock as it was.
    const QPair<qint64, const char*> rows[] = {{Limits::max(), "00:00:00"},
                                               {ago(-hour), "00:00:00"},
                                               {ago(24 * hour - 60000), "23:59:0"},
                                               {ago(24 * hour), "1.00:00:0"},
                                               {ago(27 * hour + 245000), "1.03:04:0"},
                                               {Limits::min(), ""}};
    for (const auto& row : rows) {
        const QString text = QLatin1String(row.second);
        session->addRemoteControlSession(text, jane, row.first, true);
        session->startRemoteToolsSession(b, 1, jane, row.first, true);
        settle();
        const auto* clock = panels(session)[text]->findChild<QLabel*>(QStringLiteral("timeElapsed"));
        QVERIFY2(clock->text().contains(text), qPrintable(clock->text()));
        QVERIFY(child<QLabel>(session, "timeElapsedFileTransfer").text().contains(text));
        QCOMPARE(window(session).width(), 570);
    }
}

void SessionWindowTest::restartedClocks()
{
    auto* session = get<Session>();
    const auto shown = [&](qint64 start) {
        session->addRemoteControlSession(a, jane, start, true);
        return child<QLabel>(session, "timeElapsed").text().left(5);
    };
    QCOMPARE(shown(ago(2 * hour + 1000)), QStringLiteral("02:00"));
    QCOMPARE(shown(ago(hour)), QStringLiteral("02:00"));
    QCOMPARE(shown(ago(3 * hour + 1000)), QStringLiteral("03:00"));
    // A kept panel whose session begins again has no start to compare with.
    session->setKeepEndedSessionPanels(true);
    session->endRemoteControlSession(a);
    QCOMPARE(shown(ago(hour + 1000)), QStringLiteral("01:00"));

    const auto& tools = child<QLabel>(session, "timeElapsedFileTransfer");
    session->setKeepRemoteToolsPopup(true);
    session->startRemoteToolsSession(b, 1, jane, 0, true);
    session->endRemoteToolsSession(b);
    const QString stopped = tools.text();
    QVERIFY(QMetaObject::invokeMethod(&window(session), "slUpdateTime"));
    QCOMPARE(tools.text(), stopped);
    session->startRemoteToolsSession(b, 1, jane, ago(-hour), true);
    QCOMPARE(tools.text(), QStringLiteral("00:00:00"));
}

void SessionWindowTest::names()
{
    const QString full = QStringLiteral("Maximiliane von Hohenstein-Rabenau, Northwind Support");
    auto* session = get<Session>();
    for (const QString& name : {QStringLiteral("<b>J</b>\n&a\u202E"), full, full.repeated(200)}) {
        session->addRemoteControlSession(a, name, ago(hour), true);
        session->startRemoteToolsSession(name, 1, name, ago(hour), true);
        settle();
        const bool elided = name.size() > 40;
        const QString shown = QString(name).replace(QRegularExpression(QStringLiteral("[\n\u202E]")), QChar(0xFFFD));
        for (const char* label : {"username", "usernameFileTransfer"}) {
            const auto& user = child<QLabel>(session, label);
            QCOMPARE(user.textFormat(), Qt::PlainText);
            QCOMPARE(user.toolTip(), elided ? shown : QString());
            QCOMPARE(user.text().endsWith(QChar(0x2026)), elided);
            QVERIFY(elided || user.text() == shown);
            QTRY_VERIFY(user.fontMetrics().horizontalAdvance(user.text()) <= user.width());
        }
        QVERIFY(child(session, "centralFrame").geometry().right() < child(session, "timeElapsed").geometry().left());
    }
}

void SessionWindowTest::sessionTypes()
{
    auto* session = get<Session>();
    QCOMPARE(session->remoteToolsValue(), 0);
    for (int type : {1, 0, 2, -1}) {
        session->startRemoteToolsSession(a, type, QString(), 0, true);
        QCOMPARE(child<QLabel>(session, "toolSessionTypeLabel").text(),
                 type == 1 ? QStringLiteral("File Transfer Session") : QStringLiteral("Remote Tool Session"));
        QCOMPARE(session->remoteToolsValue(), type);
    }
    const auto number = [&](const QString& id) {
        addControl(session, id);
        const QString title = panels(session)[id]->findChild<QLabel*>(QStringLiteral("sessionTypeLabel"))->text();
        return title.section(QLatin1String("Remote Control Session #"), 1).toInt();
    };
    const int first = number(a);
    QCOMPARE(number(b), first + 1);
    settle();
    QVERIFY(panels(session)[b]->y() < panels(session)[a]->y());
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
    checkEvents(session, QStringLiteral("Escape A accept() reject() close"), QString());
    QTest::keyClick(&window(session), Qt::Key_Return);
    QVERIFY(window(session).isVisible());
}

void SessionWindowTest::keepsItsCorner_data()
{
    QTest::addColumn<float>("ratioBefore");
    QTest::addColumn<float>("ratioWhileShown");
    QTest::newRow("not scaled") << 1.0F << 1.0F;
    QTest::newRow("scaled") << 1.5F << 1.0F;
    QTest::newRow("scaled while shown") << 1.0F << 1.5F;
}

void SessionWindowTest::keepsItsCorner()
{
    QFETCH(float, ratioBefore);
    QFETCH(float, ratioWhileShown);
    const float ratio = ratioBefore * ratioWhileShown;
    auto* session = get<Session>();
    QWidget& top = window(session);
    session->setRatio(ratioBefore);
    addControl(session, a);
    settle();
    session->setRatio(ratioWhileShown);
    const int oneHigh = top.height();
    addControl(session, b);
    startTools(session, a);
    settle();
    auto& expander = child<QCheckBox>(session, "fileTransferInfoPanelCheckBox");
    const int withoutLog = top.height();
    for (const bool withLog : {true, false, true}) {
        expander.click();
        settle();
        QCOMPARE(top.height() > withoutLog, withLog);
        QCOMPARE(corner(session), screenCorner());
    }
    QCOMPARE(top.width(), static_cast<int>(570 * ratio));
    QVERIFY(top.height() > oneHigh + 141 * ratio);
    for (const QWidget* strip : panels(session))
        QCOMPARE(strip->size(), QSize(top.width(), static_cast<int>(70 * ratio) + 1));
    QCOMPARE(corner(session), screenCorner());

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
    addControl(session, b);
    settle();
    QCOMPARE(corner(session), moved);
    top.move(20000, 20000);
    addControl(session, a);
    settle();
    QCOMPARE(corner(session), screenCorner());
}

void SessionWindowTest::reactsFromInside_data()
{
    textColumns({"cause", "reaction"});
    for (const char* cause : {"btnEndRemoteControlSession", "btnCloseRemoteControlPopup", "btnEndRemoteToolsSession",
                              "host ends tools", "host ends control"}) {
        for (const char* reaction : {"delete", "end all", "restart all"})
            textRow({cause, reaction});
    }
}

void SessionWindowTest::reactsFromInside()
{
    QFETCH(QString, cause);
    QFETCH(QString, reaction);
    auto* session = get<Session>();
    const QPointer<QWidget> guard = &window(session);
    addControl(session, a, cause != QLatin1String("btnCloseRemoteControlPopup"));
    startTools(session, b);
    settle();
    onNextEvent([&] {
        if (reaction == QLatin1String("delete")) {
            delete session;
        } else if (reaction == QLatin1String("end all")) {
            session->endRemoteControlSession(a);
            session->endRemoteToolsSession(session->remoteToolsSessionId());
        } else {
            addControl(session, a);
            startTools(session, b);
        }
    });
    if (cause == QLatin1String("host ends tools"))
        session->endRemoteToolsSession(session->remoteToolsSessionId());
    else if (cause == QLatin1String("host ends control"))
        session->endRemoteControlSession(panels(session)[a]->property("P_SID").toString());
    else
        click(session, qPrintable(cause));
    settle();
    QVERIFY(!takeEvents().isEmpty());
    QCOMPARE(guard.isNull(), reaction == QLatin1String("delete"));
    const bool restarted = reaction == QLatin1String("restart all");
    QCOMPARE(guard && guard->isVisible(), restarted);
    for (const char* end : {"btnEndRemoteControlSession", "btnEndRemoteToolsSession"})
        QVERIFY(!restarted || child(session, end).isVisible());
}

GUI_TEST_MAIN(SessionWindowTest)
#include "tst_sessionwindow.moc"
