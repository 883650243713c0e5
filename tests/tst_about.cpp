#include "GuiTest.h"
#include "IAboutDialog.h"

#include <QDate>
#include <QFile>
#include <QLabel>
#include <QPluginLoader>
#include <QTemporaryDir>

/// The About box: its values, its three events, and the support contacts of the branding file.
class AboutTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void events_data();
    void events();
    void linkIsReachedByKeyboard();
    void firstValues();
    void valuesAreShownLiterally_data();
    void valuesAreShownLiterally();
    void longValuesAreElided();
    void copyrightLines();
    void comesToTheFront();
    void contacts_data();
    void contacts();
};

void AboutTest::events_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("expected");
    const QStringList close{QStringLiteral("evClose")};
    QTest::newRow("ok") << QByteArray("btnOk") << 0 << close;
    QTest::newRow("close button") << QByteArray("btnClose") << 0 << close;
    QTest::newRow("update") << QByteArray("btnUpdateNow") << 0 << QStringList{QStringLiteral("evUpdateNow")};
    QTest::newRow("return") << QByteArray() << int(Qt::Key_Return) << close;
    QTest::newRow("enter") << QByteArray() << int(Qt::Key_Enter) << close;
    QTest::newRow("space") << QByteArray() << int(Qt::Key_Space) << close;
    QTest::newRow("escape") << QByteArray() << int(Qt::Key_Escape) << QStringList();
}

void AboutTest::events()
{
    QFETCH(QByteArray, button);
    QFETCH(int, key);
    auto* dialog = show<IAboutDialog>();
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "btnOk"));
    if (button.isEmpty())
        press(dialog, static_cast<Qt::Key>(key));
    else
        click(dialog, button.constData());
    QTEST(takeEvents(), "expected");
    QVERIFY(window(dialog).isVisible());
    QVERIFY(QMetaObject::invokeMethod(&window(dialog), "reject"));
    QVERIFY(!window(dialog).close());
    QCOMPARE(takeEvents(), (QStringList{QStringLiteral("evClose"), QStringLiteral("evClose")}));
}

void AboutTest::linkIsReachedByKeyboard()
{
    auto* dialog = show<IAboutDialog>();
    const QStringList clicked{QStringLiteral("evLinkClicked")};
    press(dialog, Qt::Key_Tab);
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "lblWebSiteLink"));
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents(), clicked);
    QTest::mouseClick(&child(dialog, "lblWebSiteLink"), Qt::LeftButton, Qt::NoModifier, QPoint(12, 8));
    QCOMPARE(takeEvents(), clicked);
    press(dialog, Qt::Key_Tab);
    QCOMPARE(window(dialog).focusWidget(), &child(dialog, "btnUpdateNow"));
}

void AboutTest::firstValues()
{
    auto* dialog = show<IAboutDialog>();
    QVERIFY(dialog->getVersion().isEmpty());
    QCOMPARE(dialog->getServer(), QStringLiteral("n/a"));
    QCOMPARE(dialog->getLastCommunicationTime(), QStringLiteral("n/a"));
    // Built this year or, around New Year, last year.
    const QRegularExpression year(QStringLiteral("^ (20\\d\\d) Brisel$"));
    const int built = year.match(dialog->getCopyright()).captured(1).toInt();
    QVERIFY(built >= 2024 && built <= QDate::currentDate().year());
    QCOMPARE(window(dialog).windowTitle(), QStringLiteral(" Tavik About"));
    QCOMPARE(child<QLabel>(dialog, "lblWebSiteLink").text(),
             QStringLiteral("<html><head/><body><p><a href=\"https://support.brisel.example\"><span style=\" "
                            "text-decoration: underline; color:#0000ff;\">https://support.brisel.example</span></a>"
                            "</p></body></html>"));
    QVERIFY(!child<QLabel>(dialog, "lblWebSiteLink").openExternalLinks());
}

void AboutTest::valuesAreShownLiterally_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("plain") << QStringLiteral("a & b") << QStringLiteral("a & b");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("lines") << QStringLiteral("a\nb") << QStringLiteral("a\nb");
    QTest::newRow("markup") << QStringLiteral("<b>%1</b>")
                            << QStringLiteral("<span style=\"white-space:pre-wrap\">&lt;b&gt;%1&lt;/b&gt;</span>");
    QTest::newRow("long") << QString(100000, QLatin1Char('m')) << QString(100000, QLatin1Char('m'));
}

void AboutTest::valuesAreShownLiterally()
{
    QFETCH(QString, value);
    auto* dialog = show<IAboutDialog>();
    dialog->setVersion(value);
    dialog->setCopyright(value);
    dialog->setServer(value);
    dialog->setLastCommunicationTime(value);
    QCOMPARE(dialog->getVersion(), value);
    QCOMPARE(dialog->getCopyright(), value);
    QCOMPARE(dialog->getServer(), value);
    QCOMPARE(dialog->getLastCommunicationTime(), value);
    for (const char* name : {"lblVersionNumber", "lblCopyright", "cdm_server", "last_communication_time"}) {
        QCOMPARE(child<QLabel>(dialog, name).textFormat(), Qt::PlainText);
        QTEST(child<QLabel>(dialog, name).toolTip(), "toolTip");
    }
    QVERIFY(!window(dialog).grab().isNull());
}

