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

/// Deletes a prompt from inside its event handler.
class Deleter final : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void onDialogEvent(IApproveRemoteConnectionDialog* sender, IApproveRemoteConnectionDialog::TEvent)
    {
        delete sender;
    }
};

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
    void namesCannotPretend_data();
    void namesCannotPretend();
    void messages_data();
    void messages();
    void countdown_data();
    void countdown();
    void timeoutIsReportedTwice();
    void hiddenPromptsWait();
    void onlyButtonsAnswer();
    void extremeCountdowns_data();
    void extremeCountdowns();
    void opaqueWindow();
    void cascade();
    void sameIdTwice();
    void deleteAll();
    void scaled_data();
    void scaled();
    void deletedInItsHandler_data();
    void deletedInItsHandler();
};

void ApprovePromptTest::titles_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::newRow("control") << 0 << QStringLiteral("Jane - Remote control");
    QTest::newRow("tools") << 1 << QStringLiteral("Jane - Remote tools");
    QTest::newRow("control too") << 2 << QStringLiteral("Jane - Remote control");
    QTest::newRow("access") << 3 << QStringLiteral("Jane - Remote access");
    QTest::newRow("unknown") << 7 << QStringLiteral("Jane - ");
    QTest::newRow("negative") << std::numeric_limits<int>::min() << QStringLiteral("Jane - ");
}

void ApprovePromptTest::titles()
{
    QFETCH(int, type);
    QFETCH(QString, title);
    auto* before = get<Prompt>(QStringLiteral("1"));
    QCOMPARE(window(before).windowTitle(), QStringLiteral("Remote control"));
    before->setSessionType(type);
    before->setRequesterName(QStringLiteral("Jane"));
    QCOMPARE(window(before).windowTitle(), title);

    auto* after = get<Prompt>(QStringLiteral("2"));
    after->setRequesterName(QStringLiteral("Jane - Remote tools"));
    QCOMPARE(window(after).windowTitle(), QStringLiteral("Jane - Remote tools - Remote control"));
    after->setRequesterName(QStringLiteral("Jane"));
    after->setSessionType(type);
    QCOMPARE(window(after).windowTitle(), title);
    QCOMPARE(after->getSessionType(), type);
}

void ApprovePromptTest::namesCannotPretend_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const QString mark(QChar::ReplacementCharacter);
    QTest::newRow("markup") << QStringLiteral("<b>Jane</b> &amp; %1") << QStringLiteral("<b>Jane</b> &amp; %1");
    QTest::newRow("line break") << QStringLiteral("Jane\r\nAdmin")
                                << QString(QLatin1String("Jane") + mark + mark + QLatin1String("Admin"));
    QTest::newRow("reordered") << QString(QChar(0x202E) + QStringLiteral("nimda"))
                               << QString(mark + QLatin1String("nimda"));
    QTest::newRow("isolated") << QString(QStringLiteral("a") + QChar(0x2066)) << QString(QLatin1String("a") + mark);
    QTest::newRow("long") << QString(10000, QLatin1Char('m')) << QString(10000, QLatin1Char('m'));
    // Doubled, as a single one would be replaced by what stands for unsaved changes.
    QTest::newRow("changed mark") << QStringLiteral("Jane[*]") << QStringLiteral("Jane[*][*]");
}

void ApprovePromptTest::namesCannotPretend()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    auto* prompt = get<Prompt>();
    prompt->setSessionType(1);
    prompt->setRequesterName(name);
    QCOMPARE(window(prompt).windowTitle(), QString(shown + QStringLiteral(" - Remote tools")));
    QCOMPARE(prompt->getRequesterName(), name);
    QCOMPARE(window(prompt).toolTip(), QString());
}

void ApprovePromptTest::messages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("translate");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("shown");
    const QString markup = QStringLiteral("<a href=\"x\">y</a>\n\t%1 &amp;");
    const QString reordered = QStringLiteral("pay") + QChar(0x202E) + QStringLiteral("?on");
    QTest::newRow("literal") << markup << false << markup << markup;
    QTest::newRow("key as text") << QStringLiteral("askControl") << false << QStringLiteral("askControl")
                                 << QStringLiteral("askControl");
    QTest::newRow("key") << QStringLiteral("askControl") << true << QStringLiteral("May I?")
                         << QStringLiteral("May I?");
    QTest::newRow("unknown key") << QStringLiteral("noSuchKey") << true << QStringLiteral("noSuchKey")
                                 << QStringLiteral("noSuchKey");
    QTest::newRow("reordered") << reordered << false << reordered
                               << QString(reordered).replace(QChar(0x202E), QChar(0xFFFD));
    QTest::newRow("nothing") << QString() << true << QString() << QString();
}

