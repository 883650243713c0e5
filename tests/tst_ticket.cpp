#include "GuiTest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>

#include <limits>

/// The ticket form: what may be submitted, what its limits keep out, and that nothing typed gets lost unasked.
class TicketTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void submitNeedsSubjectAndDetails();
    void returnSubmits();
    void hostMayAnswerByAccepting();
    void editsAreNotLostUnasked_data();
    void editsAreNotLostUnasked();
    void discardQuestion();
    void dialogDeletedDuringQuestion();
    void choices();
    void limitValues();
    void limits_data();
    void limits();
    void lateLimits();
    void undoAfterCut();
    void markupIsPastedAsText();

private:
    /// Answers the discard question, which must come.
    void answerNext(QMessageBox::StandardButton button);
    static QMessageBox* question()
    {
        return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    }
    /// The form with everything set by the host.
    IServiceDeskTicketDialog* showFilled();
};

void TicketTest::answerNext(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, this, [button] {
        QVERIFY(question());
        QTest::mouseClick(question()->button(button), Qt::LeftButton);
    });
}

void TicketTest::submitNeedsSubjectAndDetails()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    const auto isValid = [dialog] {
        bool valid = false;
        QMetaObject::invokeMethod(&window(dialog), "validate", Q_RETURN_ARG(bool, valid));
        return valid && child(dialog, "bnSubmit").isEnabled();
    };
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral(" "));
    QVERIFY(!isValid());
    QTest::keyClicks(&child(dialog, "txIssueDetails"), QStringLiteral("d"));
    QVERIFY(isValid());
    QTest::keyClick(&child(dialog, "edSubject"), Qt::Key_Backspace);
    QVERIFY(!isValid() && !child(dialog, "bnSubmit").isEnabled());
}

IServiceDeskTicketDialog* TicketTest::showFilled()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setDepartments({QStringLiteral("IT"), QStringLiteral("HR")});
    dialog->setDepartment(QStringLiteral("HR"));
    dialog->setPriorities({QStringLiteral("Low"), QStringLiteral("High")});
    dialog->setPriority(QStringLiteral("High"));
    dialog->setSubject(QStringLiteral("subject"));
    dialog->setSubjectMaxLength(4);
    dialog->setSubjectMaxLength(100);
    dialog->setIssueDetails(QStringLiteral("details"));
    dialog->setIssueDetailsMaxLength(100);
    dialog->setIncludeDeviceData(true);
    return dialog;
}

void TicketTest::returnSubmits()
{
    auto* dialog = showFilled();
    for (const char* field : {"edSubject", "cbDepartment", "ckIncludeDeviceData"}) {
        child(dialog, field).setFocus();
        press(dialog, Qt::Key_Return);
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("evSubmit")});
        QVERIFY(!window(dialog).isVisible());
        showActive(dialog);
    }
    // A submission that fails later finds everything where it was.
    QCOMPARE(dialog->getSubject() + dialog->getIssueDetails(), QStringLiteral("subjdetails"));
    child(dialog, "txIssueDetails").setFocus();
    checkEvents(dialog, QStringLiteral("Return"), QString());
    dialog->setIssueDetails(QString());
    child(dialog, "edSubject").setFocus();
    checkEvents(dialog, QStringLiteral("Return"), QString());
}

void TicketTest::hostMayAnswerByAccepting()
{
    auto* dialog = showFilled();
    QTimer::singleShot(0, &window(dialog), [dialog] { click(dialog, "bnSubmit"); });
    QVERIFY(connect(&window(dialog), SIGNAL(dialogEvent(IServiceDeskTicketDialog*, IServiceDeskTicketDialog::TEvent)),
                    &window(dialog), SLOT(accept())));
    QCOMPARE(dialog->exec(), 1);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evSubmit")});
}

void TicketTest::editsAreNotLostUnasked_data()
{
    textColumns({"field", "key"});
    textRow({"edSubject", "A"});
    textRow({"cbDepartment", "Up"});
    textRow({"cbPriorityLevel", "Up"});
    textRow({"txIssueDetails", "A"});
    textRow({"ckIncludeDeviceData", "Space"});
}

