#include "GuiTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QRadioButton>

#include <limits>

namespace {
struct Note final : IAttachment {
    /// Expires with the note.
    const std::shared_ptr<int> life = std::make_shared<int>();
};
} // namespace

/// The prompts for secrets: login, custom password and administrator's credentials.
class CredentialsTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void slotsInOrder_data();
    void slotsInOrder();
    void events_data();
    void events();
    void textIsReturnedAsTyped_data();
    void textIsReturnedAsTyped();
    void passwordsAreKept_data();
    void passwordsAreKept();
    void passwordEditing();
    void fieldsFollowTheirText_data();
    void fieldsFollowTheirText();
    void tabOrder_data();
    void tabOrder();
    void reminderLink();
    void windows();
    void accessModes_data();
    void accessModes();
    void accessModeMovesTheChoice();
    void choosingByClickAndKey();
    void firstFieldOfTheChosenWay_data();
    void firstFieldOfTheChosenWay();
    void attachments();

private:
    QRadioButton& radio(IBaseDialog* dialog, const char* name)
    {
        return child<QRadioButton>(dialog, name);
    }
};

void CredentialsTest::slotsInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("slotNames");
    const auto row = [](const char* name, const char* slotNames) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(slotNames);
    };
    row("AuthorizationDialog", "doEnableOk goToWeb doShowEmailIcon doShowPasswordIcon accept reject slClose slLogin");
    row("ActivationDialog",
        "toggleStep doEnableOk goToRegistration accept reject slClose slActivate slPasteEnrollDataFromClipboard");
    row("ZentPasswordDialog", "doEnableOk doShowPasswordIcon accept reject slClose slContinue");
    row("EnterPasswordDialog", "onOkClicked onCancelClicked onCloseClicked accept");
}

void CredentialsTest::slotsInOrder()
{
    QFETCH(QString, name);
    const QMetaObject* meta = window(get(name)).metaObject();
    QStringList names;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Slot)
            names << QString::fromLatin1(meta->method(i).name());
    }
    QTEST(names.join(QLatin1Char(' ')), "slotNames");
}

void CredentialsTest::events_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("event");
    const auto row = [](const char* name, const char* password, const char* action, const char* event) {
        QTest::addRow("%s, %s, \"%s\"", name, action, password)
            << QString::fromLatin1(name) + QStringLiteral("Dialog") << QString::fromLatin1(password)
            << QByteArray(action) << QString::fromLatin1(event);
    };
    for (const char* closing : {"btnCancel", "btnClose", "close", "reject()", "slClose()"}) {
        row("Authorization", "", closing, "evClose");
        if (qstrcmp(closing, "btnClose") != 0)
            row("ZentPassword", "", closing, "evClose");
    }
    for (const char* confirming : {"Return", "Enter", "accept()", "slLogin()", "btnLogin"}) {
        row("Authorization", "", confirming, "");
        row("Authorization", " ", confirming, "evLogin");
    }
    for (const char* confirming : {"Return", "Enter", "accept()", "slContinue()", "btnContinue"}) {
        row("ZentPassword", "", confirming, "");
        row("ZentPassword", " ", confirming, "evContinue");
    }
    for (const char* confirming : {"Return", "Enter", "accept()", "onOkClicked()", "buttonOk"})
        row("EnterPassword", "", confirming, "evOk");
    row("EnterPassword", "", "buttonCancel", "evCancel");
    row("EnterPassword", "", "onCancelClicked()", "evCancel");
    row("EnterPassword", "", "onCloseClicked()", "evCloseClicked");
    row("Authorization", "", "goToWeb()", "evGoToWeb");
    for (const char* name : {"Authorization", "ZentPassword", "EnterPassword"})
        row(name, "secret", "Escape", "");
}

