#include "GuiTest.h"
#include "IApproveRemoteConnectionDialog.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

/// The translation files: complete, in step with the sources, and what the library really carries.
class CataloguesTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void complete_data();
    void complete();
    void inStepWithSources_data();
    void inStepWithSources();
    void carriedByTheLibrary_data();
    void carriedByTheLibrary();
    void hostTexts_data();
    void hostTexts();

private:
    static void addLanguages();

    const QTemporaryDir updated;
};

namespace {
const QStringList languages = QStringLiteral(LANGUAGES).split(QLatin1Char(' '));
const QString sources = QStringLiteral(SOURCES);

struct Message {
    QString context;
    QString source;
    QString comment;
    /// Several when the text has plural forms.
    QStringList translations;
    bool unfinished = false;

    bool operator==(const Message& other) const
    {
        return context == other.context && source == other.source && comment == other.comment
            && translations == other.translations && unfinished == other.unfinished;
    }
};

QStringList readTranslations(QXmlStreamReader& xml, bool numerus)
{
    if (!numerus)
        return {xml.readElementText()};
    QStringList forms;
    while (xml.readNextStartElement())
        forms << xml.readElementText();
    return forms;
}

Message readMessage(QXmlStreamReader& xml, const QString& context)
{
    Message message;
    message.context = context;
    const bool numerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.unfinished = xml.attributes().hasAttribute(QLatin1String("type"));
            message.translations = readTranslations(xml, numerus);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QVector<Message> readCatalogue(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    QVector<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages.append(readMessage(xml, context));
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return messages;
}

QString fileName(const QString& language)
{
    return QStringLiteral("Gui_%1.ts").arg(language);
}

QVector<Message> catalogue(const QString& language)
{
    return readCatalogue(sources + QStringLiteral("/resources/translations/") + fileName(language));
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

bool run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(sources);
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
} // namespace

void CataloguesTest::initTestCase()
{
    GuiTest::initTestCase();
    QStringList arguments = QStringLiteral(LUPDATE_ARGUMENTS).split(QLatin1Char(' '));
    arguments << QStringLiteral("-ts");
    for (const QString& language : languages) {
        const QString copy = updated.filePath(fileName(language));
        QVERIFY(QFile::copy(sources + QStringLiteral("/resources/translations/") + fileName(language), copy));
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));
        arguments << copy;
    }
    QVERIFY(run(QStringLiteral(LUPDATE), arguments));
}

void CataloguesTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void CataloguesTest::complete_data()
{
    addLanguages();
}

void CataloguesTest::complete()
{
    QFETCH(QString, language);
    const QVector<Message> messages = catalogue(language);
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages) {
        QVERIFY2(!message.unfinished && !message.translations.isEmpty(), qPrintable(message.source));
        for (const QString& translation : message.translations) {
            QVERIFY2(!translation.isEmpty(), qPrintable(message.source));
            QCOMPARE(placeholders(translation), placeholders(message.source));
            // Where a value follows in the same line, and where it does not.
            QCOMPARE(translation.endsWith(QLatin1Char(' ')), message.source.endsWith(QLatin1Char(' ')));
        }
        if (language == QLatin1String("en") && message.translations.size() == 1)
            QCOMPARE(message.translations.first(), message.source);
    }
}

void CataloguesTest::inStepWithSources_data()
{
    addLanguages();
}

void CataloguesTest::inStepWithSources()
{
    QFETCH(QString, language);
    const QVector<Message> expected = readCatalogue(updated.filePath(fileName(language)));
    const QVector<Message> stored = catalogue(language);
    for (const Message& message : expected)
        QVERIFY2(stored.contains(message), qPrintable(message.context + QStringLiteral(": ") + message.source));
    QVERIFY2(stored.size() == expected.size(), "the catalogue has texts that no source says");
}

void CataloguesTest::carriedByTheLibrary_data()
{
    addLanguages();
}

void CataloguesTest::carriedByTheLibrary()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translations/Gui_%1").arg(language)));
    const QVector<Message> messages = catalogue(language);
    for (const Message& message : messages) {
        const QByteArray context = message.context.toUtf8();
        const QByteArray source = message.source.toUtf8();
        const QByteArray comment = message.comment.toUtf8();
        const int count = message.translations.size() > 1 ? 1 : -1;
        QCOMPARE(translator.translate(context.constData(), source.constData(), comment.constData(), count),
                 message.translations.first());
    }
}

void CataloguesTest::hostTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("da") << QStringLiteral("da") << QStringLiteral("Der bedes om adgang til denne computer.");
    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("Jemand bittet um Zugriff auf diesen Computer.");
    QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("Somebody asks for access to this computer.");
    QTest::newRow("es") << QStringLiteral("es") << QStringLiteral("Alguien solicita acceso a este equipo.");
    QTest::newRow("fr") << QStringLiteral("fr") << QStringLiteral("Quelqu’un demande l’accès à cet ordinateur.");
    QTest::newRow("it") << QStringLiteral("it") << QStringLiteral("Qualcuno chiede l’accesso a questo computer.");
    QTest::newRow("ja") << QStringLiteral("ja") << QStringLiteral("このコンピューターへのアクセスが要求されています。");
    QTest::newRow("ko") << QStringLiteral("ko") << QStringLiteral("이 컴퓨터에 대한 액세스를 요청합니다.");
    QTest::newRow("nl") << QStringLiteral("nl") << QStringLiteral("Iemand vraagt toegang tot deze computer.");
    QTest::newRow("pt") << QStringLiteral("pt") << QStringLiteral("Alguém pede acesso a este computador.");
    QTest::newRow("ru") << QStringLiteral("ru") << QStringLiteral("Запрашивается доступ к этому компьютеру.");
    QTest::newRow("tr") << QStringLiteral("tr") << QStringLiteral("Bu bilgisayara erişim isteniyor.");
    QTest::newRow("zh") << QStringLiteral("zh") << QStringLiteral("有人请求访问此计算机。");
}

void CataloguesTest::hostTexts()
{
    QFETCH(QString, language);
    QFETCH(QString, text);
    QVERIFY(languages.contains(language));
    const QString key = QStringLiteral("ask-access");
    const QString catalogueName = updated.filePath(QStringLiteral("Host_%1").arg(language));
    QFile file(catalogueName + QStringLiteral(".ts"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("<!DOCTYPE TS><TS version=\"2.1\" language=\"%1\"><context><name>ControllerConsts</name>"
                              "<message><source>%2</source><translation>%3</translation></message></context></TS>\n")
                   .arg(language, key, text)
                   .toUtf8());
    file.close();
    QVERIFY(run(QStringLiteral(LRELEASE), {QStringLiteral("-silent"), file.fileName()}));

    auto* prompt = get<IApproveRemoteConnectionDialog>(QStringLiteral("1"));
    auto& shown = child<QPlainTextEdit>(prompt, "messageTextEdit");
    prompt->setMessage(key, true);
    QCOMPARE(shown.toPlainText(), key);

    // As the host does; it leaves the application with the end of the scope.
    QTranslator hostTranslator;
    QVERIFY(hostTranslator.load(catalogueName));
    QVERIFY(QCoreApplication::installTranslator(&hostTranslator));
    prompt->setMessage(key, true);
    QCOMPARE(prompt->getMessage(), text);
    QCOMPARE(shown.toPlainText(), text);
    prompt->setMessage(key, false);
    QCOMPARE(shown.toPlainText(), key);
}

GUI_TEST_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
