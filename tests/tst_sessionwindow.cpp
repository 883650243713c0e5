#include "GuiTest.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <limits>

namespace {
using Session = IRemoteConnectionDialog;
using Reaction = void (*)(Session*);

constexpr qint64 hour = 3600 * 1000;
const QString a(QStringLiteral("a"));
const QString b(QStringLiteral("b"));
const QString jane(QStringLiteral("Jane"));

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

bool clickIfThere(QWidget* parent, const char* name)
{
    auto* target = parent ? parent->findChild<QPushButton*>(QLatin1String(name)) : nullptr;
    const bool possible = target && target->isVisible() && target->isEnabled();
    if (possible)
        QTest::mouseClick(target, Qt::LeftButton);
    return possible;
}

QPoint screenCorner()
{
    return QGuiApplication::primaryScreen()->availableGeometry().bottomRight();
}

/// What the window should show, told in the fewest words.
struct Model {
    struct Panel {
        bool running = false;
        bool end = false;
    };

    QMap<QString, Panel> panels;
    QStringList order; ///< Panels from the top.
    QString toolsId;
    bool toolsShown = false;
    bool toolsRunning = false;
    bool toolsCanEnd = false;
    bool toolsEnded = false;
    bool toolsCloseEnabled = true;
    bool keepPanels = false;
    bool keepTools = false;
    bool visible = false;
    QStringList events;

    void hideIfEmpty()
    {
        visible = visible && (toolsShown || !panels.isEmpty());
    }
    void removePanel(const QString& id)
    {
        panels.remove(id);
        if (order.removeOne(id) && order.isEmpty())
            toolsCloseEnabled = true;
        hideIfEmpty();
        events << QStringLiteral("evRemoteControlPopupClosed ") + id;
    }
    void end(const QString& id)
    {
        toolsCloseEnabled = toolsCloseEnabled || panels.contains(id);
        if (!keepPanels)
            removePanel(id);
        else if (panels.contains(id))
            panels[id] = Panel();
        hideIfEmpty();
        events << QStringLiteral("evRemoteControlSessionEnded ") + id;
    }
    void closeTools()
    {
        toolsShown = false;
        hideIfEmpty();
        events << QStringLiteral("evRemoteToolsPopupClosed ") + toolsId;
    }
    void endTools(const QString& id)
    {
        if (!keepTools)
            closeTools();
        toolsEnded = true;
        if (toolsRunning)
            events << QStringLiteral("evRemoteToolsSessionEnded ") + id;
        toolsRunning = false;
    }
    bool anythingRuns() const
    {
        return toolsRunning || std::any_of(panels.cbegin(), panels.cend(), [](const Panel& p) { return p.running; });
    }
};
} // namespace

Q_DECLARE_METATYPE(Reaction)

/// The session status window: panels, tools area, clock, place, and what it survives.
class SessionWindowTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void randomWalk_data();
    void randomWalk();
    void clocks_data();
    void clocks();
    void restartedClocks();
    void names_data();
    void names();
    void sessionTypes();
    void onlySessionsCloseIt();
    void anchoredInTheCorner_data();
    void anchoredInTheCorner();
    void draggedWindowGrowsWhereItIs();
    void reactsFromInside_data();
    void reactsFromInside();

private:
    static QVector<QWidget*> panels(Session* session);
    static QWidget* panel(Session* session, const QString& id);
    static QPoint corner(Session* session);
    static void act(Session* session, Model& model, int action, const QString& id, bool flag);
    QString differenceFrom(const Model& model, Session* session);
};

QVector<QWidget*> SessionWindowTest::panels(Session* session)
{
    QVector<QWidget*> result;
    const QLayout* layout = window(session).layout();
    for (int i = 0; i < layout->count(); ++i) {
        QWidget* widget = layout->itemAt(i)->widget();
        if (widget && widget->property("P_SID").isValid())
            result << widget;
    }
    return result;
}

QWidget* SessionWindowTest::panel(Session* session, const QString& id)
{
    for (QWidget* candidate : panels(session)) {
        if (candidate->property("P_SID").toString() == id)
            return candidate;
    }
    return nullptr;
}

QPoint SessionWindowTest::corner(Session* session)
{
    return window(session).geometry().bottomRight();
}

void SessionWindowTest::randomWalk_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 8; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void SessionWindowTest::randomWalk()
{
    QFETCH(uint, seed);
    QRandomGenerator random(seed);
    auto* session = get<Session>();
    Model model;
    QString history;
    for (int step = 0; step < 150; ++step) {
        const QString id = QStringList{QString(), a, b, QStringLiteral("c")}.at(random.bounded(4));
        const bool flag = random.bounded(2) == 1;
        const int action = random.bounded(9);
        history += QStringLiteral(" %1(%2,%3)").arg(action).arg(id).arg(flag);
        act(session, model, action, id, flag);
        // Sometimes several things happen in one turn of the event loop.
        if (step % 5 == 0)
            continue;
        settle();
        const QString difference = differenceFrom(model, session);
        QVERIFY2(difference.isEmpty(), qPrintable(difference + QStringLiteral(" after") + history));
        events.clear();
        model.events.clear();
    }
}

