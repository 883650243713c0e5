#include "GuiTest.h"

#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QRandomGenerator>
#include <QRegExp>
#include <QUrl>

#include <functional>

namespace {
const char* const fieldNames[] = {"edHost", "edPort", "edToken"};
const QString token = QStringLiteral("Qm7Zx2Lk9Tr4Vb6Ny1Hs3Dw8Gf5Jp0Cu");
const QString link = QStringLiteral("https://mdm.example.com:8443/enroll/") + token;
/// The fields after the link was pasted.
const QStringList filled{QStringLiteral("mdm.example.com"), QStringLiteral("8443"), token};

/// What the clipboard gives according to the steps that hosts and administrators rely on; empty if it is not usable.
QStringList expectedFields(const QString& text)
{
    QRegExp pattern(QStringLiteral("(https:\\S*[A-Za-z0-9]{32})"));
    if (pattern.indexIn(text) < 0)
        return QStringList();
    const QUrl url(pattern.cap(1), QUrl::TolerantMode);
    const QString path = url.path(QUrl::FullyDecoded);
    if (!url.isValid() || url.host().isEmpty() || url.scheme() != QLatin1String("https") || path.size() <= 32)
        return QStringList();
    return {url.host(QUrl::FullyDecoded), QString::number(url.port(443)), path.right(32)};
}

/// Clipboard contents that count how often they are read.
struct WatchedContents final : QMimeData {
    QVariant retrieveData(const QString& mimeType, QVariant::Type type) const override
    {
        ++reads;
        return QMimeData::retrieveData(mimeType, type);
    }
    mutable int reads = 0;
};
} // namespace

/// The enrollment form: which addresses it makes and takes apart, and what pasting a link does.
class ActivationTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void serverUrl_data();
    void serverUrl();
    void setServerUrl();
    void pasteShortcut_data();
    void pasteShortcut();
    void clipboardWithoutText();
    void randomClipboards();
    void linkArrivesInAField();
    void linkReplacesSelection();
    void onlyPastedLinksAreTakenApart();
    void pastedInvisiblesAreDropped();
    void megabytesArePasted();
    void clipboardIsReadOnlyForPasting();
    void buttonFollowsTheToken();

private:
    IActivationDialog* dialog = nullptr;

    void showDialog()
    {
        dialog = show<IActivationDialog>();
    }
    QLineEdit& field(const char* name)
    {
        return child<QLineEdit>(dialog, name);
    }
    QStringList fields()
    {
        return {field("edHost").text(), field("edPort").text(), field("edToken").text()};
    }
    void pasteWithShortcut()
    {
        press(dialog, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    }
};

void ActivationTest::serverUrl_data()
{
    textColumns({"host", "port", "authority"});
    for (const char* usual : {"  mdm.example.com ", "HTTP://MDM.Example.com", "mdm.example.com:8443",
                              "http://jane:pw@mdm.example.com?token=1#top", "m%64m.example.com"})
        textRow({usual, "443", "mdm.example.com:443"});
    textRow({"xn--bcher-kva.de", "443", "b\u00fccher.de:443"});
    textRow({"10.0.0.1", "443", "10.0.0.1:443"});
    textRow({"::1", "443", "[::1]:443"});
    textRow({"http://[2001:DB8::7]", "443", "[2001:db8::7]:443"});
    for (const char* unusable :
         {"", "mdm example", "https://mdm.example.com", "ftp.example.com", "mdm.example.com/", "http://", "/etc/hosts",
          "mailto:jane@example.com", "mdm.example.com..", "mdm%20example.com", "http://mdm.example.com%2F", "[::1"})
        textRow({unusable, "443", ""});
    textRow({"mdm.example.com.", "1", "mdm.example.com.:1"});
    textRow({"mdm.example.com", "+065535", "mdm.example.com:65535"});
    for (const char* unusable : {"65536", "4294967739", "0", "-443", "", " 443", "443 ", "443.0", "1,000", "0x1bb",
                                 "1e3", "\uff14\uff14\uff13"})
        textRow({"mdm.example.com", unusable, ""});
}

void ActivationTest::serverUrl()
{
    QFETCH(QString, host);
    QFETCH(QString, port);
    QFETCH(QString, authority);
    showDialog();
    QTest::keyClicks(&field("edHost"), host);
    field("edPort").insert(port);
    QCOMPARE(dialog->getServerUrl(),
             authority.isEmpty() ? QString() : QStringLiteral("https://%1/command/windows/").arg(authority));
    QCOMPARE(fields(), QStringList({host, port, QString()}));
}

