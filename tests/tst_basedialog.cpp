#include "GuiTest.h"

/// What every dialog inherits, shown on the error message.
class BaseDialogTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void dragging();
};

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

GUI_TEST_MAIN(BaseDialogTest)
#include "tst_basedialog.moc"
