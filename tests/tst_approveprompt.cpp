#include "GuiTest.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QTranslator>

#include <limits>

namespace {
using Prompt = IApproveRemoteConnectionDialog;

const QString allowed(QStringLiteral("evAllow"));
const QString refused(QStringLiteral("evCancel"));
const QString timeout(QStringLiteral("evTimeout"));

/// Knows one key of the host's messages.
class HostTranslator final : public QTranslator {
public:
    bool isEmpty() const override
    {
        return false;
    }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool known = qstrcmp(context, "ControllerConsts") == 0 && qstrcmp(source, "askControl") == 0;
        return known ? QStringLiteral("May I?") : QString();
    }
};
} // namespace

/// The prompt that asks whether a remote person may come in.
class ApprovePromptTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void titles_data();
    void titles();
    void messages();
    void countdown();
    void timeoutIsReportedTwice();
    void hiddenPromptsWait();
    void onlyButtonsAnswer();
    void extremeCountdowns();
    void cascade();
    void deleteAll();
    void scaled();
    void deletedInItsHandler();

private:
    static QString buttonText(Prompt* prompt, const char* name);
    static QTimer& timer(Prompt* prompt);
};

QString ApprovePromptTest::buttonText(Prompt* prompt, const char* name)
{
    return child<QPushButton>(prompt, name).text();
}

QTimer& ApprovePromptTest::timer(Prompt* prompt)
{
    return *window(prompt).findChild<QTimer*>();
}

void ApprovePromptTest::titles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    const QString jane = QStringLiteral("Jane");
    QTest::newRow("control") << jane << 0 << QStringLiteral("Jane - Remote control");
    QTest::newRow("tools") << jane << 1 << QStringLiteral("Jane - Remote tools");
    QTest::newRow("control too") << jane << 2 << QStringLiteral("Jane - Remote control");
    QTest::newRow("access") << jane << 3 << QStringLiteral("Jane - Remote access");
    QTest::newRow("unknown") << jane << 7 << QStringLiteral("Jane - ");
    QTest::newRow("negative") << jane << std::numeric_limits<int>::min() << QStringLiteral("Jane - ");
    QTest::newRow("pretending") << QStringLiteral("J - Remote tools") << 3
                                << QStringLiteral("J - Remote tools - Remote access");
    QTest::newRow("markup") << QStringLiteral("<b>J</b> &amp; %1") << 1
                            << QStringLiteral("<b>J</b> &amp; %1 - Remote tools");
    QTest::newRow("control characters") << QString(QStringLiteral("J\r\nA") + QChar(0x202E) + QChar(0x2066)) << 1
                                        << QStringLiteral("J\uFFFD\uFFFDA\uFFFD\uFFFD - Remote tools");
    QTest::newRow("long") << QString(10000, QLatin1Char('m')) << 7
                          << QString(QString(10000, QLatin1Char('m')) + QStringLiteral(" - "));
    // Doubled, as a single one would be replaced by what stands for unsaved changes.
    QTest::newRow("changed mark") << QStringLiteral("J[*]") << 7 << QStringLiteral("J[*][*] - ");
}

void ApprovePromptTest::titles()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    auto* before = get<Prompt>(QStringLiteral("1"));
    before->setSessionType(type);
    before->setRequesterName(name);
    QTEST(window(before).windowTitle(), "title");
    QCOMPARE(before->getRequesterName(), name);
    auto* after = get<Prompt>(QStringLiteral("2"));
    after->setRequesterName(QStringLiteral("J"));
    QCOMPARE(window(after).windowTitle(), QStringLiteral("J - Remote control"));
    after->setRequesterName(name);
    after->setSessionType(type);
    QTEST(window(after).windowTitle(), "title");
    QCOMPARE(after->getSessionType(), type);
}