void TicketTest::editsAreNotLostUnasked()
{
    QFETCH(QString, field);
    QFETCH(QString, key);
    auto* dialog = showFilled();
    // What the host sets is no edit, and does not hide one.
    checkEvents(dialog, QStringLiteral("Escape"), QStringLiteral("evCancel"));
    child(dialog, qPrintable(field)).setFocus();
    act(dialog, key);
    dialog->setIssueDetails(QStringLiteral("other"));
    for (const char* action : {"Escape", "reject()", "close", "bnCancel", "btnClose"}) {
        answerNext(QMessageBox::Cancel);
        checkEvents(dialog, QLatin1String(action), QString());
    }
    answerNext(QMessageBox::Discard);
    // Discarded is discarded: nothing is left to ask about.
    checkEvents(dialog, QStringLiteral("Escape Escape"), QStringLiteral("evCancel"));
}

void TicketTest::discardQuestion()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral("typed"));
    QTimer::singleShot(0, this, [] {
        QMessageBox* box = question();
        QVERIFY(box && box->isModal());
        QVERIFY(box->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(box->windowTitle(), QStringLiteral("Ostrel Client"));
        QCOMPARE(box->textFormat(), Qt::RichText);
        QCOMPARE(box->text(), QStringLiteral("<font face='Arial'><strong>Ticket not submitted</strong></font>"));
        QCOMPARE(box->informativeText(),
                 QStringLiteral("<font face='Arial'>Do&nbsp;you&nbsp;want&nbsp;to&nbsp;discard&nbsp;all&nbsp;changes?"
                                "</font><br/>"));
        QCOMPARE(box->standardButtons(), QMessageBox::Discard | QMessageBox::Cancel);
        QCOMPARE(box->button(QMessageBox::Discard)->text(), QStringLiteral("Ok"));
        QCOMPARE(box->button(QMessageBox::Cancel)->text(), QStringLiteral("Cancel"));
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::Discard));
        QTest::keyClick(box, Qt::Key_Escape);
    });
    press(dialog, Qt::Key_Escape);
    QVERIFY(takeEvents().isEmpty());
    QVERIFY(!question());
}

void TicketTest::dialogDeletedDuringQuestion()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    const QPointer<QWidget> guard(&window(dialog));
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral("typed"));
    QTimer::singleShot(0, this, [] {
        QVERIFY(question());
        QVERIFY(gui().deleteServiceDeskTicketDialogInstance());
    });
    QVERIFY(QMetaObject::invokeMethod(guard, "slClose"));
    QVERIFY(!guard);
    QVERIFY(takeEvents().isEmpty());
}

void TicketTest::choices()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    QStringList many;
    for (int i = 0; i < 20000; ++i)
        many << QStringLiteral("Department & %1 <b>").arg(i);
    dialog->setDepartments(many);
    for (const QString& department : {many.first(), many.last()}) {
        dialog->setDepartment(department);
        dialog->setDepartment(QStringLiteral("no such department"));
        QCOMPARE(dialog->getDepartment(), department);
        QCOMPARE(dialog->getDepartmentIndex(), many.indexOf(department));
    }
    dialog->setDepartments({});
    QCOMPARE(dialog->getDepartmentIndex(), -1);
    dialog->setPriorities({QStringLiteral("Low"), QString(), QStringLiteral("High")});
    dialog->setPriority(QStringLiteral("High"));
    dialog->setPriority(QStringLiteral("low"));
    QCOMPARE(dialog->getPriorityIndex(), 2);
    QCOMPARE(dialog->getPriority(), QStringLiteral("High"));

    click(dialog, "lbIncludeDeviceDataText");
    QVERIFY(dialog->isIncludeDeviceData());
    child<QCheckBox>(dialog, "ckIncludeDeviceData").setCheckState(Qt::PartiallyChecked);
    QVERIFY(!dialog->isIncludeDeviceData());
}

void TicketTest::limitValues()
{
    auto* dialog = get<IServiceDeskTicketDialog>();
    for (const int limit : {0, 120, std::numeric_limits<int>::min()}) {
        dialog->setSubjectMaxLength(limit);
        dialog->setIssueDetailsMaxLength(limit);
        QCOMPARE(dialog->getSubjectMaxLength(), limit > 0 ? limit : 32767);
        QCOMPARE(dialog->getIssueDetailsMaxLength(), limit);
        const QString placeholder =
            limit > 0 ? QStringLiteral("Required (max. 120 chars)") : QStringLiteral("Required");
        QCOMPARE(child<QLineEdit>(dialog, "edSubject").placeholderText(), placeholder);
        QCOMPARE(child<QTextEdit>(dialog, "txIssueDetails").placeholderText(), placeholder);
    }
}

