#include "GuiTest.h"
#include "QLabelEx.h"

#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

/// What every dialog inherits, shown on the error message and the confirmation, and the clickable label.
class BaseDialogTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void windowSetup();
    void modality();
    void scaling_data();
    void scaling();
    void dragging();
    void topLeftPixelDoesNotDrag();
    void otherKeysAreSwallowed_data();
    void otherKeysAreSwallowed();
    void execReturnsWhatTheHostSays();
    void labelEmitsOnEveryPress();
};

void BaseDialogTest::windowSetup()
{
    QWidget& dialog = window(get<IErrorMessageDialog>());
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(dialog.windowFlags(), Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY((dialog.frameGeometry().center() - area.center()).manhattanLength() <= 2);
    QCOMPARE(dialog.windowTitle(), QStringLiteral(" Tavik "));
    QCOMPARE(dialog.toolTip(), dialog.windowTitle());
}

void BaseDialogTest::modality()
{
    auto* dialog = get<IErrorMessageDialog>();
    dialog->setModal(true);
    QCOMPARE(window(dialog).windowModality(), Qt::ApplicationModal);
    dialog->setModal(false);
    QCOMPARE(window(dialog).windowModality(), Qt::NonModal);
}

void BaseDialogTest::scaling_data()
{
    QTest::addColumn<float>("ratio");
    for (const float ratio : {0.5F, 0.75F, 1.25F, 1.5F, 2.0F, 3.0F})
        QTest::addRow("%.2f", static_cast<double>(ratio)) << ratio;
}

void BaseDialogTest::scaling()
{
    QFETCH(float, ratio);
    auto* dialog = get<IErrorMessageDialog>();
    QWidget& top = window(dialog);
    const QPoint center = top.geometry().center();
    const auto scaled = [ratio](int length) { return static_cast<int>(static_cast<float>(length) * ratio); };
    dialog->setRatio(ratio);
    QCOMPARE(top.size(), QSize(scaled(501), scaled(502)));
    QVERIFY((top.geometry().center() - center).manhattanLength() <= 3);
    QCOMPARE(child(dialog, "content").geometry(), QRect(scaled(10), scaled(40), scaled(481), scaled(411)));
    QCOMPARE(child(dialog, "messageIcon").geometry(), QRect(scaled(125), scaled(80), scaled(253), scaled(253)));
}

void BaseDialogTest::dragging()
{
    auto* dialog = show<IErrorMessageDialog>();
    QWidget& top = window(dialog);
    QWidget& surface = child(dialog, "content");
    const QPoint start = top.pos();
    const QPoint grip(30, 40);
    const QPoint distance(25, -15);
    const auto move = [&](const QPoint& global, Qt::MouseButtons buttons) {
        QMouseEvent event(QEvent::MouseMove, surface.mapFromGlobal(global), global, Qt::NoButton, buttons, {});
        QCoreApplication::sendEvent(&surface, &event);
    };
    const QPoint pressedAt = surface.mapToGlobal(grip);
    QTest::mousePress(&surface, Qt::LeftButton, {}, grip);
    move(pressedAt + distance, Qt::LeftButton);
    QCOMPARE(top.pos(), start + distance);
    QTest::mouseRelease(&surface, Qt::LeftButton, {}, grip);
    move(pressedAt + 3 * distance, Qt::LeftButton);
    QCOMPARE(top.pos(), start + distance);
}

void BaseDialogTest::topLeftPixelDoesNotDrag()
{
    QWidget& top = window(show<IErrorMessageDialog>());
    const QPoint start = top.pos();
    const auto send = [&top](QEvent::Type type, const QPoint& position) {
        QMouseEvent event(type, position, top.mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&top, &event);
    };
    send(QEvent::MouseButtonPress, QPoint(0, 0));
    send(QEvent::MouseMove, QPoint(9, 9));
    QCOMPARE(top.pos(), start);
}

void BaseDialogTest::otherKeysAreSwallowed_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Home") << Qt::Key_Home;
    QTest::newRow("letter") << Qt::Key_A;
    QTest::newRow("function key") << Qt::Key_F1;
}

void BaseDialogTest::otherKeysAreSwallowed()
{
    QFETCH(Qt::Key, key);
    auto* dialog = show<IErrorMessageDialog>();
    press(dialog, key);
    QVERIFY(window(dialog).isVisible());
    QVERIFY(events.isEmpty());
}

void BaseDialogTest::execReturnsWhatTheHostSays()
{
    auto* dialog = get<IAcceptMessageDialog>();
    QTimer::singleShot(0, this, [this, dialog] {
        click(dialog, "btnMessageInnerButton");
        QVERIFY(window(dialog).isVisible());
        dialog->done(42);
    });
    QCOMPARE(dialog->exec(), 42);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evOk")});
}

void BaseDialogTest::labelEmitsOnEveryPress()
{
    QLabelEx label;
    const QSignalSpy clicks(&label, &QLabelEx::click);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(&label, button);
    QCOMPARE(clicks.count(), 3);
}

GUI_TEST_MAIN(BaseDialogTest)
#include "tst_basedialog.moc"
