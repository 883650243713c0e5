#include "GuiTest.h"

#include <QMessageBox>
#include <QTimer>

#include <random>

/// A prompt comes up while somebody types. Whatever they type, it allows, restarts, deletes and sends nothing unless
/// they have moved the focus to the button that does.
class AccidentsTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void onlyTheFocusedButtonAnswers_data();
    void onlyTheFocusedButtonAnswers();

private:
    IBaseDialog* showFresh(const QString& family);

    std::mt19937 engine{7};
};

namespace {
const QVector<Qt::Key> typedKeys{Qt::Key_A,      Qt::Key_N,      Qt::Key_Y,         Qt::Key_1,      Qt::Key_Space,
                                 Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,    Qt::Key_Period, Qt::Key_F1,
                                 Qt::Key_F5,     Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home,   Qt::Key_End,
                                 Qt::Key_PageUp, Qt::Key_Insert};
const QVector<Qt::Key> movingKeys{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Left, Qt::Key_Down};
} // namespace

IBaseDialog* AccidentsTest::showFresh(const QString& family)
{
    const QString id = QStringLiteral("id");
    dialogFamily(family).remove(gui(), id);
    settle();
    IBaseDialog* dialog = get(family, id);
    if (auto* prompt = dynamic_cast<IApproveRemoteConnectionDialog*>(dialog))
        prompt->setCountdown(1000);
    showActive(dialog);
    takeEvents();
    return dialog;
}

void AccidentsTest::onlyTheFocusedButtonAnswers_data()
{
    textColumns({"family", "event", "button"});
    textRow({"ApproveRemoteConnectionDialog", "evAllow", "allowButton"});
    textRow({"RebootDialog", "evRebootNow", "rebootNowButton"});
    textRow({"OptionDialog", "evDeactivate", "btnDeactivateAntiTheft"});
    textRow({"ServiceDeskTicketDialog", "evSubmit", "bnSubmit"});
}

void AccidentsTest::onlyTheFocusedButtonAnswers()
{
    QFETCH(QString, family);
    QFETCH(QString, event);
    QFETCH(QString, button);
    // Nobody answers the questions that a dialog asks before it closes.
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [] {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            question->reject();
    });
    timer.start(0);
    const bool canBeFilledIn = family == QLatin1String("ServiceDeskTicketDialog");
    int answers = 0;
    for (int round = 0; round < 100; ++round) {
        const bool moves = round % 2 == 1;
        const QVector<Qt::Key> keys = moves ? typedKeys + movingKeys : typedKeys;
        IBaseDialog* dialog = showFresh(family);
        for (int i = 0; i < (moves ? 40 : 20); ++i) {
            const QWidget* focused = window(dialog).focusWidget();
            press(dialog, keys[static_cast<int>(engine() % static_cast<quint32>(keys.size()))]);
            if (!takeEvents().contains(event))
                continue;
            QVERIFY(moves && focused);
            // A ticket that somebody has filled in is also sent with Return from its fields.
            QVERIFY(focused->objectName() == button || canBeFilledIn);
            ++answers;
        }
    }
    // The one button that is hidden cannot be reached at all.
    QCOMPARE(answers > 0, family != QLatin1String("OptionDialog"));
}

GUI_TEST_MAIN(AccidentsTest)
#include "tst_accidents.moc"
