#include "GuiTest.h"

#include <QLibrary>
#include <QMessageBox>
#include <QTimer>

/// The desktop changes under open dialogs: the session ends, fonts and styles change.
class LogoffTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noDialogHoldsUpTheEnd_data();
    void noDialogHoldsUpTheEnd();
    void questionDoesNotHoldUpTheEnd();
    void desktopSettingsLeaveTheFormAlone_data();
    void desktopSettingsLeaveTheFormAlone();

private:
    void endSession();

    void (*commitData)(QObjectData*) = nullptr;
};

void LogoffTest::initTestCase()
{
    GuiTest::initTestCase();
    // There is no public way into the state in which isSavingSession() holds.
    commitData = reinterpret_cast<decltype(commitData)>(
        QLibrary::resolve(QStringLiteral("Qt5Gui"), 5, "_ZN22QGuiApplicationPrivate10commitDataEv"));
    if (commitData)
        // The offscreen platform would only announce the end.
        connect(qApp, &QGuiApplication::commitDataRequest, this, &QApplication::closeAllWindows);
}

/// Ends the session as a platform's session manager does: asks all windows to close.
void LogoffTest::endSession()
{
    struct Application : QObject {
        using QObject::d_ptr;
    };
    commitData((qApp->*&Application::d_ptr).data());
}

void LogoffTest::noDialogHoldsUpTheEnd_data()
{
    if (!commitData)
        QSKIP("this Qt names its function otherwise");
    familyRows();
}

void LogoffTest::noDialogHoldsUpTheEnd()
{
    QFETCH(QString, family);
    IBaseDialog* dialog = get(family, QStringLiteral("id"));
    if (auto* prompt = dynamic_cast<IApproveRemoteConnectionDialog*>(dialog))
        prompt->setCountdown(1000);
    showActive(dialog);
    // A filled form has something to lose, and still may not hold up the end.
    fillIn(dialog);
    endSession();
    QVERIFY(!window(dialog).isVisible());
    QCOMPARE(takeEvents(), QStringList());
}

void LogoffTest::questionDoesNotHoldUpTheEnd()
{
    if (!commitData)
        QSKIP("this Qt names its function otherwise");
    auto* dialog = show<IServiceDeskTicketDialog>();
    fillIn(dialog);
    QTimer::singleShot(0, this, [this] {
        QVERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
        endSession();
    });
    click(dialog, "bnCancel");
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!window(dialog).isVisible());
    QCOMPARE(takeEvents(), QStringList());
}

void LogoffTest::desktopSettingsLeaveTheFormAlone_data()
{
    familyRows();
}

void LogoffTest::desktopSettingsLeaveTheFormAlone()
{
    QFETCH(QString, family);
    IBaseDialog* dialog = get(family, QStringLiteral("id"));
    showActive(dialog);
    settle();
    const auto geometries = [dialog] {
        QVector<QRect> result;
        const QList<QWidget*> widgets = window(dialog).findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* widget : widgets)
            result << widget->geometry();
        return result << QRect(QPoint(), window(dialog).size());
    };
    const QVector<QRect> before = geometries();
    const QFont font = QApplication::font();
    const QPalette palette = QApplication::palette();
    QApplication::setFont(QFont(QStringLiteral("Liberation Serif"), 30));
    QApplication::setPalette(QPalette(Qt::black));
    QEvent languageChange(QEvent::LanguageChange);
    QApplication::sendEvent(&window(dialog), &languageChange);
    settle();
    const QVector<QRect> during = geometries();
    gui().setRatio(2.0F);
    dialog->setRatio(2.0F);
    window(dialog).grab();
    dialog->setRatio(0.5F);
    settle();
    QApplication::setFont(font);
    QApplication::setPalette(palette);
    settle();
    QCOMPARE(during, before);
    QCOMPARE(window(dialog).size(), before.last().size());
}

GUI_TEST_MAIN(LogoffTest)
#include "tst_logoff.moc"
