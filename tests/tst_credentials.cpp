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
    void textIsReturnedAsTyped_data();
    void textIsReturnedAsTyped();
    void passwordEditing();
    void fieldsFollowTheirText();
    void accessModes();
    void accessModeMovesTheChoice();
    void choosingByClickAndKey();
    void attachments();
};

void CredentialsTest::textIsReturnedAsTyped_data()
{
    textColumns({"name", "property", "field"});
    textRow({"AuthorizationDialog", "username", "edEmail"});
    textRow({"AuthorizationDialog", "password", "edPassword"});
    textRow({"ZentPasswordDialog", "password", "edPassword"});
    textRow({"EnterPasswordDialog", "domain", "editDomain"});
    textRow({"EnterPasswordDialog", "login", "editLogin"});
    textRow({"EnterPasswordDialog", "administratorPassword", "editAdministratorPassword"});
    textRow({"EnterPasswordDialog", "zentPassword", "editZentPassword"});
}

void CredentialsTest::textIsReturnedAsTyped()
{
    QFETCH(QString, name);
    QFETCH(QString, property);
    QFETCH(QString, field);
    const QString text = QStringLiteral("  open & sesame%1 ");
    IBaseDialog* dialog = get(name);
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, qPrintable(field));
    QTest::keyClicks(&edit, text);
    const QString getter = QStringLiteral("get") + property.at(0).toUpper() + property.mid(1);
    QCOMPARE(dialogFamily(name).operation(getter).call(*dialog, {}).toString(), text);
    paste(edit, QStringLiteral("\r\none\ntwo\u2028"));
    const bool isPassword = property.endsWith(QLatin1String("assword"));
    QCOMPARE(edit.text(), text + (isPassword ? QStringLiteral("onetwo") : QStringLiteral("one two")));
    // Qt's own answer to the question for the last word never ends.
    QAccessibleTextInterface* told = QAccessible::queryAccessibleInterface(&edit)->textInterface();
    int start = 0;
    int end = 0;
    for (int offset = -1; offset <= edit.text().size(); ++offset) {
        for (int boundary = QAccessible::CharBoundary; boundary <= QAccessible::NoBoundary; ++boundary) {
            const auto type = static_cast<QAccessible::TextBoundaryType>(boundary);
            told->textBeforeOffset(offset, type, &start, &end);
            told->textAfterOffset(offset, type, &start, &end);
            const QString found = told->textAtOffset(offset, type, &start, &end);
            QCOMPARE(found, start < 0 || isPassword ? QString() : edit.text().mid(start, end - start));
        }
    }
    if (!isPassword) {
        QCOMPARE(edit.echoMode(), QLineEdit::Normal);
        QTest::keySequence(&edit, QKeySequence::Undo);
        QCOMPARE(edit.text(), text);
        return;
    }

    // A password leaves the field by no other way.
    QCOMPARE(edit.echoMode(), QLineEdit::Password);
    QVERIFY(!edit.isUndoAvailable());
    QGuiApplication::clipboard()->setText(QStringLiteral("other"));
    edit.selectAll();
    for (const auto key : {Qt::Key_C, Qt::Key_X, Qt::Key_Insert})
        QTest::keyClick(&edit, key, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("other"));
    QVERIFY(!edit.dragEnabled());
    edit.setText(text);
    press(dialog, Qt::Key_Return);
    QVERIFY(messages().filter(QStringLiteral("sesame")).isEmpty());
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

    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_X);
    for (const auto modifiers : {Qt::NoModifier, Qt::ShiftModifier})
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | modifiers);
    QTest::keyClick(&edit, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(dialog->getPassword(), QStringLiteral("x"));
    paste(edit, QStringLiteral(" pasted "));
    QCOMPARE(dialog->getPassword(), QStringLiteral("x pasted "));
}

void CredentialsTest::fieldsFollowTheirText()
{
    const auto check = [this](const char* family, const char* fieldName, const char* property, const char* button) {
        IBaseDialog* dialog = get(QLatin1String(family));
        showActive(dialog);
        auto& edit = child<QLineEdit>(dialog, fieldName);
        const QString hint = QStringLiteral("image: url(:/images/%1.png); image-position: left;");
        QVERIFY(edit.styleSheet().isEmpty() && !child(dialog, button).isEnabled());
        QTest::keyClick(&edit, Qt::Key_Space);
        QCOMPARE(edit.styleSheet(), QStringLiteral("image: none;"));
        QCOMPARE(child(dialog, button).isEnabled(), edit.echoMode() == QLineEdit::Password);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(edit.styleSheet(), hint.arg(QLatin1String(property)));
        QVERIFY(!child(dialog, button).isEnabled());
        // A widget with a sheet of its own does not inherit the dialog's font.
        QCOMPARE(edit.font().family(), QStringLiteral("Arial"));
        QCOMPARE(edit.font().pointSize(), 9);
    };
    check("AuthorizationDialog", "edEmail", "username", "btnLogin");
    check("AuthorizationDialog", "edPassword", "password", "btnLogin");
    check("ZentPasswordDialog", "edPassword", "password", "btnContinue");
}

void CredentialsTest::accessModes()
{
    using Limits = std::numeric_limits<int>;
    for (const int mode : {0, 1, 2, 3, -1, Limits::min(), Limits::max()}) {
        const bool administrator = mode == 0 || mode == 2;
        const bool custom = mode == 1 || mode == 2;
        auto* dialog = show<IEnterPasswordDialog>();
        QCOMPARE(dialog->getAccessMode(), 2);
        dialog->setAccessMode(mode);
        QCOMPARE(dialog->getAccessMode(), mode);
        for (const char* name :
             {"radioButtonComputerAdministrator", "editDomain", "editLogin", "editAdministratorPassword"})
            QCOMPARE(child(dialog, name).isEnabled(), administrator);
        for (const char* name : {"radioButtonZentModeAccess", "editZentPassword"})
            QCOMPARE(child(dialog, name).isEnabled(), custom);
        QVERIFY(child(dialog, "buttonOk").isEnabled());
        QCOMPARE(dialog->isCustomPasswordSelected(), mode == 1);
        gui().deleteEnterPasswordDialogInstance();
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
    QVERIFY(administrator.isChecked() && administrator.hasFocus() && !dialog->isCustomPasswordSelected());
    QTest::keyClick(&administrator, Qt::Key_Down);
    QVERIFY(custom.isChecked() && custom.hasFocus() && dialog->isCustomPasswordSelected());
    checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evOk"));

    // Qt has taken the other button out of the tab order.
    dialog->setAccessMode(0);
    child(dialog, "editDomain").setFocus();
    QVERIFY(tabOrder(dialog).contains(administrator.objectName()));
    dialog->setAccessMode(2);
    QTest::keyClick(&child(dialog, "editLogin"), Qt::Key_A);
    QVERIFY(!dialog->isCustomPasswordSelected());
    QTest::keyClick(&child(dialog, "editZentPassword"), Qt::Key_A);
    QVERIFY(dialog->isCustomPasswordSelected());

    // Its buttons report; a request to close just hides it.
    window(dialog).close();
    QVERIFY(!window(dialog).isVisible() && takeEvents().isEmpty());
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
