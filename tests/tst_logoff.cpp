#include "GuiTest.h"

/// The desktop changes under open dialogs: fonts, colours and language change, the session ends.
class LogoffTest : public GuiTest {
    Q_OBJECT

    /// Ends the session as a platform's session manager does: asks all windows to close.
    void endSession()
    {
        struct Application : QObject {
            using QObject::d_ptr;
        };
        commitData((qApp->*&Application::d_ptr).data());
    }

    void (*commitData)(QObjectData*) = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        GuiTest::initTestCase();
        // There is no public way into the state in which isSavingSession() holds.
        commitData = reinterpret_cast<decltype(commitData)>(
            QLibrary::resolve(QStringLiteral("Qt%1Gui").arg(QT_VERSION_MAJOR), QT_VERSION_MAJOR,
                              "_ZN22QGuiApplicationPrivate10commitDataEv"));
        if (!commitData)
            QSKIP("this Qt names its function otherwise");
        // The offscreen platform would only announce the end.
        connect(qApp, &QGuiApplication::commitDataRequest, this, &QApplication::closeAllWindows);
    }

    void noDialogHoldsUpTheEnd_data()
    {
        familyRows();
    }

    void noDialogHoldsUpTheEnd()
    {
        QFETCH(QString, family);
        IBaseDialog* dialog = get(family, QStringLiteral("id"));
        if (auto* prompt = dynamic_cast<IApproveRemoteConnectionDialog*>(dialog))
            prompt->setCountdown(1000);
        showActive(dialog);
        settle();

        const auto area = [dialog] { return window(dialog).childrenRegion().translated(window(dialog).pos()); };
        const QRegion before = area();
        const QFont font = QApplication::font();
        const QPalette palette = QApplication::palette();
        QApplication::setFont(QFont(QStringLiteral("Liberation Serif"), 30));
        QApplication::setPalette(QPalette(Qt::black));
        QEvent languageChange(QEvent::LanguageChange);
        QApplication::sendEvent(&window(dialog), &languageChange);
        settle();
        const QRegion after = area();
        QApplication::setFont(font);
        QApplication::setPalette(palette);
        QCOMPARE(after, before);

        // A ticket that would be lost.
        press(dialog, Qt::Key_A);
        endSession();
        QVERIFY(!window(dialog).isVisible());
        QCOMPARE(takeEvents(), QStringList());
    }

    void questionDoesNotHoldUpTheEnd()
    {
        auto* dialog = show<IServiceDeskTicketDialog>();
        press(dialog, Qt::Key_A);
        QTimer::singleShot(0, this, [this] {
            QVERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
            endSession();
        });
        click(dialog, "bnCancel");
        QVERIFY(!QApplication::activeModalWidget() && !window(dialog).isVisible());
        QCOMPARE(takeEvents(), QStringList());
    }
};

GUI_TEST_MAIN(LogoffTest)
#include "tst_logoff.moc"
