#include "GuiTest.h"

#include <QSpinBox>
#include <QWheelEvent>

/// The options: when they can be saved, what the groups switch off, and which ports the proxy may have.
class OptionsTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void saveFollowsTyping();
    void ports();
    void hiddenParts();
    void groupsFitAtEveryRatio();
};

void OptionsTest::saveFollowsTyping()
{
    auto* dialog = show<IOptionDialog>();
    const auto typeInto = [dialog](const char* name, Qt::Key key) {
        child(dialog, name).setFocus();
        press(dialog, key);
        return child(dialog, "btnSave").isEnabled();
    };
    QVERIFY(child(dialog, "btnSave").isEnabled());
    QVERIFY(!typeInto("proxyGroupBox", Qt::Key_Space));
    QVERIFY(typeInto("edtAdress", Qt::Key_P));
    QVERIFY(!typeInto("proxyAuthGroupBox", Qt::Key_Space));
    QVERIFY(typeInto("edtProxyLogin", Qt::Key_L));
    QVERIFY(!typeInto("edtAdress", Qt::Key_Backspace));
    QVERIFY(dialog->isProxyEnabled() && dialog->isProxyAuthEnabled());
}

void OptionsTest::ports()
{
    auto* dialog = show<IOptionDialog>();
    for (const quint16 port : {0, 1, 65535, 65534}) {
        dialog->setProxyPort(port);
        QCOMPARE(dialog->getProxyPort(), qMax<int>(port, 1));
    }
    dialog->setProxyEnabled(true);
    auto& port = child<QSpinBox>(dialog, "spnbxPort");
    QWheelEvent up(QPointF(5, 5), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                   false);
    QApplication::sendEvent(&port, &up);
    QVERIFY(dialog->getProxyPort() == 65535 - 1 && !port.hasFocus());
    port.setFocus();
    port.selectAll();
    QTest::keyClicks(&port, QStringLiteral("99999"));
    QCOMPARE(dialog->getProxyPort(), 9999);
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
        for (const char* name : {"edtProxyLogin", "edtProxyPassword", "lblProxyPassword", "edtAdress", "spnbxPort"}) {
            const QWidget& widget = child(dialog, name);
            QVERIFY2(widget.visibleRegion().boundingRect() == widget.rect(), name);
        }
    }
}

GUI_TEST_MAIN(OptionsTest)
#include "tst_options.moc"
