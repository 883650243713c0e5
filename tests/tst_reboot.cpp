#include "GuiTest.h"

#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QPushButton>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>

/// The restart prompt: nobody restarts by accident, and what the host reads is what the person chose.
class RebootTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void closing();
    void periods();
    void shutdown();
    void reason();
    void longReasonScrolls();
};

void RebootTest::closing()
{
    auto* dialog = show<IRebootDialog>();
    QTest::sendKeyEvent(QTest::Click, window(dialog).focusWidget(), Qt::Key_Cancel, QString(), Qt::NoModifier);
    QVERIFY(window(dialog).close());
    QVERIFY(!window(dialog).isVisible());
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClosed")});
}

void RebootTest::periods()
{
    auto* dialog = show<IRebootDialog>();
    auto& list = child<QComboBox>(dialog, "timeoutComboBox");
    for (const char* text : {"10 minutes", "30 minutes", "1 hour", "4 hours"}) {
        QCOMPARE(list.currentText(), QLatin1String(text));
        QCOMPARE(dialog->getPostponePeriod(), list.currentIndex());
        press(dialog, Qt::Key_Down);
    }
    for (const int period : {4, 3, -1, 2}) {
        dialog->setPostponePeriod(period);
        QCOMPARE(list.currentIndex(), period == 2 || period == 3 ? period : 0);
    }
    list.setCurrentIndex(-1);
    QCOMPARE(dialog->getPostponePeriod(), 0);
    QVERIFY(takeEvents().isEmpty());
}

void RebootTest::shutdown()
{
    auto* dialog = get<IRebootDialog>();
    const auto& button = child<QPushButton>(dialog, "rebootNowButton");
    QCOMPARE(button.text(), QStringLiteral("Reboot now"));
    dialog->setShutdown(true);
    QCOMPARE(button.text(), QStringLiteral("Shutdown now"));
    dialog->setShutdown(false);
    QCOMPARE(button.text(), QStringLiteral("Reboot now"));
}

void RebootTest::reason()
{
    auto* dialog = get<IRebootDialog>();
    dialog->setMessage(QStringLiteral("<b>Updates</b> were <i>installed</i>."));
    QCOMPARE(dialog->getMessage(), QStringLiteral("Updates were installed."));
    dialog->setMessage(QStringLiteral("plain & simple < 5"));
    QCOMPARE(dialog->getMessage(), QStringLiteral("plain & simple < 5"));
    const auto& text = child<QTextEdit>(dialog, "rebootReasonLabel");
    QVERIFY(text.isReadOnly());

    // No pictures, also not those that come with the text.
    QBuffer png;
    QVERIFY(QImage(300, 300, QImage::Format_Mono).save(&png, "PNG"));
    const QString data = QString::fromLatin1(png.data().toBase64());
    dialog->setMessage(QStringLiteral("<img src='data:image/png;base64,%1'>").arg(data));
    QVERIFY(text.document()->size().height() < 100);
}

void RebootTest::longReasonScrolls()
{
    auto* dialog = show<IRebootDialog>();
    auto& bar = *child<QTextEdit>(dialog, "rebootReasonLabel").verticalScrollBar();
    dialog->setMessage(QStringLiteral("short"));
    QTRY_VERIFY(!bar.isVisible());
    dialog->setMessage(QStringLiteral("A line of the reason.<br>").repeated(500));
    QTRY_VERIFY(bar.isVisible());
    for (int i = 0; i < 3; ++i)
        press(dialog, Qt::Key_Tab);
    QVERIFY(bar.hasFocus());
    press(dialog, Qt::Key_End);
    QTRY_COMPARE(bar.value(), bar.maximum());
    checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evPostpone"));
}

GUI_TEST_MAIN(RebootTest)
#include "tst_reboot.moc"
