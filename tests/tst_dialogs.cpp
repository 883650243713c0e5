#include "GuiTest.h"

/// What each dialog reports for clicks, keys, slots and requests to close, as the host guide says too, where it starts,
/// and what the progress window, the About box, the restart prompt and the options do besides.
class DialogsTest : public GuiTest {
    Q_OBJECT

    static void preset(IBaseDialog* dialog, const QString& family, const QString& values)
    {
        const QJsonObject properties = QJsonDocument::fromJson(values.toUtf8()).object();
        QCOMPARE(properties.isEmpty(), values.isEmpty());
        for (auto property = properties.begin(); property != properties.end(); ++property)
            dialogFamily(family).set(*dialog, property.key(), property.value());
    }

    static QImage frame(int number)
    {
        return QPixmap(QStringLiteral(":/images/progress bar/%1.png").arg(number)).toImage();
    }

    static QImage nextPicture(IProgressDialog* dialog)
    {
        act(dialog, QStringLiteral("updateProgressAnimation()"));
        return child<QLabel>(dialog, "messageIcon").property("pixmap").value<QPixmap>().toImage();
    }

    IProgressDialog* current = nullptr;
    QStringList steps;

    /// One row of test data per row of the table that has these columns.
    static void guideRows(std::initializer_list<const char*> columns)
    {
        textColumns(columns);
        QFile guide(QStringLiteral(GUIDE));
        QVERIFY(guide.open(QIODevice::ReadOnly));
        QString header;
        for (const char* column : columns)
            header += QStringLiteral("| ") + QString::fromUtf8(column) + QLatin1Char(' ');
        const QString text = QString::fromUtf8(guide.readAll()).remove(QLatin1Char('`'));
        const QString table = text.section(header + QStringLiteral("|\n"), 1).section(QStringLiteral("\n\n"), 0, 0);
        QVERIFY2(!table.isEmpty(), qPrintable(header));
        for (const QString& line : table.split(QLatin1Char('\n')).mid(1)) {
            const QStringList cells = line.mid(2).chopped(2).split(QStringLiteral(" | "));
            QTestData& row = QTest::newRow(qPrintable(cells.first()));
            for (const QString& cell : cells)
                row << cell;
        }
    }

public Q_SLOTS:
    void noteStep()
    {
        steps << child<QLabel>(current, "lblProgress").text();
        // Once it starts over.
        if (steps.size() == 3)
            current->startWaiter(0.0F);
    }

private Q_SLOTS:
    void events_data()
    {
        textColumns({"family", "actions", "event", "values"});
        const auto add = [](const char* family, const char* actions, const char* event, const char* values = "") {
            textRow({family, actions, event, values});
        };
        add("ErrorMessageDialog", "reject() slClose() close btnCancel btnClose @btnCancel Return", "evClose");
        add("ErrorMessageDialog", "slInnerButtonClick()", "evTryAgain");
        add("ErrorMessageDialog", "Space", "");

        add("AcceptMessageDialog", "slClose() btnCancel btnClose", "evClose");
        add("AcceptMessageDialog", "Return reject() close btnMessageInnerButton", "evOk");

        add("ProgressDialog", "btnMessageInnerButton- Space Return Enter Escape A accept()", "");
        add("ProgressDialog", "btnCancel btnClose @btnCancel Space", "evCancel");
        add("ProgressDialog", "reject() close", "evClose");

        add("RebootDialog", "Return Enter postponeButton @rebootNowButton Return Enter", "evPostpone");
        add("RebootDialog", "Escape R N Y 1 Space Period F5 Delete Home PageUp @postponeButton Escape", "");
        add("RebootDialog", "closed()", "evClosed");
        add("RebootDialog", "rebootNowButton @rebootNowButton Space", "evRebootNow");

        add("AboutDialog", "Return Enter Space accept() reject() close btnOk btnClose", "evClose");
        add("AboutDialog", "btnUpdateNow", "evUpdateNow");
        add("AboutDialog", "@lblWebSiteLink Return Enter", "evLinkClicked");

        add("AuthorizationDialog", "reject() slClose() close btnCancel btnClose", "evClose");
        add("AuthorizationDialog", "Return Enter accept() slLogin() btnLogin Escape A btnLogin-", "");
        add("AuthorizationDialog", "@edPassword Space btnLogin+ Backspace btnLogin-", "");
        add("AuthorizationDialog", "accept() slLogin() btnLogin", "evLogin", R"({"password": " "})");
        add("AuthorizationDialog", "goToWeb() lblWebLink @lblWebLink Return Enter", "evGoToWeb",
            R"({"password": "x"})");

        add("ActivationDialog", "reject() slClose() close btnCancel btnClose", "evClose");
        add("ActivationDialog", "Return Enter accept() slActivate()", "evEnroll");
        add("ActivationDialog", "A Escape toggleStep() btnActivateNow btnActivateNow- @edToken Space btnActivateNow+",
            "", R"({"serverUrl": "a"})");
        add("ActivationDialog", "btnActivateNow", "evEnroll", R"({"token": " "})");
        add("ActivationDialog", "goToRegistration()", "evGoToRegistration");

        add("ZentPasswordDialog", "reject() slClose() close btnCancel", "evClose");
        add("ZentPasswordDialog", "Return Enter accept() slContinue() btnContinue", "");
        add("ZentPasswordDialog", "btnContinue- Space btnContinue+ Backspace btnContinue-", "");
        add("ZentPasswordDialog", "accept() slContinue() btnContinue", "evContinue", R"({"password": " "})");

        add("EnterPasswordDialog", "Return Enter accept() onOkClicked() buttonOk", "evOk");
        add("EnterPasswordDialog", "onCancelClicked() buttonCancel", "evCancel");
        add("EnterPasswordDialog", "onCloseClicked()", "evCloseClicked");

        add("OptionDialog", "reject() close btnClose btnCancel @btnCancel Enter", "evClose");
        add("OptionDialog", "slDeactivateAccount()", "evDeactivate");
        add("OptionDialog", "Return accept() btnSave", "evSave");
        add("OptionDialog",
            "Escape D Y Space Period F5 Delete btnSave+ @proxyGroupBox Space btnSave btnSave- @edtAdress Space "
            "btnSave+",
            "");
        add("OptionDialog",
            "@proxyAuthGroupBox Space btnSave btnSave- @edtProxyLogin Space btnSave+ @edtAdress "
            "Backspace btnSave-",
            "", R"({"proxyEnabled": true, "proxyAddress": "p"})");
        add("OptionDialog", "btnSave", "evSave", R"({"proxyAuthEnabled": true})");
        // The key saves even what is incomplete, unless a button has the focus.
        add("OptionDialog", "@edtAdress Return @spnbxPort Return @chkShowIcon Return @proxyGroupBox Return", "evSave",
            R"({"proxyEnabled": true})");

        add("ApproveRemoteConnectionDialog", "accept() reject() @messageTextEdit Return Enter Escape Space", "",
            R"({"countdown": 30})");
        add("ApproveRemoteConnectionDialog", "Return @cancelButton Enter Space", "evCancel", R"({"countdown": 30})");
        add("ApproveRemoteConnectionDialog", "@allowButton Space", "evAllow", R"({"countdown": 30})");
        // Only the end of all sessions closes it, which have a test of their own.
        add("RemoteConnectionDialog", "Escape A Return accept() reject() close", "");

        add("ServiceDeskTicketDialog", "Escape reject() slClose() close bnCancel btnClose", "evCancel");
        add("ServiceDeskTicketDialog", "bnSubmit bnSubmit- @cbDepartment Return", "", R"({"subject": "s"})");
        add("ServiceDeskTicketDialog", "@txIssueDetails Return", "", R"({"subject": "s", "issueDetails": "d"})");
        for (const char* field : {"@edSubject Return!", "@cbDepartment Enter!", "@ckIncludeDeviceData Return!"})
            add("ServiceDeskTicketDialog", field, "evSubmit", R"({"subject": "s", "issueDetails": "d"})");
        add("ServiceDeskTicketDialog", "bnSubmit", "evSubmit", R"({"subject": " ", "issueDetails": "d"})");
    }
    void events()
    {
        QFETCH(QString, family);
        QFETCH(QString, actions);
        QFETCH(QString, event);
        QFETCH(QString, values);
        IBaseDialog* dialog = get(family);
        preset(dialog, family, values);
        showActive(dialog);
        checkEvents(dialog, actions, event);
    }

