#include "GuiTest.h"
#include "IOptionDialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

/// The options: what can be saved, what the groups switch off, and that values come back as they were typed.
class OptionsTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void events_data();
    void events();
    void saveFollowsTheProxy_data();
    void saveFollowsTheProxy();
    void returnSavesEvenIncomplete();
    void saveFollowsTyping();
    void groupsSwitchTheirFields();
    void valuesComeBack();
    void ports_data();
    void ports();
    void typedPort();
    void hiddenParts();
    void groupsFitAtEveryRatio_data();
    void groupsFitAtEveryRatio();
    void keyboardReachesEverything();
};

void OptionsTest::events_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("event");
    const QString close = QStringLiteral("evClose");
    const QString save = QStringLiteral("evSave");
    QTest::newRow("close button") << QByteArray("btnClose") << QByteArray() << close;
    QTest::newRow("cancel") << QByteArray("btnCancel") << QByteArray() << close;
    QTest::newRow("save") << QByteArray("btnSave") << QByteArray() << save;
    QTest::newRow("accept") << QByteArray() << QByteArray("accept") << save;
    QTest::newRow("reject") << QByteArray() << QByteArray("reject") << close;
    QTest::newRow("system") << QByteArray() << QByteArray("close") << close;
    QTest::newRow("deactivation") << QByteArray() << QByteArray("slDeactivateAccount")
                                  << QStringLiteral("evDeactivate");
}

void OptionsTest::events()
{
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, slot);
    QFETCH(QString, event);
    auto* dialog = show<IOptionDialog>();
    if (button.isEmpty())
        QVERIFY(QMetaObject::invokeMethod(&window(dialog), slot.constData()));
    else
        click(dialog, button.constData());
    QCOMPARE(takeEvents(), QStringList{event});
    press(dialog, Qt::Key_Escape);
    QVERIFY(takeEvents().isEmpty());
    QVERIFY(window(dialog).isVisible());
    QCOMPARE(window(dialog).windowModality(), Qt::ApplicationModal);
    QCOMPARE(window(dialog).windowTitle(), QStringLiteral(" Tavik Options"));
}

void OptionsTest::saveFollowsTheProxy_data()
{
    QTest::addColumn<bool>("proxy");
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("authentication");
    QTest::addColumn<QString>("login");
    QTest::addColumn<bool>("canSave");
    const QString host = QStringLiteral("proxy.example");
    QTest::newRow("no proxy") << false << QString() << false << QString() << true;
    QTest::newRow("no proxy, login missing") << false << QString() << true << QString() << true;
    QTest::newRow("no host") << true << QString() << false << QString() << false;
    QTest::newRow("no host, but a login") << true << QString() << true << QStringLiteral("anna") << false;
    QTest::newRow("host") << true << host << false << QString() << true;
    QTest::newRow("blank host") << true << QStringLiteral(" ") << false << QString() << true;
    QTest::newRow("login missing") << true << host << true << QString() << false;
    QTest::newRow("blank login") << true << host << true << QStringLiteral(" ") << true;
    QTest::newRow("complete") << true << host << true << QStringLiteral("anna") << true;
}

void OptionsTest::saveFollowsTheProxy()
{
    QFETCH(bool, proxy);
    QFETCH(QString, address);
    QFETCH(bool, authentication);
    QFETCH(QString, login);
    QFETCH(bool, canSave);
    auto* dialog = show<IOptionDialog>();
    QVERIFY(child(dialog, "btnSave").isEnabled());
    dialog->setProxyEnabled(proxy);
    dialog->setProxyAuthEnabled(authentication);
    dialog->setProxyAddress(address);
    dialog->setProxyLogin(login);
    QCOMPARE(child(dialog, "btnSave").isEnabled(), canSave);
    click(dialog, "btnSave");
    QCOMPARE(takeEvents().size(), canSave ? 1 : 0);
}

