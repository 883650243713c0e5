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

#include <functional>
#include <limits>

namespace {
using Session = IRemoteConnectionDialog;

constexpr qint64 hour = 3600 * 1000;

qint64 ago(qint64 msecs)
{
    return QDateTime::currentMSecsSinceEpoch() - msecs;
}

/// Runs what a test wants to happen inside the window's event handler.
class Reaction final : public QObject {
    Q_OBJECT

public:
    std::function<void(Session*)> react;

public Q_SLOTS:
    void onDialogEvent(IRemoteConnectionDialog* sender, IRemoteConnectionDialog::TEvent, const QString&)
    {
        if (react)
            react(sender);
    }
};

/// What the window should show, told in the fewest words.
struct Model {
    struct Panel {
        bool running = true;
        bool end = true;
    };

    QMap<QString, Panel> panels;
    QStringList order; ///< Panels from the top.
    QString toolsId;
    bool toolsShown = false;
    bool toolsRunning = false;
    bool toolsEnd = false;
    bool toolsClose = false;
    bool toolsCloseEnabled = true;
    bool logOpen = false;
    bool keepPanels = false;
    bool keepTools = false;
    bool visible = false;
    QStringList events;

    void emitEvent(const char* name, const QString& id)
    {
        events << QLatin1String(name) + QLatin1Char(' ') + id;
    }
    void hideIfEmpty()
    {
        visible = visible && (toolsShown || !panels.isEmpty());
    }
    void removePanel(const QString& id)
    {
        if (panels.remove(id) > 0) {
            order.removeOne(id);
            toolsCloseEnabled = toolsCloseEnabled || panels.isEmpty();
        }
        hideIfEmpty();
        emitEvent("evRemoteControlPopupClosed", id);
    }
    void closeTools()
    {
        toolsShown = false;
        hideIfEmpty();
        emitEvent("evRemoteToolsPopupClosed", toolsId);
    }

    void add(const QString& id, bool canEnd)
    {
        if (!panels.contains(id))
            order.prepend(id);
        panels[id] = {true, canEnd};
        toolsCloseEnabled = false;
        visible = true;
    }
    void end(const QString& id)
    {
        const bool known = panels.contains(id);
        if (!keepPanels)
            removePanel(id);
        toolsCloseEnabled = toolsCloseEnabled || known;
        if (panels.contains(id))
            panels[id] = {false, false};
        hideIfEmpty();
        emitEvent("evRemoteControlSessionEnded", id);
    }
    void startTools(const QString& id, bool canEnd)
    {
        toolsId = id;
        toolsShown = toolsRunning = visible = true;
        toolsEnd = canEnd;
        toolsClose = false;
    }
    void endTools(const QString& id)
    {
        if (!keepTools)
            closeTools();
        toolsEnd = false;
        toolsClose = true;
        if (toolsRunning)
            emitEvent("evRemoteToolsSessionEnded", id);
        toolsRunning = false;
    }
    void clickToolsEnd()
    {
        toolsEnd = false;
        toolsClose = true;
        emitEvent("evEndRemoteToolsSession", toolsId);
    }
    bool anythingRuns() const
    {
        return toolsRunning || std::any_of(panels.cbegin(), panels.cend(), [](const Panel& p) { return p.running; });
    }
};
} // namespace

/// The session status window: panels, tools area, clock, place, and what it survives.
class SessionWindowTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void form();
    void randomWalk_data();
    void randomWalk();
    void clocks_data();
    void clocks();
    void startTimes();
    void endedSessionsStopTheirClock();
    void names_data();
    void names();
    void sessionTypes();
    void showsWithoutTakingTheFocus();
    void anchoredInTheCorner();
    void draggedWindowGrowsWhereItIs();
    void lostWindowComesBack();
    void onlySessionsCloseIt();
    void reactsFromInside_data();
    void reactsFromInside();
    void scaled_data();
    void scaled();