void ApprovePromptTest::messages()
{
    QFETCH(QString, text);
    QFETCH(bool, translate);
    HostTranslator translator;
    QCoreApplication::installTranslator(&translator);
    auto* prompt = get<Prompt>();
    prompt->setMessage(text, translate);
    QTEST(prompt->getMessage(), "kept");
    QTEST(child<QPlainTextEdit>(prompt, "messageTextEdit").toPlainText(), "shown");
}

void ApprovePromptTest::countdown_data()
{
    QTest::addColumn<int>("onCancel");
    QTest::addColumn<QString>("allow");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("on cancel") << 1 << QStringLiteral("Allow") << QStringLiteral("Cancel(30)");
    QTest::newRow("any nonzero") << -5 << QStringLiteral("Allow") << QStringLiteral("Cancel(30)");
    QTest::newRow("on allow") << 0 << QStringLiteral("Allow(30)") << QStringLiteral("Cancel");
}

void ApprovePromptTest::countdown()
{
    QFETCH(int, onCancel);
    auto* prompt = get<Prompt>();
    QCOMPARE(prompt->getCountdownOnCancel(), 1);
    prompt->setCountdownOnCancel(onCancel);
    prompt->setCountdown(30);
    const auto& allow = child<QPushButton>(prompt, "allowButton");
    const auto& cancel = child<QPushButton>(prompt, "cancelButton");
    QCOMPARE(cancel.text(), QStringLiteral("Cancel"));
    prompt->show();
    QTEST(allow.text(), "allow");
    QTEST(cancel.text(), "cancel");
    prompt->setCountdown(8);
    QTEST(cancel.text(), "cancel");
    const QPushButton& counting = onCancel != 0 ? cancel : allow;
    QTRY_VERIFY(counting.text().endsWith(QLatin1String("(7)")));
    QCOMPARE(prompt->getCountdown(), 7);
    QVERIFY(takeEvents().isEmpty());
}

void ApprovePromptTest::timeoutIsReportedTwice()
{
    const QString timeout = QStringLiteral("evTimeout");
    auto* prompt = get<Prompt>();
    prompt->show();
    QCOMPARE(takeEvents(), QStringList{timeout});
    QCOMPARE(child<QPushButton>(prompt, "cancelButton").text(), QStringLiteral("Cancel"));
    QTRY_COMPARE(prompt->getCountdown(), -1);
    QCOMPARE(takeEvents(), QStringList{timeout});
    QVERIFY(!window(prompt).findChild<QTimer*>()->isActive());
    QVERIFY(window(prompt).isVisible());
    click(prompt, "allowButton");
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evAllow")});

    prompt->hide();
    prompt->setCountdown(1);
    prompt->show();
    QCOMPARE(child<QPushButton>(prompt, "cancelButton").text(), QStringLiteral("Cancel(1)"));
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(takeEvents(), QStringList{timeout});
    QVERIFY(!window(prompt).findChild<QTimer*>()->isActive());
}

void ApprovePromptTest::hiddenPromptsWait()
{
    auto* prompt = get<Prompt>();
    auto* timer = window(prompt).findChild<QTimer*>();
    QCOMPARE(timer->interval(), 1000);
    QVERIFY(!timer->isActive());
    prompt->setCountdown(30);
    prompt->show();
    QVERIFY(timer->isActive());
    prompt->hide();
    QVERIFY(!timer->isActive());
    QCOMPARE(prompt->getCountdown(), 30);

    // exec() counts down too, and done() ends that.
    QTimer::singleShot(0, timer, [&] {
        QVERIFY(timer->isActive());
        prompt->done(5);
    });
    QCOMPARE(prompt->exec(), 5);
    QVERIFY(!timer->isActive());
}

void ApprovePromptTest::onlyButtonsAnswer()
{
    auto* prompt = get<Prompt>();
    prompt->setCountdown(30);
    showActive(prompt);
    auto& allow = child<QPushButton>(prompt, "allowButton");
    auto& cancel = child<QPushButton>(prompt, "cancelButton");
    QVERIFY(cancel.hasFocus());
    QVERIFY(cancel.isDefault());
    QVERIFY(!allow.isDefault());
    press(prompt, Qt::Key_Escape);
    child(prompt, "messageTextEdit").setFocus();
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space})
        press(prompt, key);
    QMetaObject::invokeMethod(&window(prompt), "accept");
    QMetaObject::invokeMethod(&window(prompt), "reject");
    QVERIFY(!window(prompt).close());
    QVERIFY(window(prompt).isVisible());
    QVERIFY(takeEvents().isEmpty());

    cancel.setFocus();
    press(prompt, Qt::Key_Return);
    press(prompt, Qt::Key_Space);
    allow.setFocus();
    press(prompt, Qt::Key_Space);
    const QString refused = QStringLiteral("evCancel");
    QCOMPARE(takeEvents(), (QStringList{refused, refused, QStringLiteral("evAllow")}));
    QVERIFY(!window(prompt).findChild<QTimer*>()->isActive());
    QVERIFY(window(prompt).isVisible());
}

