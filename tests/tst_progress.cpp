#include "GuiTest.h"
#include "IProgressDialog.h"

#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

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
    void typingDoesNotCancel();
    void message();
    void percentage_data();
    void percentage();
    void changesAreReportedOnce();
    void waiterCounts();
    void waiterInterval_data();
    void waiterInterval();
    void waiterStartsOver();
    void spinnerTurns();
    void dialogsShareTheSpinner();
    void interfaceOfTheMetaObject();

private:
    IProgressDialog* current = nullptr;
    QStringList steps;
    QString startOverAt;
};

namespace {
QTimer* timerWithInterval(QObject& dialog, int interval)
{
    const auto timers = dialog.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    for (QTimer* timer : timers) {
        if (timer->interval() == interval)
            return timer;
    }
    return nullptr;
}

QPixmap shownFrame(IProgressDialog* dialog)
{
    const QPixmap* frame = dynamic_cast<QWidget&>(*dialog).findChild<QLabel*>(QStringLiteral("messageIcon"))->pixmap();
    return frame ? *frame : QPixmap();
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

void turnSpinner(IProgressDialog* dialog)
{
    QVERIFY(QMetaObject::invokeMethod(&dynamic_cast<QWidget&>(*dialog), "updateProgressAnimation"));
}
} // namespace

void ProgressTest::events_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QStringList>("expected");
    const QStringList cancel{QStringLiteral("evCancel")};
    const QStringList close{QStringLiteral("evClose")};
    QTest::newRow("cancel") << QByteArray("btnCancel") << QByteArray() << cancel;
    QTest::newRow("close button") << QByteArray("btnClose") << QByteArray() << cancel;
    QTest::newRow("ok") << QByteArray("btnMessageInnerButton") << QByteArray() << QStringList();
    QTest::newRow("accept") << QByteArray() << QByteArray("accept") << QStringList();
    QTest::newRow("reject") << QByteArray() << QByteArray("reject") << close;
    QTest::newRow("system") << QByteArray() << QByteArray("close") << close;
}

void ProgressTest::events()
{
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, slot);
    auto* dialog = show<IProgressDialog>();
    auto& ok = child<QPushButton>(dialog, "btnMessageInnerButton");
    QVERIFY(!ok.isEnabled());
    ok.setEnabled(true);
    if (button.isEmpty())
        QVERIFY(QMetaObject::invokeMethod(&window(dialog), slot.constData()));
    else
        click(dialog, button.constData());
    QTEST(takeEvents(), "expected");
    QVERIFY(window(dialog).isVisible());
}

void ProgressTest::typingDoesNotCancel()
{
    auto* dialog = show<IProgressDialog>();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_A})
        press(dialog, key);
    QVERIFY(takeEvents().isEmpty());
    QVERIFY(window(dialog).isVisible());
    press(dialog, Qt::Key_Tab);
    press(dialog, Qt::Key_Space);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evCancel")});
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
    QTest::newRow("total of one") << 1U << 1U << 7;
    QTest::newRow("total too small") << 99U << 99U << 7;
    QTest::newRow("smallest total") << 50U << 100U << 50;
    QTest::newRow("total cut to hundreds") << 150U << 199U << 150;
    QTest::newRow("value cut to percents") << 1999U << 1000U << 199;
    QTest::newRow("nothing") << 0U << 100U << 0;
    QTest::newRow("more than all") << 150U << 100U << 150;
    QTest::newRow("huge total") << huge << huge << 100;
    QTest::newRow("half of a huge total") << huge / 2 << huge << 50;
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
    QCOMPARE(child<QLabel>(dialog, "lblProgress").text(), QStringLiteral("0%"));
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
    dialog->setProgress(50, 100);
    dialog->setProgress(50, 100);
    dialog->setProgress(60, 0);
    QCOMPARE(changed.count(), 1);
    QVERIFY(child(dialog, "lblProgress").isVisible());
    dialog->hideProgressValue();
    QVERIFY(!child(dialog, "lblProgress").isVisible());
    QVERIFY(child(dialog, "messageIcon").isVisible());
}