private:
    static QVector<QWidget*> panels(Session* session);
    static QWidget* panel(Session* session, const QString& id);
    static QPushButton& button(QWidget* panel, const char* name);
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
    const QVector<QWidget*> all = panels(session);
    const auto found =
        std::find_if(all.begin(), all.end(), [&](QWidget* w) { return w->property("P_SID").toString() == id; });
    return found == all.end() ? nullptr : *found;
}

QPushButton& SessionWindowTest::button(QWidget* panel, const char* name)
{
    return *panel->findChild<QPushButton*>(QLatin1String(name));
}

void SessionWindowTest::form()
{
    auto* session = get<Session>();
    QCOMPARE(window(session).windowTitle(), QStringLiteral("Remote Control by Corvane"));
    QVERIFY(window(session).styleSheet().isEmpty());
    QVERIFY(window(session).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(window(session).windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!session->hasRemoteControlSessions());
    QVERIFY(!session->isRemoteToolsPopupShown());
    QCOMPARE(session->remoteToolsValue(), 0);
    QVERIFY(session->remoteToolsSessionId().isEmpty());
    const QMetaObject* meta = window(session).metaObject();
    const QStringList slotNames{
        QStringLiteral("slUpdateTime()"),
        QStringLiteral("on_closeButton_clicked()"),
        QStringLiteral("onFileTransferPanelExpand(bool)"),
        QStringLiteral("on_btnCloseRemoteToolsPopup_clicked()"),
        QStringLiteral("on_btnEndRemoteToolsSession_clicked()"),
        QStringLiteral("onAvailableGeometryChanged(QRect)"),
        QStringLiteral("onEndRemoteControlSession()"),
        QStringLiteral("onCloseRemoteControlPopup()"),
    };
    for (int i = 0; i < slotNames.size(); ++i)
        QCOMPARE(QString::fromLatin1(meta->method(meta->methodOffset() + 1 + i).methodSignature()), slotNames.at(i));
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 1 + slotNames.size());

    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), ago(hour), true);
    settle();
    QCOMPARE(panel(session, QStringLiteral("a"))->size(), QSize(570, 71));
    QCOMPARE(child(session, "fileTransferBackground").size(), QSize(570, 70));
    QCOMPARE(window(session).width(), 570);
    session->setLogExpanderEnabled(false);
    QVERIFY(!child(session, "fileTransferInfoPanelCheckBox").isEnabled());
    QVERIFY(child(session, "fileTransferInfo").isHidden());
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
    const QStringList ids{QString(), QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    const auto chance = [&] { return random.bounded(2) == 1; };
    const auto clickIfThere = [](QPushButton& target) {
        const bool possible = target.isVisible() && target.isEnabled();
        if (possible)
            QTest::mouseClick(&target, Qt::LeftButton);
        return possible;
    };

    QString history;
    for (int step = 0; step < 150; ++step) {
        const QString id = ids.at(random.bounded(ids.size()));
        const bool flag = chance();
        const int action = random.bounded(11);
        history += QStringLiteral(" %1(%2,%3)").arg(action).arg(id).arg(flag);
        switch (action) {
        case 0:
            session->addRemoteControlSession(id, id, ago(hour), flag);
            model.add(id, flag);
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
            session->startRemoteToolsSession(id, flag ? 1 : 2, id, ago(hour), flag);
            model.startTools(id, flag);
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
            if (QWidget* target = panel(session, id)) {
                if (clickIfThere(button(target, "btnEndRemoteControlSession")))
                    model.end(id);
            }
            break;
        case 7:
            if (QWidget* target = panel(session, id)) {
                if (clickIfThere(button(target, "btnCloseRemoteControlPopup")))
                    model.removePanel(id);
            }
            break;
        case 8:
            if (clickIfThere(child<QPushButton>(session, "btnEndRemoteToolsSession")))
                model.clickToolsEnd();
            break;
        case 9:
            if (clickIfThere(child<QPushButton>(session, "btnCloseRemoteToolsPopup")))
                model.closeTools();
            break;
        case 10:
            child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").setChecked(flag);
            model.logOpen = flag;
            break;
        }
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

/// The first thing in which the window differs from the model, empty when there is none.
QString SessionWindowTest::differenceFrom(const Model& model, Session* session)
{
    QStringList received;
    for (const DialogEvent& event : qAsConst(events)) {
        const QString name = dialogFamily(event.dialog).events.value(event.event);
        received << name + QLatin1Char(' ') + event.sessionId;
    }
    if (received != model.events)
        return received.join(QLatin1Char(',')) + QStringLiteral(" instead of ") + model.events.join(QLatin1Char(','));

    QStringList order;
    for (QWidget* strip : panels(session)) {
        const QString id = strip->property("P_SID").toString();
        const Model::Panel expected = model.panels.value(id);
        order << id;
        if (strip->isHidden() || button(strip, "btnEndRemoteControlSession").isHidden() == expected.end
            || button(strip, "btnCloseRemoteControlPopup").isHidden() != expected.end)
            return QStringLiteral("panel ") + id;
    }
    const auto isShown = [&](const char* name) { return !child(session, name).isHidden(); };
    const QPair<const char*, bool> facts[] = {
        {"panels", order == model.order && session->hasRemoteControlSessions() == !model.panels.isEmpty()},
        {"window", window(session).isVisible() == model.visible},
        {"tools area", isShown("fileTransportPanel") == model.toolsShown},
        {"tools shown", session->isRemoteToolsPopupShown() == model.toolsShown},
        {"tools id", session->remoteToolsSessionId() == model.toolsId},
        {"log", isShown("fileTransferInfo") == model.logOpen},
        {"end", model.toolsId.isNull() || isShown("btnEndRemoteToolsSession") == model.toolsEnd},
        {"close", isShown("btnCloseRemoteToolsPopup") == model.toolsClose},
        {"close enabled", child(session, "btnCloseRemoteToolsPopup").isEnabled() == model.toolsCloseEnabled},
        {"clock", window(session).findChild<QTimer*>()->isActive() == model.anythingRuns()},
    };
    for (const auto& fact : facts) {
        if (!fact.second)
            return QLatin1String(fact.first);
    }
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    if (model.visible && window(session).geometry().bottomRight() != area.bottomRight())
        return QStringLiteral("place");
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
    QTest::newRow("25 hours") << ago(25 * hour) << QStringLiteral("1.01:00:0");
    QTest::newRow("27 hours") << ago(27 * hour + 245 * 1000) << QStringLiteral("1.03:04:0");
    QTest::newRow("1960") << qint64(-315619200000) << QStringLiteral(".");
    QTest::newRow("future") << ago(-hour) << untouched;
    QTest::newRow("year 9999") << qint64(253402300799000) << untouched;
    QTest::newRow("highest") << std::numeric_limits<qint64>::max() << untouched;
    QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << QString();
}

void SessionWindowTest::clocks()
{
    QFETCH(qint64, start);
    QFETCH(QString, text);
    auto* session = get<Session>();
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), start, true);
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), start, true);
    settle();
    QTimer* timer = window(session).findChild<QTimer*>();
    QCOMPARE(timer->interval(), 1000);
    QVERIFY(timer->isActive());
    const auto& tools = child<QLabel>(session, "timeElapsedFileTransfer");
    const auto& control = child<QLabel>(session, "timeElapsed");
    QVERIFY2(control.text().contains(text), qPrintable(control.text()));
    QVERIFY2(tools.text().contains(text), qPrintable(tools.text()));
    const QRect button = child(session, "btnEndRemoteControlSession").geometry();
    QVERIFY(control.geometry().right() < button.left());
    QCOMPARE(window(session).width(), 570);
}

