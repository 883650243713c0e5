#include "GuiTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
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
    void events_data();
    void events();
    void textIsReturnedAsTyped_data();
    void textIsReturnedAsTyped();
    void passwordsAreKept_data();
    void passwordsAreKept();
    void passwordEditing();
    void fieldsFollowTheirText_data();
    void fieldsFollowTheirText();
    void tabOrders_data();
    void tabOrders();
    void reminderLink();
    void windows();
    void accessModes_data();
    void accessModes();
    void firstFieldIsOfTheChosenWay();
    void accessModeMovesTheChoice();
    void choosingByClickAndKey();
    void attachments();
};

void CredentialsTest::events_data()
{
    textColumns({"name", "password", "actions", "event"});
    textRow({"Authorization", "", "reject() slClose() close btnCancel btnClose", "evClose"});
    textRow({"Authorization", "", "Return Enter accept() slLogin() btnLogin", ""});
    textRow({"Authorization", " ", "Return Enter accept() slLogin() btnLogin", "evLogin"});
    textRow({"Authorization", "", "goToWeb()", "evGoToWeb"});
    textRow({"ZentPassword", "", "reject() slClose() close btnCancel", "evClose"});
    textRow({"ZentPassword", "", "Return Enter accept() slContinue() btnContinue", ""});
    textRow({"ZentPassword", " ", "Return Enter accept() slContinue() btnContinue", "evContinue"});
    textRow({"EnterPassword", "", "Return Enter accept() onOkClicked() buttonOk", "evOk"});
    textRow({"EnterPassword", "", "onCancelClicked() buttonCancel", "evCancel"});
    textRow({"EnterPassword", "", "onCloseClicked()", "evCloseClicked"});
    for (const char* name : {"Authorization", "ZentPassword", "EnterPassword"})
        textRow({name, " ", "Escape", ""});
}

void CredentialsTest::events()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(QString, actions);
    QFETCH(QString, event);
    IBaseDialog* dialog = get(name + QLatin1String("Dialog"));
    showActive(dialog);
    dialogFamily(name + QLatin1String("Dialog"))
        .set(*dialog,
             name == QLatin1String("EnterPassword") ? QStringLiteral("zentPassword") : QStringLiteral("password"),
             password);
    checkEvents(dialog, actions, event);
}

void CredentialsTest::textIsReturnedAsTyped_data()
{
    passwordsAreKept_data();
    textRow({"AuthorizationDialog", "username", "edEmail"});
    textRow({"EnterPasswordDialog", "domain", "editDomain"});
    textRow({"EnterPasswordDialog", "login", "editLogin"});
}

void CredentialsTest::textIsReturnedAsTyped()
{
    QFETCH(QString, name);
    QFETCH(QString, property);
    QFETCH(QString, field);
    const Family& family = dialogFamily(name);
    const auto getter = family.operation(QStringLiteral("get") + property.at(0).toUpper() + property.mid(1));
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, qPrintable(field));
    const bool isPassword = property.endsWith(QLatin1String("assword"));
    QCOMPARE(edit.echoMode(), isPassword ? QLineEdit::Password : QLineEdit::Normal);
    QTest::keyClicks(&edit, QStringLiteral("  a&b<i>%1 "));
    QCOMPARE(getter.call(*dialog, {}).toString(), QStringLiteral("  a&b<i>%1 "));
    const QString given = QStringLiteral("\u00fc \U0001F511 \u05d0 a\nb");
    family.set(*dialog, property, given);
    QCOMPARE(getter.call(*dialog, {}).toString(), given);
    QCOMPARE(edit.text(), given);
}

void CredentialsTest::passwordsAreKept_data()
{
    textColumns({"name", "property", "field"});
    textRow({"AuthorizationDialog", "password", "edPassword"});
    textRow({"ZentPasswordDialog", "password", "edPassword"});
    textRow({"EnterPasswordDialog", "administratorPassword", "editAdministratorPassword"});
    textRow({"EnterPasswordDialog", "zentPassword", "editZentPassword"});
}

void CredentialsTest::passwordsAreKept()
{
    QFETCH(QString, name);
    QFETCH(QString, field);
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, qPrintable(field));
    const QString secret = QStringLiteral("open sesame");
    QTest::keyClicks(&edit, secret);
    QGuiApplication::clipboard()->setText(QStringLiteral("other"));
    edit.selectAll();
    for (const auto key : {Qt::Key_C, Qt::Key_X, Qt::Key_Insert})
        QTest::keyClick(&edit, key, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("other"));
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

    paste(edit, QStringLiteral(" pasted "));
    QCOMPARE(dialog->getPassword(), QStringLiteral(" pasted "));
}

void CredentialsTest::fieldsFollowTheirText_data()
{
    textColumns({"name", "field", "property", "button"});
    textRow({"AuthorizationDialog", "edEmail", "username", ""});
    textRow({"AuthorizationDialog", "edPassword", "password", "btnLogin"});
    textRow({"ZentPasswordDialog", "edPassword", "password", "btnContinue"});
}