void AboutTest::longValuesAreElided()
{
    auto* dialog = show<IAboutDialog>();
    auto& server = child<QLabel>(dialog, "cdm_server");
    const QString start = QStringLiteral("WWWW");
    const auto picture = [&](const QString& name) {
        dialog->setServer(name);
        return server.grab().toImage();
    };
    const QImage whole = picture(start + QString(10, QLatin1Char('i')));
    QCOMPARE(picture(start + QString(400, QLatin1Char('i')) + start),
             picture(start + QString(900, QLatin1Char('i')) + start));
    QVERIFY(picture(start + QString(400, QLatin1Char('i')) + start) != picture(start + QString(400, QLatin1Char('i'))));
    QVERIFY(whole != picture(start));
}

void AboutTest::copyrightLines()
{
    auto* dialog = show<IAboutDialog>();
    for (const bool visible : {false, true}) {
        dialog->setCopyrightVisible(visible);
        QCOMPARE(child(dialog, "lblCopyright").isVisible(), visible);
        QCOMPARE(child(dialog, "lblAllRightsReserved").isVisible(), visible);
    }
}

void AboutTest::comesToTheFront()
{
    auto* dialog = get<IAboutDialog>();
    window(dialog).showMinimized();
    dialog->show();
    QVERIFY(window(dialog).isVisible());
    QVERIFY(!window(dialog).isMinimized());
    QTRY_VERIFY(window(dialog).isActiveWindow());
    QVERIFY(gui().deleteAboutDialogInstance());
    settle();
    QVERIFY(!messages().filter(QLatin1String("About dialog destroyed")).isEmpty());
}

void AboutTest::contacts_data()
{
    QTest::addColumn<QByteArray>("branding");
    QTest::addColumn<QString>("phone");
    QTest::addColumn<QString>("email");
    QTest::addColumn<int>("height");
    QTest::newRow("none") << QByteArray() << QString() << QString() << 324;
    QTest::newRow("phone") << QByteArray("supportPhone=+49 30 1234567") << QStringLiteral("+49 30 1234567") << QString()
                           << 348;
    QTest::newRow("e-mail") << QByteArray("supportEmail=help@brisel.example") << QString()
                            << QStringLiteral("help@brisel.example") << 348;
    QTest::newRow("both, with markup") << QByteArray("supportPhone=<b>1</b>\nsupportEmail=\"a&b, <i>%1</i>\"\n"
                                                     "supportWebsite=\"https://brisel.example/?a=1&b=%1<script>'\\\"\"")
                                       << QStringLiteral("<b>1</b>") << QStringLiteral("a&b, <i>%1</i>") << 372;
}

void AboutTest::contacts()
{
    QFETCH(QByteArray, branding);
    QFETCH(QString, phone);
    QFETCH(QString, email);
    QFETCH(int, height);
    // A copy of the plugin is another library, which reads its branding when it is loaded.
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/oem.strings"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(branding);
    file.close();
    const QTemporaryDir directory;
    const QString copy = directory.filePath(QStringLiteral("libGuiCopy.so"));
    QVERIFY(QFile::copy(QStringLiteral(GUI_PLUGIN), copy));
    QPluginLoader loader(copy);
    auto* brandedGui = qobject_cast<GuiInterface*>(loader.instance());
    QVERIFY2(brandedGui, qPrintable(loader.errorString()));
    QVERIFY(file.remove());

    IAboutDialog* dialog = brandedGui->getAboutDialogInstance();
    showActive(dialog);
    QCOMPARE(window(dialog).height(), height);
    const QWidget& phoneBlock = child(dialog, "supportPhoneBlock");
    const QWidget& emailBlock = child(dialog, "supportEmailBlock");
    QCOMPARE(phoneBlock.isVisible(), !phone.isEmpty());
    QCOMPARE(emailBlock.isVisible(), !email.isEmpty());
    QCOMPARE(child<QLabel>(dialog, "lblSupportPhone").text(), phone);
    QCOMPARE(child<QLabel>(dialog, "lblSupportEmail").text(), email);
    // No gap and no overlap: the rows follow each other at one distance.
    int row = child(dialog, "label_3").y();
    for (const QWidget* block : {&phoneBlock, &emailBlock}) {
        if (block->isVisible())
            QCOMPARE(block->y(), row += 24);
    }
    QCOMPARE(child(dialog, "lblWebSiteLink").y(), row + 27);
    QVERIFY(child(dialog, "btnOk").y() > child(dialog, "content").geometry().bottom());
    if (branding.contains("script")) {
        QVERIFY(child<QLabel>(dialog, "lblWebSiteLink")
                    .text()
                    .contains(QLatin1String(">https://brisel.example/?a=1&amp;b=%1&lt;script&gt;'&quot;<")));
    }
    QVERIFY(brandedGui->deleteAboutDialogInstance());
    settle();
}

GUI_TEST_MAIN(AboutTest)
#include "tst_about.moc"
