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

namespace {
const QString submitted = QStringLiteral("evSubmit");
const QString cancelled = QStringLiteral("evCancel");
} // namespace

/// The ticket form: what may be submitted, what its limits keep out, and that nothing typed gets lost unasked.
class TicketTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void submitNeedsSubjectAndDetails();
    void submitKeys_data();
    void submitKeys();
    void hostMayAnswerByAccepting();
    void untouchedFormCloses_data();
    void untouchedFormCloses();
    void editsAreNotLostUnasked_data();
    void editsAreNotLostUnasked();
    void discardQuestion();
    void dialogDeletedDuringQuestion();
    void hostValuesAreNoEdits();
    void choices();
    void limitValues_data();
    void limitValues();
    void detailsLimit_data();
    void detailsLimit();
    void typingAtTheLimit_data();
    void typingAtTheLimit();
    void undoAfterCut();
    void subjectLimit_data();
    void subjectLimit();
    void lateLimitKeepsDetails();
    void detailsAreNeverMarkup();

private:
    /// Answers the discard question, which must come.
    void answerNext(QMessageBox::StandardButton button);
    static QMessageBox* question()
    {
        return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    }
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
    const QWidget& submit = child(dialog, "bnSubmit");
    bool valid = true;
    const auto isValid = [&] {
        return QMetaObject::invokeMethod(&window(dialog), "validate", Q_RETURN_ARG(bool, valid)) && valid;
    };
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral(" "));
    QVERIFY(!submit.isEnabled() && !isValid());
    QTest::keyClicks(&child(dialog, "txIssueDetails"), QStringLiteral("d"));
    QVERIFY(submit.isEnabled() && isValid());
    QTest::keyClick(&child(dialog, "edSubject"), Qt::Key_Backspace);
    QVERIFY(!submit.isEnabled() && !isValid());
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral("s"));
    QCOMPARE(tabOrder(dialog),
             QStringLiteral("edSubject cbDepartment cbPriorityLevel txIssueDetails ckIncludeDeviceData bnSubmit "
                            "bnCancel"));
    checkEvents(dialog, QStringLiteral("bnSubmit"), submitted);
    QVERIFY(window(dialog).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(dialog->getSubject() + dialog->getIssueDetails(), QStringLiteral("sd"));
}

void TicketTest::submitKeys_data()
{
    textColumns({"field", "details", "event"});
    for (const char* field : {"edSubject", "cbDepartment", "ckIncludeDeviceData"})
        textRow({field, "details", "evSubmit"});
    textRow({"edSubject", "", ""});
    textRow({"txIssueDetails", "details", ""});
}

void TicketTest::submitKeys()
{
    QFETCH(QString, field);
    QFETCH(QString, details);
    QFETCH(QString, event);
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setSubject(QStringLiteral("subject"));
    dialog->setIssueDetails(details);
    child(dialog, qPrintable(field)).setFocus();
    press(dialog, Qt::Key_Return);
    QCOMPARE(takeEvents().join(QString()), event);
    QCOMPARE(window(dialog).isVisible(), event.isEmpty());
    // A submission that fails later finds everything where it was.
    dialog->show();
    QCOMPARE(dialog->getSubject(), QStringLiteral("subject"));
    QCOMPARE(dialog->getIssueDetails().trimmed(), details);
}

void TicketTest::hostMayAnswerByAccepting()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->done(1);
    QVERIFY(window(dialog).isVisible());
    dialog->setSubject(QStringLiteral("subject"));
    dialog->setIssueDetails(QStringLiteral("details"));
    QTimer::singleShot(0, &window(dialog), [dialog] { click(dialog, "bnSubmit"); });
    const auto connection =
        connect(&window(dialog), SIGNAL(dialogEvent(IServiceDeskTicketDialog*, IServiceDeskTicketDialog::TEvent)),
                &window(dialog), SLOT(accept()));
    QVERIFY(connection);
    QCOMPARE(dialog->exec(), 1);
    QCOMPARE(takeEvents(), QStringList{submitted});
}

void TicketTest::untouchedFormCloses_data()
{
    textColumns({"action"});
    for (const char* action : {"bnCancel", "btnClose", "Escape", "close"})
        textRow({action});
}

void TicketTest::untouchedFormCloses()
{
    QFETCH(QString, action);
    auto* dialog = show<IServiceDeskTicketDialog>();
    checkEvents(dialog, action, cancelled);
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral("typed"));
    answerNext(QMessageBox::Cancel);
    checkEvents(dialog, action, QString());
    QCOMPARE(dialog->getSubject(), QStringLiteral("typed"));
}

