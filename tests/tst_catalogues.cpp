#include "GuiTest.h"
#include "UserInterfaceLanguage.h"
#include "loadTranslation.h"

namespace {
const char* const variables[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
const QStringList languages = QStringLiteral(LANGUAGES).split(QLatin1Char(' '));
const QString directory = QStringLiteral(SOURCES "/resources/translations");

QString path(const QString& folder, const QString& language)
{
    return QStringLiteral("%1/Gui_%2.ts").arg(folder, language);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The placeholders of @p text in alphabetical order.
QStringList placeholders(const QString& text)
{
    QStringList found;
    const QRegularExpression placeholder(QStringLiteral("%(n|L?\\d+)"));
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
    found.sort();
    return found;
}
} // namespace

/// The translation files: complete, in step with the sources, what the library really carries, and which of them the
/// desktop asks for.
class CataloguesTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GuiTest::initTestCase();
        QStringList arguments = QStringLiteral(LUPDATE_ARGUMENTS).split(QLatin1Char(' ')) << QStringLiteral("-ts");
        for (const QString& language : languages) {
            const QString copy = path(updated.path(), language);
            QVERIFY(QFile::copy(path(directory, language), copy));
            QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));
            arguments << copy;
        }
        QProcess lupdate;
        lupdate.setWorkingDirectory(QStringLiteral(SOURCES));
        lupdate.start(QStringLiteral(LUPDATE), arguments);
        QVERIFY(lupdate.waitForFinished() && lupdate.exitStatus() == QProcess::NormalExit && lupdate.exitCode() == 0);
    }

    void catalogue_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString& language : languages)
            QTest::newRow(qPrintable(language)) << language;
    }

    void catalogue()
    {
        QFETCH(QString, language);
        const QByteArray catalogue = contents(path(directory, language));
        QVERIFY2(contents(path(updated.path(), language)) == catalogue, "build the target update-translations");
        QVERIFY2(!catalogue.contains("type=\"unfinished\""), "a text is not translated");
        QTranslator library;
        QVERIFY(library.load(QStringLiteral(":/translations/Gui_") + language));
        QMap<QString, QString> texts;
        int number = -1;
        for (QXmlStreamReader xml(catalogue); !xml.atEnd(); xml.readNext()) {
            const QString element = xml.isStartElement() ? xml.name().toString() : QString();
            const bool isTranslation =
                element == QLatin1String("numerusform") || (element == QLatin1String("translation") && number < 0);
            if (element == QLatin1String("message")) {
                number = xml.attributes().hasAttribute(QLatin1String("numerus")) ? 1 : -1;
                texts.remove(QStringLiteral("comment"));
            } else if (isTranslation
                       || QStringLiteral("name source comment").split(QLatin1Char(' ')).contains(element)) {
                texts[element] = xml.readElementText();
            }
            if (!isTranslation)
                continue;
            const QString translation = texts[element];
            const QString source = texts[QStringLiteral("source")];
            const QString context = texts[QStringLiteral("name")];
            QVERIFY2(!translation.isEmpty(), qPrintable(source));
            QCOMPARE(placeholders(translation), placeholders(source));
            // Where a value follows in the same line, and where it does not.
            QCOMPARE(translation.endsWith(QLatin1Char(' ')), source.endsWith(QLatin1Char(' ')));
            // The prompt takes what follows the first bracket on its buttons for the countdown.
            QVERIFY(context != QLatin1String("ApproveRemoteConnectionDialog")
                    || !translation.contains(QLatin1Char('(')));
            if (language == QLatin1String("en") && number < 0)
                QCOMPARE(translation, source);
            const QString comment = texts[QStringLiteral("comment")];
            if (number < 2)
                QCOMPARE(
                    library.translate(qUtf8Printable(context), qUtf8Printable(source), qUtf8Printable(comment), number),
                    translation);
            number = number < 0 ? -1 : 2; // The other plural forms stand for numbers that depend on the language.
        }
        QVERIFY2(texts.contains(QStringLiteral("name")), "nothing was read");
    }

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

private:
    /// Copies of the catalogues, brought up to date with the sources.
    const QTemporaryDir updated;
};

GUI_TEST_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