void ApprovePromptTest::extremeCountdowns_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<bool>("over");
    QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << true;
    QTest::newRow("negative") << qint64(-1) << true;
    QTest::newRow("highest") << std::numeric_limits<qint64>::max() << false;
}

void ApprovePromptTest::extremeCountdowns()
{
    QFETCH(qint64, seconds);
    QFETCH(bool, over);
    auto* prompt = get<Prompt>();
    prompt->setCountdown(seconds);
    prompt->show();
    QVERIFY(QMetaObject::invokeMethod(&window(prompt), "slCountdownTimerTick"));
    QCOMPARE(takeEvents().size(), over ? 2 : 0);
    QVERIFY(prompt->getCountdown() <= seconds);
    QCOMPARE(window(prompt).size(), QSize(500, 150));
}

void ApprovePromptTest::opaqueWindow()
{
    auto* prompt = show<Prompt>();
    takeEvents();
    QWidget& top = window(prompt);
    QCOMPARE(top.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
    QVERIFY(!top.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!top.testAttribute(Qt::WA_NoSystemBackground));
    QCOMPARE(top.minimumSize(), QSize(500, 150));
    QCOMPARE(top.maximumSize(), QSize(500, 150));
    QCOMPARE(top.grab().toImage().pixelColor(2, 2), QColor(245, 247, 248));
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

void ApprovePromptTest::sameIdTwice()
{
    const QString id = QStringLiteral("same");
    const QPointer<QWidget> first = &window(get<Prompt>(id));
    const QPointer<QWidget> second = &window(get<Prompt>(id));
    QVERIFY(first != second);
    QCOMPARE(dynamic_cast<Prompt*>(second.data())->getConnectionId(), id);
    QVERIFY(gui().deleteApproveRemoteConnectionDialogInstance(id));
    QVERIFY(!gui().deleteApproveRemoteConnectionDialogInstance(id));
    settle();
    QVERIFY(first && !second);
    delete first;
}

void ApprovePromptTest::deleteAll()
{
    QVERIFY(!gui().deleteAllApproveRemoteConnectionDialogInstances());
    const QPointer<QWidget> one = &window(get<Prompt>(QStringLiteral("1")));
    const QPointer<QWidget> empty = &window(get<Prompt>());
    const QPointer<QWidget> message = &window(get<IErrorMessageDialog>());
    QVERIFY(gui().deleteAllApproveRemoteConnectionDialogInstances());
    QVERIFY(!gui().deleteAllApproveRemoteConnectionDialogInstances());
    settle();
    QVERIFY(!one && !empty && message);
}

void ApprovePromptTest::scaled_data()
{
    QTest::addColumn<float>("ratio");
    QTest::newRow("smaller") << 0.8F;
    QTest::newRow("larger") << 1.5F;
    QTest::newRow("double") << 2.0F;
}

void ApprovePromptTest::scaled()
{
    QFETCH(float, ratio);
    auto* prompt = get<Prompt>();
    const QPoint centre = window(prompt).geometry().center();
    prompt->setRatio(ratio);
    const QPoint shift = window(prompt).geometry().center() - centre;
    QVERIFY(shift.manhattanLength() <= 2);
    prompt->setCountdown(30);
    prompt->show();
    QCOMPARE(window(prompt).size(), QSize(static_cast<int>(500 * ratio), static_cast<int>(150 * ratio)));
    // The layout fills the window, and no button is cut.
    QCOMPARE(child(prompt, "messageBackground").width(), window(prompt).width());
    QCOMPARE(child(prompt, "buttonsBackground").geometry().bottom(), window(prompt).height() - 1);
    for (const char* name : {"allowButton", "cancelButton"})
        QVERIFY(child(prompt, name).minimumWidth() == static_cast<int>(80 * ratio));
}

void ApprovePromptTest::deletedInItsHandler_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("allow") << QByteArray("allowButton");
    QTest::newRow("cancel") << QByteArray("cancelButton");
    QTest::newRow("timeout at show") << QByteArray();
}

void ApprovePromptTest::deletedInItsHandler()
{
    QFETCH(QByteArray, button);
    const QString id = QStringLiteral("1");
    auto* prompt = get<Prompt>(id);
    Deleter deleter;
    QVERIFY(gui().attachApproveRemoteConnectionDialogEventHandler(
        &deleter, SLOT(onDialogEvent(IApproveRemoteConnectionDialog*, IApproveRemoteConnectionDialog::TEvent)), id));
    const QPointer<QWidget> guard = &window(prompt);
    prompt->setCountdown(button.isEmpty() ? 0 : 30);
    prompt->show();
    if (!button.isEmpty())
        QTest::mouseClick(guard->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    QVERIFY(!guard);
    events.clear();
    QVERIFY(!gui().deleteApproveRemoteConnectionDialogInstance(id));
}

GUI_TEST_MAIN(ApprovePromptTest)
#include "tst_approveprompt.moc"