void SessionWindowTest::startTimes()
{
    const QString id = QStringLiteral("a");
    auto* session = get<Session>();
    const auto shown = [&](qint64 start) {
        session->addRemoteControlSession(id, QStringLiteral("Jane"), start, true);
        return child<QLabel>(session, "timeElapsed").text().left(5);
    };
    QCOMPARE(shown(ago(2 * hour + 1000)), QStringLiteral("02:00"));
    QCOMPARE(shown(ago(hour)), QStringLiteral("02:00"));
    QCOMPARE(shown(ago(3 * hour + 1000)), QStringLiteral("03:00"));
    QCOMPARE(panels(session).size(), 1);
    // A kept panel whose session begins again has no start to compare with.
    session->setKeepEndedSessionPanels(true);
    session->endRemoteControlSession(id);
    QCOMPARE(shown(ago(hour + 1000)), QStringLiteral("01:00"));
}

void SessionWindowTest::endedSessionsStopTheirClock()
{
    auto* session = get<Session>();
    QTimer* timer = window(session).findChild<QTimer*>();
    session->setKeepEndedSessionPanels(true);
    session->setKeepRemoteToolsPopup(true);
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), 0, true);
    session->endRemoteControlSession(QStringLiteral("a"));
    QVERIFY(timer->isActive());
    session->endRemoteToolsSession(QStringLiteral("t"));
    QVERIFY(!timer->isActive());
    QVERIFY(window(session).isVisible());
    const QString stopped = child<QLabel>(session, "timeElapsedFileTransfer").text();
    QVERIFY(QMetaObject::invokeMethod(&window(session), "slUpdateTime"));
    QCOMPARE(child<QLabel>(session, "timeElapsedFileTransfer").text(), stopped);

    // A new session does not begin with the clock of the one before.
    session->startRemoteToolsSession(QStringLiteral("u"), 1, QStringLiteral("Jane"), ago(-hour), true);
    QCOMPARE(child<QLabel>(session, "timeElapsedFileTransfer").text(), QStringLiteral("00:00:00"));
}

void SessionWindowTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("elided");
    const QString mark(QChar::ReplacementCharacter);
    QTest::newRow("empty") << QString() << QString() << false;
    QTest::newRow("markup") << QStringLiteral("<b>J</b> &a %1") << QStringLiteral("<b>J</b> &a %1") << false;
    QTest::newRow("lines") << QStringLiteral("J\nA\tB") << QString(QStringLiteral("J%1A%1B").arg(mark)) << false;
    QTest::newRow("reordered") << QString(QChar(0x202E) + QStringLiteral("J")) << QString(mark + QStringLiteral("J"))
                               << false;
    const QString full = QStringLiteral("Maximiliane von Hohenstein-Rabenau, Northwind Support");
    QTest::newRow("long") << full << full << true;
    QTest::newRow("very long") << QString(10000, QLatin1Char('J')) << QString(10000, QLatin1Char('J')) << true;
}

void SessionWindowTest::names()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    QFETCH(bool, elided);
    auto* session = get<Session>();
    session->addRemoteControlSession(name, name, ago(hour), true);
    session->startRemoteToolsSession(name, 1, name, ago(hour), true);
    settle();
    for (const char* label : {"username", "usernameFileTransfer"}) {
        const auto& user = child<QLabel>(session, label);
        QCOMPARE(user.textFormat(), Qt::PlainText);
        QCOMPARE(user.toolTip(), elided ? shown : QString());
        QCOMPARE(user.text().endsWith(QChar(0x2026)), elided);
        if (!elided)
            QCOMPARE(user.text(), shown);
        QVERIFY(user.fontMetrics().horizontalAdvance(user.text()) <= user.width());
    }
    QCOMPARE(session->remoteToolsSessionId(), name);
    QCOMPARE(window(session).width(), 570);
    // Title, name, clock and button stand beside each other.
    const QWidget& strip = child(session, "takeoverPanelBackground");
    QVERIFY(child(session, "centralFrame").geometry().right() < child(session, "timeElapsed").geometry().left());
    QVERIFY(child(session, "frame").geometry().right() < strip.width());
}

