#include "GuiTest.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QPluginLoader>

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
#include <malloc.h>
#endif

/// A host that takes the plugin away again. Nothing of it may stay behind: no resource, no translator, no pointer into
/// code that is no longer there.
class ReloadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void loadsAndUnloads_data();
    void loadsAndUnloads();
};

namespace {
bool isThere()
{
    return QFile::exists(QStringLiteral(":/eula.html")) || QFile::exists(QStringLiteral(":/images/ok.png"))
        || QFile::exists(QStringLiteral(":/images/brisel_caption.png"))
        || QFile::exists(QStringLiteral(":/widgets/takeoverpanel.ui"))
        || QFile::exists(QStringLiteral(":/translations/Gui_de.qm"));
}

QString translated()
{
    return QCoreApplication::translate("AboutDialog", "About");
}

void useDialogs(GuiInterface& gui, int round)
{
    // Two of the thirteen families per round.
    for (int i = 0; i < 2; ++i) {
        const Family& family = dialogFamilies()[(2 * round + i) % dialogFamilies().size()];
        IBaseDialog* dialog = family.get(gui, QStringLiteral("id"));
        auto& window = dynamic_cast<QWidget&>(*dialog);
        window.setVisible(true);
        window.grab();
        QCoreApplication::processEvents();
        family.remove(gui, QStringLiteral("id"));
    }
    gui.deleteAllApproveRemoteConnectionDialogInstances();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// What the process holds, 0 where nobody knows.
size_t memoryInUse()
{
    // Qt's own store of pictures has a limit of its own.
    QPixmapCache::clear();
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    return mallinfo2().uordblks;
#else
    return 0;
#endif
}
} // namespace

void ReloadTest::loadsAndUnloads_data()
{
    QTest::addColumn<bool>("withDialogs");
    QTest::newRow("alone") << false;
    QTest::newRow("with dialogs") << true;
}

void ReloadTest::loadsAndUnloads()
{
    QFETCH(bool, withDialogs);
    constexpr int rounds = hasSanitizer ? 200 : 1000;
    size_t early = 0;
    for (int round = 0; round < rounds; ++round) {
        QVERIFY(!isThere());
        QCOMPARE(translated(), QStringLiteral("About"));

        // By default Qt only pretends to unload, and a loader with a file no longer takes that back.
        QPluginLoader loader;
        loader.setLoadHints(QLibrary::LoadHints());
        loader.setFileName(QStringLiteral(GUI_PLUGIN));
        auto* gui = qobject_cast<GuiInterface*>(loader.instance());
        QVERIFY2(gui, qPrintable(loader.errorString()));
        QVERIFY(isThere());
        QCOMPARE(translated(), QStringLiteral("Info"));
        if (withDialogs)
            useDialogs(*gui, round);
        QVERIFY(loader.unload());
        // The application goes on living: with new events, new widgets and new styles.
        QWidget().grab();
        QCoreApplication::processEvents();
        if (round == rounds / 10)
            early = memoryInUse();
    }
    qInfo("%zu bytes in use after %d rounds, %zu after %d", early, rounds / 10, memoryInUse(), rounds);
    // Qt's form loader, used once per dialog that needs it, leaves a few hundred bytes with Qt each time it is loaded
    // anew.
    constexpr size_t leftByFormLoader = 400;
    QVERIFY(memoryInUse() <= early + rounds * leftByFormLoader);
}

int main(int argc, char** argv)
{
    prepareTestEnvironment();
    qputenv("LANGUAGE", "de");
    QApplication application(argc, argv);
    // The debug messages of a thousand loads would hide all others.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    ReloadTest test;
    return runTest(test, argc, argv);
}

#include "tst_reload.moc"
