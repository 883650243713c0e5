#include "GuiTest.h"
#include "IRebootDialog.h"

#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextEdit>

/// The restart prompt: nobody restarts by accident, and what the host reads is what the person chose.
class RebootTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void buttons();
    void typingNeverReboots_data();
    void typingNeverReboots();
    void shownAgainItIsSafeAgain();
    void closing();
    void periods_data();
    void periods();
    void personChoosesPeriod();
    void shutdown();
    void reason();
    void reasonOpensNoFiles_data();
    void reasonOpensNoFiles();
    void longReasonScrolls();
    void windowSetUp();
};

void RebootTest::buttons()
{
    auto* dialog = show<IRebootDialog>();
    click(dialog, "rebootNowButton");
    click(dialog, "postponeButton");
    QCOMPARE(takeEvents(), (QStringList{QStringLiteral("evRebootNow"), QStringLiteral("evPostpone")}));
    QVERIFY(QMetaObject::invokeMethod(&window(dialog), "closed"));
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClosed")});
    QVERIFY(window(dialog).isVisible());
}

void RebootTest::typingNeverReboots_data()
{
    QTest::addColumn<QByteArray>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("expected");
    const QStringList postponed{QStringLiteral("evPostpone")};
    const QStringList nothing;
    QTest::newRow("return") << QByteArray() << int(Qt::Key_Return) << postponed;
    QTest::newRow("enter") << QByteArray() << int(Qt::Key_Enter) << postponed;
    QTest::newRow("space") << QByteArray() << int(Qt::Key_Space) << nothing;
    QTest::newRow("escape") << QByteArray() << int(Qt::Key_Escape) << nothing;
    QTest::newRow("cancel") << QByteArray() << int(Qt::Key_Cancel) << nothing;
    QTest::newRow("letter") << QByteArray() << int(Qt::Key_R) << nothing;
    QTest::newRow("return beside the button") << QByteArray("rebootNowButton") << int(Qt::Key_Return) << postponed;
    QTest::newRow("escape on postpone") << QByteArray("postponeButton") << int(Qt::Key_Escape) << nothing;
    QTest::newRow("on purpose") << QByteArray("rebootNowButton") << int(Qt::Key_Space)
                                << QStringList{QStringLiteral("evRebootNow")};
}

void RebootTest::typingNeverReboots()
{
    QFETCH(QByteArray, focus);
    QFETCH(int, key);
    auto* dialog = show<IRebootDialog>();
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "timeoutComboBox"));
    QVERIFY(child<QPushButton>(dialog, "postponeButton").isDefault());
    if (!focus.isEmpty())
        child(dialog, focus.constData()).setFocus();
    QVERIFY(!child<QPushButton>(dialog, "rebootNowButton").isDefault());
    QTest::sendKeyEvent(QTest::Click, window(dialog).focusWidget(), static_cast<Qt::Key>(key), QString(),
                        Qt::NoModifier);
    QTEST(takeEvents(), "expected");
    QVERIFY(window(dialog).isVisible());
    child<QComboBox>(dialog, "timeoutComboBox").hidePopup();
}

void RebootTest::shownAgainItIsSafeAgain()
{
    auto* dialog = show<IRebootDialog>();
    click(dialog, "rebootNowButton");
    dialog->hide();
    takeEvents();
    showActive(dialog);
    press(dialog, Qt::Key_Space);
    child<QComboBox>(dialog, "timeoutComboBox").hidePopup();
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evPostpone")});
}

void RebootTest::closing()
{
    auto* dialog = show<IRebootDialog>();
    QVERIFY(window(dialog).close());
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClosed")});
    QVERIFY(!window(dialog).isVisible());
}

void RebootTest::periods_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("chosen");
    for (int period = 0; period < 4; ++period)
        QTest::newRow(qPrintable(QString::number(period))) << period << period;
    QTest::newRow("7") << 7 << 0;
    QTest::newRow("4") << 4 << 0;
    QTest::newRow("-1") << -1 << 0;
}

void RebootTest::periods()
{
    QFETCH(int, period);
    QFETCH(int, chosen);
    auto* dialog = get<IRebootDialog>();
    auto& list = child<QComboBox>(dialog, "timeoutComboBox");
    QCOMPARE(dialog->getPostponePeriod(), 0);
    dialog->setPostponePeriod(2);
    dialog->setPostponePeriod(period);
    QCOMPARE(dialog->getPostponePeriod(), chosen);
    const QStringList texts{QStringLiteral("10 minutes"), QStringLiteral("30 minutes"), QStringLiteral("1 hour"),
                            QStringLiteral("4 hours")};
    QCOMPARE(list.count(), texts.size());
    QCOMPARE(list.currentText(), texts.at(chosen));
    list.setCurrentIndex(-1);
    QCOMPARE(dialog->getPostponePeriod(), 0);
}