/// Does one thing to the window as a host or person, and the same to the model.
void SessionWindowTest::act(Session* session, Model& model, int action, const QString& id, bool flag)
{
    switch (action) {
    case 0:
        addControl(session, id, flag);
        if (!model.panels.contains(id))
            model.order.prepend(id);
        model.panels[id] = {true, flag};
        model.toolsCloseEnabled = false;
        model.visible = true;
        break;
    case 1:
        session->endRemoteControlSession(id);
        model.end(id);
        break;
    case 2:
        session->setKeepEndedSessionPanels(flag);
        model.keepPanels = flag;
        break;
    case 3:
        startTools(session, id, flag);
        model.toolsId = id;
        model.toolsShown = model.toolsRunning = model.visible = true;
        model.toolsCanEnd = flag;
        model.toolsEnded = false;
        break;
    case 4:
        session->endRemoteToolsSession(id);
        model.endTools(id);
        break;
    case 5:
        session->setKeepRemoteToolsPopup(flag);
        model.keepTools = flag;
        break;
    case 6:
        if (clickIfThere(panel(session, id), "btnEndRemoteControlSession"))
            model.end(id);
        else if (clickIfThere(panel(session, id), "btnCloseRemoteControlPopup"))
            model.removePanel(id);
        break;
    case 7:
        if (clickIfThere(&window(session), "btnEndRemoteToolsSession")) {
            model.toolsEnded = true;
            model.events << QStringLiteral("evEndRemoteToolsSession ") + model.toolsId;
        } else if (clickIfThere(&window(session), "btnCloseRemoteToolsPopup")) {
            model.closeTools();
        }
        break;
    case 8:
        child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").setChecked(flag);
        break;
    }
}

/// The first thing in which the window differs from the model, empty when there is none.
QString SessionWindowTest::differenceFrom(const Model& model, Session* session)
{
    QStringList received;
    for (const DialogEvent& event : qAsConst(events))
        received << dialogFamily(event.dialog).events.value(event.event) + QLatin1Char(' ') + event.sessionId;
    QStringList order;
    bool panelButtons = true;
    for (QWidget* strip : panels(session)) {
        order << strip->property("P_SID").toString();
        const auto shows = [&](const char* name) {
            return strip->findChild<QWidget*>(QLatin1String(name))->isVisible();
        };
        const bool end = model.visible && model.panels.value(order.last()).end;
        panelButtons = panelButtons && shows("btnEndRemoteControlSession") == end
            && shows("btnCloseRemoteControlPopup") == (model.visible && !end);
    }
    const auto isShown = [&](const char* name) { return !child(session, name).isHidden(); };
    const QPair<const char*, bool> facts[] = {
        {"events", received == model.events},
        {"panels", order == model.order && session->hasRemoteControlSessions() == !model.panels.isEmpty()},
        {"panel buttons", panelButtons},
        {"window", window(session).isVisible() == model.visible},
        {"tools area", isShown("fileTransportPanel") == model.toolsShown},
        {"tools shown", session->isRemoteToolsPopupShown() == model.toolsShown},
        {"tools id", session->remoteToolsSessionId() == model.toolsId},
        {"log", isShown("fileTransferInfo") == child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").isChecked()},
        {"end", !model.toolsShown || isShown("btnEndRemoteToolsSession") == (model.toolsCanEnd && !model.toolsEnded)},
        {"close", isShown("btnCloseRemoteToolsPopup") == model.toolsEnded},
        {"close enabled", child(session, "btnCloseRemoteToolsPopup").isEnabled() == model.toolsCloseEnabled},
        {"clock", window(session).findChild<QTimer*>()->isActive() == model.anythingRuns()},
        {"place", !model.visible || corner(session) == screenCorner()},
    };
    for (const auto& fact : facts) {
        if (!fact.second)
            return QLatin1String(fact.first);
    }
    return QString();
}

void SessionWindowTest::clocks_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<QString>("text");
    const QString untouched = QStringLiteral("00:00:00");
    QTest::newRow("minutes") << ago(727 * 1000) << QStringLiteral("00:12:0");
    QTest::newRow("just below a day") << ago(24 * hour - 60000) << QStringLiteral("23:59:0");
    QTest::newRow("a day") << ago(24 * hour) << QStringLiteral("1.00:00:0");
    QTest::newRow("27 hours") << ago(27 * hour + 245 * 1000) << QStringLiteral("1.03:04:0");
    QTest::newRow("1960") << qint64(-315619200000) << QStringLiteral(".");
    QTest::newRow("future") << ago(-hour) << untouched;
    QTest::newRow("highest") << std::numeric_limits<qint64>::max() << untouched;
    QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << QString();
}

