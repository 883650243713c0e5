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
    void titles();
    void messages();
    void countdown();
    void timeoutIsReportedTwice();
    void timerRunsWhileShown();
    void onlyButtonsAnswer();
    void cascade();
    void deleteAll();
    void scaled();
    void deletedInItsHandler();

private:
    static QRect onScreen(const QWidget& widget);
    static QString buttonTexts(Prompt* prompt);
    static QTimer& timer(Prompt* prompt);
};

QRect ApprovePromptTest::onScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

QString ApprovePromptTest::buttonTexts(Prompt* prompt)
{
    return child<QPushButton>(prompt, "allowButton").text() + child<QPushButton>(prompt, "cancelButton").text();
}

QTimer& ApprovePromptTest::timer(Prompt* prompt)
{
    return *window(prompt).findChild<QTimer*>();
}

void ApprovePromptTest::titles()
{
    const QPair<int, const char*> kinds[] = {{0, "Remote control"},
                                             {1, "Remote tools"},
                                             {2, "Remote control"},
                                             {3, "Remote access"},
                                             {7, ""},
                                             {std::numeric_limits<int>::min(), ""}};
    // A single mark in brackets would be replaced by what stands for unsaved changes.
    const QString name = QStringLiteral("<b>J</b> &amp; %1 - Remote tools\n\u2066[*]");
    const QString shown = QStringLiteral("<b>J</b> &amp; %1 - Remote tools\uFFFD\uFFFD[*][*] - ");
    auto* prompt = get<Prompt>();
    prompt->setRequesterName(QStringLiteral("J"));
    QCOMPARE(window(prompt).windowTitle(), QStringLiteral("J - Remote control"));
    for (const auto& kind : kinds) {
        prompt->setSessionType(kind.first);
        prompt->setRequesterName(name);
        QCOMPARE(window(prompt).windowTitle(), shown + QLatin1String(kind.second));
        prompt->setSessionType(kind.first);
        QCOMPARE(window(prompt).windowTitle(), shown + QLatin1String(kind.second));
        QCOMPARE(prompt->getRequesterName(), name);
        QCOMPARE(prompt->getSessionType(), kind.first);
    }
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
    const QString key = QStringLiteral("askControl");
    check(key, false, key, key);
    check(key, true, QStringLiteral("May I?"), QStringLiteral("May I?"));
    const QString markup = QStringLiteral("<a href=\"x\">y</a>\n\t%1 &amp;");
    check(markup + QChar(0x202E), true, markup + QChar(0x202E), markup + QChar(0xFFFD));
}

void ApprovePromptTest::countdown()
{
    for (int onCancel : {1, -5, 0}) {
        auto* prompt = get<Prompt>(QString::number(onCancel));
        const QString counting = onCancel != 0 ? QStringLiteral("AllowCancel(%1)") : QStringLiteral("Allow(%1)Cancel");
        QCOMPARE(prompt->getCountdownOnCancel(), 1);
        prompt->setCountdownOnCancel(onCancel);
        prompt->setCountdown(30);
        QCOMPARE(buttonTexts(prompt), QStringLiteral("AllowCancel"));
        prompt->show();
        prompt->setCountdown(8);
        QCOMPARE(buttonTexts(prompt), counting.arg(30));
        act(prompt, QStringLiteral("slCountdownTimerTick()"));
        QCOMPARE(buttonTexts(prompt), counting.arg(7));
        QCOMPARE(prompt->getCountdown(), 7);
        QVERIFY(takeEvents().isEmpty());

        prompt->setCountdown(std::numeric_limits<qint64>::max());
        act(prompt, QStringLiteral("slCountdownTimerTick()"));
        QCOMPARE(window(prompt).size(), QSize(500, 150));
        prompt->setCountdown(std::numeric_limits<qint64>::min());
        act(prompt, QStringLiteral("slCountdownTimerTick()"));
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("evTimeout")});
        QVERIFY(prompt->getCountdown() < 0);
    }
}