void RebootTest::personChoosesPeriod()
{
    auto* dialog = show<IRebootDialog>();
    press(dialog, Qt::Key_Down);
    press(dialog, Qt::Key_Down);
    QCOMPARE(dialog->getPostponePeriod(), 2);
    press(dialog, Qt::Key_Tab);
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "rebootNowButton"));
    press(dialog, Qt::Key_Tab);
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "postponeButton"));
    QVERIFY(takeEvents().isEmpty());
}

void RebootTest::shutdown()
{
    auto* dialog = get<IRebootDialog>();
    const auto& button = child<QPushButton>(dialog, "rebootNowButton");
    QVERIFY(!dialog->isShutdown());
    QCOMPARE(button.text(), QStringLiteral("Reboot now"));
    dialog->setShutdown(true);
    QVERIFY(dialog->isShutdown());
    QCOMPARE(button.text(), QStringLiteral("Shutdown now"));
    QCOMPARE(window(dialog).windowTitle(), QStringLiteral("Tavik Reboot"));
    dialog->setShutdown(false);
    QVERIFY(!dialog->isShutdown());
    QCOMPARE(button.text(), QStringLiteral("Reboot now"));
}

void RebootTest::reason()
{
    auto* dialog = get<IRebootDialog>();
    QVERIFY(dialog->getMessage().isEmpty());
    dialog->setMessage(QStringLiteral("<b>Updates</b> were <i>installed</i>."));
    QCOMPARE(dialog->getMessage(), QStringLiteral("Updates were installed."));
    dialog->setMessage(QStringLiteral("plain & simple < 5"));
    QCOMPARE(dialog->getMessage(), QStringLiteral("plain & simple < 5"));
    auto& text = child<QTextEdit>(dialog, "rebootReasonLabel");
    QVERIFY(text.isReadOnly());
    QCOMPARE(text.focusPolicy(), Qt::NoFocus);
    QCOMPARE(text.document()->defaultFont().family(), QStringLiteral("Arial"));
}

void RebootTest::reasonOpensNoFiles_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("picture by path") << QStringLiteral("<img src='PATH'>");
    QTest::newRow("picture by address") << QStringLiteral("<img src='file://PATH'>");
    QTest::newRow("background") << QStringLiteral("<p style='background-image:url(PATH)'>text</p>");
    QTest::newRow("inline data") << QStringLiteral("<img src='data:image/png;base64,DATA'>");
}

void RebootTest::reasonOpensNoFiles()
{
    QFETCH(QString, html);
    // A large red picture that nobody can overlook if it is loaded.
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("red.png"));
    QImage red(300, 300, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    auto* dialog = show<IRebootDialog>();
    html.replace(QLatin1String("PATH"), path);
    html.replace(QLatin1String("DATA"), QString::fromLatin1(file.readAll().toBase64()));
    dialog->setMessage(html);

    auto& text = child<QTextEdit>(dialog, "rebootReasonLabel");
    QVERIFY(text.document()->size().height() < 100);
    const QImage shown = text.grab().toImage();
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x)
            QVERIFY(shown.pixelColor(x, y) != QColor(Qt::red));
    }
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
    QCOMPARE(window(dialog).focusWidget(), static_cast<QWidget*>(&bar));
    press(dialog, Qt::Key_End);
    QTRY_COMPARE(bar.value(), bar.maximum());
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evPostpone")});
}

void RebootTest::windowSetUp()
{
    auto* dialog = get<IRebootDialog>();
    const QWidget& top = window(dialog);
    QVERIFY(top.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(top.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!top.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QCOMPARE(top.windowModality(), Qt::ApplicationModal);
    QCOMPARE(top.size(), QSize(482, 231));
    const QPoint distance =
        top.frameGeometry().center() - QGuiApplication::primaryScreen()->availableGeometry().center();
    QVERIFY(distance.manhattanLength() <= 2);
    QCOMPARE(child<QLabel>(dialog, "lblAppName").text(), QStringLiteral(" Tavik"));
}

GUI_TEST_MAIN(RebootTest)
#include "tst_reboot.moc"
