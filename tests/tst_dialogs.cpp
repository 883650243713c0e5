#include "GuiTest.h"

#include <QAbstractButton>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QScreen>

/// What each dialog, those of remote sessions aside, reports for clicks, keys, slots and requests to close, where Tab
/// leads, what it holds at first, and what kind of window it is.
class DialogsTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void events_data();
    void events();
    void shownAgain_data();
    void shownAgain();
    void tabOrders_data();
    void tabOrders();
    void windows_data();
    void windows();
    void firstValues_data();
    void firstValues();
    void switches();

private:
    static void preset(IBaseDialog* dialog, const QString& family, const QString& values);
};

void DialogsTest::preset(IBaseDialog* dialog, const QString& family, const QString& values)
{
    const QJsonObject properties = QJsonDocument::fromJson(values.toUtf8()).object();
    QCOMPARE(properties.isEmpty(), values.isEmpty());
    for (auto property = properties.begin(); property != properties.end(); ++property)
        dialogFamily(family).set(*dialog, property.key(), property.value());
}

void DialogsTest::events_data()
{
    textColumns({"family", "values", "focus", "actions", "event"});
    const auto add = [](const char* family, const char* actions, const char* event, const char* values = "",
                        const char* focus = "") {
        textRow({family, values, focus, actions, event});
    };
    add("ErrorMessageDialog", "reject() slClose() close btnCancel btnClose", "evClose");
    add("ErrorMessageDialog", "Return Enter slInnerButtonClick()", "evTryAgain");
    add("ErrorMessageDialog", "Escape Space", "");
    add("ErrorMessageDialog", "Return", "evClose", "", "btnCancel");

    add("AcceptMessageDialog", "slClose() btnCancel btnClose", "evClose");
    add("AcceptMessageDialog", "Return reject() close btnMessageInnerButton", "evOk");

    add("ProgressDialog", "Space Return Enter Escape A accept()", "");
    add("ProgressDialog", "btnCancel btnClose", "evCancel");
    add("ProgressDialog", "Space", "evCancel", "", "btnCancel");
    add("ProgressDialog", "reject() close", "evClose");

    add("RebootDialog", "Return Enter postponeButton", "evPostpone");
    add("RebootDialog", "Escape R Space", "");
    add("RebootDialog", "closed()", "evClosed");
    add("RebootDialog", "rebootNowButton", "evRebootNow");
    add("RebootDialog", "Return Enter", "evPostpone", "", "rebootNowButton");
    add("RebootDialog", "Space", "evRebootNow", "", "rebootNowButton");
    add("RebootDialog", "Escape", "", "", "postponeButton");

    add("AboutDialog", "Return Enter Space accept() reject() close btnOk btnClose", "evClose");
    add("AboutDialog", "btnUpdateNow", "evUpdateNow");
    add("AboutDialog", "Return Enter", "evLinkClicked", "", "lblWebSiteLink");

    add("AuthorizationDialog", "reject() slClose() close btnCancel btnClose", "evClose");
    add("AuthorizationDialog", "Return Enter accept() slLogin() btnLogin Escape", "");
    add("AuthorizationDialog", "Return Enter accept() slLogin() btnLogin", "evLogin", R"({"password": " "})");
    add("AuthorizationDialog", "goToWeb() lblWebLink", "evGoToWeb");
    add("AuthorizationDialog", "Return Enter", "evGoToWeb", R"({"password": "x"})", "lblWebLink");

    add("ActivationDialog", "reject() slClose() close btnCancel btnClose", "evClose");
    add("ActivationDialog", "Return Enter accept() slActivate()", "evEnroll");
    add("ActivationDialog", "Escape toggleStep() btnActivateNow", "", R"({"serverUrl": "https://mdm.example.com"})");
    add("ActivationDialog", "btnActivateNow", "evEnroll", R"({"token": " "})");
    add("ActivationDialog", "goToRegistration()", "evGoToRegistration");

    add("ZentPasswordDialog", "reject() slClose() close btnCancel", "evClose");
    add("ZentPasswordDialog", "Return Enter accept() slContinue() btnContinue Escape", "");
    add("ZentPasswordDialog", "Return Enter accept() slContinue() btnContinue", "evContinue", R"({"password": " "})");

    add("EnterPasswordDialog", "Return Enter accept() onOkClicked() buttonOk", "evOk");
    add("EnterPasswordDialog", "onCancelClicked() buttonCancel", "evCancel");
    add("EnterPasswordDialog", "onCloseClicked()", "evCloseClicked");

    add("OptionDialog", "reject() close btnClose btnCancel", "evClose");
    add("OptionDialog", "slDeactivateAccount()", "evDeactivate");
    add("OptionDialog", "Return accept() btnSave", "evSave");
    add("OptionDialog", "btnSave", "evSave", R"({"proxyAuthEnabled": true})");
    add("OptionDialog", "btnSave", "", R"({"proxyEnabled": true})");
    add("OptionDialog", "btnSave", "evSave", R"({"proxyEnabled": true, "proxyAddress": " "})");
    add("OptionDialog", "btnSave", "", R"({"proxyEnabled": true, "proxyAuthEnabled": true, "proxyLogin": "anna"})");
    add("OptionDialog", "btnSave", "", R"({"proxyEnabled": true, "proxyAuthEnabled": true, "proxyAddress": "p"})");
    add("OptionDialog", "btnSave", "evSave",
        R"({"proxyEnabled": true, "proxyAuthEnabled": true, "proxyAddress": "p", "proxyLogin": " "})");
    // The key saves even what is incomplete, unless a button has the focus.
    for (const char* focus : {"edtAdress", "spnbxPort", "chkShowIcon", "proxyGroupBox"})
        add("OptionDialog", "Return", "evSave", R"({"proxyEnabled": true})", focus);
    add("OptionDialog", "Enter", "evClose", "", "btnCancel");

    add("ServiceDeskTicketDialog", "Escape reject() slClose() close bnCancel btnClose", "evCancel");
    add("ServiceDeskTicketDialog", "bnSubmit", "", R"({"subject": "s"})");
    add("ServiceDeskTicketDialog", "bnSubmit", "evSubmit", R"({"subject": " ", "issueDetails": "d"})");
}

void DialogsTest::events()
{
    QFETCH(QString, family);
    QFETCH(QString, values);
    QFETCH(QString, focus);
    QFETCH(QString, actions);
    QFETCH(QString, event);
    IBaseDialog* dialog = get(family);
    preset(dialog, family, values);
    showActive(dialog);
    if (!focus.isEmpty())
        child(dialog, qPrintable(focus)).setFocus();
    checkEvents(dialog, actions, event);
}

void DialogsTest::shownAgain_data()
{
    textColumns({"family", "values", "start"});
    textRow({"ErrorMessageDialog", "", "ErrorMessageDialog"});
    textRow({"AcceptMessageDialog", "", "btnMessageInnerButton"});
    textRow({"ProgressDialog", "", "ProgressDialog"});
    textRow({"RebootDialog", "", "timeoutComboBox"});
    textRow({"AboutDialog", "", "btnOk"});
    textRow({"AuthorizationDialog", R"({"password": "x"})", "edEmail"});
    textRow({"AuthorizationDialog", R"({"username": "anna"})", "edPassword"});
    textRow({"AuthorizationDialog", R"({"username": "anna", "password": "x"})", "edPassword selected"});
    textRow({"ActivationDialog", R"({"token": "x"})", "edHost"});
    textRow({"ActivationDialog", R"({"serverUrl": "https://a", "token": "x"})", "edHost selected"});
    textRow({"ZentPasswordDialog", R"({"password": "x"})", "edPassword selected"});
    textRow({"EnterPasswordDialog", R"({"domain": "d"})", "editLogin"});
    textRow({"EnterPasswordDialog", R"({"domain": "d", "login": "l", "administratorPassword": "x"})",
             "editAdministratorPassword selected"});
    textRow({"EnterPasswordDialog", R"({"accessMode": 1, "zentPassword": "x"})", "editZentPassword selected"});
    textRow({"EnterPasswordDialog", R"({"customPasswordSelected": true})", "editZentPassword"});
    textRow({"EnterPasswordDialog", R"({"accessMode": 0, "customPasswordSelected": true})", "editDomain"});
    textRow({"OptionDialog", "", "chkShowIcon"});
    textRow({"ServiceDeskTicketDialog", R"({"issueDetails": "d"})", "edSubject"});
    textRow({"ServiceDeskTicketDialog", R"({"subject": "s"})", "txIssueDetails"});
    textRow({"ApproveRemoteConnectionDialog", R"({"countdown": 30})", "cancelButton"});
}

void DialogsTest::shownAgain()
{
    QFETCH(QString, family);
    QFETCH(QString, values);
    IBaseDialog* dialog = get(family);
    preset(dialog, family, values);
    QWidget& top = window(dialog);
    const auto start = [&] {
        showActive(dialog);
        const auto* edit = qobject_cast<QLineEdit*>(top.focusWidget());
        const bool selected = edit && edit->hasSelectedText() && edit->selectionLength() == edit->text().size();
        return top.focusWidget()->objectName() + QLatin1String(selected ? " selected" : "");
    };
    QTEST(start(), "start");
    // Whatever was used last, also while the window was not active: the next key is no part of that answer.
    for (QWidget* used : top.findChildren<QWidget*>()) {
        auto* button = qobject_cast<QAbstractButton*>(used);
        const auto* label = qobject_cast<QLabel*>(used);
        if (!button && used->focusPolicy() == Qt::NoFocus)
            continue;
        for (const bool active : {true, false}) {
            QWidget other;
            if (!active)
                other.show();
            QVERIFY(QTest::qWaitForWindowActive(active ? &top : &other));
            used->setFocus();
            if (button)
                button->setDown(true);
            dialog->hide();
            QTEST(start(), "start");
            QVERIFY(!(button && button->isDown()) && !(label && label->hasSelectedText()));
        }
    }
}

void DialogsTest::tabOrders_data()
{
    textColumns({"family", "values", "order"});
    textRow({"RebootDialog", "", "timeoutComboBox rebootNowButton postponeButton"});
    textRow({"AboutDialog", "", "btnOk lblWebSiteLink btnUpdateNow"});
    textRow({"AuthorizationDialog", R"({"password": "x"})", "edEmail edPassword btnLogin btnCancel lblWebLink"});
    textRow({"ActivationDialog", R"({"token": "x"})", "edHost edPort edToken btnActivateNow btnCancel"});
    textRow({"ZentPasswordDialog", R"({"password": "x"})", "edPassword btnContinue btnCancel"});
    textRow({"EnterPasswordDialog", "",
             "editDomain editLogin editAdministratorPassword radioButtonZentModeAccess editZentPassword buttonOk "
             "buttonCancel"});
    textRow({"OptionDialog",
             R"({"proxyEnabled": true, "proxyAuthEnabled": true, "proxyAddress": "p", "proxyLogin": "anna"})",
             "chkShowIcon chkAutoUpdate proxyGroupBox edtAdress spnbxPort proxyAuthGroupBox edtProxyLogin "
             "edtProxyPassword btnSave btnCancel"});
    textRow({"ServiceDeskTicketDialog", R"({"subject": "s", "issueDetails": "d"})",
             "edSubject cbDepartment cbPriorityLevel txIssueDetails ckIncludeDeviceData bnSubmit bnCancel"});
}

void DialogsTest::tabOrders()
{
    QFETCH(QString, family);
    QFETCH(QString, values);
    IBaseDialog* dialog = get(family);
    preset(dialog, family, values);
    showActive(dialog);
    QTEST(tabOrder(dialog), "order");
}

void DialogsTest::windows_data()
{
    textColumns({"family", "title", "modality", "onTop"});
    textRow({"ErrorMessageDialog", " Tavik ", "NonModal", "yes"});
    textRow({"AcceptMessageDialog", " Tavik ", "NonModal", "yes"});
    textRow({"ProgressDialog", " Tavik ", "NonModal", "no"});
    textRow({"RebootDialog", "Tavik Reboot", "ApplicationModal", "yes"});
    textRow({"AboutDialog", " Tavik About", "NonModal", "no"});
    textRow({"AuthorizationDialog", " Tavik Login", "WindowModal", "yes"});
    textRow({"ActivationDialog", " Tavik Enroll", "NonModal", "no"});
    textRow({"ZentPasswordDialog", " Tavik Enter password", "ApplicationModal", "no"});
    textRow({"EnterPasswordDialog", " Tavik Enter password", "ApplicationModal", "no"});
    textRow({"OptionDialog", " Tavik Options", "ApplicationModal", "no"});
    textRow({"ServiceDeskTicketDialog", " Tavik Submit ticket", "NonModal", "yes"});
}

void DialogsTest::windows()
{
    QFETCH(QString, family);
    QFETCH(QString, onTop);
    const QWidget& top = window(get(family));
    QTEST(top.windowTitle(), "title");
    QCOMPARE(top.toolTip(), family == QLatin1String("RebootDialog") ? QString() : top.windowTitle());
    QVERIFY(top.testAttribute(Qt::WA_TranslucentBackground));
    const auto modalities = QMetaEnum::fromType<Qt::WindowModality>();
    QTEST(QString::fromLatin1(modalities.valueToKey(top.windowModality())), "modality");
    Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
    QCOMPARE(top.windowFlags(), flags.setFlag(Qt::WindowStaysOnTopHint, onTop == QLatin1String("yes")));
    const QPoint center = QGuiApplication::primaryScreen()->availableGeometry().center();
    QVERIFY((top.frameGeometry().center() - center).manhattanLength() <= 2);
}

void DialogsTest::firstValues_data()
{
    textColumns({"family", "values"});
    textRow({"ErrorMessageDialog", R"({"message":""})"});
    textRow({"AcceptMessageDialog", R"({"message":""})"});
    textRow({"ProgressDialog", R"({"message":"","progress":0})"});
    textRow({"RebootDialog", R"({"message":"","postponePeriod":0,"shutdown":false})"});
    textRow({"AboutDialog", R"({"lastCommunicationTime":"n/a","server":"n/a","version":""})"});
    textRow({"OptionDialog",
             R"({"autoUpdate":false,"proxyAddress":"","proxyAuthEnabled":false,"proxyEnabled":false,)"
             R"("proxyLogin":"","proxyPassword":"","proxyPort":1,"showTrayIcon":false})"});
    textRow({"ServiceDeskTicketDialog",
             R"({"department":"","departmentIndex":-1,"includeDeviceData":false,"issueDetails":"",)"
             R"("issueDetailsMaxLength":0,"priority":"","priorityIndex":-1,"subject":"","subjectMaxLength":32767})"});
}

void DialogsTest::firstValues()
{
    QFETCH(QString, family);
    QJsonObject values = dialogFamily(family).values(*get(family));
    // It names the year in which the library was built.
    values.remove(QStringLiteral("copyright"));
    QTEST(QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact)), "values");
}

void DialogsTest::switches()
{
    int count = 0;
    for (const Family& family : dialogFamilies()) {
        // It tells which sessions run.
        if (family.name == QLatin1String("RemoteConnectionDialog"))
            continue;
        IBaseDialog* dialog = get(family.name);
        const QJsonObject before = family.values(*dialog);
        for (const QString& property : before.keys()) {
            if (!before[property].isBool())
                continue;
            ++count;
            QJsonObject after = before;
            after[property] = !before[property].toBool();
            family.set(*dialog, property, after[property]);
            QCOMPARE(family.values(*dialog), after);
            family.set(*dialog, property, before[property]);
            QCOMPARE(family.values(*dialog), before);
        }
    }
    QVERIFY(count >= 7);
}

GUI_TEST_MAIN(DialogsTest)
#include "tst_dialogs.moc"
