#include "BrandingStrings.h"
#include "GuiTest.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>

/// The branding record, built from files of every kind, and the captions that the plugin makes of it.
class BrandingTest : public GuiTest {
    Q_OBJECT

public:
    BrandingTest();

private Q_SLOTS:
    void defaults();
    void file_data();
    void file();
    void fileIsDirectory();
    void dataDirectory();
    void captions();
};

namespace {
void writeFile(const QString& directory, const QByteArray& content)
{
    QFile file(directory + QStringLiteral("/oem.strings"));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

const char* const hostileName = "<b>T&amp;a</b>[*]&vik";
} // namespace

BrandingTest::BrandingTest()
{
    // Before the plugin is loaded: it reads the file beside the program once and for all.
    writeFile(QCoreApplication::applicationDirPath(), QByteArray("agentName=\"") + hostileName + "\"\n");
}

void BrandingTest::defaults()
{
    const QTemporaryDir empty;
    const BrandingStrings strings(empty.path());
    QCOMPARE(strings.productFullName, QStringLiteral("Ostrel Tavik"));
    QCOMPARE(strings.securityProductName, QStringLiteral("BRISEL Varnek"));
    QCOMPARE(strings.productDirectory, QStringLiteral("\\Ostrel\\"));
    QCOMPARE(strings.updatingTaskName, QStringLiteral("Ostrel VQS Updating Task"));
    QVERIFY(strings.supportWebsite.startsWith(QLatin1String("https://")));
    QVERIFY(strings.supportEmail.isEmpty());
    QVERIFY(strings.supportPhone.isEmpty());
    QCOMPARE(messages().value(0), QStringLiteral("Try to find oem.strings in \"%1/oem.strings\"").arg(empty.path()));
    QCOMPARE(messages().value(1),
             QStringLiteral("OEM strings file does not exists! \"%1/oem.strings\"").arg(empty.path()));
}

void BrandingTest::file_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("companyName");
    QTest::addColumn<QString>("agentName");
    QTest::addColumn<QString>("supportPhone");
    const auto row = [](const char* name, const QByteArray& content, const QString& company = QStringLiteral("Ostrel"),
                        const QString& agent = QStringLiteral("Tavik"), const QString& phone = QString()) {
        QTest::newRow(name) << content << company << agent << phone;
    };
    row("company only", "companyName=Acme\n", QStringLiteral("Acme"));
    row("general section", "[General]\r\nagentName=Helper\r\n", QStringLiteral("Ostrel"), QStringLiteral("Helper"));
    row("other section", "[Branding]\ncompanyName=Acme\nagentName=Helper\n");
    row("empty value", "agentName=\ncompanyName=Acme\n", QStringLiteral("Acme"));
    row("blanks in quotes are kept", "companyName=\" Acme \"\n", QStringLiteral(" Acme "));
    row("comma without quotes", "companyName=Acme, Inc.\nsupportPhone=1\n", QStringLiteral("Ostrel"),
        QStringLiteral("Tavik"), QStringLiteral("1"));
    row("comma in quotes", "companyName=\"Acme, Inc.\"\n", QStringLiteral("Acme, Inc."));
    row("key twice", "companyName=First\ncompanyName=Second\n", QStringLiteral("Second"));
    row("utf-8", "companyName=Ümläut GmbH\nagentName=守護\n", utf8("Ümläut GmbH"), utf8("守護"));
    row("utf-8 with mark",
        "\xEF\xBB\xBF"
        "companyName=Ümläut GmbH\n",
        utf8("Ümläut GmbH"));
    row("latin-1", "companyName=\xDCml\xE4ut GmbH\n", utf8("Ümläut GmbH"));
    row("comment", "; companyName=Acme\nsupportPhone=+49 30 1234\n", QStringLiteral("Ostrel"), QStringLiteral("Tavik"),
        QStringLiteral("+49 30 1234"));
    row("noise", QByteArray("\0\1\2[\xFF\xFE=;\n]\"\\x", 13));
    row("an object", "companyName=@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xfe)\n");
    row("nothing", QByteArray());
    const QString megabyte(1 << 20, QLatin1Char('x'));
    row("a megabyte long", "companyName=" + megabyte.toUtf8() + "\n", megabyte);
}

void BrandingTest::file()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, companyName);
    QFETCH(QString, agentName);
    const QTemporaryDir directory;
    writeFile(directory.path(), content);
    const BrandingStrings strings(directory.path());
    QCOMPARE(strings.companyName, companyName);
    QCOMPARE(strings.agentName, agentName);
    QTEST(strings.supportPhone, "supportPhone");
    QCOMPARE(strings.productFullName, companyName + QLatin1Char(' ') + agentName);
    QCOMPARE(strings.rmmAgentName, QStringLiteral("Ostrel Remote Monitoring and Management Agent"));
    QCOMPARE(messages().last(), QStringLiteral("OEM strings loaded"));
}

void BrandingTest::fileIsDirectory()
{
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("oem.strings")));
    QCOMPARE(BrandingStrings(directory.path()).productFullName, QStringLiteral("Ostrel Tavik"));
}

void BrandingTest::dataDirectory()
{
    const QTemporaryDir directory;
    qputenv("ALLUSERSPROFILE", QFile::encodeName(directory.path()));
    QCOMPARE(BrandingStrings(directory.path()).dataDirectory, directory.path());
    qunsetenv("ALLUSERSPROFILE");
    QVERIFY(!BrandingStrings(directory.path()).dataDirectory.isNull());
}

void BrandingTest::captions()
{
    const QString name = QLatin1Char(' ') + utf8(hostileName);
    QWidget& dialog = window(get<IErrorMessageDialog>());
    const auto& caption = child<QLabel>(get<IErrorMessageDialog>(), "lblAppName");
    QCOMPARE(caption.text(), name);
    QCOMPARE(caption.textFormat(), Qt::PlainText);
    QCOMPARE(dialog.windowTitle().replace(QLatin1String("[*][*]"), QLatin1String("[*]")), name + QLatin1Char(' '));
    // What a tool tip shows of it is the text itself.
    QVERIFY(dialog.toolTip().contains(name.toHtmlEscaped()));
    QVERIFY(!dialog.toolTip().contains(QLatin1String("<b>")));
}

GUI_TEST_MAIN(BrandingTest)
#include "tst_branding.moc"