void CredentialsTest::events()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(QByteArray, action);
    QFETCH(QString, event);
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    if (!password.isEmpty())
        dialogFamily(name).set(
            *dialog, name.startsWith(QLatin1Char('E')) ? QStringLiteral("zentPassword") : QStringLiteral("password"),
            password);
    const QHash<QByteArray, Qt::Key> keys{
        {"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter}, {"Escape", Qt::Key_Escape}};
    for (int round = 0; round < 2; ++round) {
        if (keys.contains(action))
            press(dialog, keys.value(action));
        else if (action == "close")
            QVERIFY(!window(dialog).close());
        else if (action.endsWith("()"))
            QVERIFY(QMetaObject::invokeMethod(&window(dialog), action.chopped(2).constData()));
        else
            click(dialog, action.constData());
        QCOMPARE(takeEvents(), event.isEmpty() ? QStringList() : QStringList{event});
        QVERIFY(window(dialog).isVisible());
    }
}

void CredentialsTest::textIsReturnedAsTyped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QByteArray>("field");
    const auto row = [](const char* name, const char* property, const char* field) {
        QTest::newRow(property) << QString::fromLatin1(name) << QString::fromLatin1(property) << QByteArray(field);
    };
    row("AuthorizationDialog", "username", "edEmail");
    row("AuthorizationDialog", "password", "edPassword");
    row("ZentPasswordDialog", "password", "edPassword");
    row("EnterPasswordDialog", "domain", "editDomain");
    row("EnterPasswordDialog", "login", "editLogin");
    row("EnterPasswordDialog", "administratorPassword", "editAdministratorPassword");
    row("EnterPasswordDialog", "zentPassword", "editZentPassword");
}

void CredentialsTest::textIsReturnedAsTyped()
{
    QFETCH(QString, name);
    QFETCH(QString, property);
    QFETCH(QByteArray, field);
    const Family& family = dialogFamily(name);
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    const auto value = [&] {
        const QString getter = QStringLiteral("get") + property.left(1).toUpper() + property.mid(1);
        return family.operation(getter).call(*dialog, QJsonArray()).toString();
    };
    auto& edit = child<QLineEdit>(dialog, field.constData());
    QTest::keyClicks(&edit, QStringLiteral("  a&b<i>%1 "));
    QCOMPARE(value(), QStringLiteral("  a&b<i>%1 "));
    const QString given = QString::fromUtf8("\xc3\xbc \xf0\x9f\x94\x91 \xd7\x90 a\nb");
    family.set(*dialog, property, given);
    QCOMPARE(value(), given);
    QCOMPARE(edit.text(), given);
}

void CredentialsTest::passwordsAreKept_data()
{
    textIsReturnedAsTyped_data();
}

void CredentialsTest::passwordsAreKept()
{
    QFETCH(QString, name);
    QFETCH(QString, property);
    QFETCH(QByteArray, field);
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, field.constData());
    const bool isPassword = property.endsWith(QLatin1String("assword"));
    QCOMPARE(edit.echoMode(), isPassword ? QLineEdit::Password : QLineEdit::Normal);
    if (!isPassword)
        return;

    const QString secret = QStringLiteral("open sesame");
    const QString other = QStringLiteral("clipboard");
    QTest::keyClicks(&edit, secret);
    QGuiApplication::clipboard()->setText(other);
    edit.selectAll();
    for (const auto key : {Qt::Key_C, Qt::Key_X, Qt::Key_Insert})
        QTest::keyClick(&edit, key, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), other);
    QVERIFY(!edit.dragEnabled());

    edit.setText(secret);
    QVERIFY(!edit.displayText().contains(QLatin1Char('s')));
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(accessible->state().passwordEdit);
    QVERIFY(!accessible->text(QAccessible::Name).isEmpty());
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        QVERIFY(!accessible->text(kind).contains(secret.left(2)));
    QCOMPARE(accessible->textInterface()->text(0, secret.size()), QString());
    press(dialog, Qt::Key_Return);
    QVERIFY(messages().filter(secret).isEmpty());
}

