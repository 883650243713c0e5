#include "GuiTest.h"
#include "UserInterfaceLanguage.h"
#include "loadTranslation.h"

#include <QAbstractButton>
#include <QDir>
#include <QTemporaryDir>
#include <QTranslator>

/// Which language the desktop asks for, and which catalogue is loaded for it.
class TranslationTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void desktopLanguage_data();
    void desktopLanguage();
    void chosenCatalogue_data();
    void chosenCatalogue();
    void nothingToLoad();
    void cleanup();
};

void TranslationTest::cleanup()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        qunsetenv(name);
    qputenv("LANGUAGE", "en");
    GuiTest::cleanup();
}

void TranslationTest::desktopLanguage_data()
{
    QTest::addColumn<QByteArray>("LANGUAGE");
    QTest::addColumn<QByteArray>("LC_ALL");
    QTest::addColumn<QByteArray>("LC_MESSAGES");
    QTest::addColumn<QByteArray>("LANG");
    QTest::addColumn<QByteArray>("language");
    const QByteArray none;
    QTest::newRow("first of the list") << QByteArray("fr_CA:de:en") << QByteArray("it_IT") << none << none
                                       << QByteArray("fr");
    QTest::newRow("list empty") << none << QByteArray("de_DE.UTF-8") << QByteArray("it_IT") << none << QByteArray("de");
    QTest::newRow("messages before lang")
        << none << none << QByteArray("ja_JP.eucJP") << QByteArray("nl") << QByteArray("ja");
    QTest::newRow("lang with modifier") << none << none << none << QByteArray("pt@euro") << QByteArray("pt");
    QTest::newRow("portable locale") << none << QByteArray("C.UTF-8") << none << QByteArray("de_DE") << none;
    QTest::newRow("posix locale") << none << none << none << QByteArray("POSIX") << none;
    QTest::newRow("nothing set") << none << none << none << none << none;
}

void TranslationTest::desktopLanguage()
{
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        qputenv(name, *static_cast<QByteArray*>(QTest::qData(name, QMetaType::QByteArray)));
    QTEST(QByteArray::fromStdString(userInterfaceLanguage()), "language");
}

void TranslationTest::chosenCatalogue_data()
{
    QTest::addColumn<QByteArray>("desktop");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("German") << QByteArray("de") << QStringLiteral("Abbrechen");
    QTest::newRow("no such language") << QByteArray("pl") << QStringLiteral("Cancel");
    QTest::newRow("English") << QByteArray("en") << QStringLiteral("Cancel");
    QTest::newRow("unknown") << QByteArray("C") << QStringLiteral("Cancel");
}

void TranslationTest::chosenCatalogue()
{
    QFETCH(QByteArray, desktop);
    qputenv("LANGUAGE", desktop);
    gui();
    QTranslator translator;
    QVERIFY(loadTranslation(translator, QStringLiteral(":/translations/Gui_"), QStringLiteral("en")));
    QTEST(translator.translate("ErrorMessageDialog", "Cancel"), "cancel");
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
