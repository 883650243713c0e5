#include "GuiTest.h"

#include <QCheckBox>
#include <QScreen>

/// What every dialog inherits, shown on the error message, and the clickable label.
class BaseDialogTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void windowSetup();
    void scaling();
    void dragging();
    void otherKeysAreSwallowed();
    void labelTakesEveryButton();
};

void BaseDialogTest::windowSetup()
{
    auto* dialog = get<IErrorMessageDialog>();
    QWidget& top = window(dialog);
    QVERIFY(top.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(top.windowFlags(), Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY((top.frameGeometry().center() - area.center()).manhattanLength() <= 2);
    QCOMPARE(top.windowTitle(), QStringLiteral(" Tavik "));
    QCOMPARE(top.toolTip(), top.windowTitle());
    for (const bool modal : {true, false}) {
        dialog->setModal(modal);
        QCOMPARE(top.windowModality(), modal ? Qt::ApplicationModal : Qt::NonModal);
    }
}

void BaseDialogTest::scaling()
{
    for (const float ratio : {0.5F, 0.75F, 1.25F, 1.5F, 3.0F}) {
        auto* dialog = get<IErrorMessageDialog>();
        QWidget& top = window(dialog);
        const QPoint center = top.geometry().center();
        const auto scaled = [ratio](int length) { return static_cast<int>(static_cast<float>(length) * ratio); };
        dialog->setRatio(ratio);
        QCOMPARE(top.size(), QSize(scaled(501), scaled(502)));
        QVERIFY((top.geometry().center() - center).manhattanLength() <= 3);
        QCOMPARE(child(dialog, "messageIcon").geometry(), QRect(scaled(125), scaled(80), scaled(253), scaled(253)));
        delete &top;
    }
}

void BaseDialogTest::dragging()
{
    auto* dialog = show<IErrorMessageDialog>();
    QWidget& top = window(dialog);
    const QPoint start = top.pos();
    const QPoint distance(25, -15);
    // What is drawn on the window is a part of the grip.
    const auto send = [surface = &child(dialog, "content")](QEvent::Type type, const QPoint& global) {
        QMouseEvent event(type, surface->mapFromGlobal(global), global, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(surface, &event);
    };
    const auto drag = [&](const QPoint& from) {
        send(QEvent::MouseButtonPress, start + from);
        send(QEvent::MouseMove, start + from + distance);
        return top.pos() - start;
    };
    const QPoint topLeftPixel(0, 0);
    QCOMPARE(drag(topLeftPixel), QPoint());
    QCOMPARE(drag(QPoint(30, 80)), distance);
    send(QEvent::MouseButtonRelease, top.pos());
    send(QEvent::MouseMove, top.pos() + 3 * distance);
    QCOMPARE(top.pos(), start + distance);
}

void BaseDialogTest::otherKeysAreSwallowed()
{
    checkEvents(show<IErrorMessageDialog>(), QStringLiteral("Escape Home A F1"), QString());
}

void BaseDialogTest::labelTakesEveryButton()
{
    auto* dialog = get<IServiceDeskTicketDialog>();
    const auto& box = child<QCheckBox>(dialog, "ckIncludeDeviceData");
    bool isChecked = box.isChecked();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&child(dialog, "lbIncludeDeviceDataText"), button);
        isChecked = !isChecked;
        QCOMPARE(box.isChecked(), isChecked);
    }
}

GUI_TEST_MAIN(BaseDialogTest)
#include "tst_basedialog.moc"