void CredentialsTest::passwordEditing()
{
    auto* dialog = show<IZentPasswordDialog>();
    auto& edit = child<QLineEdit>(dialog, "edPassword");
    QTest::keyClicks(&edit, QStringLiteral("secrt"));
    QTest::keyClick(&edit, Qt::Key_Left);
    QTest::keyClicks(&edit, QStringLiteral("e?"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(dialog->getPassword(), QStringLiteral("secret"));
    QCOMPARE(edit.cursorPosition(), 5);

    const auto undoAndRedo = [&edit] {
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&edit, Qt::Key_Y, Qt::ControlModifier);
    };
    undoAndRedo();
    QCOMPARE(dialog->getPassword(), QStringLiteral("secret"));
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_X);
    QVERIFY(!edit.isUndoAvailable());
    undoAndRedo();
    QCOMPARE(dialog->getPassword(), QStringLiteral("x"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    undoAndRedo();
    QCOMPARE(dialog->getPassword(), QString());

    QGuiApplication::clipboard()->setText(QStringLiteral(" pasted "));
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog->getPassword(), QStringLiteral(" pasted "));
}

void CredentialsTest::fieldsFollowTheirText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QByteArray>("button");
    const auto row = [](const char* name, const char* field, const char* picture, const char* button) {
        QTest::addRow("%s, %s", name, field)
            << QString::fromLatin1(name) << QByteArray(field) << QString::fromLatin1(picture) << QByteArray(button);
    };
    row("AuthorizationDialog", "edEmail", "username", "");
    row("AuthorizationDialog", "edPassword", "password", "btnLogin");
    row("ZentPasswordDialog", "edPassword", "password", "btnContinue");
}

void CredentialsTest::fieldsFollowTheirText()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, field);
    QFETCH(QString, picture);
    QFETCH(QByteArray, button);
    const QString hint = QStringLiteral("image: url(:/images/%1.png); image-position: left;").arg(picture);
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, field.constData());
    const auto check = [&](const QString& sheet, bool hasText) {
        QCOMPARE(edit.styleSheet(), sheet);
        if (!button.isEmpty())
            QCOMPARE(child(dialog, button.constData()).isEnabled(), hasText);
    };
    check(QString(), false);
    QTest::keyClick(&edit, Qt::Key_Space);
    check(QStringLiteral("image: none;"), true);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    check(hint, false);
    dialogFamily(name).set(*dialog, picture, QStringLiteral("x"));
    check(QStringLiteral("image: none;"), true);
    dialogFamily(name).set(*dialog, picture, QString());
    check(hint, false);
    // A widget with a sheet of its own does not inherit the dialog's font.
    QCOMPARE(edit.font().family(), QStringLiteral("Arial"));
    QCOMPARE(edit.font().pointSize(), 9);
}

void CredentialsTest::tabOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("order");
    QTest::newRow("login") << QStringLiteral("AuthorizationDialog") << QStringLiteral("password")
                           << QStringLiteral("edEmail edPassword btnLogin btnCancel lblWebLink edEmail");
    QTest::newRow("custom password") << QStringLiteral("ZentPasswordDialog") << QStringLiteral("password")
                                     << QStringLiteral("edPassword btnContinue btnCancel edPassword");
    QTest::newRow("credentials")
        << QStringLiteral("EnterPasswordDialog") << QStringLiteral("zentPassword")
        << QStringLiteral("editDomain editLogin editAdministratorPassword radioButtonZentModeAccess editZentPassword "
                          "buttonOk buttonCancel editDomain");
}

void CredentialsTest::tabOrder()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    IBaseDialog* dialog = get(name);
    dialogFamily(name).set(*dialog, password, QStringLiteral("x"));
    showActive(dialog);
    QFETCH(QString, order);
    for (const QString& expected : order.split(QLatin1Char(' '))) {
        QCOMPARE(window(dialog).focusWidget()->objectName(), expected);
        press(dialog, Qt::Key_Tab);
    }
}