void TicketTest::editsAreNotLostUnasked_data()
{
    textColumns({"field", "key"});
    textRow({"edSubject", "A"});
    textRow({"cbDepartment", "Down"});
    textRow({"cbPriorityLevel", "Down"});
    textRow({"txIssueDetails", "A"});
    textRow({"ckIncludeDeviceData", "Space"});
}

void TicketTest::editsAreNotLostUnasked()
{
    QFETCH(QString, field);
    QFETCH(QString, key);
    auto* dialog = get<IServiceDeskTicketDialog>();
    dialog->setDepartments({QStringLiteral("IT"), QStringLiteral("HR")});
    dialog->setPriorities({QStringLiteral("Low"), QStringLiteral("High")});
    showActive(dialog);
    child(dialog, qPrintable(field)).setFocus();
    act(dialog, key);
    answerNext(QMessageBox::Cancel);
    checkEvents(dialog, QStringLiteral("Escape"), QString());
    answerNext(QMessageBox::Discard);
    // Discarded is discarded: nothing is left to ask about.
    checkEvents(dialog, QStringLiteral("Escape Escape"), cancelled);
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

void TicketTest::hostValuesAreNoEdits()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setDepartments({QStringLiteral("IT"), QStringLiteral("HR")});
    dialog->setDepartment(QStringLiteral("HR"));
    dialog->setPriorities({QStringLiteral("Low"), QStringLiteral("High")});
    dialog->setPriority(QStringLiteral("High"));
    dialog->setSubject(QStringLiteral("subject"));
    dialog->setIssueDetails(QStringLiteral("details"));
    dialog->setIncludeDeviceData(true);
    dialog->setSubjectMaxLength(3);
    dialog->setIssueDetailsMaxLength(100);
    QVERIFY(child(dialog, "bnSubmit").isEnabled());
    checkEvents(dialog, QStringLiteral("Escape"), cancelled);

    // What the person edited before stays an edit.
    QTest::keyClick(&child(dialog, "ckIncludeDeviceData"), Qt::Key_Space);
    dialog->setSubject(QStringLiteral("other"));
    answerNext(QMessageBox::Discard);
    checkEvents(dialog, QStringLiteral("Escape"), cancelled);
}

void TicketTest::choices()
{
    auto* dialog = get<IServiceDeskTicketDialog>();
    QVERIFY(dialog->getDepartmentIndex() == -1 && dialog->getDepartment().isEmpty());
    QVERIFY(dialog->getPriorityIndex() == -1 && dialog->getPriority().isEmpty());
    QStringList many;
    for (int i = 0; i < 20000; ++i)
        many << QStringLiteral("Department & %1 <b>").arg(i);
    dialog->setDepartments(many);
    QCOMPARE(dialog->getDepartment(), many.first());
    for (const QString& department : {many.last(), QStringLiteral("no such department"), many.first().toLower()}) {
        dialog->setDepartment(department);
        QCOMPARE(dialog->getDepartmentIndex(), many.size() - 1);
        QCOMPARE(dialog->getDepartment(), many.last());
    }
    dialog->setDepartments({});
    QCOMPARE(dialog->getDepartmentIndex(), -1);
    dialog->setPriorities({QStringLiteral("Low"), QString(), QStringLiteral("High")});
    for (const char* priority : {"High", "high"}) {
        dialog->setPriority(QLatin1String(priority));
        QCOMPARE(dialog->getPriorityIndex(), 2);
        QCOMPARE(dialog->getPriority(), QStringLiteral("High"));
    }

    QVERIFY(!dialog->isIncludeDeviceData());
    showActive(dialog);
    click(dialog, "lbIncludeDeviceDataText");
    QVERIFY(dialog->isIncludeDeviceData());
    child<QCheckBox>(dialog, "ckIncludeDeviceData").setCheckState(Qt::PartiallyChecked);
    QVERIFY(!dialog->isIncludeDeviceData());
}

void TicketTest::limitValues_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("subjectLimit");
    QTest::addColumn<QString>("placeholder");
    QTest::newRow("some") << 120 << 120 << QStringLiteral("Required (max. 120 chars)");
    QTest::newRow("none") << 0 << 32767 << QStringLiteral("Required");
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 32767 << QStringLiteral("Required");
}

void TicketTest::limitValues()
{
    QFETCH(int, limit);
    auto* dialog = get<IServiceDeskTicketDialog>();
    QCOMPARE(dialog->getSubjectMaxLength(), 32767);
    QCOMPARE(dialog->getIssueDetailsMaxLength(), 0);
    dialog->setSubjectMaxLength(limit);
    dialog->setIssueDetailsMaxLength(limit);
    QTEST(dialog->getSubjectMaxLength(), "subjectLimit");
    QCOMPARE(dialog->getIssueDetailsMaxLength(), limit);
    QTEST(child<QLineEdit>(dialog, "edSubject").placeholderText(), "placeholder");
    QTEST(child<QTextEdit>(dialog, "txIssueDetails").placeholderText(), "placeholder");
}