void ActivationTest::setServerUrl()
{
    showDialog();
    const auto check = [this](const char* address, const char* host, const char* port) {
        dialog->setServerUrl(QLatin1String(address));
        QCOMPARE(fields(), QStringList({QString::fromUtf8(host), QLatin1String(port), QString()}));
    };
    check("https://mdm.example.com/command/windows/", "mdm.example.com", "443");
    check("http://jane:pw@MDM.example.com:8443/a b?q#f", "mdm.example.com", "8443");
    check("HTTPS://m%64m.example.com:/", "mdm.example.com", "443");
    check("https://[::1]:1/", "::1", "1");
    check("https://xn--bcher-kva.de/", "b\u00fccher.de", "443");
    check("mdm.example.com", "", "443");
}

void ActivationTest::pasteShortcut_data()
{
    textColumns({"clipboard", "host", "port"});
    for (const char* usual :
         {"Jane,\n\topen https://mdm.example.com:8443/TOKEN.", "\u200bhttps://mdm.example.com:8443/enroll/TOKEN\ufeff",
          "https://mdm.example.com:8443/TOKEN https://other.example/zzzzzzzzTOKEN",
          "https://short.example/ https://mdm.example.com:8443/TOKEN"})
        textRow({usual, "mdm.example.com", "8443"});
    for (const char* withoutPort : {"https://mdm.example.com/33TOKEN", "https://mdm.example.com:/TOKEN?mode=1#top",
                                    "https://jane:pw@MDM.EXAMPLE.COM/%61%20b/TOKEN"})
        textRow({withoutPort, "mdm.example.com", "443"});
    textRow({"https://mdm.example.com:0/TOKEN", "mdm.example.com", "0"});
    textRow({"https://[::1]:1/TOKEN", "::1", "1"});
    textRow({"https://xn--bcher-kva.de/TOKEN", "b\u00fccher.de", "443"});
    for (const char* unusable :
         {"", "TOKEN", "http://mdm.example.com/TOKEN", "HTTPS://mdm.example.com/TOKEN", "https:TOKENTOKEN",
          "https:///TOKEN", "https://a..b/TOKEN", "https://[::1/TOKEN", "https://mdm.example.com:99999/TOKEN",
          "https://mdm.example.com/\nTOKEN", "https://mdm.example.com/?token=TOKEN",
          "https://mdm.example.com/0123456789012345678901234567890",
          "https://mdm.example.com/%41234567890123456789012345678901",
          "https://mdm.example.com/%25012345678901234567890123456789"})
        textRow({unusable, "", ""});
}

void ActivationTest::pasteShortcut()
{
    QFETCH(QString, clipboard);
    QFETCH(QString, host);
    QFETCH(QString, port);
    clipboard.replace(QLatin1String("TOKEN"), token);
    showDialog();
    for (const char* name : fieldNames)
        QTest::keyClicks(&field(name), QStringLiteral("my text"));
    const QStringList expected = host.isEmpty() ? fields() : QStringList{host, port, token};
    QCOMPARE(expectedFields(clipboard), host.isEmpty() ? QStringList() : expected);
    QGuiApplication::clipboard()->setText(clipboard);
    pasteWithShortcut();
    QCOMPARE(fields(), expected);
    QVERIFY(child(dialog, "btnActivateNow").isEnabled());
    QCOMPARE(takeEvents(), QStringList());
}

void ActivationTest::clipboardWithoutText()
{
    showDialog();
    QTest::keyClicks(&field("edToken"), QStringLiteral("typed"));
    auto* image = new QMimeData;
    image->setImageData(QImage(8, 8, QImage::Format_RGB32));
    for (QMimeData* contents : {new QMimeData, image}) {
        QGuiApplication::clipboard()->setMimeData(contents);
        pasteWithShortcut();
        QTest::keyClick(&field("edPort"), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(fields(), QStringList({QString(), QString(), QStringLiteral("typed")}));
    }
}

void ActivationTest::randomClipboards()
{
    showDialog();
    QStringList pieces = QStringLiteral("https: https:// http:// // mdm.example.com [::1] :8443 : / @ ? # %41 %2F % "
                                        "\u00fc \u00e9-x_~. \u200b \u0663")
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
        const QStringList before = fields();
        QGuiApplication::clipboard()->setText(text);
        act(dialog, QStringLiteral("slPasteEnrollDataFromClipboard()"));
        const QStringList found = expectedFields(text);
        QVERIFY2(fields() == (found.isEmpty() ? before : found), qPrintable(text));
        usable += found.isEmpty() ? 0 : 1;
        dialog->getServerUrl();
    }
    QVERIFY2(usable > 300, qPrintable(QString::number(usable)));
}

void ActivationTest::linkArrivesInAField()
{
    showDialog();
    QMimeData data;
    data.setText(QStringLiteral("Open ") + link);
    const auto drop = [&data](QWidget& target) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    };
    for (const char* name : fieldNames) {
        QLineEdit& edit = field(name);
        const std::function<void()> ways[] = {[&] { paste(edit, data.text()); }, [&] { edit.paste(); },
                                              [&] { drop(edit); }};
        for (const auto& arrive : ways) {
            for (const char* cleared : fieldNames)
                field(cleared).clear();
            QTest::keyClicks(&edit, QStringLiteral("https://x"));
            edit.setCursorPosition(3);
            arrive();
            QCOMPARE(fields(), filled);
            QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(fields(), filled);
        }
    }
}

