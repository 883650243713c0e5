#include "GuiTest.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTimer>

#include <climits>
#include <cmath>
#include <limits>

namespace {
QImage frame(int number)
{
    return QPixmap(QStringLiteral(":/images/progress bar/%1.png").arg(number)).toImage();
}
} // namespace

/// The progress window: its percentage, its waiter and its spinner.
class ProgressTest : public GuiTest {
    Q_OBJECT

public Q_SLOTS:
    void noteStep()
    {
        steps << child<QLabel>(current, "lblProgress").text();
        // Once it starts over.
        if (steps.size() == 3)
            current->startWaiter(0.0F);
    }

private:
    static QImage nextPicture(IProgressDialog* dialog)
    {
        act(dialog, QStringLiteral("updateProgressAnimation()"));
        return child<QLabel>(dialog, "messageIcon").property("pixmap").value<QPixmap>().toImage();
    }

    IProgressDialog* current = nullptr;
    QStringList steps;

private Q_SLOTS:
    void percentage()
    {
        constexpr unsigned int huge = std::numeric_limits<unsigned int>::max();
        auto* dialog = get<IProgressDialog>();
        const auto check = [dialog](unsigned int value, unsigned int total, int percentage) {
            dialog->setProgress(7, 100);
            dialog->setProgress(value, total);
            QCOMPARE(dialog->getProgress(), percentage);
            QCOMPARE(child<QLabel>(dialog, "lblProgress").text(), QStringLiteral("%1%").arg(percentage));
        };
        // Totals below a hundred do nothing.
        check(50, 0, 7);
        check(99, 99, 7);
        // Both are cut to whole numbers.
        check(150, 199, 150);
        check(1999, 1000, 199);
        check(0, 100, 0);
        check(huge, huge, 100);
        check(huge, 200, 2147483647);
        check(huge, 100, -1);
    }

    void changesAreReportedOnce()
    {
        auto* dialog = show<IProgressDialog>();
        QSignalSpy changed(&window(dialog), SIGNAL(progressChanged()));
        dialog->setProgress(0, 100);
        QCOMPARE(changed.count(), 0);
        for (const unsigned int total : {100U, 100U, 0U})
            dialog->setProgress(50, total);
        QCOMPARE(changed.count(), 1);
    }

    void waiterCounts()
    {
        current = get<IProgressDialog>();
        current->setProgress(99, 100);
        QSignalSpy complete(&window(current), SIGNAL(sigWaiterComplete()));
        QVERIFY(connect(&window(current), SIGNAL(progressChanged()), this, SLOT(noteStep())));
        current->startWaiter(0.01F);
        QTRY_COMPARE(complete.count(), 1);
        QCOMPARE(steps.join(QLatin1Char(' ')),
                 QStringLiteral("0% 10% 20% 0% 10% 20% 30% 40% 50% 60% 70% 80% 90% 100%"));
        const QTimer* waiter = nullptr;
        for (const QTimer* timer : window(current).findChildren<QTimer*>()) {
            if (timer->property("waiter_current_value").toInt() == 100)
                waiter = timer;
        }
        QVERIFY(waiter && !waiter->isActive());
        const QPair<float, int> intervals[] = {
            {1.5F, 150}, {0.0199F, 1}, {std::nanf(""), 0}, {std::numeric_limits<float>::infinity(), INT_MAX}};
        for (const auto& interval : intervals) {
            current->startWaiter(interval.first);
            QVERIFY(waiter->isActive() && waiter->property("waiter_current_value").toInt() == 0);
            QCOMPARE(waiter->interval(), interval.second);
        }
    }

    void spinnerTurns()
    {
        auto* dialog = get<IProgressDialog>();
        for (int i = 0; i < 24 && nextPicture(dialog) != frame(24); ++i) { }
        for (int i = 0; i < 48; ++i)
            QCOMPARE(nextPicture(dialog), frame(i % 24 + 1));

        // The next dialog takes the turn up where this one left it.
        nextPicture(dialog);
        QVERIFY(gui().deleteProgressDialogInstance());
        QCOMPARE(nextPicture(get<IProgressDialog>()), frame(2));
    }
};

GUI_TEST_MAIN(ProgressTest)
#include "tst_progress.moc"