void OptionsTest::returnSavesEvenIncomplete()
{
    auto* dialog = show<IOptionDialog>();
    dialog->setProxyEnabled(true);
    QVERIFY(!child(dialog, "btnSave").isEnabled());
    for (const char* name : {"edtAdress", "spnbxPort", "chkShowIcon", "proxyGroupBox"}) {
        child(dialog, name).setFocus();
        press(dialog, Qt::Key_Return);
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("evSave")});
    }
    // A focused button takes the key for itself.
    child(dialog, "btnCancel").setFocus();
    press(dialog, Qt::Key_Enter);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClose")});
}

void OptionsTest::saveFollowsTyping()
{
    auto* dialog = show<IOptionDialog>();
    const auto& save = child<QPushButton>(dialog, "btnSave");
    child(dialog, "proxyGroupBox").setFocus();
    press(dialog, Qt::Key_Space);
    QVERIFY(dialog->isProxyEnabled() && !save.isEnabled());
    QTest::keyClicks(&child(dialog, "edtAdress"), QStringLiteral("p"));
    QVERIFY(save.isEnabled());
    child(dialog, "proxyAuthGroupBox").setFocus();
    press(dialog, Qt::Key_Space);
    QVERIFY(dialog->isProxyAuthEnabled() && !save.isEnabled());
    QTest::keyClicks(&child(dialog, "edtProxyLogin"), QStringLiteral("l"));
    QVERIFY(save.isEnabled());
    QTest::keyClick(&child(dialog, "edtAdress"), Qt::Key_Backspace);
    QVERIFY(!save.isEnabled());
}

void OptionsTest::groupsSwitchTheirFields()
{
    auto* dialog = show<IOptionDialog>();
    const auto enabled = [dialog](const char* name) { return child(dialog, name).isEnabled(); };
    for (const bool authentication : {false, true}) {
        dialog->setProxyAuthEnabled(authentication);
        dialog->setProxyEnabled(false);
        QVERIFY(!enabled("edtAdress") && !enabled("spnbxPort") && !enabled("proxyAuthGroupBox"));
        QVERIFY(!enabled("edtProxyLogin") && !enabled("edtProxyPassword"));
        dialog->setProxyEnabled(true);
        QVERIFY(enabled("edtAdress") && enabled("spnbxPort") && enabled("proxyAuthGroupBox"));
        QCOMPARE(enabled("edtProxyLogin"), authentication);
        QCOMPARE(enabled("edtProxyPassword"), authentication);
    }
}

void OptionsTest::valuesComeBack()
{
    auto* dialog = get<IOptionDialog>();
    QVERIFY(!dialog->isShowTrayIcon() && !dialog->isAutoUpdate());
    QVERIFY(!dialog->isProxyEnabled() && !dialog->isProxyAuthEnabled());
    const QString text = QStringLiteral("  <b>&amp; %1 ") + QString(1000, QLatin1Char('x')) + QLatin1Char(' ');
    for (const bool value : {true, false}) {
        dialog->setShowTrayIcon(value);
        dialog->setAutoUpdate(!value);
        QCOMPARE(dialog->isShowTrayIcon(), value);
        QCOMPARE(dialog->isAutoUpdate(), !value);
    }
    dialog->setProxyAddress(text + QLatin1Char('a'));
    dialog->setProxyLogin(text + QLatin1Char('l'));
    dialog->setProxyPassword(text + QLatin1Char('p'));
    QCOMPARE(dialog->getProxyAddress(), text + QLatin1Char('a'));
    QCOMPARE(dialog->getProxyLogin(), text + QLatin1Char('l'));
    QCOMPARE(dialog->getProxyPassword(), text + QLatin1Char('p'));
    QCOMPARE(child<QLineEdit>(dialog, "edtProxyPassword").echoMode(), QLineEdit::Password);
    QVERIFY(messages().filter(QLatin1String("xxx")).isEmpty());
}

void OptionsTest::ports_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<int>("shown");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("8080") << 8080 << 8080;
    QTest::newRow("65535") << 65535 << 65535;
}

