#include "GuiTest.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>

/// The progress window: its percentage, its waiter, its spinner, and that only Cancel cancels.
class ProgressTest : public GuiTest {
    Q_OBJECT

public Q_SLOTS:
    void noteStep()
    {
        steps << child<QLabel>(current, "lblProgress").text();
        if (steps.last() == startOverAt) {
            startOverAt.clear();
            current->startWaiter(0.0F);
        }
    }

private Q_SLOTS:
    void events_data();
    void events();
    void message();
    void percentage_data();
    void percentage();
    void changesAreReportedOnce();
    void waiterCounts_data();
    void waiterCounts();
    void waiterInterval_data();
    void waiterInterval();
    void spinnerTurns();

private:
    IProgressDialog* current = nullptr;
    QStringList steps;
    QString startOverAt;
};

namespace {
QTimer* timerWithInterval(QObject& dialog, int interval)
{
    const auto timers = dialog.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    const auto found =
        std::find_if(timers.begin(), timers.end(), [&](const QTimer* timer) { return timer->interval() == interval; });
    return found == timers.end() ? nullptr : *found;
}

/// The number of a frame, by its pixels; 0 for any other picture.
int frameNumber(const QPixmap& picture)
{
    for (int number = 1; number <= 24; ++number) {
        const QPixmap frame(QStringLiteral(":/images/progress bar/%1.png").arg(number));
        if (!frame.isNull() && frame.toImage() == picture.toImage())
            return number;
    }
    return 0;
}
} // namespace

void ProgressTest::events_data()
{
    textColumns({"actions", "event"});
    textRow({"Space Return Enter Escape A accept() btnMessageInnerButton", ""});
    textRow({"btnCancel btnClose", "evCancel"});
    textRow({"reject() close", "evClose"});
}

void ProgressTest::events()
{
    QFETCH(QString, actions);
    QFETCH(QString, event);
    auto* dialog = show<IProgressDialog>();
    QVERIFY(!child(dialog, "btnMessageInnerButton").isEnabled());
    child(dialog, "btnMessageInnerButton").setEnabled(true);
    checkEvents(dialog, actions, event);
    child(dialog, "btnCancel").setFocus();
    checkEvents(dialog, QStringLiteral("Space"), QStringLiteral("evCancel"));
}

void ProgressTest::message()
{
    auto* dialog = get<IProgressDialog>();
    QVERIFY(dialog->getMessage().isEmpty());
    const QString text = QStringLiteral("<b>50</b> & %1\nlines");
    dialog->setMessage(text);
    QCOMPARE(dialog->getMessage(), text);
    QCOMPARE(child<QLabel>(dialog, "lblMessage").textFormat(), Qt::PlainText);
}

void ProgressTest::percentage_data()
{
    constexpr unsigned int huge = std::numeric_limits<unsigned int>::max();
    QTest::addColumn<unsigned int>("value");
    QTest::addColumn<unsigned int>("total");
    QTest::addColumn<int>("percentage");
    // 7 percent is what the test starts from.
    QTest::newRow("no total") << 50U << 0U << 7;
    QTest::newRow("total too small") << 99U << 99U << 7;
    QTest::newRow("total cut to hundreds") << 150U << 199U << 150;
    QTest::newRow("value cut to percents") << 1999U << 1000U << 199;
    QTest::newRow("nothing") << 0U << 100U << 0;
    QTest::newRow("huge total") << huge << huge << 100;
    QTest::newRow("huge value") << huge << 200U << 2147483647;
    QTest::newRow("beyond an int") << huge << 100U << -1;
}

void ProgressTest::percentage()
{
    QFETCH(unsigned int, value);
    QFETCH(unsigned int, total);
    QFETCH(int, percentage);
    auto* dialog = get<IProgressDialog>();
    QCOMPARE(dialog->getProgress(), 0);
    dialog->setProgress(7, 100);
    dialog->setProgress(value, total);
    QCOMPARE(dialog->getProgress(), percentage);
    QCOMPARE(child<QLabel>(dialog, "lblProgress").text(), QStringLiteral("%1%").arg(percentage));
}