void ActivationTest::linkReplacesSelection()
{
    showDialog();
    // Old and new text begin and end alike: only the selection tells what is new.
    dialog->setToken(QStringLiteral("https://old.example/") + token);
    field("edToken").selectAll();
    paste(field("edToken"), link);
    QCOMPARE(fields(), filled);
}

void ActivationTest::onlyPastedLinksAreTakenApart()
{
    // What the host sets and what a person types is no link, however much it looks like one.
    showDialog();
    dialog->setToken(link);
    QTest::keyClicks(&field("edHost"), link);
    paste(field("edHost"), QStringLiteral("!"));
    QCOMPARE(fields(), QStringList({link + QLatin1Char('!'), QString(), link}));
    dialog->setToken(QStringLiteral(" a\n\u200b b\t"));
    QCOMPARE(dialog->getToken(), QStringLiteral("a\n\u200b b"));
}

void ActivationTest::pastedInvisiblesAreDropped()
{
    showDialog();
    // The bar stands where typing goes on.
    const auto check = [this](const char* fieldName, const QString& before, const char* pasted, const char* after) {
        QLineEdit& edit = field(fieldName);
        edit.setText(QString(before).remove(QLatin1Char('|')));
        edit.setCursorPosition(before.indexOf(QLatin1Char('|')));
        paste(edit, QString::fromUtf8(pasted));
        QTest::keyClick(&edit, '|');
        QCOMPARE(edit.text(), QLatin1String(after));
    };
    for (const char* name : fieldNames) {
        check(name, QStringLiteral("|"), "to\r\nken\r\n", "token|");
        check(name, QStringLiteral("|"), "a\u2028b\u2029c\vd\fe\u0085f", "abcdef|");
        check(name, QStringLiteral("|"), "\ufeffa\u200bb\u200c\u200dc\u2060", "abc|");
        check(name, QStringLiteral("12|34"), "a\nb", "12ab|34");
        check(name, QStringLiteral("12|34"), "\n\u200b", "12|34");
        check(name, QStringLiteral("|"), " c d ", " c d |");
        // There is no link in two lines, so none may come of them.
        check(name, QStringLiteral("|"), "https://intranet.example/\n0123456789abcdef0123456789abcdef",
              "https://intranet.example/0123456789abcdef0123456789abcdef|");
    }
}

void ActivationTest::megabytesArePasted()
{
    const int megabyte = 1 << 20;
    showDialog();
    // Each would take minutes in time that grows by the square of the length.
    for (const QString& text :
         {QStringLiteral("https:").repeated(megabyte / 6), (token.left(31) + QLatin1Char('-')).repeated(megabyte / 32),
          QStringLiteral("https://") + QString(megabyte, QLatin1Char('a'))}) {
        QGuiApplication::clipboard()->setText(text);
        pasteWithShortcut();
        QCOMPARE(fields(), QStringList({QString(), QString(), QString()}));
        paste(field("edHost"), text);
        QCOMPARE(field("edHost").text(), text);
        field("edHost").clear();
    }
    paste(field("edPort"), QString(megabyte, QLatin1Char(' ')) + link + QString(megabyte, QLatin1Char('-')));
    QCOMPARE(fields(), filled);
}

void ActivationTest::clipboardIsReadOnlyForPasting()
{
    auto* contents = new WatchedContents;
    QGuiApplication::clipboard()->setMimeData(contents);
    showDialog();
    QTest::keyClicks(&field("edToken"), token);
    click(dialog, "btnActivateNow");
    dialog->hide();
    showActive(dialog);
    QCOMPARE(contents->reads, 0);
    pasteWithShortcut();
    QVERIFY(contents->reads > 0);
    QGuiApplication::clipboard()->clear();
}

void ActivationTest::buttonFollowsTheToken()
{
    showDialog();
    QTest::keyClicks(&field("edHost"), QStringLiteral("mdm.example.com"));
    QVERIFY(!child(dialog, "btnActivateNow").isEnabled());
    QTest::keyClick(&field("edToken"), Qt::Key_Space);
    QVERIFY(child(dialog, "btnActivateNow").isEnabled());
    QTest::keyClick(&field("edToken"), Qt::Key_Backspace);
    QVERIFY(!child(dialog, "btnActivateNow").isEnabled());

    dialog->setToken(token);
    act(dialog, QStringLiteral("toggleStep()"));
    click(dialog, "btnActivateNow");
    QVERIFY(messages().contains(QStringLiteral("ActivationDialog::toggleStep()")));
    QVERIFY(messages().filter(token).isEmpty());
}

GUI_TEST_MAIN(ActivationTest)
#include "tst_activation.moc"