void ApprovePromptTest::messages()
{
    HostTranslator translator;
    QCoreApplication::installTranslator(&translator);
    auto* prompt = get<Prompt>();
    const auto check = [&](const QString& text, bool translate, const QString& kept, const QString& shown) {
        prompt->setMessage(text, translate);
        QCOMPARE(prompt->getMessage(), kept);
        QCOMPARE(child<QPlainTextEdit>(prompt, "messageTextEdit").toPlainText(), shown);
    };
    const QString markup = QStringLiteral("<a href=\"x\">y</a>\n\t%1 &amp;");
    const QString key = QStringLiteral("askControl");
    const QString reordered = QStringLiteral("pay\u202E?on");
    check(markup, false, markup, markup);
    check(key, false, key, key);
    check(key, true, QStringLiteral("May I?"), QStringLiteral("May I?"));
    check(markup, true, markup, markup);
    check(reordered, false, reordered, QStringLiteral("pay\uFFFD?on"));
    check(QString(), true, QString(), QString());
}

void ApprovePromptTest::countdown()
{
    for (int onCancel : {1, -5, 0}) {
        auto* prompt = get<Prompt>(QString::number(onCancel));
        const auto texts = [&] { return buttonText(prompt, "allowButton") + buttonText(prompt, "cancelButton"); };
        const QString expected = onCancel != 0 ? QStringLiteral("AllowCancel(%1)") : QStringLiteral("Allow(%1)Cancel");
        QCOMPARE(prompt->getCountdownOnCancel(), 1);
        prompt->setCountdownOnCancel(onCancel);
        prompt->setCountdown(30);
        QCOMPARE(texts(), QStringLiteral("AllowCancel"));
        prompt->show();
        prompt->setCountdown(8);
        QCOMPARE(texts(), expected.arg(30));
        QTRY_COMPARE(prompt->getCountdown(), 7);
        QCOMPARE(texts(), expected.arg(7));
        QVERIFY(takeEvents().isEmpty());
    }
}

void ApprovePromptTest::timeoutIsReportedTwice()
{
    auto* prompt = get<Prompt>();
    prompt->show();
    QCOMPARE(takeEvents(), QStringList{timeout});
    QTRY_COMPARE(prompt->getCountdown(), -1);
    QCOMPARE(takeEvents(), QStringList{timeout});
    QVERIFY(!timer(prompt).isActive());
    QVERIFY(window(prompt).isVisible());
    click(prompt, "allowButton");
    QCOMPARE(takeEvents(), QStringList{allowed});

    prompt->hide();
    prompt->setCountdown(1);
    prompt->show();
    QCOMPARE(buttonText(prompt, "cancelButton"), QStringLiteral("Cancel(1)"));
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(takeEvents(), QStringList{timeout});
    QVERIFY(!timer(prompt).isActive());
}

void ApprovePromptTest::hiddenPromptsWait()
{
    auto* prompt = get<Prompt>();
    QCOMPARE(timer(prompt).interval(), 1000);
    prompt->setCountdown(30);
    QVERIFY(!timer(prompt).isActive());
    prompt->show();
    QVERIFY(timer(prompt).isActive());
    prompt->hide();
    QVERIFY(!timer(prompt).isActive());
    QCOMPARE(prompt->getCountdown(), 30);
    QTimer::singleShot(0, &timer(prompt), [&] {
        QVERIFY(timer(prompt).isActive());
        prompt->done(5);
    });
    QCOMPARE(prompt->exec(), 5);
    QVERIFY(!timer(prompt).isActive());
}

void ApprovePromptTest::onlyButtonsAnswer()
{
    auto* prompt = get<Prompt>();
    prompt->setCountdown(30);
    showActive(prompt);
    QCOMPARE(window(prompt).windowFlags(),
             Qt::Dialog | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
    auto& allow = child<QPushButton>(prompt, "allowButton");
    auto& cancel = child<QPushButton>(prompt, "cancelButton");
    QVERIFY(cancel.hasFocus() && cancel.isDefault() && !allow.isDefault());
    press(prompt, Qt::Key_Escape);
    child(prompt, "messageTextEdit").setFocus();
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space})
        press(prompt, key);
    for (const char* slot : {"accept", "reject"})
        QVERIFY(QMetaObject::invokeMethod(&window(prompt), slot));
    QVERIFY(!window(prompt).close());
    QVERIFY(takeEvents().isEmpty());
    QVERIFY(timer(prompt).isActive());

    cancel.setFocus();
    press(prompt, Qt::Key_Return);
    press(prompt, Qt::Key_Space);
    allow.setFocus();
    press(prompt, Qt::Key_Space);
    QCOMPARE(takeEvents(), (QStringList{refused, refused, allowed}));
    QVERIFY(!timer(prompt).isActive());
    QVERIFY(window(prompt).isVisible());
}

