#include "GuiTest.h"

/// The ticket form: what may be submitted, what its limits keep out, and that nothing typed gets lost unasked.
class TicketTest : public GuiTest {
    Q_OBJECT

    static QMessageBox* question()
    {
        return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    }
    /// Answers the discard question, which must come, with a key.
    void answerNext(Qt::Key key)
    {
        QTimer::singleShot(0, this, [key] {
            QVERIFY(question());
            QTest::keyClick(question(), key);
        });
    }
    /// The form with everything set by the host.
    IServiceDeskTicketDialog* showFilled()
    {
        auto* dialog = show<IServiceDeskTicketDialog>();
        dialog->setDepartments({QStringLiteral("IT"), QStringLiteral("HR")});
        dialog->setDepartment(QStringLiteral("HR"));
        dialog->setPriorities({QStringLiteral("Low"), QStringLiteral("High")});
        dialog->setPriority(QStringLiteral("High"));
        dialog->setSubject(QStringLiteral("abc\U0001F600"));
        dialog->setSubjectMaxLength(4);
        dialog->setIssueDetails(QStringLiteral("details"));
        dialog->setIncludeDeviceData(true);
        return dialog;
    }

private Q_SLOTS:
    void hostMayAnswerByAccepting()
    {
        auto* dialog = showFilled();
        // A host may also ask again before it answers.
        int rounds = 0;
        connect(&window(dialog), SIGNAL(dialogEvent(IServiceDeskTicketDialog*, IServiceDeskTicketDialog::TEvent)),
                &window(dialog), SLOT(accept()));
        for (const char* answer : {"bnSubmit", "Return"}) {
            onNextEvent([&] {
                dialog->hide();
                QTimer::singleShot(0, &window(dialog), [&] {
                    child(dialog, "edSubject").setFocus();
                    act(dialog, QLatin1String(answer));
                });
                rounds += dialog->exec();
            });
            showActive(dialog);
            click(dialog, "bnSubmit");
        }
        QCOMPARE(rounds, 2);
        QCOMPARE(takeEvents().size(), 4);
    }

    void editsAreNotLostUnasked_data()
    {
        textColumns({"field", "key"});
        textRow({"edSubject", "Backspace"});
        textRow({"cbDepartment", "Up"});
        textRow({"cbPriorityLevel", "Up"});
        textRow({"txIssueDetails", "A"});
        textRow({"ckIncludeDeviceData", "Space"});
    }
    void editsAreNotLostUnasked()
    {
        QFETCH(QString, field);
        QFETCH(QString, key);
        auto* dialog = showFilled();
        // What the host sets is no edit, nor is a composition that is given up, and neither hides one.
        QInputMethodEvent cancelledComposition;
        QApplication::sendEvent(&child(dialog, "txIssueDetails"), &cancelledComposition);
        checkEvents(dialog, QStringLiteral("Escape"), QStringLiteral("evCancel"));
        child(dialog, qPrintable(field)).setFocus();
        act(dialog, key);
        dialog->setIssueDetails(QStringLiteral("other"));
        for (const char* action : {"Escape", "reject()", "close", "bnCancel", "btnClose"}) {
            answerNext(Qt::Key_Escape);
            checkEvents(dialog, QLatin1String(action), QString());
        }
        answerNext(Qt::Key_Return);
        // Discarded is discarded: nothing is left to ask about.
        checkEvents(dialog, QStringLiteral("Escape Escape"), QStringLiteral("evCancel"));
    }

    void questionGoesWithTheForm()
    {
        auto* dialog = show<IServiceDeskTicketDialog>();
        const QPointer<QWidget> guard(&window(dialog));
        QTest::keyClick(&child(dialog, "edSubject"), Qt::Key_A);
        QTimer::singleShot(0, this, [&] {
            QVERIFY(question());
            QCOMPARE(question()->defaultButton()->font().family(), QStringLiteral("Arial"));
            // There is one question at a time, and the form that is shown again asks its own.
            act(dialog, QStringLiteral("close"));
            dialog->hide();
            QVERIFY(!question());
            dialog->show();
            QTimer::singleShot(0, this, [] { QVERIFY(question() && gui().deleteServiceDeskTicketDialogInstance()); });
            act(dialog, QStringLiteral("slClose()"));
        });
        QVERIFY(QMetaObject::invokeMethod(guard, "slClose"));
        QVERIFY(!guard && takeEvents().isEmpty());
    }