void CredentialsTest::reminderLink()
{
    auto* dialog = show<IAuthorizationDialog>();
    dialog->setPassword(QStringLiteral("secret"));
    auto& label = child<QLabel>(dialog, "lblWebLink");
    QVERIFY(label.text().contains(QStringLiteral(">Forgot username or password?<")));
    QVERIFY(label.text().contains(QStringLiteral("#act=Remind\"")));
    QVERIFY(!label.openExternalLinks());

    const QStringList goToWeb{QStringLiteral("evGoToWeb")};
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(takeEvents(), goToWeb);
    // By keyboard the link is one step away, from both sides.
    child(dialog, "btnCancel").setFocus();
    press(dialog, Qt::Key_Tab);
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents(), goToWeb);
    child(dialog, "edEmail").setFocus();
    press(dialog, Qt::Key_Backtab, Qt::ShiftModifier);
    press(dialog, Qt::Key_Enter);
    QCOMPARE(takeEvents(), goToWeb);
    press(dialog, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(window(dialog).focusWidget()->objectName(), QStringLiteral("btnCancel"));
}

void CredentialsTest::windows()
{
    const QWidget& login = window(get<IAuthorizationDialog>());
    QCOMPARE(login.windowModality(), Qt::WindowModal);
    QVERIFY(login.windowFlags() & Qt::WindowStaysOnTopHint);
    QCOMPARE(login.windowTitle(), QStringLiteral(" Tavik Login"));
    for (IBaseDialog* dialog : {static_cast<IBaseDialog*>(get<IZentPasswordDialog>()),
                                static_cast<IBaseDialog*>(get<IEnterPasswordDialog>())}) {
        QCOMPARE(window(dialog).windowModality(), Qt::ApplicationModal);
        QCOMPARE(window(dialog).windowTitle(), QStringLiteral(" Tavik Enter password"));
        QCOMPARE(child<QLabel>(dialog, "lblType").text(), QStringLiteral("Enter password"));
        QCOMPARE(child<QLabel>(dialog, "lblAppName").text(), QStringLiteral(" Tavik"));
    }
    gui().deleteAuthorizationDialogInstance();
    settle();
    QVERIFY(messages().contains(QStringLiteral("AuthorizationDialog::~AuthorizationDialog()")));

    // The prompt with two ways reports its buttons only; a close request hides it.
    auto* prompt = show<IEnterPasswordDialog>();
    window(prompt).close();
    QVERIFY(!window(prompt).isVisible());
    QCOMPARE(takeEvents(), QStringList());
}