    void shownAgain_data()
    {
        textColumns({"family", "start", "values"});
        textRow({"ErrorMessageDialog", "ErrorMessageDialog", ""});
        textRow({"AcceptMessageDialog", "btnMessageInnerButton", ""});
        textRow({"ProgressDialog", "ProgressDialog", ""});
        textRow({"RebootDialog", "timeoutComboBox", ""});
        textRow({"AboutDialog", "btnOk", ""});
        textRow({"AuthorizationDialog", "edEmail", R"({"password": "x"})"});
        textRow({"AuthorizationDialog", "edPassword", R"({"username": "anna"})"});
        textRow({"AuthorizationDialog", "edPassword selected", R"({"username": "anna", "password": "x"})"});
        textRow({"ActivationDialog", "edHost", R"({"token": "x"})"});
        textRow({"ActivationDialog", "edHost selected", R"({"serverUrl": "https:\/\/a", "token": "x"})"});
        textRow({"ZentPasswordDialog", "edPassword selected", R"({"password": "x"})"});
        textRow({"EnterPasswordDialog", "editLogin", R"({"domain": "d"})"});
        textRow({"EnterPasswordDialog", "editAdministratorPassword selected",
                 R"({"domain": "d", "login": "l", "administratorPassword": "x"})"});
        textRow({"EnterPasswordDialog", "editZentPassword selected", R"({"accessMode": 1, "zentPassword": "x"})"});
        textRow({"EnterPasswordDialog", "editZentPassword", R"({"customPasswordSelected": true})"});
        textRow({"EnterPasswordDialog", "editDomain", R"({"accessMode": 0, "customPasswordSelected": true})"});
        textRow({"EnterPasswordDialog", "EnterPasswordDialog", R"({"accessMode": 3})"});
        textRow({"OptionDialog", "chkShowIcon", ""});
        textRow({"ServiceDeskTicketDialog", "edSubject", R"({"issueDetails": "d"})"});
        textRow({"ServiceDeskTicketDialog", "txIssueDetails", R"({"subject": "s"})"});
        textRow({"ApproveRemoteConnectionDialog", "cancelButton", R"({"countdown": 30})"});
    }
    void shownAgain()
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