void SessionWindowTest::sessionTypes()
{
    auto* session = get<Session>();
    const auto& label = child<QLabel>(session, "toolSessionTypeLabel");
    for (int type : {1, 0, 2, -1, std::numeric_limits<int>::max()}) {
        session->startRemoteToolsSession(QStringLiteral("t"), type, QString(), 0, true);
        QCOMPARE(label.text(),
                 type == 1 ? QStringLiteral("File Transfer Session") : QStringLiteral("Remote Tool Session"));
        QCOMPARE(session->remoteToolsValue(), type);
    }
    QStringList titles;
    for (int i = 0; i < 2; ++i) {
        session->addRemoteControlSession(QString::number(i), QString(), 0, true);
        titles << panel(session, QString::number(i))->findChild<QLabel*>(QStringLiteral("sessionTypeLabel"))->text();
    }
    QVERIFY(titles.at(0).startsWith(QLatin1String("Remote Control Session #")));
    const int first = titles.at(0).section(QLatin1Char('#'), 1).toInt();
    QCOMPARE(titles.at(1).section(QLatin1Char('#'), 1).toInt(), first + 1);
}

void SessionWindowTest::showsWithoutTakingTheFocus()
{
    auto* session = get<Session>();
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    QVERIFY(QTest::qWaitForWindowExposed(&window(session)));
    // The platform that the tests run on activates every window; those that people use ask this property.
    QVERIFY(window(session).windowHandle()->property("_q_showWithoutActivating").toBool());
}

void SessionWindowTest::anchoredInTheCorner()
{
    auto* session = get<Session>();
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    const int oneHigh = window(session).height();
    session->addRemoteControlSession(QStringLiteral("b"), QStringLiteral("Jane"), ago(hour), true);
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), ago(hour), true);
    child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").click();
    settle();
    QVERIFY(window(session).height() > oneHigh + 71 + 70);
    QCOMPARE(window(session).geometry().bottomRight(), area.bottomRight());

    // The work area's change puts a window back that the person dragged elsewhere.
    window(session).move(10, 20);
    QVERIFY(QMetaObject::invokeMethod(&window(session), "onAvailableGeometryChanged", Q_ARG(QRect, area)));
    QCOMPARE(window(session).geometry().bottomRight(), area.bottomRight());
    session->hide();
    window(session).move(10, 20);
    session->show();
    QCOMPARE(window(session).geometry().bottomRight(), area.bottomRight());
}

