#include "GuiTest.h"

namespace {
using Session = IRemoteConnectionDialog;

constexpr qint64 hour = 3600 * 1000;
const QString a(QStringLiteral("a"));
const QString b(QStringLiteral("b"));
const QString jane(QStringLiteral("Maximiliane von Hohenstein-Rabenau, Northwind Support"));
const QString endText(QStringLiteral("End session"));
const QString closeText(QStringLiteral("Close"));

qint64 ago(qint64 msecs)
{
    return QDateTime::currentMSecsSinceEpoch() - msecs;
}

QPoint screenCorner()
{
    return QGuiApplication::primaryScreen()->availableGeometry().bottomRight();
}

/// A clock that shows how many hours a session has run; a start to come leaves it as it was.
struct Clock {
    int hours = 0;
    bool running = false;
    QString text = QStringLiteral("00:");

    void start(int newHours)
    {
        running = true;
        hours = newHours;
        if (hours > 0)
            text = QString::fromLatin1(hours < 24 ? "%1:" : "1.%1:").arg(hours % 24, 2, 10, QLatin1Char('0'));
    }
};

struct Panel {
    QString button;
    Clock clock;
};

/// The buttons that a part of the window shows when it is shown itself.
QList<QPushButton*> shownButtons(const QWidget* part)
{
    QList<QPushButton*> shown;
    for (auto* button : part->findChildren<QPushButton*>()) {
        if (button->isVisibleTo(part))
            shown << button;
    }
    return shown;
}

/// The texts of the buttons that a part of the window shows, those that are disabled in brackets.
QString shownTexts(const QWidget* part)
{
    QString texts;
    for (const QPushButton* button : shownButtons(part))
        texts += button->isEnabled() ? button->text() : QStringLiteral("(%1)").arg(button->text());
    return texts;
}

/// Clicks what a panel or the tools area lets a person click.
void clickIn(const QWidget* part)
{
    if (part && part->isVisible() && !shownButtons(part).isEmpty())
        QTest::mouseClick(shownButtons(part).first(), Qt::LeftButton);
}
} // namespace

/// The session status window: panels, tools area, clock, place, and what it survives.
class SessionWindowTest : public GuiTest {
    Q_OBJECT