void ProgressTest::changesAreReportedOnce()
{
    auto* dialog = show<IProgressDialog>();
    QSignalSpy changed(&window(dialog), SIGNAL(progressChanged()));
    dialog->setProgress(0, 100);
    QCOMPARE(changed.count(), 0);
    for (const unsigned int total : {100U, 100U, 0U})
        dialog->setProgress(50, total);
    QCOMPARE(changed.count(), 1);
    dialog->hideProgressValue();
    QVERIFY(!child(dialog, "lblProgress").isVisible());
    QVERIFY(child(dialog, "messageIcon").isVisible());
}

void ProgressTest::waiterCounts_data()
{
    textColumns({"startOver", "counted"});
    textRow({"", "0% 10% 20% 30% 40% 50% 60% 70% 80% 90% 100%"});
    textRow({"20%", "0% 10% 20% 0% 10% 20% 30% 40% 50% 60% 70% 80% 90% 100%"});
}

void ProgressTest::waiterCounts()
{
    QFETCH(QString, startOver);
    startOverAt = startOver;
    steps.clear();
    current = get<IProgressDialog>();
    current->setProgress(99, 100);
    QSignalSpy complete(&window(current), SIGNAL(sigWaiterComplete()));
    QVERIFY(connect(&window(current), SIGNAL(progressChanged()), this, SLOT(noteStep())));
    current->startWaiter(0.01F);
    QTRY_COMPARE(complete.count(), 1);
    QTEST(steps.join(QLatin1Char(' ')), "counted");
    QVERIFY(!timerWithInterval(window(current), startOver.isEmpty() ? 1 : 0)->isActive());
}

void ProgressTest::waiterInterval_data()
{
    using Limits = std::numeric_limits<float>;
    constexpr int longest = std::numeric_limits<int>::max();
    QTest::addColumn<float>("seconds");
    QTest::addColumn<int>("interval");
    QTest::newRow("usual") << 1.5F << 150;
    QTest::newRow("cut to milliseconds") << 0.0199F << 1;
    QTest::newRow("negative") << -3.0F << 0;
    QTest::newRow("not a number") << std::nanf("") << 0;
    QTest::newRow("minus infinite") << -Limits::infinity() << 0;
    QTest::newRow("a million seconds") << 1.0e6F << 100000000;
    QTest::newRow("largest") << Limits::max() << longest;
    QTest::newRow("infinite") << Limits::infinity() << longest;
}

void ProgressTest::waiterInterval()
{
    QFETCH(float, seconds);
    QFETCH(int, interval);
    auto* dialog = get<IProgressDialog>();
    QSignalSpy complete(&window(dialog), SIGNAL(sigWaiterComplete()));
    dialog->startWaiter(seconds);
    const QTimer* timer = timerWithInterval(window(dialog), interval);
    QVERIFY(timer && timer->isActive());
    QCOMPARE(timer->property("waiter_current_value").toInt(), 0);
    if (interval < 2)
        QTRY_COMPARE(complete.count(), 1);
}

void ProgressTest::spinnerTurns()
{
    const auto turn = [](IProgressDialog* dialog) {
        act(dialog, QStringLiteral("updateProgressAnimation()"));
        const QPixmap* frame = child<QLabel>(dialog, "messageIcon").pixmap();
        return frame ? *frame : QPixmap();
    };
    auto* dialog = get<IProgressDialog>();
    QVERIFY(timerWithInterval(window(dialog), 200)->isActive());
    const int first = frameNumber(turn(dialog));
    QVERIFY(first > 0);
    QVector<qint64> keys;
    for (int i = 1; i <= 24; ++i) {
        const QPixmap frame = turn(dialog);
        keys << frame.cacheKey();
        if (i % 6 == 0)
            QCOMPARE(frameNumber(frame), (first - 1 + i) % 24 + 1);
    }
    // The second turn shows the very pictures of the first: nothing is decoded again.
    for (const qint64 key : qAsConst(keys))
        QCOMPARE(turn(dialog).cacheKey(), key);

    // The next dialog takes the turn up where this one left it.
    QVERIFY(gui().deleteProgressDialogInstance());
    QCOMPARE(frameNumber(turn(get<IProgressDialog>())), first % 24 + 1);
}

GUI_TEST_MAIN(ProgressTest)
#include "tst_progress.moc"
