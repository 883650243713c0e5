#include "GuiTest.h"
#include "UserInterfaceLanguage.h"
#include "loadTranslation.h"

#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTranslator>

/// Which language the desktop asks for, and which catalogues are loaded for it.
class TranslationTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void desktopLanguage_data();
    void desktopLanguage();
    void chosenCatalogues_data();
    void chosenCatalogues();
    void nothingToLoad();
    void cleanup();
};

namespace {
const QString prefix = QStringLiteral(":/translations/Gui_");
} // namespace

void TranslationTest::cleanup()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        qunsetenv(name);
    qputenv("LANGUAGE", "en");
    GuiTest::cleanup();
}

void TranslationTest::desktopLanguage_data()
{
    textColumns({"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG", "language"});
    textRow({"fr-CA:de:en", "it_IT", "", "", "fr"});
    textRow({"", "de_DE.UTF-8", "it_IT", "", "de"});
    textRow({"", "", "ja_JP.eucJP", "nl", "ja"});
    textRow({"", "", "", "pt@euro", "pt"});
    textRow({"", "C.UTF-8", "", "de_DE", ""});
    textRow({"", "", "", "POSIX", ""});
    textRow({"", "", "", "", ""});
}

void TranslationTest::desktopLanguage()
{
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        qputenv(name, static_cast<QString*>(QTest::qData(name, QMetaType::QString))->toLatin1());
    QTEST(QString::fromStdString(userInterfaceLanguage()), "language");
}

void TranslationTest::chosenCatalogues_data()
{
    textColumns({"desktop", "cancel", "qtCatalogue", "undo"});
    textRow({"de", "Abbrechen", "qtbase_de.qm", "&Rückgängig"});
    textRow({"zh", "取消", "qtbase_zh_CN.qm", "撤消(&U)"});
    // What the library does not speak, Qt is not to speak either.
    textRow({"pl", "Cancel", "qtbase_pl.qm", ""});
    textRow({"C", "Cancel", "", ""});
}

void TranslationTest::chosenCatalogues()
{
    QFETCH(QString, desktop);
    QFETCH(QString, qtCatalogue);
    qputenv("LANGUAGE", desktop.toLatin1());
    QTranslator translator;
    QVERIFY(loadTranslation(translator, prefix, QStringLiteral("en")));
    QTEST(translator.translate("ErrorMessageDialog", "Cancel"), "cancel");

    if (!QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QLatin1Char('/') + qtCatalogue))
        QSKIP("Qt's own catalogue of this language is not installed");
    QTranslator qtTranslator;
    loadQtTranslation(qtTranslator, prefix);
    QTEST(QString(qtTranslator.translate("QLineEdit", "&Undo")), "undo");
}

void TranslationTest::nothingToLoad()
{
    const QTemporaryDir empty;
    QTranslator translator;
    QVERIFY(!loadTranslation(translator, empty.path() + QStringLiteral("/Gui_"), QStringLiteral("en")));
    QVERIFY(translator.isEmpty());
}

GUI_TEST_MAIN(TranslationTest)
#include "tst_translation.moc"
