#include "GuiTest.h"

namespace {
const char* const fieldNames[] = {"edHost", "edPort", "edToken"};
const QString token = QStringLiteral("Qm7Zx2Lk9Tr4Vb6Ny1Hs3Dw8Gf5Jp0Cu");
const QString link = QStringLiteral("https://mdm.example.com:8443/enroll/") + token;
const QStringList filled{QStringLiteral("mdm.example.com"), QStringLiteral("8443"), token};

/// What the clipboard gives according to the steps that hosts and administrators rely on; empty if it is not usable.
QStringList expectedFields(const QString& text)
{
    const QRegularExpression pattern(QStringLiteral("(https:\\S*[A-Za-z0-9]{32})"),
                                     QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return QStringList();
    const QUrl url(match.captured(1), QUrl::TolerantMode);
    const QString path = url.path(QUrl::FullyDecoded);
    if (!url.isValid() || url.host().isEmpty() || url.scheme() != QLatin1String("https") || path.size() <= 32)
        return QStringList();
    // The fields take no invisible characters.
    const QString last = path.right(32).remove(QChar(0)).remove(QChar(0x200b));
    return {url.host(QUrl::FullyDecoded), QString::number(url.port(443)), last};
}
} // namespace

/// The enrollment form: which addresses it makes and takes apart, and what pasting a link does.
class ActivationTest : public GuiTest {
    Q_OBJECT

    IActivationDialog* dialog = nullptr;