void TicketTest::detailsLimit_data()
{
    textColumns({"text", "kept"});
    textRow({"abcd", "abcd"});
    textRow({"abcde", "abcde"});
    textRow({"a\nb\n\nc\nd", "a\nb\n\n"});
    textRow({"abc\U0001F600abcd", "abc\U0001F600"});
    textRow({"abcd\U0001F600", "abcd"});
    textRow({"abce\u0301abcd", "abce\u0301"});
    textRow({"abcde\u0301", "abcd"});
    textRow({QByteArray(1 << 20, 'x').constData(), "xxxxx"});
}

void TicketTest::detailsLimit()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setIssueDetailsMaxLength(5);
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    paste(details, text);
    QCOMPARE(dialog->getIssueDetails(), kept);
    QVERIFY(details.textCursor().atEnd() && !details.textCursor().hasSelection());

    dialog->setIssueDetails(QString());
    dialog->setIssueDetails(text);
    QCOMPARE(dialog->getIssueDetails(), kept);
}

void TicketTest::typingAtTheLimit_data()
{
    textColumns({"before", "typed"});
    textRow({"abc", "d"});
    textRow({"abe", "\u0301"});
    textRow({"a\U0001F600", "\u200d"});
}

void TicketTest::typingAtTheLimit()
{
    QFETCH(QString, before);
    QFETCH(QString, typed);
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setIssueDetailsMaxLength(3);
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    paste(details, before);
    for (int i = 0; i < 3; ++i) {
        QTest::sendKeyEvent(QTest::Click, &details, Qt::Key_unknown, typed, Qt::NoModifier);
        QCOMPARE(dialog->getIssueDetails(), before);
        QVERIFY(details.textCursor().atEnd());
    }
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
    QTest::keyClick(&details, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("12345"));
    QTest::keyClick(&details, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef12"));
}

void TicketTest::subjectLimit_data()
{
    textColumns({"before", "pasted", "after"});
    textRow({"", "abcdef", "abcd"});
    textRow({"", "abc\U0001F600", "abc"});
    textRow({"abc", "\U0001F600", "abc"});
    textRow({"", "ab\U0001F600abc", "ab\U0001F600"});
}

void TicketTest::subjectLimit()
{
    QFETCH(QString, before);
    QFETCH(QString, pasted);
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setSubjectMaxLength(4);
    dialog->setSubject(before);
    auto& subject = child<QLineEdit>(dialog, "edSubject");
    subject.setCursorPosition(1);
    paste(subject, pasted);
    QTEST(dialog->getSubject(), "after");

    // A limit that comes later cuts as well.
    dialog->setSubjectMaxLength(0);
    dialog->setSubject(QStringLiteral("abc\U0001F600"));
    dialog->setSubjectMaxLength(4);
    QCOMPARE(dialog->getSubject(), QStringLiteral("abc"));
}

void TicketTest::lateLimitKeepsDetails()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    dialog->setSubject(QStringLiteral("subject"));
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    paste(details, QStringLiteral("abcdef"));
    QVERIFY(child(dialog, "bnSubmit").isEnabled());
    dialog->setIssueDetailsMaxLength(3);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef"));
    QVERIFY(!child(dialog, "bnSubmit").isEnabled());
    dialog->done(1);
    QVERIFY(takeEvents().isEmpty());
    QTest::keyClick(&details, Qt::Key_Backspace);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abc"));
    QVERIFY(child(dialog, "bnSubmit").isEnabled());
}

void TicketTest::detailsAreNeverMarkup()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    const QString markup = QStringLiteral("<b>bold</b> &lt; <img src=\"file:///etc/hostname\">");
    dialog->setIssueDetails(markup);
    QCOMPARE(dialog->getIssueDetails(), markup);
    auto* html = new QMimeData;
    html->setHtml(QStringLiteral("<h1>heading</h1>"));
    html->setText(QStringLiteral("heading"));
    QGuiApplication::clipboard()->setMimeData(html);
    auto& details = child<QTextEdit>(dialog, "txIssueDetails");
    details.selectAll();
    QTest::keyClick(&details, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog->getIssueDetails(), QStringLiteral("heading"));
    QCOMPARE(details.textCursor().blockFormat().headingLevel(), 0);
}

GUI_TEST_MAIN(TicketTest)
#include "tst_ticket.moc"
