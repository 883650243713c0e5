#include "GuiTest.h"

#include <QLineEdit>
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
    void ports();
    void hiddenParts();
    void groupsFitAtEveryRatio();
    void keyboardReachesEverything();
};

void OptionsTest::events_data()
{
    textColumns({"actions", "event"});
    textRow({"reject() close btnClose btnCancel", "evClose"});
    textRow({"accept() btnSave", "evSave"});
    textRow({"slDeactivateAccount()", "evDeactivate"});
    textRow({"Escape", ""});
}

void OptionsTest::events()
{
    QFETCH(QString, actions);
    QFETCH(QString, event);
    auto* dialog = show<IOptionDialog>();
    checkEvents(dialog, actions, event);
    QCOMPARE(window(dialog).windowModality(), Qt::ApplicationModal);
    QCOMPARE(window(dialog).windowTitle(), QStringLiteral(" Tavik Options"));
}

void OptionsTest::saveFollowsTheProxy_data()
{
    textColumns({"proxy", "address", "authentication", "login", "event"});
    textRow({"", "", "", "", "evSave"});
    textRow({"", "", "on", "", "evSave"});
    textRow({"on", "", "", "", ""});
    textRow({"on", "", "on", "anna", ""});
    textRow({"on", " ", "", "", "evSave"});
    textRow({"on", "proxy.example", "on", "", ""});
    textRow({"on", "proxy.example", "on", " ", "evSave"});
}

void OptionsTest::saveFollowsTheProxy()
{
    QFETCH(QString, proxy);
    QFETCH(QString, address);
    QFETCH(QString, authentication);
    QFETCH(QString, login);
    QFETCH(QString, event);
    auto* dialog = show<IOptionDialog>();
    QVERIFY(child(dialog, "btnSave").isEnabled());
    dialog->setProxyEnabled(!proxy.isEmpty());
    dialog->setProxyAuthEnabled(!authentication.isEmpty());
    dialog->setProxyAddress(address);
    dialog->setProxyLogin(login);
    checkEvents(dialog, QStringLiteral("btnSave"), event);
}

void OptionsTest::returnSavesEvenIncomplete()
{
    auto* dialog = show<IOptionDialog>();
    dialog->setProxyEnabled(true);
    QVERIFY(!child(dialog, "btnSave").isEnabled());
    for (const char* name : {"edtAdress", "spnbxPort", "chkShowIcon", "proxyGroupBox"}) {
        child(dialog, name).setFocus();
        checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evSave"));
    }
    // A focused button takes the key for itself.
    child(dialog, "btnCancel").setFocus();
    checkEvents(dialog, QStringLiteral("Enter"), QStringLiteral("evClose"));
}

void OptionsTest::saveFollowsTyping()
{
    auto* dialog = show<IOptionDialog>();
    const auto typeInto = [dialog](const char* name, Qt::Key key) {
        child(dialog, name).setFocus();
        press(dialog, key);
        return child(dialog, "btnSave").isEnabled();
    };
    QVERIFY(!typeInto("proxyGroupBox", Qt::Key_Space));
    QVERIFY(typeInto("edtAdress", Qt::Key_P));
    QVERIFY(!typeInto("proxyAuthGroupBox", Qt::Key_Space));
    QVERIFY(typeInto("edtProxyLogin", Qt::Key_L));
    QVERIFY(!typeInto("edtAdress", Qt::Key_Backspace));
    QVERIFY(dialog->isProxyEnabled() && dialog->isProxyAuthEnabled());
}

void OptionsTest::groupsSwitchTheirFields()
{
    auto* dialog = show<IOptionDialog>();
    for (const bool authentication : {false, true}) {
        for (const bool proxy : {false, true}) {
            dialog->setProxyAuthEnabled(authentication);
            dialog->setProxyEnabled(proxy);
            for (const char* name : {"edtAdress", "spnbxPort", "proxyAuthGroupBox"})
                QCOMPARE(child(dialog, name).isEnabled(), proxy);
            for (const char* name : {"edtProxyLogin", "edtProxyPassword"})
                QCOMPARE(child(dialog, name).isEnabled(), proxy && authentication);
        }
    }
}

void OptionsTest::valuesComeBack()
{
    auto* dialog = get<IOptionDialog>();
    QVERIFY(!dialog->isShowTrayIcon() && !dialog->isAutoUpdate());
    QVERIFY(!dialog->isProxyEnabled() && !dialog->isProxyAuthEnabled());
    for (const bool value : {true, false}) {
        dialog->setShowTrayIcon(value);
        dialog->setAutoUpdate(!value);
        QCOMPARE(dialog->isShowTrayIcon(), value);
        QCOMPARE(dialog->isAutoUpdate(), !value);
    }
    const QString text = QStringLiteral("%1  <b>&amp; ") + QString(1000, QLatin1Char('x')) + QLatin1Char(' ');
    dialog->setProxyAddress(text.arg(1));
    dialog->setProxyLogin(text.arg(2));
    dialog->setProxyPassword(text.arg(3));
    QCOMPARE(dialog->getProxyAddress(), text.arg(1));
    QCOMPARE(dialog->getProxyLogin(), text.arg(2));
    QCOMPARE(dialog->getProxyPassword(), text.arg(3));
    QCOMPARE(child<QLineEdit>(dialog, "edtProxyPassword").echoMode(), QLineEdit::Password);
    QVERIFY(messages().filter(QLatin1String("xxx")).isEmpty());
}

void OptionsTest::ports()
{
    auto* dialog = show<IOptionDialog>();
    for (const quint16 port : {0, 1, 8080, 65535}) {
        dialog->setProxyPort(port);
        QCOMPARE(dialog->getProxyPort(), qMax<int>(port, 1));
    }
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
    dialog->setAutoUpdate(true);
    for (const bool hide : {true, false}) {
        deactivate.show();
        dialog->hideDeactivateButton(hide);
        QVERIFY(!deactivate.isVisible());
        dialog->setAutoUpdateHidden(hide);
        QCOMPARE(child(dialog, "chkAutoUpdate").isVisible(), !hide);
        QVERIFY(dialog->isAutoUpdate());
    }
}

void OptionsTest::groupsFitAtEveryRatio()
{
    for (const float ratio : {1.0F, 1.25F, 3.0F}) {
        gui().setRatio(ratio);
        auto* dialog = show<IOptionDialog>();
        for (const char* name :
             {"edtProxyLogin", "edtProxyPassword", "lblProxyLogin", "lblProxyPassword", "edtAdress", "spnbxPort"}) {
            const QWidget& widget = child(dialog, name);
            QVERIFY2(widget.visibleRegion().boundingRect() == widget.rect(), name);
        }
    }
}

void OptionsTest::keyboardReachesEverything()
{
    auto* dialog = get<IOptionDialog>();
    dialog->setProxyEnabled(true);
    dialog->setProxyAddress(QStringLiteral("proxy.example"));
    dialog->setProxyLogin(QStringLiteral("anna"));
    dialog->setProxyAuthEnabled(true);
    showActive(dialog);
    QCOMPARE(tabOrder(dialog),
             QStringLiteral("chkShowIcon chkAutoUpdate proxyGroupBox edtAdress spnbxPort proxyAuthGroupBox "
                            "edtProxyLogin edtProxyPassword btnSave btnCancel"));
}

GUI_TEST_MAIN(OptionsTest)
#include "tst_options.moc"
