#include "GuiInterface.h"
#include "GuiTest.h"
#include "IActivationDialog.h"

#include <QAccessible>
#include <QDir>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPluginLoader>
#include <QPointer>

/// What the library leaves behind in the application when the host unloads it: nothing.
class UnloadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wordsLeaveWithTheLibrary_data();
    void wordsLeaveWithTheLibrary();
};

namespace {
QString cancel()
{
    return QCoreApplication::translate("ErrorMessageDialog", "Cancel");
}

QString undo()
{
    return QCoreApplication::translate("QLineEdit", "&Undo");
}
} // namespace

void UnloadTest::initTestCase()
{
    if (!QDir(QLibraryInfo::location(QLibraryInfo::TranslationsPath)).exists(QStringLiteral("qtbase_de.qm")))
        QSKIP("Qt's own catalogues are not installed");
}

void UnloadTest::wordsLeaveWithTheLibrary_data()
{
    QTest::addColumn<int>("roots");
    QTest::newRow("one root object") << 1;
    QTest::newRow("a second root object after the first") << 2;
}

void UnloadTest::wordsLeaveWithTheLibrary()
{
    QFETCH(int, roots);
    // Qt keeps plugins in memory unless told otherwise before it knows which.
    QPluginLoader loader;
    loader.setLoadHints(QLibrary::LoadHints());
    loader.setFileName(QStringLiteral(GUI_PLUGIN));
    for (int i = 0; i < roots; ++i) {
        const QPointer<QObject> root(loader.instance());
        auto* gui = qobject_cast<GuiInterface*>(root.data());
        QVERIFY2(gui, qPrintable(loader.errorString()));
        QCOMPARE(cancel(), QStringLiteral("Abbrechen"));
        QCOMPARE(undo(), QStringLiteral("&Rückgängig"));
        auto* dialog = dynamic_cast<QWidget*>(gui->getActivationDialogInstance());
        QVERIFY(QAccessible::queryAccessibleInterface(dialog->findChild<QLineEdit*>(QStringLiteral("edToken"))));
        QVERIFY(gui->deleteActivationDialogInstance());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        delete root.data();
    }
    QVERIFY(loader.unload());
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
    QCOMPARE(undo(), QStringLiteral("&Undo"));
    // Whoever were still asked to describe widgets for screen readers would be gone.
    QLineEdit edit;
    QVERIFY(QAccessible::queryAccessibleInterface(&edit));
}

int main(int argc, char** argv)
{
    prepareTestEnvironment();
    qputenv("LANGUAGE", "de");
    QApplication application(argc, argv);
    UnloadTest test;
    return runTest(test, argc, argv);
}
#include "tst_unload.moc"