void TicketTest::limits_data()
{
    textColumns({"field", "before", "pasted", "after"});
    textRow({"edSubject", "", "abcdef", "abcde"});
    textRow({"edSubject", "", "abcd\U0001F600", "abcd"});
    textRow({"edSubject", "abcd", "\U0001F600", "abcd"});
    textRow({"txIssueDetails", "", "a\nb\n\nc\nd", "a\nb\n\n"});
    textRow({"txIssueDetails", "", "abcd\n\n\n", "abcd\n"});
    textRow({"txIssueDetails", "", "a\r\nb\r\nc\r\nd", "a\nb\nc"});
    textRow({"txIssueDetails", "", "abc\U0001F600abcd", "abc\U0001F600"});
    textRow({"txIssueDetails", "", "abcd\U0001F600", "abcd"});
    textRow({"txIssueDetails", "", "abcde\u0301", "abcd"});
    textRow({"txIssueDetails", "", QByteArray(1 << 20, 'x').constData(), "xxxxx"});
    // What stood there before is not cut by what comes behind it.
    textRow({"txIssueDetails", "abcde", "\u0301", "abcde"});
    textRow({"txIssueDetails", "abc\U0001F600", "\u200d", "abc\U0001F600"});
}

void TicketTest::limits()
{
    QFETCH(QString, field);
    QFETCH(QString, before);
    QFETCH(QString, pasted);
    QFETCH(QString, after);
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setSubjectMaxLength(5);
    dialog->setIssueDetailsMaxLength(5);
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    const bool isSubject = field == QLatin1String("edSubject");
    const auto set = [&](const QString& text) { isSubject ? dialog->setSubject(text) : dialog->setIssueDetails(text); };
    const auto text = [&] { return isSubject ? dialog->getSubject() : dialog->getIssueDetails(); };
    set(before);
    details.moveCursor(QTextCursor::End);
    child<QLineEdit>(dialog, "edSubject").setCursorPosition(1);
    paste(child(dialog, qPrintable(field)), pasted);
    QCOMPARE(text(), after);
    QVERIFY(details.textCursor().atEnd() && !details.textCursor().hasSelection());
    if (before.isEmpty()) {
        set(QString());
        set(pasted);
        QCOMPARE(text(), after);
    }
}

void TicketTest::lateLimits()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setSubject(QStringLiteral("abc\U0001F600"));
    dialog->setSubjectMaxLength(4);
    QCOMPARE(dialog->getSubject(), QStringLiteral("abc"));

    // The details stay until the next edit, but cannot be submitted.
    dialog->setIssueDetails(QStringLiteral("abcdef"));
    QVERIFY(child(dialog, "bnSubmit").isEnabled());
    dialog->setIssueDetailsMaxLength(3);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef"));
    QVERIFY(!child(dialog, "bnSubmit").isEnabled());
    dialog->done(1);
    QVERIFY(takeEvents().isEmpty());
    QTest::keyClick(&child(dialog, "txIssueDetails"), Qt::Key_Delete);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("bcd"));
    QVERIFY(child(dialog, "bnSubmit").isEnabled());
}

void TicketTest::undoAfterCut()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setIssueDetailsMaxLength(8);
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    paste(details, QStringLiteral("12345"));
    details.moveCursor(QTextCursor::Start);
    paste(details, QStringLiteral("abcdef"));
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef12"));
    QVERIFY(details.textCursor().atEnd());
    QTest::keyClick(&details, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("12345"));
    QTest::keyClick(&details, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef12"));
}

void TicketTest::markupIsPastedAsText()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    auto* html = new QMimeData;
    html->setHtml(QStringLiteral("<h1>heading</h1>"));
    html->setText(QStringLiteral("heading"));
    QGuiApplication::clipboard()->setMimeData(html);
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    // Breaking long words as well would take minutes for a megabyte.
    dialog->setIssueDetails(QStringLiteral("a"));
    QCOMPARE(details.wordWrapMode(), QTextOption::WordWrap);
    dialog->setIssueDetails(QString());
    QTest::keyClick(&details, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("heading"));
    QCOMPARE(details.textCursor().blockFormat().headingLevel(), 0);
}

GUI_TEST_MAIN(TicketTest)
#include "tst_ticket.moc"