void ApprovePromptTest::extremeCountdowns()
{
    using Limits = std::numeric_limits<qint64>;
    auto* prompt = get<Prompt>();
    for (qint64 seconds : {Limits::min(), qint64(-1), Limits::max()}) {
        prompt->setCountdown(seconds);
        prompt->show();
        QVERIFY(QMetaObject::invokeMethod(&window(prompt), "slCountdownTimerTick"));
        QCOMPARE(takeEvents().size(), seconds < 0 ? 2 : 0);
        QVERIFY(prompt->getCountdown() <= seconds);
        QCOMPARE(window(prompt).size(), QSize(500, 150));
    }
}

void ApprovePromptTest::cascade()
{
    // More than fit into one cascade on the screen.
    QVector<QRect> places;
    for (int i = 0; i < 40; ++i) {
        auto* prompt = get<Prompt>(QString::number(i));
        prompt->setCountdown(30);
        prompt->show();
        const QRect place = window(prompt).frameGeometry();
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(place));
        for (const QRect& other : qAsConst(places)) {
            // Enough of a title bar stays in sight to read a name and to grab it.
            const QPoint offset = place.topLeft() - other.topLeft();
            QVERIFY2(qMax(qAbs(offset.x()), qAbs(offset.y())) >= 20, qPrintable(QString::number(i)));
        }
        places.append(place);
    }
    auto* prompt = get<Prompt>(QStringLiteral("x"));
    gui().deleteApproveRemoteConnectionDialogInstance(QStringLiteral("3"));
    settle();
    prompt->show();
    QCOMPARE(window(prompt).frameGeometry(), places.at(3));
}

void ApprovePromptTest::deleteAll()
{
    QVERIFY(!gui().deleteAllApproveRemoteConnectionDialogInstances());
    auto* prompt = get<Prompt>(QStringLiteral("1"));
    QCOMPARE(prompt->getConnectionId(), QStringLiteral("1"));
    const QPointer<QWidget> one = &window(prompt);
    const QPointer<QWidget> empty = &window(get<Prompt>());
    const QPointer<QWidget> message = &window(get<IErrorMessageDialog>());
    QVERIFY(gui().deleteAllApproveRemoteConnectionDialogInstances());
    QVERIFY(!gui().deleteAllApproveRemoteConnectionDialogInstances());
    settle();
    QVERIFY(!one && !empty && message);
}

void ApprovePromptTest::scaled()
{
    for (float ratio : {0.8F, 1.5F}) {
        auto* prompt = get<Prompt>(QString::number(ratio));
        const QPoint centre = window(prompt).geometry().center();
        prompt->setRatio(ratio);
        QVERIFY((window(prompt).geometry().center() - centre).manhattanLength() <= 2);
        prompt->show();
        QCOMPARE(window(prompt).size(), QSize(static_cast<int>(500 * ratio), static_cast<int>(150 * ratio)));
        QCOMPARE(child(prompt, "buttonsBackground").geometry().bottom(), window(prompt).height() - 1);
        QCOMPARE(child(prompt, "allowButton").minimumWidth(), static_cast<int>(80 * ratio));
    }
}

void ApprovePromptTest::deletedInItsHandler()
{
    const Family& family = dialogFamily(QStringLiteral("ApproveRemoteConnectionDialog"));
    for (const char* button : {"allowButton", "cancelButton", "none, the time is over"}) {
        const QString id = QLatin1String(button);
        auto* prompt = get<Prompt>(id);
        EventReceiver handler;
        connect(&handler, &EventReceiver::received, this, [&] { delete prompt; });
        QVERIFY(family.attach(gui(), &handler, family.receiverSlot.constData(), id));
        const QPointer<QWidget> guard = &window(prompt);
        const bool clicks = window(prompt).findChild<QWidget*>(id);
        prompt->setCountdown(clicks ? 30 : 0);
        prompt->show();
        if (clicks)
            click(prompt, button);
        QVERIFY(!guard);
        events.clear();
        QVERIFY(!gui().deleteApproveRemoteConnectionDialogInstance(id));
    }
}

GUI_TEST_MAIN(ApprovePromptTest)
#include "tst_approveprompt.moc"