    QLineEdit& field(const char* name)
    {
        return child<QLineEdit>(dialog, name);
    }
    QStringList fields()
    {
        return {field("edHost").text(), field("edPort").text(), field("edToken").text()};
    }
    void checkPasteShortcut(const QString& clipboard)
    {
        const QStringList expected = expectedFields(clipboard).isEmpty() ? fields() : expectedFields(clipboard);
        QGuiApplication::clipboard()->setText(clipboard);
        press(dialog, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY2(fields() == expected, qPrintable(clipboard));
    }

private Q_SLOTS:
    void init()
    {
        GuiTest::init();
        dialog = show<IActivationDialog>();
    }

    void serverUrl_data()
    {
        textColumns({"host", "port", "authority"});
        for (const char* usual : {"  mdm.example.com ", "HTTP://MDM.Example.com", "mdm.example.com:8443",
                                  "http://jane:pw@mdm.example.com?token=1#top", "m%64m.example.com"})
            textRow({usual, "443", "mdm.example.com:443"});
        textRow({"xn--bcher-kva.de", "443", "b\u00fccher.de:443"});
        textRow({"http://[2001:DB8::7]", "443", "[2001:db8::7]:443"});
        for (const char* unusable : {"", "mdm example", "https://mdm.example.com", "mdm.example.com/", "http://",
                                     "/etc/hosts", "mailto:jane@example.com", "mdm.example.com..", "[::1"})
            textRow({unusable, "443", ""});
        textRow({"mdm.example.com.", "1", "mdm.example.com.:1"});
        textRow({"mdm.example.com", "+065535", "mdm.example.com:65535"});
        for (const char* unusable : {"65536", "4294967739", "0", "-443", "", " 443", "443 ", "443.0", "0x1bb"})
            textRow({"mdm.example.com", unusable, ""});
    }
    void serverUrl()
    {
        QFETCH(QString, host);
        QFETCH(QString, port);
        QFETCH(QString, authority);
        QTest::keyClicks(&field("edHost"), host);
        QTest::keyClicks(&field("edPort"), port);
        QCOMPARE(dialog->getServerUrl(),
                 authority.isEmpty() ? QString() : QStringLiteral("https://%1/command/windows/").arg(authority));
        QCOMPARE(fields(), QStringList({host, port, QString()}));
    }

    void setServerUrl()
    {
        const char* const rows[][3] = {{"https://mdm.example.com/command/windows/", "mdm.example.com", "443"},
                                       {"http://jane:pw@MDM.example.com:8443/a b?q#f", "mdm.example.com", "8443"},
                                       {"HTTPS://m%64m.example.com:/", "mdm.example.com", "443"},
                                       {"https://[::1]:1/", "::1", "1"},
                                       {"mdm.example.com", "", "443"}};
        for (const auto& row : rows) {
            dialog->setServerUrl(QLatin1String(row[0]));
            QCOMPARE(fields(), QStringList({QLatin1String(row[1]), QLatin1String(row[2]), QString()}));
        }
    }

    void pasteShortcut()
    {
        for (const char* text : {"https://mdm.example.com/0123456789012345678901234567890",
                                 "https://mdm.example.com/%41234567890123456789012345678901",
                                 "https://mdm.example.com/%25012345678901234567890123456789",
                                 "HTTPS://mdm.example.com/01234567890123456789012345678901"})
            checkPasteShortcut(QLatin1String(text));
        QCOMPARE(fields(), QStringList({QString(), QString(), QString()}));
        checkPasteShortcut(QStringLiteral("Jane,\n\topen ") + link + QLatin1Char('.'));
        QCOMPARE(fields(), filled);

        QStringList pieces = QStringLiteral("https: https:// http:// // mdm.example.com [::1] :8443 : / @ ? # %41 %2F "
                                            "% \u00fc \u00e9-x_~. \u200b \u0663")
                                 .split(QLatin1Char(' '));
        pieces << QStringLiteral(" ") << QStringLiteral("\u00a0\n") << QString(QChar(0)) << token << token.left(31);
        QRandomGenerator random(4);
        int usable = 0;
        for (int round = 0; round < 4000; ++round) {
            QString text = round % 2 ? QStringLiteral("https://mdm.example.com") : QString();
            for (int count = random.bounded(0, 8); count > 0; --count)
                text += pieces.at(random.bounded(pieces.size()));
            if (round % 3)
                text += QLatin1Char('/') + token;
            usable += expectedFields(text).isEmpty() ? 0 : 1;
            checkPasteShortcut(text);
            dialog->getServerUrl();
        }
        QVERIFY2(usable > 300, qPrintable(QString::number(usable)));
        QCOMPARE(takeEvents(), QStringList());
    }

    void linkArrivesInAField()
    {
        QMimeData data;
        data.setText(link);
        for (const char* name : fieldNames) {
            QLineEdit& edit = field(name);
            const auto insert = name == fieldNames[1] ? commit : paste;
            for (const bool dropped : {false, true}) {
                for (const char* cleared : fieldNames)
                    field(cleared).clear();
                // Old and new text begin and end alike: only the selection tells what is new.
                const QString typed = QStringLiteral("https://old.example/") + token;
                QTest::keyClicks(&edit, typed);
                dropped ? edit.setCursorPosition(3) : edit.selectAll();
                QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
                QApplication::sendEvent(&edit, &enter);
                QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
                dropped ? static_cast<void>(QApplication::sendEvent(&edit, &drop)) : insert(edit, link);
                QCOMPARE(fields(), filled);
                for (int steps = 0; edit.text() != typed && steps < 3; ++steps)
                    QTest::keySequence(&edit, QKeySequence::Undo);
                QCOMPARE(edit.text(), typed);
            }
        }
    }

    void onlyPastedLinksAreTakenApart()
    {
        // What the host sets, a person types or undo brings back is no link, however much it looks like one.
        dialog->setToken(link);
        QTest::keyClicks(&field("edHost"), link);
        paste(field("edHost"), QStringLiteral("!"));
        field("edHost").selectAll();
        QTest::keyClick(&field("edHost"), Qt::Key_Delete);
        QTest::keyClick(&field("edHost"), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(fields(), QStringList({link + QLatin1Char('!'), QString(), link}));
        dialog->setToken(QStringLiteral(" a\n\u200b b\t"));
        QCOMPARE(dialog->getToken(), QStringLiteral("a\n\u200b b"));
    }

    void pastedInvisiblesAreDropped_data()
    {
        // The bar stands where typing goes on, two of them beside what is selected.
        textColumns({"before", "pasted", "after"});
        textRow({"|", "to\r\nken\r\n", "token|"});
        textRow({"|", "a\u2028b\u2029c\vd\fe\u0085f\ufeff\u200bg\u200c\u200dh\u2060", "abcdefgh|"});
        textRow({"12|34", "a\nb", "12ab|34"});
        textRow({"12|34", "\n\u200b", "12|34"});
        textRow({"1|23|4", "a\nb", "1ab|4"});
        textRow({"|", " 8443\u00a0\t", "8443|"});
        textRow({"|", "mdm.example.com\tPort", "mdm.example.com Port|"});
        // There is no link in two lines, so none may come of them.
        textRow({"|", "https://intranet.example/\n0123456789abcdef0123456789abcdef",
                 "https://intranet.example/0123456789abcdef0123456789abcdef|"});
    }
    void pastedInvisiblesAreDropped()
    {
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QFETCH(QString, after);
        for (const char* name : fieldNames) {
            QLineEdit& edit = field(name);
            QTest::keyClicks(&edit, QString(before).remove(QLatin1Char('|')));
            const int start = before.indexOf(QLatin1Char('|'));
            edit.setCursorPosition(start);
            edit.setSelection(start, qMax(0, before.lastIndexOf(QLatin1Char('|')) - start - 1));
            (name == fieldNames[1] ? commit : paste)(edit, pasted);
            for (const QString& text : {after, before, after}) {
                QTest::keySequence(&edit, text == after ? QKeySequence::Redo : QKeySequence::Undo);
                QCOMPARE(edit.text(), QString(text).remove(QLatin1Char('|')));
            }
            QTest::keyClick(&edit, '|');
            QCOMPARE(edit.text(), after);
        }
    }

    void megabytesArePasted()
    {
        // Each would take minutes in time that grows by the square of the length.
        paste(field("edHost"), QStringLiteral("https:").repeated(180000));
        paste(field("edHost"), (token.left(31) + QLatin1Char('-')).repeated(32000));
        QCOMPARE(field("edHost").text().size(), 180000 * 6 + 32000 * 32);
        paste(field("edPort"), QString(1 << 20, QLatin1Char(' ')) + link + QString(1 << 20, QLatin1Char('-')));
        QCOMPARE(fields(), filled);
    }
};

GUI_TEST_MAIN(ActivationTest)
#include "tst_activation.moc"
