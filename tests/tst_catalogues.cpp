#include "GuiTest.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

/// The translation files: complete, in step with the sources, and what the library really carries.
class CataloguesTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void catalogue_data();
    void catalogue();

private:
    /// Copies of the catalogues, brought up to date with the sources.
    const QTemporaryDir updated;
};

namespace {
const QStringList languages = QStringLiteral(LANGUAGES).split(QLatin1Char(' '));
const QString directory = QStringLiteral(SOURCES "/resources/translations");

struct Message {
    QString context;
    QString source;
    QString comment;
    bool hasPlurals = false;
    /// Several when the text has plural forms.
    QStringList translations;
};

QString path(const QString& folder, const QString& language)
{
    return QStringLiteral("%1/Gui_%2.ts").arg(folder, language);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QVector<Message> messagesOf(const QByteArray& catalogue)
{
    QVector<Message> messages;
    QString context;
    for (QXmlStreamReader xml(catalogue); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement())
            continue;
        const QString element = xml.name().toString();
        if (element == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (element == QLatin1String("message")) {
            messages.append(Message());
            messages.last().context = context;
            messages.last().hasPlurals = xml.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (element == QLatin1String("source")) {
            messages.last().source = xml.readElementText();
        } else if (element == QLatin1String("comment")) {
            messages.last().comment = xml.readElementText();
        } else if (element == QLatin1String("translation")) {
            if (!messages.last().hasPlurals)
                messages.last().translations << xml.readElementText();
        } else if (element == QLatin1String("numerusform")) {
            messages.last().translations << xml.readElementText();
        }
    }
    return messages;
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

void CataloguesTest::initTestCase()
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

void CataloguesTest::catalogue_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void CataloguesTest::catalogue()
{
    QFETCH(QString, language);
    const QByteArray catalogue = contents(path(directory, language));
    QVERIFY2(contents(path(updated.path(), language)) == catalogue, "build the target update-translations");
    QVERIFY2(!catalogue.contains("type=\"unfinished\""), "a text is not translated");
    QTranslator library;
    QVERIFY(library.load(QStringLiteral(":/translations/Gui_") + language));
    const QVector<Message> messages = messagesOf(catalogue);
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages) {
        const QByteArray source = message.source.toUtf8();
        QVERIFY2(!message.translations.isEmpty(), source.constData());
        for (const QString& translation : message.translations) {
            QVERIFY2(!translation.isEmpty(), source.constData());
            QCOMPARE(placeholders(translation), placeholders(message.source));
            // Where a value follows in the same line, and where it does not.
            QCOMPARE(translation.endsWith(QLatin1Char(' ')), message.source.endsWith(QLatin1Char(' ')));
            // The prompt takes what follows the first bracket on its buttons for the countdown.
            QVERIFY(message.context != QLatin1String("ApproveRemoteConnectionDialog")
                    || !translation.contains(QLatin1Char('(')));
        }
        if (language == QLatin1String("en") && !message.hasPlurals)
            QCOMPARE(message.translations.first(), message.source);
        QCOMPARE(library.translate(message.context.toUtf8().constData(), source.constData(),
                                   message.comment.toUtf8().constData(), message.hasPlurals ? 1 : -1),
                 message.translations.first());
    }
}

GUI_TEST_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
