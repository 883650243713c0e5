#include "GuiTest.h"

#include <QLibrary>
#include <QMessageBox>
#include <QTimer>

/// The desktop changes under open dialogs: the session ends, fonts and styles change.
class LogoffTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void noDialogHoldsUpTheEnd_data();
    void noDialogHoldsUpTheEnd();
    void questionDoesNotHoldUpTheEnd();
    void closeRequestsAreAnsweredOtherwise();
    void desktopSettingsLeaveTheFormAlone_data();
    void desktopSettingsLeaveTheFormAlone();
};

namespace {
struct Application : QObject {
    using QObject::d_ptr;
};

/// Ends the session as a platform's session manager does: all windows are asked to close while isSavingSession() holds.
/// There is no public way into that state; false where the function that leads there has another name than here.
bool endSession()
{
    using CommitData = void (*)(QObjectData*);
    const auto commitData = reinterpret_cast<CommitData>(
        QLibrary::resolve(QStringLiteral("Qt5Gui"), 5, "_ZN22QGuiApplicationPrivate10commitDataEv"));
    if (!commitData)
        return false;
    // The offscreen platform would only announce the end.
    QObject context;
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &context, &QApplication::closeAllWindows);
    commitData((qApp->*&Application::d_ptr).data());
    return true;
}
} // namespace

void LogoffTest::noDialogHoldsUpTheEnd_data()
{
    QTest::addColumn<QString>("familyName");
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name;
}

void LogoffTest::noDialogHoldsUpTheEnd()
{
    QFETCH(QString, familyName);
    IBaseDialog* dialog = get(familyName, QStringLiteral("id"));
    if (auto* prompt = dynamic_cast<IApproveRemoteConnectionDialog*>(dialog))
        prompt->setCountdown(1000);
    showActive(dialog);
    // A filled form has something to lose, and still may not hold up the end.
    for (const char* field : {"edSubject", "edEmail", "edPassword", "edHost"}) {
        if (auto* edit = window(dialog).findChild<QWidget*>(QLatin1String(field)))
            QTest::keyClicks(edit, QStringLiteral("typed"));
    }
    if (!endSession())
        QSKIP("this Qt names its function otherwise");
    QVERIFY(!window(dialog).isVisible());
    QCOMPARE(takeEvents(), QStringList());
}

void LogoffTest::closeRequestsAreAnsweredOtherwise()
{
    // Otherwise nothing but the host and the dialogs' buttons closes them.
    for (const QString& family :
         {QStringLiteral("AuthorizationDialog"), QStringLiteral("ApproveRemoteConnectionDialog"),
          QStringLiteral("RemoteConnectionDialog")}) {
        IBaseDialog* dialog = get(family, QStringLiteral("id"));
        dialog->show();
        QVERIFY(!window(dialog).close());
        QVERIFY(window(dialog).isVisible());
    }
}

void LogoffTest::questionDoesNotHoldUpTheEnd()
{
    auto* dialog = show<IServiceDeskTicketDialog>();
    QTest::keyClicks(&child(dialog, "edSubject"), QStringLiteral("typed"));
    bool ended = false;
    QTimer::singleShot(0, this, [&] {
        QVERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
        ended = endSession();
        if (!ended)
            QApplication::activeModalWidget()->close();
    });
    click(dialog, "bnCancel");
    if (!ended)
        QSKIP("this Qt names its function otherwise");
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!window(dialog).isVisible());
    QCOMPARE(takeEvents(), QStringList());
}

void LogoffTest::desktopSettingsLeaveTheFormAlone_data()
{
    noDialogHoldsUpTheEnd_data();
}

void LogoffTest::desktopSettingsLeaveTheFormAlone()
{
    QFETCH(QString, familyName);
    IBaseDialog* dialog = get(familyName, QStringLiteral("id"));
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