    void choices()
    {
        auto* dialog = showFilled();
        dialog->setPriority(QStringLiteral("low"));
        QVERIFY(dialog->getPriorityIndex() == 1 && dialog->getPriority() == QLatin1String("High"));
        // The wheel scrolls; it changes only what has the focus.
        QWheelEvent up(QPointF(5, 5), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
        QApplication::sendEvent(&child(dialog, "cbPriorityLevel"), &up);
        QCOMPARE(dialog->getPriorityIndex(), 1);
        dialog->setPriorities({});
        QCOMPARE(dialog->getPriorityIndex(), -1);

        // A combo box passes such a press on, but not its release, which ends the dragging all the same.
        QTest::mouseClick(&child(dialog, "cbDepartment"), Qt::RightButton);
        const QPoint place = window(dialog).pos();
        QMouseEvent move(QEvent::MouseMove, QPointF(9, 9), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&child(dialog, "lbIncludeDeviceDataText"), &move);
        QCOMPARE(window(dialog).pos(), place);
        QTest::mouseClick(&child(dialog, "lbIncludeDeviceDataText"), Qt::RightButton);
        QVERIFY(dialog->isIncludeDeviceData());
        click(dialog, "lbIncludeDeviceDataText");
        QVERIFY(!dialog->isIncludeDeviceData());
        dialog->setSubject(QString());
        dialog->done(0);
        QVERIFY(!window(dialog).isVisible());
    }

    void limits_data()
    {
        textColumns({"field", "before", "pasted", "after"});
        textRow({"edSubject", "", "abcdef", "abcde"});
        textRow({"edSubject", "abcd", "\U0001F600", "abcd"});
        textRow({"edSubject", "", "printer\non\r\n", "print"});
        textRow({"txIssueDetails", "", "abcd\n\n\n", "abcd\n"});
        textRow({"txIssueDetails", "", "a\r\nb\r\nc\r\nd", "a\nb\nc"});
        textRow({"txIssueDetails", "", "abcd\U0001F600", "abcd"});
        textRow({"txIssueDetails", "", "abcde\u0301", "abcd"});
        textRow({"txIssueDetails", "", QByteArray(1 << 20, 'x').constData(), "xxxxx"});
        textRow({"txIssueDetails", "abcde", "x", "abcde"});
        // What stood there before is not cut by what comes behind it.
        textRow({"txIssueDetails", "abcde", "\u0301", "abcde"});
    }
    void limits()
    {
        QFETCH(QString, field);
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QFETCH(QString, after);
        auto* dialog = show<IServiceDeskTicketDialog>();
        dialog->setSubjectMaxLength(0);
        QCOMPARE(child<QLineEdit>(dialog, "edSubject").maxLength(), 32767);
        dialog->setSubjectMaxLength(5);
        dialog->setIssueDetailsMaxLength(5);
        auto& edit = child(dialog, qPrintable(field));
        const auto text = [&] {
            return field == QLatin1String("edSubject") ? dialog->getSubject() : dialog->getIssueDetails();
        };
        QTest::keyClicks(&edit, before);
        paste(edit, pasted);
        QTest::keySequence(&edit, QKeySequence::Redo);
        commit(edit, pasted.right(2));
        QCOMPARE(text(), after);
        QTest::keyClicks(&edit, QStringLiteral("xxx"));
        for (int steps = 0; !text().isEmpty() && steps < 4; ++steps)
            QTest::keySequence(&edit, QKeySequence::Undo);
        QCOMPARE(text(), QString());
        for (int steps = 0; steps < 4; ++steps)
            QTest::keySequence(&edit, QKeySequence::Redo);
        QVERIFY(text().startsWith(after));
    }

    void cutAtTheEnd()
    {
        auto* dialog = show<IServiceDeskTicketDialog>();
        dialog->setIssueDetails(QStringLiteral("abcdef"));
        dialog->setSubject(QStringLiteral("s"));
        // The details stay until the next edit, but cannot be submitted.
        dialog->setIssueDetailsMaxLength(3);
        QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef"));
        QVERIFY(!child(dialog, "bnSubmit").isEnabled());
        auto& details = child<QTextEdit>(dialog, "txIssueDetails");
        // Pasted is plain text, also where the clipboard has more.
        auto* content = new QMimeData;
        content->setText(QStringLiteral("12"));
        content->setHtml(QStringLiteral("1<b>2</b><img src='x.png'>"));
        QGuiApplication::clipboard()->setMimeData(content);
        details.paste();
        QVERIFY(!details.toHtml().contains(QLatin1String("<img")));
        QCOMPARE(dialog->getIssueDetails(), QStringLiteral("12a"));
        QVERIFY(details.textCursor().atEnd() && child(dialog, "bnSubmit").isEnabled());
        QTest::keySequence(&details, QKeySequence::Undo);
        QCOMPARE(dialog->getIssueDetails(), QStringLiteral("abcdef"));
        dialog->setIssueDetails(QStringLiteral("ghijkl"));
        QCOMPARE(dialog->getIssueDetails(), QStringLiteral("ghi"));
    }
};

GUI_TEST_MAIN(TicketTest)
#include "tst_ticket.moc"
