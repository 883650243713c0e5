#include "GuiTest.h"

/// The About box: its copyright, its link, and the support contacts of the branding file.
class AboutTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void copyrightAndLink()
    {
        auto* dialog = show<IAboutDialog>();
        // Built this year or, around New Year, last year.
        const QRegularExpression year(QStringLiteral("^ (20\\d\\d) Brisel$"));
        const int built = year.match(dialog->getCopyright()).captured(1).toInt();
        QVERIFY(built >= 2024 && built <= QDate::currentDate().year());
        auto& link = child<QLabel>(dialog, "lblWebSiteLink");
        QTest::mouseClick(&link, Qt::LeftButton, Qt::NoModifier, QPoint(12, 8));
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("evLinkClicked")});
        QVERIFY(!link.openExternalLinks());
    }

    void comesToTheFront()
    {
        auto* dialog = get<IAboutDialog>();
        window(dialog).showMinimized();
        dialog->show();
        QVERIFY(window(dialog).isVisible() && !window(dialog).isMinimized());
        QTRY_VERIFY(window(dialog).isActiveWindow());
        QVERIFY(gui().deleteAboutDialogInstance());
        settle();
        QVERIFY(!messages.filter(QLatin1String("About dialog destroyed")).isEmpty());
    }

    void contacts_data()
    {
        textColumns({"branding", "phone", "email", "link"});
        const char* const usualLink = ">https://support.brisel.example<";
        textRow({"", "", "", usualLink});
        textRow({"supportPhone=+49 30 1234567", "+49 30 1234567", "", usualLink});
        textRow({"supportEmail=help@brisel.example", "", "help@brisel.example", usualLink});
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
        QVERIFY(brandedGui->deleteAboutDialogInstance());
        settle();
    }
};

GUI_TEST_MAIN(AboutTest)
#include "tst_about.moc"
