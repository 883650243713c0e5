#include "GuiTest.h"

#include <QComboBox>
#include <QFile>
#include <QImage>
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
    void events_data();
    void events();
    void shownAgainItIsSafeAgain();
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

void RebootTest::events_data()
{
    textColumns({"focus", "actions", "event"});
    textRow({"timeoutComboBox", "Return Enter postponeButton", "evPostpone"});
    textRow({"timeoutComboBox", "Escape R Space", ""});
    textRow({"timeoutComboBox", "closed()", "evClosed"});
    textRow({"timeoutComboBox", "rebootNowButton", "evRebootNow"});
    textRow({"rebootNowButton", "Return Enter", "evPostpone"});
    textRow({"rebootNowButton", "Space", "evRebootNow"});
    textRow({"postponeButton", "Escape", ""});
}

void RebootTest::events()
{
    QFETCH(QString, focus);
    QFETCH(QString, actions);
    QFETCH(QString, event);
    auto* dialog = show<IRebootDialog>();
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "timeoutComboBox"));
    QVERIFY(child<QPushButton>(dialog, "postponeButton").isDefault());
    child(dialog, qPrintable(focus)).setFocus();
    QVERIFY(!child<QPushButton>(dialog, "rebootNowButton").isDefault());
    checkEvents(dialog, actions, event);
    child<QComboBox>(dialog, "timeoutComboBox").hidePopup();
}

void RebootTest::shownAgainItIsSafeAgain()
{
    auto* dialog = show<IRebootDialog>();
    click(dialog, "rebootNowButton");
    QVERIFY(window(dialog).close());
    QVERIFY(!window(dialog).isVisible());
    QCOMPARE(takeEvents(), QStringList({QStringLiteral("evRebootNow"), QStringLiteral("evClosed")}));
    showActive(dialog);
    QTest::sendKeyEvent(QTest::Click, window(dialog).focusWidget(), Qt::Key_Cancel, QString(), Qt::NoModifier);
    press(dialog, Qt::Key_Space);
    child<QComboBox>(dialog, "timeoutComboBox").hidePopup();
    checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evPostpone"));
}

void RebootTest::periods_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<QString>("text");
    QTest::newRow("first") << 0 << QStringLiteral("10 minutes");
    QTest::newRow("second") << 1 << QStringLiteral("30 minutes");
    QTest::newRow("third") << 2 << QStringLiteral("1 hour");
    QTest::newRow("last") << 3 << QStringLiteral("4 hours");
    QTest::newRow("behind the last") << 4 << QStringLiteral("10 minutes");
    QTest::newRow("negative") << -1 << QStringLiteral("10 minutes");
}

void RebootTest::periods()
{
    QFETCH(int, period);
    auto* dialog = get<IRebootDialog>();
    auto& list = child<QComboBox>(dialog, "timeoutComboBox");
    QCOMPARE(list.count(), 4);
    QCOMPARE(dialog->getPostponePeriod(), 0);
    dialog->setPostponePeriod(2);
    dialog->setPostponePeriod(period);
    QTEST(list.currentText(), "text");
    QCOMPARE(dialog->getPostponePeriod(), list.currentIndex());
    list.setCurrentIndex(-1);
    QCOMPARE(dialog->getPostponePeriod(), 0);
}

void RebootTest::personChoosesPeriod()
{
    auto* dialog = show<IRebootDialog>();
    press(dialog, Qt::Key_Down);
    press(dialog, Qt::Key_Down);
    QCOMPARE(dialog->getPostponePeriod(), 2);
    QCOMPARE(tabOrder(dialog), QStringLiteral("timeoutComboBox rebootNowButton postponeButton"));
    QVERIFY(takeEvents().isEmpty());
}

void RebootTest::shutdown()
{
    auto* dialog = get<IRebootDialog>();
    const auto& button = child<QPushButton>(dialog, "rebootNowButton");
    QVERIFY(!dialog->isShutdown());
    for (const bool shutdown : {true, false}) {
        dialog->setShutdown(shutdown);
        QCOMPARE(dialog->isShutdown(), shutdown);
        QCOMPARE(button.text(), shutdown ? QStringLiteral("Shutdown now") : QStringLiteral("Reboot now"));
        QCOMPARE(window(dialog).windowTitle(), QStringLiteral("Tavik Reboot"));
    }
}

void RebootTest::reason()
{
    auto* dialog = get<IRebootDialog>();
    QVERIFY(dialog->getMessage().isEmpty());
    dialog->setMessage(QStringLiteral("<b>Updates</b> were <i>installed</i>."));
    QCOMPARE(dialog->getMessage(), QStringLiteral("Updates were installed."));
    dialog->setMessage(QStringLiteral("plain & simple < 5"));
    QCOMPARE(dialog->getMessage(), QStringLiteral("plain & simple < 5"));
    QVERIFY(child<QTextEdit>(dialog, "rebootReasonLabel").isReadOnly());
}

void RebootTest::reasonOpensNoFiles_data()
{
    textColumns({"html"});
    textRow({"<img src='PATH'>"});
    textRow({"<img src='file://PATH'>"});
    textRow({"<p style='background-image:url(PATH)'>text</p>"});
    textRow({"<img src='data:image/png;base64,DATA'>"});
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
    checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evPostpone"));
}

void RebootTest::windowSetUp()
{
    const QWidget& top = window(get<IRebootDialog>());
    QCOMPARE(top.windowFlags() & (Qt::WindowStaysOnTopHint | Qt::FramelessWindowHint | Qt::WindowCloseButtonHint),
             Qt::WindowStaysOnTopHint | Qt::FramelessWindowHint);
    QCOMPARE(top.windowModality(), Qt::ApplicationModal);
    const QPoint screen = QGuiApplication::primaryScreen()->availableGeometry().center();
    QVERIFY((top.frameGeometry().center() - screen).manhattanLength() <= 2);
}

GUI_TEST_MAIN(RebootTest)
#include "tst_reboot.moc"