    static QMap<QString, QWidget*> stripsOf(Session* session)
    {
        QMap<QString, QWidget*> result;
        for (QWidget* widget : window(session).findChildren<QWidget*>()) {
            const QVariant id = widget->property("P_SID");
            if (id.isValid())
                result.insert(id.toString(), widget);
        }
        return result;
    }
    static QPoint corner(Session* session)
    {
        return window(session).geometry().bottomRight();
    }

private Q_SLOTS:
    /// What a host and a person do in any order, and beside each action what the window should show and tell then.
    void randomWalk()
    {
        QRandomGenerator random(1);
        auto* session = get<Session>();
        QMap<QString, Panel> panels;
        Clock toolsClock;
        QString toolsId;
        QString toolsButton;
        int toolsType = 0;
        bool toolsShown = false;
        bool toolsCloseEnabled = true;
        bool keepPanels = false;
        bool keepTools = false;
        bool hidden = false; // By the person, until the next session starts.
        QStringList expected;
        QString id;
        const auto isShown = [&] { return !hidden && (toolsShown || !panels.isEmpty()); };
        const auto remove = [&] {
            if (panels.remove(id) && panels.isEmpty())
                toolsCloseEnabled = true;
            expected << QStringLiteral("evRemoteControlPopupClosed ") + id;
        };
        const auto end = [&] {
            toolsCloseEnabled = toolsCloseEnabled || panels.contains(id);
            if (!keepPanels)
                remove();
            else if (panels.contains(id))
                panels[id] = {closeText, {0, false, panels[id].clock.text}};
            expected << QStringLiteral("evRemoteControlSessionEnded ") + id;
        };
        const auto closeTools = [&] {
            toolsShown = false;
            expected << QStringLiteral("evRemoteToolsPopupClosed ") + toolsId;
        };
        const QStringList actions =
            QStringLiteral("add,end,click panel,keep panels,start tools,end tools,click tools,keep tools,hide")
                .split(QLatin1Char(','));
        QString history;
        for (int step = 0; step < 1500; ++step) {
            id = QStringList{QString(), a, b, QStringLiteral("c")}.at(random.bounded(4));
            const bool flag = random.bounded(2) == 1;
            const int hours = QVector<int>{-1, 1, 3, 27}.at(random.bounded(4));
            const QString action = actions.at(random.bounded(actions.size()));
            history += QStringLiteral("%1(%2,%3,%4) ").arg(action, id).arg(flag).arg(hours);
            if (action == QLatin1String("add")) {
                session->addRemoteControlSession(id, jane, ago(hours * hour), flag);
                Clock clock = panels.value(id).clock;
                clock.start(clock.running ? qMax(hours, clock.hours) : hours);
                panels[id] = {flag ? endText : closeText, clock};
                toolsCloseEnabled = hidden = false;
            } else if (action == QLatin1String("end")) {
                session->endRemoteControlSession(id);
                end();
            } else if (action == QLatin1String("click panel")) {
                settle();
                clickIn(stripsOf(session).value(id));
                if (isShown() && panels.contains(id))
                    panels[id].button == endText ? end() : remove();
            } else if (action == QLatin1String("keep panels")) {
                session->setKeepEndedSessionPanels(keepPanels = flag);
            } else if (action == QLatin1String("start tools")) {
                session->startRemoteToolsSession(id, toolsType = hours, jane, ago(hours * hour), flag);
                toolsId = id;
                toolsButton = flag ? endText : QString();
                toolsShown = true;
                hidden = false;
                if (!toolsClock.running)
                    toolsClock = Clock();
                toolsClock.start(hours);
            } else if (action == QLatin1String("end tools")) {
                session->endRemoteToolsSession(id);
                if (!keepTools)
                    closeTools();
                toolsButton = closeText;
                if (std::exchange(toolsClock.running, false))
                    expected << QStringLiteral("evRemoteToolsSessionEnded ") + id;
            } else if (action == QLatin1String("click tools")) {
                settle();
                clickIn(&child(session, "fileTransportPanel"));
                if (isShown() && toolsShown && !toolsButton.isEmpty()) {
                    if (toolsButton == endText)
                        expected << QStringLiteral("evEndRemoteToolsSession ") + toolsId;
                    else if (toolsCloseEnabled)
                        closeTools();
                    toolsButton = closeText;
                }
            } else if (action == QLatin1String("keep tools")) {
                session->setKeepRemoteToolsPopup(keepTools = flag);
            } else {
                child<QPushButton>(session, "closeButton").click();
                hidden = true;
            }
            // Sometimes several things happen in one turn of the event loop.
            if (step % 5 == 0)
                continue;
            settle();
            QString found;
            QString wanted;
            const auto compare = [&](const QVariant& actual, const QVariant& model) {
                found += actual.toString() + QLatin1Char(',');
                wanted += model.toString() + QLatin1Char(',');
            };
            for (const QWidget* strip : stripsOf(session)) {
                const QString stripId = strip->property("P_SID").toString();
                const Panel panel = panels.value(stripId);
                const QString clock = strip->findChild<QLabel*>(QStringLiteral("timeElapsed"))->text();
                compare(stripId + shownTexts(strip), stripId + panel.button);
                compare(clock.left(panel.clock.text.size()), panel.clock.text);
            }
            compare(stripsOf(session).size(), panels.size());
            compare(session->hasRemoteControlSessions(), !panels.isEmpty());
            const QWidget& tools = child(session, "fileTransportPanel");
            compare(!tools.isHidden(), toolsShown);
            if (toolsShown) {
                const auto& type = child<QLabel>(session, "toolSessionTypeLabel");
                compare(type.text(), QLatin1String(toolsType == 1 ? "File Transfer Session" : "Remote Tool Session"));
                const bool isDisabled = toolsButton == closeText && !toolsCloseEnabled;
                compare(shownTexts(&tools), isDisabled ? QStringLiteral("(%1)").arg(toolsButton) : toolsButton);
            }
            compare(child<QLabel>(session, "timeElapsedFileTransfer").text().left(toolsClock.text.size()),
                    toolsClock.text);
            compare(session->remoteToolsValue(), toolsType);
            compare(session->isRemoteToolsPopupShown(), toolsShown);
            compare(session->remoteToolsSessionId(), toolsId);
            compare(window(session).findChild<QTimer*>()->isActive(),
                    std::any_of(panels.cbegin(), panels.cend(), [](const Panel& one) { return one.clock.running; })
                        || toolsClock.running);
            compare(window(session).isVisible(), isShown());
            compare(!isShown() || corner(session) == screenCorner(), true);
            compare(QApplication::topLevelWidgets().size(), 1);
            for (const DialogEvent& event : qAsConst(events))
                compare(dialogFamily(event.dialog).events.value(event.event) + QLatin1Char(' ') + event.sessionId,
                        expected.isEmpty() ? QString() : expected.takeFirst());
            QVERIFY2(found == wanted && expected.isEmpty(),
                     qPrintable(found + QLatin1Char('\n') + wanted + QLatin1Char('\n') + history.right(500)));
            events.clear();
        }
    }