void CredentialsTest::accessModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("administrator");
    QTest::addColumn<bool>("custom");
    QTest::addColumn<bool>("customSelected");
    QTest::newRow("administrator") << 0 << true << false << false;
    QTest::newRow("custom password") << 1 << false << true << true;
    QTest::newRow("either") << 2 << true << true << false;
    for (const int mode : {-1, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QTest::addRow("%d", mode) << mode << false << false << false;
}

void CredentialsTest::accessModes()
{
    QFETCH(int, mode);
    QFETCH(bool, administrator);
    QFETCH(bool, custom);
    auto* dialog = show<IEnterPasswordDialog>();
    QCOMPARE(dialog->getAccessMode(), 2);
    QTest::keyClicks(&child(dialog, "editZentPassword"), QStringLiteral("typed"));
    dialog->setAccessMode(mode);
    QCOMPARE(dialog->getAccessMode(), mode);
    for (const char* name :
         {"radioButtonComputerAdministrator", "editDomain", "editLogin", "editAdministratorPassword"})
        QCOMPARE(child(dialog, name).isEnabled(), administrator);
    for (const char* name : {"radioButtonZentModeAccess", "editZentPassword"})
        QCOMPARE(child(dialog, name).isEnabled(), custom);
    for (const char* name :
         {"labelDomain", "labelLogin", "labelPasswordAdministrator", "labelPasswordZent", "buttonOk"})
        QVERIFY(child(dialog, name).isEnabled());
    QTEST(dialog->isCustomPasswordSelected(), "customSelected");
    QTEST(radio(dialog, "radioButtonZentModeAccess").isChecked(), "customSelected");
    QCOMPARE(dialog->getZentPassword(), QStringLiteral("typed"));
}

void CredentialsTest::accessModeMovesTheChoice()
{
    auto* dialog = get<IEnterPasswordDialog>();
    dialog->setAccessMode(1);
    // A checked radio button stays checked until the other one is.
    for (const int mode : {0, 2, 7}) {
        dialog->setAccessMode(mode);
        QVERIFY(dialog->isCustomPasswordSelected());
    }
    dialog->setCustomPasswordSelected(false);
    QVERIFY(!dialog->isCustomPasswordSelected());
    dialog->setAccessMode(1);
    dialog->setCustomPasswordSelected(false);
    QVERIFY(dialog->isCustomPasswordSelected());
    dialog->setAccessMode(0);
    dialog->setCustomPasswordSelected(true);
    QVERIFY(dialog->isCustomPasswordSelected());
    dialog->setCustomPasswordSelected(false);
    QVERIFY(!dialog->isCustomPasswordSelected());
    QVERIFY(radio(dialog, "radioButtonComputerAdministrator").isChecked());
}

void CredentialsTest::choosingByClickAndKey()
{
    auto* dialog = show<IEnterPasswordDialog>();
    auto& administrator = radio(dialog, "radioButtonComputerAdministrator");
    auto& custom = radio(dialog, "radioButtonZentModeAccess");
    QTest::mouseClick(&custom, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QVERIFY(custom.isChecked() && !administrator.isChecked());
    QTest::keyClick(&custom, Qt::Key_Up);
    QVERIFY(administrator.isChecked() && !custom.isChecked());
    QVERIFY(child(dialog, "editZentPassword").isEnabled());
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evOk")});
}

void CredentialsTest::firstFieldOfTheChosenWay_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("custom");
    QTest::addColumn<QString>("field");
    QTest::newRow("administrator") << 0 << false << QStringLiteral("editDomain");
    QTest::newRow("custom password") << 1 << false << QStringLiteral("editZentPassword");
    QTest::newRow("either") << 2 << false << QStringLiteral("editDomain");
    QTest::newRow("either, custom chosen") << 2 << true << QStringLiteral("editZentPassword");
}

void CredentialsTest::firstFieldOfTheChosenWay()
{
    QFETCH(int, mode);
    QFETCH(bool, custom);
    auto* dialog = get<IEnterPasswordDialog>();
    dialog->setAccessMode(mode);
    if (custom)
        dialog->setCustomPasswordSelected(true);
    showActive(dialog);
    QTEST(window(dialog).focusWidget()->objectName(), "field");
}

void CredentialsTest::attachments()
{
    auto* dialog = get<IEnterPasswordDialog>();
    QVERIFY(!dialog->getAttachment());
    const auto attach = [dialog] {
        auto note = std::make_unique<Note>();
        const std::weak_ptr<int> life = note->life;
        std::unique_ptr<IAttachment> attachment = std::move(note);
        dialog->setAttachment(attachment);
        return attachment ? std::weak_ptr<int>() : life;
    };
    const std::weak_ptr<int> first = attach();
    QVERIFY(!first.expired());
    // Handing the dialog its own object changes nothing.
    std::unique_ptr<IAttachment> own(dialog->getAttachment());
    dialog->setAttachment(own);
    QVERIFY(!own);
    QVERIFY(!first.expired());
    QCOMPARE(static_cast<Note*>(dialog->getAttachment())->life.get(), first.lock().get());

    const std::weak_ptr<int> second = attach();
    QVERIFY(first.expired() && !second.expired());
    dialog->setAttachment(own);
    QVERIFY(second.expired() && !dialog->getAttachment());

    const std::weak_ptr<int> last = attach();
    gui().deleteEnterPasswordDialogInstance();
    QVERIFY(!last.expired());
    settle();
    QVERIFY(last.expired());
}

GUI_TEST_MAIN(CredentialsTest)
#include "tst_credentials.moc"
