#include "GuiTest.h"

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
    void textIsReturnedAsTyped_data()
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
    void textIsReturnedAsTyped()
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
        commit(edit, QStringLiteral("-\n3"));
        paste(edit, QStringLiteral("\r\none\ntwo\u2028\u2029"));
        const bool isPassword = property.endsWith(QLatin1String("assword"));
        QCOMPARE(edit.text(), text + (isPassword ? QStringLiteral("-3onetwo") : QStringLiteral("- 3one two")));
        // Qt's own answer to the question for the last word never ends.
        QAccessibleTextInterface* told = QAccessible::queryAccessibleInterface(&edit)->textInterface();
        int start = 0;
        int end = 0;
        for (int offset = -1; offset <= edit.text().size(); ++offset) {
            for (const auto type : {QAccessible::CharBoundary, QAccessible::WordBoundary, QAccessible::NoBoundary}) {
                told->textBeforeOffset(offset, type, &start, &end);
                told->textAfterOffset(offset, type, &start, &end);
                const QString found = told->textAtOffset(offset, type, &start, &end);
                QCOMPARE(found, start < 0 || isPassword ? QString() : edit.text().mid(start, end - start));
            }
        }
        if (!isPassword) {
            QCOMPARE(edit.echoMode(), QLineEdit::Normal);
            QTest::keySequence(&edit, QKeySequence::Undo);
            QCOMPARE(edit.text(), QString(text + QStringLiteral("- 3")));
            return;
        }

        edit.setCursorPosition(1);
        QTest::keyClicks(&edit, QStringLiteral("xy"));
        // A password leaves the field by no other way.
        QCOMPARE(edit.echoMode(), QLineEdit::Password);
        for (const auto key : {Qt::Key_Z, Qt::Key_Y})
            QTest::keyClick(&edit, key, Qt::ControlModifier);
        QVERIFY(edit.text().startsWith(QLatin1String(" xy open")));
        QGuiApplication::clipboard()->setText(QStringLiteral("other"));
        edit.selectAll();
        for (const auto key : {Qt::Key_C, Qt::Key_X, Qt::Key_Insert})
            QTest::keyClick(&edit, key, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("other"));
        QVERIFY(!edit.dragEnabled());
        edit.setText(text);
        press(dialog, Qt::Key_Return);
        QVERIFY(messages.filter(QStringLiteral("sesame")).isEmpty());
    }

    /// What a host sets and a person does, in any order, against what should be enabled and chosen.
    void accessModes()
    {
        auto* dialog = show<IEnterPasswordDialog>();
        const QStringList ofAdministrator{QStringLiteral("editDomain"), QStringLiteral("editLogin"),
                                          QStringLiteral("editAdministratorPassword"),
                                          QStringLiteral("radioButtonComputerAdministrator")};
        const QStringList ofCustom{QStringLiteral("editZentPassword"), QStringLiteral("radioButtonZentModeAccess")};
        QRandomGenerator random(5);
        int mode = 2;
        bool isCustom = false;
        for (int step = 0; step < 400; ++step) {
            const bool chosen = random.bounded(2) == 1;
            const QStringList& names = chosen ? ofCustom : ofAdministrator;
            const QString name = names[random.bounded(names.size())];
            auto& part = child(dialog, qPrintable(name));
            auto* radio = qobject_cast<QRadioButton*>(&part);
            const int action = random.bounded(4);
            if (action == 0) {
                const int modes[] = {0, 1, 2, 3, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
                mode = modes[random.bounded(int(std::size(modes)))];
                dialog->setAccessMode(mode);
            } else if (action == 1) {
                dialog->setCustomPasswordSelected(chosen);
                isCustom = chosen;
            } else if (part.isEnabled()) {
                // A click, an arrow key or typing into a field of the way.
                part.setFocus();
                if (radio && action == 2)
                    QTest::keyClick(&part, chosen ? Qt::Key_Up : Qt::Key_Down);
                else if (radio)
                    QTest::mouseClick(&part, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
                else
                    QTest::keyClick(&part, Qt::Key_A);
                isCustom = radio && action == 2 && mode == 2 ? !chosen : radio && action == 2 ? isCustom : chosen;
            }
            isCustom = isCustom || mode == 1;
            QCOMPARE(dialog->getAccessMode(), mode);
            for (const QString& one : ofAdministrator + ofCustom)
                QCOMPARE(child(dialog, qPrintable(one)).isEnabled(), mode == 2 || mode == ofCustom.contains(one));
            QCOMPARE(child<QRadioButton>(dialog, "radioButtonZentModeAccess").isChecked(), isCustom);
            QCOMPARE(dialog->isCustomPasswordSelected(), isCustom);
            QVERIFY(child(dialog, "buttonOk").isEnabled() && takeEvents().isEmpty());
            // Qt takes the radio button that is not checked out of the tab order.
            const char* const only = mode == 0 ? "radioButtonComputerAdministrator" : "radioButtonZentModeAccess";
            QVERIFY((mode != 0 && mode != 1) || child(dialog, only).focusPolicy() & Qt::TabFocus);
        }
    }

    void attachments()
    {
        auto* dialog = get<IEnterPasswordDialog>();
        QVERIFY(!dialog->getAttachment());
        std::unique_ptr<IAttachment> handed;
        std::weak_ptr<int> last;
        for (int round = 0; round < 3; ++round) {
            auto note = std::make_unique<Note>();
            IAttachment* const given = note.get();
            const std::weak_ptr<int> previous = std::exchange(last, note->life);
            handed = std::move(note);
            dialog->setAttachment(handed);
            QVERIFY(!handed && previous.expired() && dialog->getAttachment() == given);
            // Handing the dialog its own object changes nothing.
            handed.reset(given);
            dialog->setAttachment(handed);
            QVERIFY(!handed && !last.expired() && dialog->getAttachment() == given);
            if (round == 1) {
                dialog->setAttachment(handed);
                QVERIFY(last.expired() && !dialog->getAttachment());
            }
        }
        gui().deleteEnterPasswordDialogInstance();
        QVERIFY(!last.expired());
        settle();
        QVERIFY(last.expired());
    }
};

GUI_TEST_MAIN(CredentialsTest)
#include "tst_credentials.moc"