void ApprovePromptTest::timeoutIsReportedTwice()
{
    const QStringList timeout{QStringLiteral("evTimeout")};
    auto* prompt = get<Prompt>();
    prompt->show();
    QCOMPARE(takeEvents(), timeout);
    QTRY_COMPARE(prompt->getCountdown(), -1);
    QCOMPARE(takeEvents(), timeout);
    QVERIFY(!timer(prompt).isActive());
    checkEvents(prompt, QStringLiteral("allowButton"), QStringLiteral("evAllow"));

    prompt->hide();
    prompt->setCountdown(1);
    prompt->show();
    QCOMPARE(buttonTexts(prompt), QStringLiteral("AllowCancel(1)"));
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(takeEvents(), timeout);
    QVERIFY(!timer(prompt).isActive());
}

void ApprovePromptTest::timerRunsWhileShown()
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
    checkEvents(prompt, QStringLiteral("Escape accept() reject() close"), QString());
    child(prompt, "messageTextEdit").setFocus();
    checkEvents(prompt, QStringLiteral("Return Enter Escape Space"), QString());
    QVERIFY(timer(prompt).isActive());
    cancel.setFocus();
    checkEvents(prompt, QStringLiteral("Return Space"), QStringLiteral("evCancel"));
    QVERIFY(!timer(prompt).isActive());
    allow.setFocus();
    checkEvents(prompt, QStringLiteral("Space"), QStringLiteral("evAllow"));
}

void ApprovePromptTest::cascade()
{
    for (const float ratio : {1.0F, 1.2F}) {
        gui().setRatio(ratio);
        // More than fit into one cascade on the screen.
        QVector<Prompt*> prompts;
        for (int i = 0; i < (ratio > 1.0F ? 20 : 40); ++i) {
            auto* prompt = get<Prompt>(QString::number(i));
            prompt->setCountdown(30);
            prompt->show();
            const QRect place = window(prompt).frameGeometry();
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(place));
            const QRect allow = onScreen(child(prompt, "allowButton"));
            for (Prompt* other : qAsConst(prompts)) {
                // Enough of a title bar stays in sight to read a name and to grab it.
                const QPoint offset = place.topLeft() - window(other).pos();
                QVERIFY2(qMax(qAbs(offset.x()), qAbs(offset.y())) >= 20, qPrintable(QString::number(i)));
                // A click meant to refuse one request allows no other.
                QVERIFY2(!allow.intersects(onScreen(child(other, "cancelButton"))), qPrintable(QString::number(i)));
            }
            prompts << prompt;
        }
        // One that is not shown takes no place.
        prompts.last()->hide();
        auto* next = get<Prompt>(QStringLiteral("x"));
        next->show();
        QCOMPARE(window(next).geometry(), window(prompts.last()).geometry());
        gui().deleteAllApproveRemoteConnectionDialogInstances();
        settle();
    }
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
        QCOMPARE(child(prompt, "allowButton").minimumWidth(), static_cast<int>(80 * ratio));
    }
}

void ApprovePromptTest::deletedInItsHandler()
{
    for (const char* button : {"allowButton", "cancelButton", ""}) {
        const QString id = QLatin1String(button);
        auto* prompt = get<Prompt>(id);
        const QPointer<QWidget> guard = &window(prompt);
        // Without a button the time is over at once.
        prompt->setCountdown(id.isEmpty() ? 0 : 30);
        onNextEvent([&] { delete prompt; });
        prompt->show();
        if (!id.isEmpty())
            click(prompt, button);
        QVERIFY(!guard);
        QVERIFY(!gui().deleteApproveRemoteConnectionDialogInstance(id));
    }
    // exec() reports a time that is over from within its event loop.
    auto* late = get<Prompt>();
    for (const int result : {4, 0}) {
        onNextEvent([&] { result != 0 ? late->done(result) : delete late; });
        QCOMPARE(late->exec(), result);
    }
}

GUI_TEST_MAIN(ApprovePromptTest)
#include "tst_approveprompt.moc"
