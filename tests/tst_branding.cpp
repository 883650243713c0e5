#include "BrandingReport.h"
#include "BrandingStrings.h"
#include "GuiTest.h"

/// The branding record, built from files of every kind, and the contacts that the About box shows from it.
class BrandingTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const QTemporaryDir directory;
        qputenv("ALLUSERSPROFILE", QFile::encodeName(directory.path()));
        const BrandingStrings strings(directory.path());
        QCOMPARE(strings.dataDirectory, directory.path());
        qunsetenv("ALLUSERSPROFILE");
        QVERIFY(!BrandingStrings(directory.path()).dataDirectory.isNull());
        QCOMPARE(strings.productFullName, QStringLiteral("Ostrel Tavik"));
        QCOMPARE(strings.securityProductName, QStringLiteral("BRISEL Varnek"));
        QCOMPARE(strings.productDirectory, QStringLiteral("\\Ostrel\\"));
        QCOMPARE(strings.updatingTaskName, QStringLiteral("Ostrel VQS Updating Task"));
        QCOMPARE(strings.supportEmail + strings.supportPhone, QString());
        const QString path = QStringLiteral("\"%1/oem.strings\"").arg(directory.path());
        QCOMPARE(messages.mid(0, 2),
                 QStringList({QStringLiteral("Try to find oem.strings in ") + path,
                              QStringLiteral("OEM strings file does not exists! ") + path}));

        QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("oem.strings")));
        QCOMPARE(BrandingStrings(directory.path()).productFullName, QStringLiteral("Ostrel Tavik"));
    }

    void file_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("companyName");
        QTest::addColumn<QString>("supportPhone");
        QTest::addColumn<QString>("remark");
        const auto row = [](const char* name, const QByteArray& content, const char* company, const char* phone,
                            const char* remark = "") {
            QTest::newRow(name) << content << QString::fromUtf8(company) << QString::fromUtf8(phone)
                                << QString::fromUtf8(remark);
        };
        row("general section", "[General]\r\nsupportPhone=+49 30 1234\r\n", "Ostrel", "+49 30 1234");
        row("other section", "[Branding]\ncompanyName=Acme\nsupportPhone=1\n", "Ostrel", "",
            "companyName is ignored, because it is in the section [Branding]");
        row("empty value and comment", "companyName=\n; companyName=Acme\nsupportPhone=1\n", "Ostrel", "1",
            "companyName is empty");
        row("blanks and comma in quotes", "companyName=\" Acme, Inc. \"\n", " Acme, Inc. ", "");
        row("comma without quotes", "companyName=Acme, Inc.\nsupportPhone=1\n", "Ostrel", "1",
            "a comma outside quotes");
        row("semicolon without quotes", "supportPhone=1; 2\n", "Ostrel", "1", "line 1: cut at the semicolon");
        row("quote left open", "supportPhone=\"1\ncompanyName=Acme\n", "Ostrel", "1\ncompanyName=Acme\n",
            "line 1: the quote is not closed");
        row("mistyped key", "\ncompnyName=Acme\nsupportPhone 1\n", "Ostrel", "",
            "compnyName is ignored, because there is no such key");
        row("utf-8", "companyName=Ümläut GmbH\nsupportPhone=守護\n", "Ümläut GmbH", "守護");
        row("utf-8 with mark", QByteArray("\xEF\xBB\xBF") + "companyName=Ümläut GmbH\n", "Ümläut GmbH", "");
        row("utf-8 with mark, damaged", QByteArray("\xEF\xBB\xBF") + "companyName=Ü\xFF\n", "Ü\uFFFD", "", "not valid");
        row("latin-1", "companyName=\xDCml\xE4ut GmbH\n", "Ümläut GmbH", "", "not valid UTF-8");
        row("utf-16", QByteArray("\xFF\xFE=\0A\0\n\0", 8), "Ostrel", "", "UTF-16");
        row("noise", QByteArray("\0\1\2[\xFF\xFE=;\n]\"\\x", 13), "Ostrel", "", "not valid UTF-8");
        // However it is written, a serialised object keeps the default, and nothing else does.
        for (const QByteArray name :
             {"@Variant(", "\\x40Variant(", "\"\\100Vari\"\\x61nt(", "@DateTime(", "\"@\"Date\\\nTime("})
            row(name.constData(),
                "companyName= " + name + "\\0\\0\\0\\n" + (name.contains("Date") ? "\\0" : "")
                    + "\\0\\0\\0\\x2\\0\\x41)\nsupportPhone=a@Variant(b)\n",
                "Ostrel", "a@Variant(b)", "companyName is ignored, because it is no text");
        row("list with an object", "companyName=1, @Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xfe)\n", "Ostrel", "",
            "comma");
        row("at signs", "companyName=@@Variant(@)\nsupportPhone=\\\\x40 @Variant(\\x40)\n", "@Variant(@)",
            "\\x40 @Variant(@)");
        row("bytes", "companyName=@ByteArray(Acme)\nsupportPhone=\"@Vista \\\" = @D\"\n", "Acme", "@Vista \" = @D");
        const QByteArray megabyte(1 << 20, 'x');
        row("a megabyte long", "companyName=" + megabyte + "\n", megabyte.constData(), "");
    }

    void file()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, companyName);
        const QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("oem.strings")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        const BrandingStrings strings(directory.path());
        QCOMPARE(strings.companyName, companyName);
        QTEST(strings.supportPhone, "supportPhone");
        QCOMPARE(strings.productFullName, companyName + QStringLiteral(" Tavik"));
        QCOMPARE(strings.rmmAgentName, QStringLiteral("Ostrel Remote Monitoring and Management Agent"));
        QCOMPARE(messages.last(), QStringLiteral("OEM strings loaded"));

        // The reference host reads the file by itself and must come to the same.
        const BrandingReport report(directory.filePath(QStringLiteral("oem.strings")));
        QCOMPARE(report.values.first().second.isNull() ? QStringLiteral("Ostrel") : report.values.first().second,
                 strings.companyName);
        QCOMPARE(report.values.last().second, strings.supportPhone);
        QFETCH(QString, remark);
        QCOMPARE(report.remarks.isEmpty(), remark.isEmpty());
        const QString remarks = report.remarks.join(QLatin1Char('\n'));
        QVERIFY2(remarks.contains(remark), qPrintable(remarks));
    }

    void contacts_data()
    {
        textColumns({"branding", "phone", "email", "link"});
        const char* const usualLink = ">https://support.brisel.example<";
        textRow({"", "", "", usualLink});
        textRow({"supportPhone=+49 30 1234567\nagentName=Agent Name Lon", "+49 30 1234567", "", usualLink});
        textRow({"agentName=Agent with an exceedingly long name\nsupportEmail=help@brisel.example", "",
                 "help@brisel.example", usualLink});
        textRow({"supportPhone=<b>1</b>\nsupportEmail=\"a&b, <i>%1</i>\"\n"
                 "supportWebsite=\"https://brisel.example/?a=1&b=%1<script>'\\\"\"",
                 "<b>1</b>", "a&b, <i>%1</i>", ">https://brisel.example/?a=1&amp;b=%1&lt;script&gt;'&quot;<"});
    }

    void contacts()
    {
        QFETCH(QString, branding);
        QFETCH(QString, link);
        // A copy of the plugin is another library, which reads its branding when it is loaded.
        QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/oem.strings"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(branding.toUtf8());
        file.close();
        const QTemporaryDir directory;
        const QString copy = directory.filePath(QStringLiteral("libGuiCopy.so"));
        QVERIFY(QFile::copy(QStringLiteral(GUI_PLUGIN), copy));
        QPluginLoader loader(copy);
        auto* brandedGui = qobject_cast<GuiInterface*>(loader.instance());
        QVERIFY2(brandedGui, qPrintable(loader.errorString()));
        QVERIFY(file.remove());

        IAboutDialog* dialog = brandedGui->getAboutDialogInstance();
        showActive(dialog);
        QTEST(child<QLabel>(dialog, "lblSupportPhone").text(), "phone");
        QTEST(child<QLabel>(dialog, "lblSupportEmail").text(), "email");
        QVERIFY(child<QLabel>(dialog, "lblWebSiteLink").text().contains(link));
        // A name of 14 letters has no room beside a title, unless both are enlarged.
        IZentPasswordDialog* narrow = brandedGui->getZentPasswordDialogInstance();
        QCOMPARE(child(narrow, "lblAppName").toolTip().isEmpty(), !branding.contains(QLatin1String("agentName")));
        narrow->setRatio(2);
        QCOMPARE(child(narrow, "lblAppName").toolTip().isEmpty(), !branding.contains(QLatin1String("exceedingly")));
        // No gap and no overlap: the rows follow each other at one distance.
        int row = child(dialog, "label_3").y();
        for (const char* kind : {"Phone", "Email"}) {
            const QWidget& block = child(dialog, qPrintable(QStringLiteral("support%1Block").arg(QLatin1String(kind))));
            const auto* text = block.findChild<QLabel*>(QStringLiteral("lblSupport%1").arg(QLatin1String(kind)));
            QCOMPARE(block.isVisible(), !text->text().isEmpty());
            if (block.isVisible())
                QCOMPARE(block.y(), row += 24);
        }
        QCOMPARE(child(dialog, "lblWebSiteLink").y(), row + 27);
        QVERIFY(child(dialog, "btnOk").y() > child(dialog, "content").geometry().bottom());
        QVERIFY(brandedGui->deleteZentPasswordDialogInstance() && brandedGui->deleteAboutDialogInstance());
        settle();
    }
};

GUI_TEST_MAIN(BrandingTest)
#include "tst_branding.moc"