    void clocks()
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

    void focusIsForOneAnswer()
    {
        auto* session = get<Session>();
        QWidget& top = window(session);
        session->addRemoteControlSession(a, jane, 0, true);
        session->addRemoteControlSession(b, jane, 0, false);
        session->startRemoteToolsSession(a, 1, jane, 0, true);
        settle();
        // The platform that the tests run on activates every window; those that people use ask this property.
        QVERIFY(top.windowHandle()->property("_q_showWithoutActivating").toBool());
        QCOMPARE(top.focusWidget(), &top);
        session->setKeepEndedSessionPanels(true);
        session->setKeepRemoteToolsPopup(true);
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

    void keepsItsCorner_data()
    {
        QTest::addColumn<float>("ratio");
        QTest::newRow("usual") << 1.0F;
        QTest::newRow("larger") << 1.5F;
    }
    void keepsItsCorner()
    {
        QFETCH(float, ratio);
        auto* session = get<Session>();
        QWidget& top = window(session);
        session->addRemoteControlSession(a, jane, 0, true);
        settle();
        session->setRatio(ratio);
        settle();
        QSignalSpy layouts(top.windowHandle(), &QWindow::heightChanged);
        session->addRemoteControlSession(b, jane, 0, true);
        session->startRemoteToolsSession(a, 1, jane, 0, true);
        settle();
        QCOMPARE(layouts.size(), 1);
        QCOMPARE(corner(session), screenCorner());
        QCOMPARE(top.width(), static_cast<int>(570 * ratio));
        for (const QWidget* strip : stripsOf(session))
            QCOMPARE(strip->size(), QSize(top.width(), static_cast<int>(70 * ratio) + 1));
        for (const auto* user : top.findChildren<QLabel*>(QRegularExpression(QStringLiteral("^username")))) {
            const QString shown = user->fontMetrics().elidedText(jane, Qt::ElideRight, user->maximumWidth());
            QTRY_VERIFY(!user->isVisible() || user->width() >= user->sizeHint().width());
            QVERIFY(!user->isVisible() || (user->toolTip() == jane && user->text() == shown));
        }
        // Each button says whose session it ends.
        for (const char* button : {"btnEndRemoteControlSession", "btnEndRemoteToolsSession"})
            QVERIFY(child(session, button).accessibleName().contains(jane));

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
        for (const bool minimized : {false, true}) {
            top.move(20000, 20000);
            if (minimized)
                top.showMinimized();
            session->addRemoteControlSession(QString::number(int(minimized)), jane, 0, true);
            settle();
            QVERIFY(!top.isMinimized());
            QCOMPARE(corner(session), screenCorner());
        }
    }

    void everyEventAnsweredByEnding()
    {
        auto* session = get<Session>();
        session->addRemoteControlSession(a, jane, 0, true);
        session->startRemoteToolsSession(b, 1, jane, 0, true);
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
};

GUI_TEST_MAIN(SessionWindowTest)
#include "tst_sessionwindow.moc"