void SessionWindowTest::clocks()
{
    QFETCH(qint64, start);
    QFETCH(QString, text);
    auto* session = get<Session>();
    session->addRemoteControlSession(a, jane, start, true);
    session->startRemoteToolsSession(b, 1, jane, start, true);
    settle();
    QCOMPARE(window(session).findChild<QTimer*>()->interval(), 1000);
    for (const char* name : {"timeElapsed", "timeElapsedFileTransfer"}) {
        const auto& clock = child<QLabel>(session, name);
        QVERIFY2(clock.text().contains(text), qPrintable(clock.text()));
        QVERIFY(clock.width() >= clock.sizeHint().width());
    }
    QCOMPARE(window(session).width(), 570);
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

void SessionWindowTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const QString mark(QChar::ReplacementCharacter);
    const QString full = QStringLiteral("Maximiliane von Hohenstein-Rabenau, Northwind Support");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("markup") << QStringLiteral("<b>J</b> &a %1") << QStringLiteral("<b>J</b> &a %1");
    QTest::newRow("control") << QString(QStringLiteral("J\nA") + QChar(0x202E))
                             << QString(QStringLiteral("J%1A%1").arg(mark));
    QTest::newRow("long") << full << full;
    QTest::newRow("very long") << full.repeated(200) << full.repeated(200);
}

void SessionWindowTest::names()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    const bool elided = name.size() > 40;
    auto* session = get<Session>();
    session->addRemoteControlSession(name, name, ago(hour), true);
    session->startRemoteToolsSession(name, 1, name, ago(hour), true);
    settle();
    for (const char* label : {"username", "usernameFileTransfer"}) {
        const auto& user = child<QLabel>(session, label);
        QCOMPARE(user.textFormat(), Qt::PlainText);
        QCOMPARE(user.toolTip(), elided ? shown : QString());
        QCOMPARE(user.text().endsWith(QChar(0x2026)), elided);
        QVERIFY(elided || user.text() == shown);
        QVERIFY(user.fontMetrics().horizontalAdvance(user.text()) <= user.width());
    }
    QCOMPARE(session->remoteToolsSessionId(), name);
    QCOMPARE(window(session).width(), 570);
    QVERIFY(child(session, "centralFrame").geometry().right() < child(session, "timeElapsed").geometry().left());
}

void SessionWindowTest::sessionTypes()
{
    auto* session = get<Session>();
    QCOMPARE(session->remoteToolsValue(), 0);
    for (int type : {1, 0, 2, -1, std::numeric_limits<int>::max()}) {
        session->startRemoteToolsSession(a, type, QString(), 0, true);
        QCOMPARE(child<QLabel>(session, "toolSessionTypeLabel").text(),
                 type == 1 ? QStringLiteral("File Transfer Session") : QStringLiteral("Remote Tool Session"));
        QCOMPARE(session->remoteToolsValue(), type);
    }
    QVector<int> numbers;
    for (const QString& id : {a, b}) {
        addControl(session, id);
        const QString title = panel(session, id)->findChild<QLabel*>(QStringLiteral("sessionTypeLabel"))->text();
        QVERIFY(title.startsWith(QLatin1String("Remote Control Session #")));
        numbers << title.section(QLatin1Char('#'), 1).toInt();
    }
    QCOMPARE(numbers.last(), numbers.first() + 1);
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
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_A})
        press(session, key);
    QTest::keyClick(&window(session), Qt::Key_Return);
    QVERIFY(!window(session).close());
    QVERIFY(window(session).isVisible());
    click(session, "closeButton");
    QVERIFY(!window(session).isVisible());
    QVERIFY(takeEvents().isEmpty());
    // The next session is seen, and the hidden one with it.
    addControl(session, b);
    settle();
    QVERIFY(panel(session, a)->isVisible() && panel(session, b)->isVisible());
}

void SessionWindowTest::anchoredInTheCorner_data()
{
    QTest::addColumn<float>("ratioBefore");
    QTest::addColumn<float>("ratioWhileShown");
    QTest::newRow("not scaled") << 1.0F << 1.0F;
    QTest::newRow("scaled") << 1.5F << 1.0F;
    QTest::newRow("scaled while shown") << 1.0F << 1.5F;
}

