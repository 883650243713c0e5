#include "GuiTest.h"

#include <QLabel>
#include <QPushButton>

/// The error message and the confirmation: what each click and key reports, and what is shown of the host's text.
class MessagesTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void events_data();
    void events();
    void focusedButtonTakesReturn();
    void messageIsShownLiterally_data();
    void messageIsShownLiterally();
    void fixedForm_data();
    void fixedForm();
};

void MessagesTest::events_data()
{
    QTest::addColumn<QString>("dialogName");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("event");
    const QString error = QStringLiteral("ErrorMessageDialog");
    const QString confirmation = QStringLiteral("AcceptMessageDialog");
    QTest::newRow("error, cancel") << error << QByteArray("btnCancel") << 0 << QStringLiteral("evClose");
    QTest::newRow("error, close") << error << QByteArray("btnClose") << 0 << QStringLiteral("evClose");
    QTest::newRow("error, return") << error << QByteArray() << int(Qt::Key_Return) << QStringLiteral("evTryAgain");
    QTest::newRow("error, enter") << error << QByteArray() << int(Qt::Key_Enter) << QStringLiteral("evTryAgain");
    QTest::newRow("error, space") << error << QByteArray() << int(Qt::Key_Space) << QString();
    QTest::newRow("error, escape") << error << QByteArray() << int(Qt::Key_Escape) << QString();
    QTest::newRow("confirmation, ok") << confirmation << QByteArray("btnMessageInnerButton") << 0
                                      << QStringLiteral("evOk");
    QTest::newRow("confirmation, cancel") << confirmation << QByteArray("btnCancel") << 0 << QStringLiteral("evClose");
    QTest::newRow("confirmation, close") << confirmation << QByteArray("btnClose") << 0 << QStringLiteral("evClose");
    QTest::newRow("confirmation, return")
        << confirmation << QByteArray() << int(Qt::Key_Return) << QStringLiteral("evOk");
    QTest::newRow("confirmation, escape") << confirmation << QByteArray() << int(Qt::Key_Escape) << QString();
}

void MessagesTest::events()
{
    QFETCH(QString, dialogName);
    QFETCH(QByteArray, button);
    QFETCH(int, key);
    QFETCH(QString, event);
    IBaseDialog* dialog = get(dialogName);
    showActive(dialog);
    for (int round = 0; round < 2; ++round) {
        if (button.isEmpty())
            press(dialog, static_cast<Qt::Key>(key));
        else
            click(dialog, button.constData());
        QCOMPARE(takeEvents(), event.isEmpty() ? QStringList() : QStringList{event});
        QVERIFY(window(dialog).isVisible());
    }
    // The system's close request and code that rejects speak through the same two functions.
    QVERIFY(QMetaObject::invokeMethod(&window(dialog), "reject"));
    QVERIFY(!window(dialog).close());
    const QString rejected =
        dialogName == QLatin1String("ErrorMessageDialog") ? QStringLiteral("evClose") : QStringLiteral("evOk");
    QCOMPARE(takeEvents(), (QStringList{rejected, rejected}));
}

void MessagesTest::focusedButtonTakesReturn()
{
    auto* dialog = show<IErrorMessageDialog>();
    press(dialog, Qt::Key_Tab);
    QVERIFY(child(dialog, "btnCancel").hasFocus());
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClose")});
}

void MessagesTest::messageIsShownLiterally_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("markup") << QStringLiteral("<b>bold</b><img src=\"file:///etc/passwd\">");
    QTest::newRow("entity and place") << QStringLiteral("&lt; %1 && %n");
    QTest::newRow("lines") << QStringLiteral("one\ntwo\r\nthree");
    QTest::newRow("long") << QString(100000, QLatin1Char('m'));
}

void MessagesTest::messageIsShownLiterally()
{
    QFETCH(QString, text);
    auto* error = get<IErrorMessageDialog>();
    auto* confirmation = get<IAcceptMessageDialog>();
    QVERIFY(error->message().isEmpty());
    QVERIFY(confirmation->message().isEmpty());
    error->setMessage(text);
    confirmation->setMessage(text);
    QCOMPARE(error->message(), text);
    QCOMPARE(confirmation->message(), text);
    QCOMPARE(child<QLabel>(error, "lblMessage").textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>(confirmation, "lblMessage").textFormat(), Qt::PlainText);
    QCOMPARE(child(error, "lblMessage").geometry(), QRect(60, 320, 381, 41));
}

void MessagesTest::fixedForm_data()
{
    QTest::addColumn<QString>("dialogName");
    QTest::addColumn<QRect>("caption");
    QTest::addColumn<QRect>("innerButton");
    QTest::addColumn<QString>("innerText");
    QTest::addColumn<bool>("innerShown");
    QTest::newRow("error") << QStringLiteral("ErrorMessageDialog") << QRect(132, 12, 241, 20)
                           << QRect(190, 380, 120, 38) << QStringLiteral("Try Again") << false;
    QTest::newRow("confirmation") << QStringLiteral("AcceptMessageDialog") << QRect(112, 12, 271, 20)
                                  << QRect(190, 370, 120, 38) << QStringLiteral("OK") << true;
}

void MessagesTest::fixedForm()
{
    QFETCH(QString, dialogName);
    QFETCH(QString, innerText);
    QFETCH(bool, innerShown);
    IBaseDialog* dialog = get(dialogName);
    showActive(dialog);
    QTEST(child(dialog, "lblAppName").geometry(), "caption");
    auto& inner = child<QPushButton>(dialog, "btnMessageInnerButton");
    QTEST(inner.geometry(), "innerButton");
    QCOMPARE(inner.text(), innerText);
    QCOMPARE(inner.isVisible(), innerShown);
    QVERIFY(child(dialog, "btnClose").focusPolicy() == Qt::NoFocus);
    // Nothing lies above what a person reads or clicks.
    for (const char* name : {"lblAppName", "btnClose", "btnCancel", "lblMessage", "lblBriselLogo"}) {
        const QWidget& widget = child(dialog, name);
        QCOMPARE(window(dialog).childAt(widget.geometry().center()), &widget);
    }
}

GUI_TEST_MAIN(MessagesTest)
#include "tst_messages.moc"