void SessionWindowTest::draggedWindowGrowsWhereItIs()
{
    auto* session = get<Session>();
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    QWidget& header = child(session, "header");
    QTest::mousePress(&header, Qt::LeftButton, Qt::NoModifier, QPoint(200, 10));
    const QPoint target = header.mapToGlobal(QPoint(200, 10)) - QPoint(100, 150);
    QMouseEvent drag(QEvent::MouseMove, header.mapFromGlobal(target), target, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&header, &drag);
    QTest::mouseRelease(&header, Qt::LeftButton);
    const QPoint corner = window(session).geometry().bottomRight();
    QVERIFY(corner != QGuiApplication::primaryScreen()->availableGeometry().bottomRight());
    session->addRemoteControlSession(QStringLiteral("b"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    QCOMPARE(window(session).geometry().bottomRight(), corner);
    session->endRemoteControlSession(QStringLiteral("a"));
    settle();
    QCOMPARE(window(session).geometry().bottomRight(), corner);
}

void SessionWindowTest::lostWindowComesBack()
{
    auto* session = get<Session>();
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    window(session).move(20000, 20000);
    session->addRemoteControlSession(QStringLiteral("b"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    QCOMPARE(window(session).geometry().bottomRight(),
             QGuiApplication::primaryScreen()->availableGeometry().bottomRight());
}

void SessionWindowTest::onlySessionsCloseIt()
{
    auto* session = get<Session>();
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    window(session).activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window(session)));
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_A})
        press(session, key);
    QTest::keyClick(&window(session), Qt::Key_Return);
    QVERIFY(!window(session).close());
    QVERIFY(window(session).isVisible());
    QVERIFY(takeEvents().isEmpty());
    click(session, "closeButton");
    QVERIFY(!window(session).isVisible());
    QVERIFY(takeEvents().isEmpty());
    // The next session is seen, and the hidden one with it.
    session->addRemoteControlSession(QStringLiteral("b"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    QVERIFY(window(session).isVisible());
    QVERIFY(panel(session, QStringLiteral("a"))->isVisible());
}

void SessionWindowTest::reactsFromInside_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("reaction");
    for (const char* reaction : {"delete", "hide", "add", "end all", "restart"}) {
        for (const char* button : {"btnEndRemoteControlSession", "btnCloseRemoteControlPopup",
                                   "btnEndRemoteToolsSession", "host ends tools", "host ends control"})
            QTest::newRow(qPrintable(QLatin1String(reaction) + QLatin1String(" in ") + QLatin1String(button)))
                << QByteArray(button) << QByteArray(reaction);
    }
}

void SessionWindowTest::reactsFromInside()
{
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, reaction);
    auto* session = get<Session>();
    const QPointer<QWidget> guard = &window(session);
    const QString a = QStringLiteral("a");
    session->addRemoteControlSession(a, QStringLiteral("Jane"), ago(hour), button != "btnCloseRemoteControlPopup");
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), ago(hour), true);
    settle();

    Reaction handler;
    int calls = 0;
    handler.react = [&](Session* sender) {
        if (++calls > 1)
            return;
        if (reaction == "delete") {
            delete sender;
        } else if (reaction == "hide") {
            sender->hide();
        } else if (reaction == "add") {
            sender->addRemoteControlSession(a, QStringLiteral("John"), ago(hour), true);
        } else if (reaction == "end all") {
            sender->endRemoteControlSession(a);
            sender->endRemoteToolsSession(sender->remoteToolsSessionId());
        } else {
            sender->startRemoteToolsSession(QStringLiteral("u"), 0, QStringLiteral("John"), ago(hour), true);
        }
    };
    QVERIFY(gui().attachRemoteConnectionDialogEventHandler(
        &handler, SLOT(onDialogEvent(IRemoteConnectionDialog*, IRemoteConnectionDialog::TEvent, const QString&))));
    if (button == "host ends tools")
        session->endRemoteToolsSession(session->remoteToolsSessionId());
    else if (button == "host ends control")
        session->endRemoteControlSession(panel(session, a)->property("P_SID").toString());
    else
        QTest::mouseClick(&child(session, button.constData()), Qt::LeftButton);
    settle();
    QVERIFY(calls > 0);
    QCOMPARE(guard.isNull(), reaction == "delete");
    if (guard && reaction == "add") {
        QVERIFY(guard->isVisible());
        QCOMPARE(session->hasRemoteControlSessions(), button != "host ends control" || calls > 0);
    }
    if (guard && reaction == "restart") {
        QVERIFY(session->isRemoteToolsPopupShown());
        QVERIFY(guard->isVisible());
    }
    events.clear();
}

void SessionWindowTest::scaled_data()
{
    QTest::addColumn<float>("ratio");
    QTest::addColumn<bool>("whileShown");
    QTest::newRow("half again") << 1.5F << false;
    QTest::newRow("double") << 2.0F << false;
    QTest::newRow("while shown") << 1.5F << true;
}

void SessionWindowTest::scaled()
{
    QFETCH(float, ratio);
    QFETCH(bool, whileShown);
    auto* session = get<Session>();
    if (!whileShown)
        session->setRatio(ratio);
    session->addRemoteControlSession(QStringLiteral("a"), QStringLiteral("Jane"), ago(hour), true);
    settle();
    if (whileShown)
        session->setRatio(ratio);
    session->addRemoteControlSession(QStringLiteral("b"), QStringLiteral("Jane"), ago(hour), true);
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), ago(hour), true);
    settle();
    const int width = static_cast<int>(570 * ratio);
    QCOMPARE(window(session).width(), width);
    for (QWidget* strip : panels(session))
        QCOMPARE(strip->size(), QSize(width, static_cast<int>(70 * ratio) + static_cast<int>(1 * ratio)));
    QCOMPARE(child(session, "fileTransferBackground").size(), QSize(width, static_cast<int>(70 * ratio)));
    QCOMPARE(window(session).geometry().bottomRight(),
             QGuiApplication::primaryScreen()->availableGeometry().bottomRight());
}

GUI_TEST_MAIN(SessionWindowTest)
#include "tst_sessionwindow.moc"