    void aboutLink()
    {
        auto* dialog = show<IAboutDialog>();
        auto& link = child<QLabel>(dialog, "lblWebSiteLink");
        QTest::mouseClick(&link, Qt::LeftButton, Qt::NoModifier, QPoint(12, 8));
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("evLinkClicked")});
        QVERIFY(!link.openExternalLinks());
    }

    void aboutComesToTheFront()
    {
        auto* dialog = get<IAboutDialog>();
        window(dialog).showMinimized();
        dialog->show();
        QVERIFY(window(dialog).isVisible() && !window(dialog).isMinimized());
        QTRY_VERIFY(window(dialog).isActiveWindow());
        QVERIFY(gui().deleteAboutDialogInstance());
        settle();
        QVERIFY(!messages.filter(QLatin1String("About dialog destroyed")).isEmpty());
    }

    void rebootPeriods()
    {
        auto* dialog = show<IRebootDialog>();
        auto& list = child<QComboBox>(dialog, "timeoutComboBox");
        for (const char* text : {"10 minutes", "30 minutes", "1 hour", "4 hours"}) {
            QCOMPARE(list.currentText(), QLatin1String(text));
            QCOMPARE(dialog->getPostponePeriod(), list.currentIndex());
            press(dialog, Qt::Key_Down);
        }
        for (const int period : {4, 3, -1, 2}) {
            dialog->setPostponePeriod(period);
            QCOMPARE(list.currentIndex(), period == 2 || period == 3 ? period : 0);
        }
        list.setCurrentIndex(-1);
        QCOMPARE(dialog->getPostponePeriod(), 0);
    }

    void rebootReason()
    {
        auto* dialog = show<IRebootDialog>();
        dialog->setMessage(QStringLiteral("<b>Updates</b> were <i>installed</i>."));
        QCOMPARE(dialog->getMessage(), QStringLiteral("Updates were installed."));
        const auto& text = child<QTextEdit>(dialog, "rebootReasonLabel");
        QVERIFY(text.isReadOnly());
        auto& bar = *text.verticalScrollBar();
        QTRY_VERIFY(!bar.isVisible());

        // No pictures, also not those that come with the text.
        QBuffer png;
        QVERIFY(QImage(300, 300, QImage::Format_Mono).save(&png, "PNG"));
        const QString data = QString::fromLatin1(png.data().toBase64());
        dialog->setMessage(QStringLiteral("<img src='data:image/png;base64,%1'>").arg(data));
        QVERIFY(text.document()->size().height() < 100);

        // What Qt could lay out for hours is plain text.
        const QString table = QStringLiteral("<table><tr><td rowspan='9'>x");
        for (const QString& costly : {table.repeated(9), QStringLiteral("<b>x</b><TD colspan = 010>")}) {
            dialog->setMessage(costly);
            QCOMPARE(dialog->getMessage(), costly);
        }
        dialog->setMessage(table.repeated(8) + QStringLiteral("&lt;td colspan=99&gt;"));
        QVERIFY(dialog->getMessage().simplified().startsWith(QStringLiteral("x x x x x x x x")));

        dialog->setMessage(QStringLiteral("A line of the reason.<br>").repeated(500));
        QTRY_VERIFY(bar.isVisible());
        bar.setFocus();
        press(dialog, Qt::Key_End);
        QTRY_COMPARE(bar.value(), bar.maximum());
        checkEvents(dialog, QStringLiteral("Return"), QStringLiteral("evPostpone"));
    }

    void proxyPorts()
    {
        auto* dialog = show<IOptionDialog>();
        for (const quint16 port : {0, 1, 65535, 65534}) {
            dialog->setProxyPort(port);
            QCOMPARE(dialog->getProxyPort(), qMax<int>(port, 1));
        }
        dialog->setProxyEnabled(true);
        auto& port = child<QSpinBox>(dialog, "spnbxPort");
        QWheelEvent up(QPointF(5, 5), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
        QApplication::sendEvent(&port, &up);
        QVERIFY(dialog->getProxyPort() == 65535 - 1 && port.focusPolicy() == Qt::StrongFocus);
        port.selectAll();
        QTest::keyClicks(&port, QStringLiteral("-x99999"));
        QCOMPARE(dialog->getProxyPort(), 9999);
    }

    void longMessagesHaveToolTips()
    {
        auto* dialog = get<IErrorMessageDialog>();
        for (const QString& message : {QString(5000, QLatin1Char('w')), QStringLiteral("short")}) {
            dialog->setMessage(message);
            QCOMPARE(child(dialog, "lblMessage").toolTip().isEmpty(), message.size() < 5000);
        }
    }

    void modalBlocksTheHost()
    {
        QPushButton button;
        QSignalSpy clicked(&button, &QPushButton::clicked);
        button.show();
        auto* dialog = get<IAcceptMessageDialog>();
        for (const bool modal : {true, false}) {
            dialog->hide();
            dialog->setModal(modal);
            showActive(dialog);
            QTest::mouseClick(button.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
            QTRY_COMPARE(clicked.size(), modal ? 0 : 1);
        }
        // Set on a window that is shown, it counts when the window appears anew, which exec() sees to.
        dialog->setModal(true);
        QTimer::singleShot(0, this, [&] {
            dialog->setModal(false);
            dialog->done(QApplication::activeModalWidget() ? 7 : 8);
        });
        QCOMPARE(dialog->exec(), 7);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void hiddenParts()
    {
        auto* dialog = show<IOptionDialog>();
        auto& deactivate = child(dialog, "btnDeactivateAntiTheft");
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

    void percentage()
    {
        constexpr unsigned int huge = std::numeric_limits<unsigned int>::max();
        auto* dialog = get<IProgressDialog>();
        const auto check = [dialog](unsigned int value, unsigned int total, int percentage) {
            dialog->setProgress(7, 100);
            dialog->setProgress(value, total);
            QCOMPARE(dialog->getProgress(), percentage);
            QCOMPARE(child<QLabel>(dialog, "lblProgress").text(), QStringLiteral("%1%").arg(percentage));
        };
        // Totals below a hundred do nothing.
        check(50, 0, 7);
        check(99, 99, 7);
        // Both are cut to whole numbers.
        check(150, 199, 150);
        check(1999, 1000, 199);
        check(0, 100, 0);
        check(huge, huge, 100);
        check(huge, 200, 2147483647);
        check(huge, 100, -1);
        // A change is reported once.
        QSignalSpy changed(&window(dialog), SIGNAL(progressChanged()));
        for (const unsigned int total : {100U, 100U, 0U})
            dialog->setProgress(50, total);
        QCOMPARE(changed.count(), 1);
    }

    void waiterCounts()
    {
        current = get<IProgressDialog>();
        current->setProgress(99, 100);
        QSignalSpy complete(&window(current), SIGNAL(sigWaiterComplete()));
        QVERIFY(connect(&window(current), SIGNAL(progressChanged()), this, SLOT(noteStep())));
        current->startWaiter(0.01F);
        QTRY_COMPARE(complete.count(), 1);
        QCOMPARE(steps.join(QLatin1Char(' ')),
                 QStringLiteral("0% 10% 20% 0% 10% 20% 30% 40% 50% 60% 70% 80% 90% 100%"));
        const QTimer* waiter = nullptr;
        for (const QTimer* timer : window(current).findChildren<QTimer*>()) {
            if (timer->property("waiter_current_value").toInt() == 100)
                waiter = timer;
        }
        QVERIFY(waiter && !waiter->isActive());
        const QPair<float, int> intervals[] = {
            {1.5F, 150},
            {0.0199F, 1},
            {std::nanf(""), 0},
            {std::numeric_limits<float>::infinity(), std::numeric_limits<int>::max()}};
        for (const auto& interval : intervals) {
            current->startWaiter(interval.first);
            QVERIFY(waiter->isActive() && waiter->property("waiter_current_value").toInt() == 0);
            QCOMPARE(waiter->interval(), interval.second);
        }
    }

    void spinnerTurns()
    {
        auto* dialog = get<IProgressDialog>();
        for (int i = 0; i < 24 && nextPicture(dialog) != frame(24); ++i) { }
        for (int i = 0; i < 48; ++i)
            QCOMPARE(nextPicture(dialog), frame(i % 24 + 1));

        // The next dialog takes the turn up where this one left it.
        nextPicture(dialog);
        QVERIFY(gui().deleteProgressDialogInstance());
        QCOMPARE(nextPicture(get<IProgressDialog>()), frame(2));
    }

    void keysOfTheGuide_data()
    {
        guideRows({"dialog", "Return", "Escape", "close request", "×"});
    }

    void keysOfTheGuide()
    {
        QFETCH(QString, dialog);
        const Family& family = dialogFamily(dialog);
        // What a new dialog does about one of them, in the words of the table.
        const auto answer = [&](QString action) {
            family.remove(gui(), QString());
            settle();
            IBaseDialog* const target = get(dialog);
            const QJsonObject values = family.values(*target);
            for (const QString& required :
                 {QStringLiteral("password"), QStringLiteral("subject"), QStringLiteral("issueDetails")})
                if (values.contains(required))
                    family.set(*target, required, QStringLiteral("x"));
            showActive(target);
            takeEvents();
            if (action == QStringLiteral("×")) {
                const QRegularExpression names(QStringLiteral("^(btnClose|closeButton)$"));
                const auto corner = window(target).findChildren<QAbstractButton*>(names);
                if (corner.isEmpty())
                    return QStringLiteral("none");
                action = corner.first()->objectName();
            }
            act(target, action);
            QStringList results = takeEvents();
            if (!window(target).isVisible())
                results << QStringLiteral("hides");
            return results.isEmpty() ? QStringLiteral("nothing") : results.join(QStringLiteral(", "));
        };
        for (const char* column : {"Return", "Escape", "close request", "×"})
            QTEST(answer(QString::fromUtf8(column).section(QLatin1Char(' '), 0, 0)), column);
        QTEST(answer(QStringLiteral("Enter")), "Return");
    }

    void actionsOfTheGuide_data()
    {
        guideRows({"action", "reply", "abort", "cancel", "error"});
    }

    void actionsOfTheGuide()
    {
        QFETCH(QString, action);
        auto* session = get<IRemoteConnectionDialog>();
        for (const char* status : {"reply", "abort", "cancel", "error"}) {
            session->addLogEvent(0, QString(), action, QString(), QLatin1String(status));
            const auto* log = child<QListView>(session, "logsListView").model();
            const QString text = log->index(0, 0).data(Qt::UserRole + 1).toString().mid(20).trimmed();
            QTEST(text.isEmpty() ? QStringLiteral("no words") : text, status);
        }
    }
};

GUI_TEST_MAIN(DialogsTest)
#include "tst_dialogs.moc"
