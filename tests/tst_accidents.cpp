#include "GuiTest.h"

#include <QMessageBox>
#include <QTimer>

#include <random>

/// A prompt comes up while somebody types. Whatever they type, it allows, restarts, deletes and sends nothing unless
/// they have moved the focus to the button that does.
class AccidentsTest : public GuiTest {
    Q_OBJECT

public:
    AccidentsTest();

private Q_SLOTS:
    void typingAnswersNothing_data();
    void typingAnswersNothing();
    void onlyTheFocusedButtonAnswers_data();
    void onlyTheFocusedButtonAnswers();

private:
    /// Nobody answers the questions that a dialog asks before it closes.
    static void dismissQuestion();
    void addHarmfulEvents();
    IBaseDialog* showFresh(const QString& family);
    void pressRandomKey(IBaseDialog* dialog, const QVector<Qt::Key>& keys);

    std::mt19937 engine{7};
    QTimer questionTimer;
};

namespace {
const QVector<Qt::Key>& typedKeys()
{
    static const QVector<Qt::Key> keys{Qt::Key_A,      Qt::Key_N,         Qt::Key_Y,      Qt::Key_1,      Qt::Key_Space,
                                       Qt::Key_Return, Qt::Key_Enter,     Qt::Key_Escape, Qt::Key_Period, Qt::Key_F1,
                                       Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home,   Qt::Key_End,    Qt::Key_F5,
                                       Qt::Key_PageUp, Qt::Key_Insert};
    return keys;
}
} // namespace

AccidentsTest::AccidentsTest()
{
    connect(&questionTimer, &QTimer::timeout, this, &AccidentsTest::dismissQuestion);
    questionTimer.start(0);
}

void AccidentsTest::dismissQuestion()
{
    if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        question->reject();
}

void AccidentsTest::addHarmfulEvents()
{
    QTest::addColumn<QString>("familyName");
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("button");
    QTest::newRow("allow") << QStringLiteral("ApproveRemoteConnectionDialog") << QStringLiteral("evAllow")
                           << QStringLiteral("allowButton");
    QTest::newRow("restart") << QStringLiteral("RebootDialog") << QStringLiteral("evRebootNow")
                             << QStringLiteral("rebootNowButton");
    QTest::newRow("delete the account") << QStringLiteral("OptionDialog") << QStringLiteral("evDeactivate")
                                        << QStringLiteral("btnDeactivateAntiTheft");
    QTest::newRow("send the ticket") << QStringLiteral("ServiceDeskTicketDialog") << QStringLiteral("evSubmit")
                                     << QStringLiteral("bnSubmit");
}

IBaseDialog* AccidentsTest::showFresh(const QString& familyName)
{
    const QString id = QStringLiteral("id");
    dialogFamily(familyName).remove(gui(), id);
    settle();
    IBaseDialog* dialog = get(familyName, id);
    if (auto* prompt = dynamic_cast<IApproveRemoteConnectionDialog*>(dialog))
        prompt->setCountdown(1000);
    showActive(dialog);
    takeEvents();
    return dialog;
}

void AccidentsTest::pressRandomKey(IBaseDialog* dialog, const QVector<Qt::Key>& keys)
{
    press(dialog, keys[static_cast<int>(engine() % static_cast<quint32>(keys.size()))]);
}

void AccidentsTest::typingAnswersNothing_data()
{
    addHarmfulEvents();
}

void AccidentsTest::typingAnswersNothing()
{
    QFETCH(QString, familyName);
    QFETCH(QString, event);
    for (int round = 0; round < 50; ++round) {
        IBaseDialog* dialog = showFresh(familyName);
        for (int i = 0; i < 20; ++i)
            pressRandomKey(dialog, typedKeys());
        QVERIFY(!takeEvents().contains(event));
    }
}

void AccidentsTest::onlyTheFocusedButtonAnswers_data()
{
    addHarmfulEvents();
}

void AccidentsTest::onlyTheFocusedButtonAnswers()
{
    QFETCH(QString, familyName);
    QFETCH(QString, event);
    QFETCH(QString, button);
    const QVector<Qt::Key> keys = typedKeys()
        + QVector<Qt::Key>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Left, Qt::Key_Down};
    const bool canBeFilledIn = familyName == QLatin1String("ServiceDeskTicketDialog");
    int answers = 0;
    for (int round = 0; round < 50; ++round) {
        IBaseDialog* dialog = showFresh(familyName);
        for (int i = 0; i < 40; ++i) {
            const QWidget* focused = window(dialog).focusWidget();
            pressRandomKey(dialog, keys);
            if (!takeEvents().contains(event))
                continue;
            // A ticket that somebody has filled in is also sent with Return from its fields.
            QVERIFY(focused);
            QVERIFY(focused->objectName() == button || canBeFilledIn);
            ++answers;
        }
    }
    // The one button that is hidden cannot be reached at all.
    QCOMPARE(answers > 0, familyName != QLatin1String("OptionDialog"));
}

GUI_TEST_MAIN(AccidentsTest)
#include "tst_accidents.moc"