void SessionWindowTest::anchoredInTheCorner()
{
    QFETCH(float, ratioBefore);
    QFETCH(float, ratioWhileShown);
    const float ratio = ratioBefore * ratioWhileShown;
    auto* session = get<Session>();
    session->setRatio(ratioBefore);
    addControl(session, a);
    settle();
    session->setRatio(ratioWhileShown);
    const int oneHigh = window(session).height();
    addControl(session, b);
    startTools(session, a);
    child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").click();
    settle();
    QCOMPARE(window(session).width(), static_cast<int>(570 * ratio));
    QVERIFY(window(session).height() > oneHigh + 141 * ratio);
    for (QWidget* strip : panels(session))
        QCOMPARE(strip->size(), QSize(window(session).width(), static_cast<int>(70 * ratio) + 1));
    QCOMPARE(corner(session), screenCorner());

    window(session).move(10, 20);
    QVERIFY(QMetaObject::invokeMethod(&window(session), "onAvailableGeometryChanged", Q_ARG(QRect, QRect())));
    QCOMPARE(corner(session), screenCorner());
    session->hide();
    window(session).move(10, 20);
    session->show();
    QCOMPARE(corner(session), screenCorner());
}

void SessionWindowTest::draggedWindowGrowsWhereItIs()
{
    auto* session = get<Session>();
    addControl(session, a);
    settle();
    QWidget& header = child(session, "header");
    QTest::mousePress(&header, Qt::LeftButton, Qt::NoModifier, QPoint(200, 10));
    const QPoint target = header.mapToGlobal(QPoint(200, 10)) - QPoint(100, 150);
    QMouseEvent drag(QEvent::MouseMove, header.mapFromGlobal(target), target, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&header, &drag);
    QTest::mouseRelease(&header, Qt::LeftButton);
    const QPoint dragged = corner(session);
    QCOMPARE(dragged, screenCorner() - QPoint(100, 150));
    addControl(session, b);
    settle();
    QCOMPARE(corner(session), dragged);
    session->endRemoteControlSession(a);
    settle();
    QCOMPARE(corner(session), dragged);
    // Off every screen it would be lost.
    window(session).move(20000, 20000);
    addControl(session, a);
    settle();
    QCOMPARE(corner(session), screenCorner());
}

void SessionWindowTest::reactsFromInside_data()
{
    QTest::addColumn<Reaction>("reaction");
    QTest::addColumn<QByteArray>("cause");
    QTest::addColumn<bool>("visible");
    const auto rows = [](const char* name, Reaction reaction, bool visible) {
        for (const char* cause : {"btnEndRemoteControlSession", "btnCloseRemoteControlPopup",
                                  "btnEndRemoteToolsSession", "host ends tools", "host ends control"})
            QTest::newRow(qPrintable(QStringLiteral("%1 in %2").arg(QLatin1String(name), QLatin1String(cause))))
                << reaction << QByteArray(cause) << visible;
    };
    const Reaction endAll = [](Session* session) {
        session->endRemoteControlSession(a);
        session->endRemoteToolsSession(session->remoteToolsSessionId());
    };
    rows(
        "delete", [](Session* session) { delete session; }, false);
    rows(
        "hide", [](Session* session) { session->hide(); }, false);
    rows(
        "add", [](Session* session) { addControl(session, a); }, true);
    rows("end all", endAll, false);
    rows(
        "restart", [](Session* session) { startTools(session, b); }, true);
}

void SessionWindowTest::reactsFromInside()
{
    QFETCH(Reaction, reaction);
    QFETCH(QByteArray, cause);
    QFETCH(bool, visible);
    auto* session = get<Session>();
    const QPointer<QWidget> guard = &window(session);
    addControl(session, a, cause != "btnCloseRemoteControlPopup");
    startTools(session, b);
    settle();
    EventReceiver handler;
    int calls = 0;
    connect(&handler, &EventReceiver::received, this, [&] {
        if (++calls == 1)
            reaction(session);
    });
    const Family& family = dialogFamily(QStringLiteral("RemoteConnectionDialog"));
    QVERIFY(family.attach(gui(), &handler, family.receiverSlot.constData(), QString()));
    if (cause == "host ends tools")
        session->endRemoteToolsSession(session->remoteToolsSessionId());
    else if (cause == "host ends control")
        session->endRemoteControlSession(panel(session, a)->property("P_SID").toString());
    else
        click(session, cause.constData());
    settle();
    QVERIFY(calls > 0);
    QCOMPARE(guard && guard->isVisible(), visible);
    QCOMPARE(guard.isNull(), QByteArray(QTest::currentDataTag()).startsWith("delete"));
    events.clear();
}

GUI_TEST_MAIN(SessionWindowTest)
#include "tst_sessionwindow.moc"
