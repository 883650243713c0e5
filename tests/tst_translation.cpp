#include "GuiTest.h"
#include "UserInterfaceLanguage.h"
#include "loadTranslation.h"

namespace {
const char* const variables[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
} // namespace

/// Which language the desktop asks for, and which catalogue is loaded for it.
class TranslationTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void desktopLanguage_data()
    {
        textColumns({"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG", "language", "cancel", "undo"});
        textRow({"de:en", "it_IT", "", "", "de", "Abbrechen", "&Rückgängig"});
        textRow({"fr-CA:de:en", "it_IT", "", "", "fr", "Annuler", "&Annuler"});
        textRow({"", "zh_CN.UTF-8", "it_IT", "", "zh", "取消", "撤消(&U)"});
        textRow({"", "", "ja_JP.eucJP", "nl", "ja", "キャンセル", "元に戻す(&U)"});
        textRow({"", "", "", "pt@euro", "pt", "Cancelar", "&Desfazer"});
        // English where the library does not speak the language, also for the words of Qt.
        textRow({"pl:de", "", "", "", "pl", "Cancel", "&Undo"});
        textRow({"", "C.UTF-8", "", "de_DE", "", "Cancel", "&Undo"});
        textRow({"", "", "", "POSIX", "", "Cancel", "&Undo"});
        textRow({"", "", "", "", "", "Cancel", "&Undo"});
    }

    void desktopLanguage()
    {
        for (const char* name : variables)
            qputenv(name, static_cast<QString*>(QTest::qData(name, QMetaType::QString))->toLatin1());
        QTEST(QString::fromStdString(userInterfaceLanguage()), "language");
        QTranslator translator;
        QVERIFY(!loadTranslation(translator, QStringLiteral(":/nothing/Gui_"), QStringLiteral("en")));
        QVERIFY(loadTranslation(translator, QStringLiteral(":/translations/Gui_"), QStringLiteral("en")));
        QTEST(translator.translate("ErrorMessageDialog", "Cancel"), "cancel");
        QTEST(translator.translate("QLineEdit", "&Undo"), "undo");
    }

    void cleanup()
    {
        for (const char* name : variables)
            qunsetenv(name);
        qputenv("LANGUAGE", "en");
        GuiTest::cleanup();
    }
};

GUI_TEST_MAIN(TranslationTest)
#include "tst_translation.moc"