void CredentialsTest::fieldsFollowTheirText()
{
    QFETCH(QString, name);
    QFETCH(QString, field);
    QFETCH(QString, property);
    QFETCH(QString, button);
    const QString hint = QStringLiteral("image: url(:/images/%1.png); image-position: left;").arg(property);
    const QString noHint = QStringLiteral("image: none;");
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, qPrintable(field));
    const auto check = [&](const QString& sheet, bool hasText) {
        QCOMPARE(edit.styleSheet(), sheet);
        if (!button.isEmpty())
            QCOMPARE(child(dialog, qPrintable(button)).isEnabled(), hasText);
    };
    check(QString(), false);
    QTest::keyClick(&edit, Qt::Key_Space);
    check(noHint, true);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    check(hint, false);
    dialogFamily(name).set(*dialog, property, QStringLiteral("x"));
    check(noHint, true);
    dialogFamily(name).set(*dialog, property, QString());
    check(hint, false);
    // A widget with a sheet of its own does not inherit the dialog's font.
    QCOMPARE(edit.font().family(), QStringLiteral("Arial"));
    QCOMPARE(edit.font().pointSize(), 9);
}

void CredentialsTest::tabOrders_data()
{
    textColumns({"name", "password", "order"});
    textRow({"AuthorizationDialog", "password", "edEmail edPassword btnLogin btnCancel lblWebLink"});
    textRow({"ZentPasswordDialog", "password", "edPassword btnContinue btnCancel"});
    textRow({"EnterPasswordDialog", "zentPassword",
             "editDomain editLogin editAdministratorPassword radioButtonZentModeAccess editZentPassword buttonOk "
             "buttonCancel"});
}

void CredentialsTest::tabOrders()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    IBaseDialog* dialog = get(name);
    dialogFamily(name).set(*dialog, password, QStringLiteral("x"));
    showActive(dialog);
    QTEST(tabOrder(dialog), "order");
}

void CredentialsTest::reminderLink()
{
    auto* dialog = show<IAuthorizationDialog>();
    const QString goToWeb = QStringLiteral("evGoToWeb");
    checkEvents(dialog, QStringLiteral("lblWebLink"), goToWeb);
    // By keyboard the link is one step away, from both sides.
    child(dialog, "btnCancel").setFocus();
    press(dialog, Qt::Key_Tab);
    checkEvents(dialog, QStringLiteral("Return"), goToWeb);
    child(dialog, "edEmail").setFocus();
    press(dialog, Qt::Key_Backtab, Qt::ShiftModifier);
    checkEvents(dialog, QStringLiteral("Enter"), goToWeb);
    press(dialog, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(child(dialog, "btnCancel").hasFocus());
    auto& label = child<QLabel>(dialog, "lblWebLink");
    QVERIFY(label.text().contains(QStringLiteral("#act=Remind\"")));
    QVERIFY(!label.openExternalLinks());
}

void CredentialsTest::windows()
{
    const QWidget& login = window(get<IAuthorizationDialog>());
    QCOMPARE(login.windowModality(), Qt::WindowModal);
    QVERIFY(login.windowFlags() & Qt::WindowStaysOnTopHint);
    QCOMPARE(login.windowTitle(), QStringLiteral(" Tavik Login"));
    gui().deleteAuthorizationDialogInstance();
    settle();
    QVERIFY(messages().contains(QStringLiteral("AuthorizationDialog::~AuthorizationDialog()")));

    const auto* password = get<IZentPasswordDialog>();
    auto* prompt = show<IEnterPasswordDialog>();
    for (const QWidget* top : {dynamic_cast<const QWidget*>(password), dynamic_cast<const QWidget*>(prompt)}) {
        QCOMPARE(top->windowModality(), Qt::ApplicationModal);
        QCOMPARE(top->windowTitle(), QStringLiteral(" Tavik Enter password"));
    }
    // The prompt with two ways reports its buttons only; a close request hides it.
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
    QVERIFY(child(dialog, "buttonOk").isEnabled());
    QTEST(dialog->isCustomPasswordSelected(), "customSelected");
    QCOMPARE(dialog->getZentPassword(), QStringLiteral("typed"));
}

void CredentialsTest::firstFieldIsOfTheChosenWay()
{
    auto* dialog = get<IEnterPasswordDialog>();
    for (const bool custom : {false, true}) {
        for (const int mode : {custom ? 1 : 0, 2}) {
            dialog->setAccessMode(mode);
            dialog->setCustomPasswordSelected(custom);
            showActive(dialog);
            QCOMPARE(window(dialog).focusWidget(), &child(dialog, custom ? "editZentPassword" : "editDomain"));
            dialog->hide();
        }
    }
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
    for (const int mode : {0, 2, 1}) {
        dialog->setAccessMode(mode);
        for (const bool selected : {true, false}) {
            dialog->setCustomPasswordSelected(selected);
            QCOMPARE(dialog->isCustomPasswordSelected(), selected || mode == 1);
        }
    }
}

void CredentialsTest::choosingByClickAndKey()
{
    auto* dialog = show<IEnterPasswordDialog>();
    auto& administrator = child<QRadioButton>(dialog, "radioButtonComputerAdministrator");
    auto& custom = child<QRadioButton>(dialog, "radioButtonZentModeAccess");
    QTest::mouseClick(&custom, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QVERIFY(custom.isChecked() && !administrator.isChecked());
    QTest::keyClick(&custom, Qt::Key_Up);
    QVERIFY(administrator.isChecked() && !custom.isChecked());
    QVERIFY(child(dialog, "editZentPassword").isEnabled());
    checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evOk"));
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