void ProgressTest::waiterCounts()
{
    current = get<IProgressDialog>();
    current->setProgress(99, 100);
    QSignalSpy complete(&window(current), SIGNAL(sigWaiterComplete()));
    QVERIFY(connect(&window(current), SIGNAL(progressChanged()), this, SLOT(noteStep())));
    steps.clear();
    current->startWaiter(0.01F);
    QTRY_COMPARE(complete.count(), 1);
    QCOMPARE(steps.join(QLatin1Char(' ')), QStringLiteral("0% 10% 20% 30% 40% 50% 60% 70% 80% 90% 100%"));
    QCOMPARE(current->getProgress(), 100);
    // Nothing goes on counting.
    current->setProgress(5, 100);
    QTest::qWait(20);
    QCOMPARE(current->getProgress(), 5);
    QCOMPARE(complete.count(), 1);
}

void ProgressTest::waiterInterval_data()
{
    constexpr int longest = std::numeric_limits<int>::max();
    QTest::addColumn<float>("seconds");
    QTest::addColumn<int>("interval");
    QTest::newRow("usual") << 1.5F << 150;
    QTest::newRow("cut to milliseconds") << 0.0199F << 1;
    QTest::newRow("zero") << 0.0F << 0;
    QTest::newRow("negative") << -3.0F << 0;
    QTest::newRow("not a number") << std::nanf("") << 0;
    QTest::newRow("minus infinite") << -std::numeric_limits<float>::infinity() << 0;
    QTest::newRow("a million seconds") << 1.0e6F << 100000000;
    QTest::newRow("too long") << 1.0e9F << longest;
    QTest::newRow("largest") << std::numeric_limits<float>::max() << longest;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << longest;
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
    else
        QCOMPARE(dialog->getProgress(), 0);
}

void ProgressTest::waiterStartsOver()
{
    current = get<IProgressDialog>();
    QSignalSpy complete(&window(current), SIGNAL(sigWaiterComplete()));
    QVERIFY(connect(&window(current), SIGNAL(progressChanged()), this, SLOT(noteStep())));
    steps.clear();
    startOverAt = QStringLiteral("20%");
    current->startWaiter(0.01F);
    QTRY_COMPARE(complete.count(), 1);
    QCOMPARE(steps.join(QLatin1Char(' ')), QStringLiteral("10% 20% 0% 10% 20% 30% 40% 50% 60% 70% 80% 90% 100%"));
}

void ProgressTest::spinnerTurns()
{
    auto* dialog = get<IProgressDialog>();
    const QTimer* timer = timerWithInterval(window(dialog), 200);
    QVERIFY(timer && timer->isActive());
    turnSpinner(dialog);
    const int first = frameNumber(shownFrame(dialog));
    QVERIFY(first > 0);
    QVector<qint64> keys;
    for (int i = 1; i <= 24; ++i) {
        turnSpinner(dialog);
        keys << shownFrame(dialog).cacheKey();
        if (i % 6 == 0)
            QCOMPARE(frameNumber(shownFrame(dialog)), (first - 1 + i) % 24 + 1);
    }
    // The second turn shows the very pictures of the first: nothing is decoded again.
    for (const qint64 key : qAsConst(keys)) {
        turnSpinner(dialog);
        QCOMPARE(shownFrame(dialog).cacheKey(), key);
    }
}

void ProgressTest::dialogsShareTheSpinner()
{
    auto* first = get<IProgressDialog>();
    turnSpinner(first);
    const int before = frameNumber(shownFrame(first));
    QVERIFY(gui().deleteProgressDialogInstance());
    auto* second = get<IProgressDialog>();
    turnSpinner(second);
    QCOMPARE(frameNumber(shownFrame(second)), before % 24 + 1);
}

void ProgressTest::interfaceOfTheMetaObject()
{
    const QMetaObject* metaObject = window(get<IProgressDialog>()).metaObject();
    QStringList names;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i)
        names << QString::fromLatin1(metaObject->method(i).name());
    QCOMPARE(
        names.join(QLatin1Char(' ')),
        QStringLiteral("progressChanged cancelDownload sigWaiterComplete dialogEvent showProgress slCancel slClose "
                       "updateProgressAnimation slWaiterTimer accept reject"));
}

GUI_TEST_MAIN(ProgressTest)
#include "tst_progress.moc"
