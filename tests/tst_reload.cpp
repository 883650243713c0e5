#include "GuiTest.h"

/// A host that takes the plugin away again. Nothing of it may stay behind: no resource, no translator, no pointer into
/// code that is no longer there.
class ReloadTest : public QObject {
    Q_OBJECT

    /// What the plugin brings into the application: a word of its own, one of Qt's, its resources.
    static QString traces()
    {
        QString result = QCoreApplication::translate("ErrorMessageDialog", "Cancel") + QLatin1Char(' ')
            + QCoreApplication::translate("QLineEdit", "&Undo");
        for (const char* path : {"eula.html", "images/ok.png", "images/brisel_caption.png", "widgets/takeoverpanel.ui",
                                 "translations/Gui_de.qm"}) {
            if (QFile::exists(QLatin1String(":/") + QLatin1String(path)))
                result += QLatin1String(" +");
        }
        return result;
    }

    static void useDialog(GuiInterface& gui, const Family& family)
    {
        IBaseDialog* dialog = family.get(gui, QStringLiteral("id"));
        auto& window = dynamic_cast<QWidget&>(*dialog);
        window.setVisible(true);
        window.grab();
        const QList<QWidget*> widgets = window.findChildren<QWidget*>();
        for (QWidget* widget : widgets)
            QVERIFY(QAccessible::queryAccessibleInterface(widget));
        QCoreApplication::processEvents();
        family.remove(gui, QStringLiteral("id"));
        gui.deleteAllApproveRemoteConnectionDialogInstances();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private Q_SLOTS:
    void loadsAndUnloads()
    {
        qputenv("LANGUAGE", "de");
        // The debug messages of all loads would hide the others.
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        for (int round = 0; round < 100; ++round) {
            QCOMPARE(traces(), QStringLiteral("Cancel &Undo"));
            // By default Qt only pretends to unload, and a loader with a file no longer takes that back.
            QPluginLoader loader;
            loader.setLoadHints(QLibrary::LoadHints());
            loader.setFileName(QStringLiteral(GUI_PLUGIN));
            // In turns: alone, and with dialogs of two root objects.
            const int roots = 1 + round % 2;
            for (int i = 0; i < roots; ++i) {
                QObject* root = loader.instance();
                auto* gui = qobject_cast<GuiInterface*>(root);
                QVERIFY2(gui, qPrintable(loader.errorString()));
                QCOMPARE(traces(), QStringLiteral("Abbrechen &Rückgängig + + + + +"));
                if (roots > 1)
                    useDialog(*gui, dialogFamilies()[(round + i) % dialogFamilies().size()]);
                // The loader makes a new one where the host has deleted its root object.
                if (i + 1 < roots)
                    delete root;
            }
            QVERIFY(loader.unload());
            // The application goes on living: with new events, new widgets, new styles and screen readers.
            QLineEdit edit;
            edit.grab();
            QVERIFY(QAccessible::queryAccessibleInterface(&edit));
            QCoreApplication::processEvents();
        }
    }
};

GUI_TEST_MAIN(ReloadTest)
#include "tst_reload.moc"
