#include "GuiTest.h"

namespace {
using Prompt = IApproveRemoteConnectionDialog;
using Limits = std::numeric_limits<qint64>;

const QStringList timeout{QStringLiteral("evTimeout")};

/// Translates everything, as the host does its messages.
struct HostTranslator final : QTranslator {
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) + QLatin1Char(' ') + QLatin1String(source);
    }
};
} // namespace

class ApprovePromptTest : public GuiTest {
    Q_OBJECT

    static QRect onScreen(const QWidget& widget)
    {
        return {widget.mapToGlobal(QPoint()), widget.size()};
    }
    static QString buttonTexts(Prompt* prompt)
    {
        return child<QPushButton>(prompt, "allowButton").text() + child<QPushButton>(prompt, "cancelButton").text();
    }
    static QTimer& timer(Prompt* prompt)
    {
        return *window(prompt).findChild<QTimer*>();
    }

private Q_SLOTS:
    void texts()
    {
        auto* prompt = get<Prompt>();
        const char* const kinds[] = {"Remote control", "Remote tools", "Remote control", "Remote access", ""};
        for (int type = 0; type < int(std::size(kinds)); ++type) {
            prompt->setSessionType(type);
            prompt->setRequesterName(QStringLiteral("J - [*]"));
            QCOMPARE(window(prompt).windowTitle(), QStringLiteral("J - [*][*] - ") + QLatin1String(kinds[type]));
        }
        HostTranslator translator;
        QCoreApplication::installTranslator(&translator);
        for (const bool translated : {true, false}) {
            prompt->setMessage(QStringLiteral("askControl"), translated);
            QCOMPARE(prompt->getMessage(), QLatin1String(translated ? "ControllerConsts askControl" : "askControl"));
            QCOMPARE(child<QPlainTextEdit>(prompt, "messageTextEdit").toPlainText(), prompt->getMessage());
        }
    }

    void countdown()
    {
        // Whatever host, person and clock do, in any order.
        QRandomGenerator random(3);
        auto* prompt = get<Prompt>();
        QCOMPARE(timer(prompt).interval(), 1000);
        timer(prompt).setInterval(1000000);
        qint64 left = 0;
        bool onCancel = true;
        bool runs = false;
        QString allowText = QStringLiteral("Allow");
        QString cancelText = QStringLiteral("Cancel");
        for (int step = 0; step < 1000; ++step) {
            QStringList expected;
            const int action = random.bounded(8);
            if (action == 0) {
                const qint64 values[] = {0, 1, 1, 2, 3, 30, Limits::max(), Limits::min()};
                prompt->setCountdown(left = values[random.bounded(int(std::size(values)))]);
            } else if (action == 1) {
                const int flag = random.bounded(-1, 2);
                prompt->setCountdownOnCancel(flag);
                onCancel = flag != 0;
            } else if (action == 2) {
                prompt->hide();
                runs = false;
            } else if (action < 6) {
                action == 3 ? prompt->show() : act(prompt, QStringLiteral("slCountdownTimerTick()"));
                left -= action == 3 || left == Limits::min() ? 0 : 1;
                runs = action == 3 || (runs && left > 0);
                expected = left <= 0 ? timeout : QStringList();
                if (left > 0)
                    (onCancel ? cancelText : allowText) =
                        QStringLiteral("%1(%2)").arg(QLatin1String(onCancel ? "Cancel" : "Allow")).arg(left);
            } else if (window(prompt).isVisible()) {
                click(prompt, action == 6 ? "allowButton" : "cancelButton");
                expected << QLatin1String(action == 6 ? "evAllow" : "evCancel");
                runs = false;
            }
            QCOMPARE(takeEvents(), expected);
            QCOMPARE(prompt->getCountdown(), left);
            QCOMPARE(timer(prompt).isActive(), runs);
            QCOMPARE(buttonTexts(prompt), allowText + cancelText);
            QCOMPARE(window(prompt).size(), QSize(500, 150));
        }
    }

    void timeoutIsReportedTwice()
    {
        auto* prompt = get<Prompt>();
        prompt->show();
        QCOMPARE(takeEvents(), timeout);
        QTRY_COMPARE(prompt->getCountdown(), -1);
        QCOMPARE(takeEvents(), timeout);
        QVERIFY(!timer(prompt).isActive());
        checkEvents(prompt, QStringLiteral("allowButton"), QStringLiteral("evAllow"));
    }

    void cascade()
    {
        for (const float ratio : {1.0F, 1.2F}) {
            gui().setRatio(ratio);
            // More than fit into one cascade on the screen.
            QVector<Prompt*> prompts;
            for (int i = 0; i < (ratio > 1.0F ? 20 : 40); ++i) {
                auto* prompt = get<Prompt>(QString::number(i));
                prompt->setCountdown(30);
                const QPoint own = window(prompt).pos();
                prompt->show();
                QVERIFY(i > 0 || window(prompt).pos() == own);
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
            prompts.last()->hide();
            auto* next = get<Prompt>(QStringLiteral("x"));
            next->show();
            QCOMPARE(window(next).geometry(), window(prompts.last()).geometry());
            QVERIFY(gui().deleteAllApproveRemoteConnectionDialogInstances()
                    && !gui().deleteAllApproveRemoteConnectionDialogInstances());
            settle();
        }
    }

    void deletedInItsHandler()
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
            QVERIFY(!guard && !gui().deleteApproveRemoteConnectionDialogInstance(id));
        }
        // exec() reports a time that is over from within its event loop.
        auto* late = get<Prompt>();
        for (const int result : {4, 0}) {
            onNextEvent([&] { result != 0 ? late->done(result) : delete late; });
            QCOMPARE(late->exec(), result);
        }
    }
};

GUI_TEST_MAIN(ApprovePromptTest)
#include "tst_approveprompt.moc"