void OptionsTest::ports()
{
    QFETCH(int, port);
    auto* dialog = get<IOptionDialog>();
    dialog->setProxyPort(static_cast<quint16>(port));
    QTEST(dialog->getProxyPort(), "shown");
}

void OptionsTest::typedPort()
{
    auto* dialog = show<IOptionDialog>();
    dialog->setProxyEnabled(true);
    auto& port = child<QSpinBox>(dialog, "spnbxPort");
    port.setFocus();
    port.selectAll();
    QTest::keyClicks(&port, QStringLiteral("99999"));
    QCOMPARE(dialog->getProxyPort(), 9999);
    press(dialog, Qt::Key_Up);
    QCOMPARE(dialog->getProxyPort(), 10000);
    port.selectAll();
    QTest::keyClicks(&port, QStringLiteral("-x0"));
    press(dialog, Qt::Key_Tab);
    QVERIFY(dialog->getProxyPort() >= 1);
}

void OptionsTest::hiddenParts()
{
    auto* dialog = show<IOptionDialog>();
    auto& deactivate = child(dialog, "btnDeactivateAntiTheft");
    QVERIFY(!deactivate.isVisible());
    for (const bool hide : {false, true}) {
        deactivate.show();
        dialog->hideDeactivateButton(hide);
        QVERIFY(!deactivate.isVisible());
    }
    dialog->setAutoUpdate(true);
    dialog->setAutoUpdateHidden(true);
    QVERIFY(!child(dialog, "chkAutoUpdate").isVisible());
    QVERIFY(dialog->isAutoUpdate());
    dialog->setAutoUpdateHidden(false);
    QVERIFY(child(dialog, "chkAutoUpdate").isVisible());
}

void OptionsTest::groupsFitAtEveryRatio_data()
{
    QTest::addColumn<float>("ratio");
    for (const float ratio : {1.0F, 1.25F, 1.5F, 2.0F, 3.0F})
        QTest::newRow(qPrintable(QString::number(static_cast<double>(ratio)))) << ratio;
}

void OptionsTest::groupsFitAtEveryRatio()
{
    QFETCH(float, ratio);
    gui().setRatio(ratio);
    auto* dialog = show<IOptionDialog>();
    const auto scaled = [ratio](int length) { return static_cast<int>(static_cast<float>(length) * ratio); };
    const QWidget& authentication = child(dialog, "proxyAuthGroupBox");
    QCOMPARE(authentication.geometry(), QRect(0, scaled(100), scaled(501), scaled(111)));
    for (const char* name :
         {"edtProxyLogin", "edtProxyPassword", "lblProxyLogin", "lblProxyPassword", "edtAdress", "spnbxPort"}) {
        const QWidget& widget = child(dialog, name);
        QVERIFY2(widget.visibleRegion().boundingRect() == widget.rect(), name);
    }
    // The inner frame may hide the outer one nowhere: they share their left, right and lower lines.
    QVERIFY(child(dialog, "content").geometry().contains(child(dialog, "proxyGroupBox").geometry()));
}

void OptionsTest::keyboardReachesEverything()
{
    auto* dialog = get<IOptionDialog>();
    dialog->setProxyEnabled(true);
    dialog->setProxyAddress(QStringLiteral("proxy.example"));
    dialog->setProxyLogin(QStringLiteral("anna"));
    dialog->setProxyAuthEnabled(true);
    showActive(dialog);
    for (const char* name :
         {"chkShowIcon", "chkAutoUpdate", "proxyGroupBox", "edtAdress", "spnbxPort", "proxyAuthGroupBox",
          "edtProxyLogin", "edtProxyPassword", "btnSave", "btnCancel", "chkShowIcon"}) {
        QCOMPARE(window(dialog).focusWidget()->objectName(), QLatin1String(name));
        press(dialog, Qt::Key_Tab);
    }
}

GUI_TEST_MAIN(OptionsTest)
#include "tst_options.moc"
