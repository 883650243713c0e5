#include "GuiTest.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegExp>
#include <QUrl>

#include <functional>

/// A way in which a text gets into a field.
using Way = std::function<void(QLineEdit&, const QString&)>;
Q_DECLARE_METATYPE(Way)

namespace {
const char* const fieldNames[] = {"edHost", "edPort", "edToken"};

QString token()
{
    return QStringLiteral("Qm7Zx2Lk9Tr4Vb6Ny1Hs3Dw8Gf5Jp0Cu");
}

QString link(const QString& host = QStringLiteral("mdm.example.com:8443"))
{
    return QStringLiteral("https://%1/enroll/%2").arg(host, token());
}

void commit(QLineEdit& edit, const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&edit, &event);
}

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
class WatchedContents final : public QMimeData {
    Q_OBJECT

public:
    explicit WatchedContents(int* counter) : reads(counter)
    {
        setText(QStringLiteral("text"));
    }

protected:
    QVariant retrieveData(const QString& mimeType, QVariant::Type type) const override
    {
        ++*reads;
        return QMimeData::retrieveData(mimeType, type);
    }

private:
    int* reads;
};
} // namespace

class ActivationTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void serverUrl_data();
    void serverUrl();
    void setServerUrl_data();
    void setServerUrl();
    void pasteShortcut_data();
    void pasteShortcut();
    void clipboardWithoutText();
    void randomClipboards();
    void linkArrivesInAField_data();
    void linkArrivesInAField();
    void linkReplacesSelection();
    void hostSettersTakeNoLinkApart();
    void typedTextIsLeftAlone();
    void pastedInvisiblesAreDropped_data();
    void pastedInvisiblesAreDropped();
    void megabytesArePasted_data();
    void megabytesArePasted();
    void clipboardIsReadOnlyForPasting();
    void buttonFollowsTheToken();
    void eventsOfButtonsAndKeys();
    void tabOrder();

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
    void paste(const QString& text, const char* name)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&field(name), Qt::Key_V, Qt::ControlModifier);
    }
    void pasteWithShortcut()
    {
        press(dialog, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    }
};

void ActivationTest::serverUrl_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("address");
    const auto row = [](const char* name, const QString& host, const QString& port, const QString& authority) {
        const QString address = QStringLiteral("https://%1/command/windows/").arg(authority);
        QTest::newRow(name) << host << port << (authority.isEmpty() ? QString() : address);
    };
    const QString host = QStringLiteral("mdm.example.com");
    const QString usual = QStringLiteral("mdm.example.com:443");
    const auto hostRow = [&](const char* name, const char* typed, const char* authority) {
        row(name, QString::fromUtf8(typed), QStringLiteral("443"), QString::fromUtf8(authority));
    };
    const auto portRow = [&](const char* name, const char* typed, const char* authority) {
        row(name, host, QString::fromUtf8(typed), QString::fromUtf8(authority));
    };
    row("bare host", host, QStringLiteral("443"), usual);
    hostRow("blanks around", "  mdm.example.com ", "mdm.example.com:443");
    hostRow("blank within", "mdm example", "");
    hostRow("no host", "", "");
    hostRow("http", "http://mdm.example.com", "mdm.example.com:443");
    hostRow("upper case", "HTTP://MDM.Example.com", "mdm.example.com:443");
    hostRow("https", "https://mdm.example.com", "");
    hostRow("ftp", "ftp://mdm.example.com", "");
    hostRow("guessed to be ftp", "ftp.example.com", "");
    hostRow("slash", "mdm.example.com/", "");
    hostRow("path", "http://mdm.example.com/enroll", "");
    hostRow("scheme alone", "http://", "");
    hostRow("local file", "/etc/hosts", "");
    hostRow("drive", "C:\\mdm", "");
    hostRow("mail address", "mailto:jane@example.com", "");
    hostRow("port in the host", "mdm.example.com:8443", "mdm.example.com:443");
    hostRow("user info", "http://jane:pw@mdm.example.com", "mdm.example.com:443");
    hostRow("query", "mdm.example.com?token=1", "mdm.example.com:443");
    hostRow("fragment", "mdm.example.com#top", "mdm.example.com:443");
    hostRow("trailing dot", "mdm.example.com.", "mdm.example.com.:443");
    hostRow("two dots", "mdm.example.com..", "");
    hostRow("percent escapes", "m%64m.example.com", "mdm.example.com:443");
    hostRow("escaped blank", "mdm%20example.com", "");
    hostRow("escaped slash", "http://mdm.example.com%2F", "");
    hostRow("international", "b\u00fccher.de", "b\u00fccher.de:443");
    hostRow("punycode", "xn--bcher-kva.de", "b\u00fccher.de:443");
    hostRow("IPv4", "10.0.0.1", "10.0.0.1:443");
    hostRow("bare IPv6", "::1", "[::1]:443");
    hostRow("IPv6 literal", "http://[2001:DB8::7]", "[2001:db8::7]:443");
    hostRow("open bracket", "[::1", "");
    portRow("lowest port", "1", "mdm.example.com:1");
    portRow("highest port", "65535", "mdm.example.com:65535");
    portRow("just too high", "65536", "");
    portRow("too high", "65537", "");
    portRow("beyond 32 bits", "4294967739", "");
    portRow("zero", "0", "");
    portRow("negative", "-443", "");
    portRow("signed", "+443", "mdm.example.com:443");
    portRow("leading zeros", "00443", "mdm.example.com:443");
    portRow("no port", "", "");
    portRow("blank before", " 443", "");
    portRow("blank behind", "443 ", "");
    portRow("blanks only", "  ", "");
    portRow("word", "https", "");
    portRow("fraction", "443.0", "");
    portRow("grouped", "1,000", "");
    portRow("hexadecimal", "0x1bb", "");
    portRow("exponent", "1e3", "");
    portRow("full-width digits", "\uff14\uff14\uff13", "");
}

void ActivationTest::serverUrl()
{
    QFETCH(QString, host);
    QFETCH(QString, port);
    showDialog();
    commit(field("edHost"), host);
    commit(field("edPort"), port);
    QTEST(dialog->getServerUrl(), "address");
    QCOMPARE(field("edHost").text(), host);
    QCOMPARE(field("edPort").text(), port);
}

void ActivationTest::setServerUrl_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("port");
    const auto row = [](const char* address, const char* host, const char* port) {
        QTest::newRow(address) << QString::fromUtf8(address) << QString::fromUtf8(host) << QString::fromUtf8(port);
    };
    row("https://mdm.example.com/command/windows/", "mdm.example.com", "443");
    row("https://mdm.example.com:8443", "mdm.example.com", "8443");
    row("http://mdm.example.com", "mdm.example.com", "443");
    row("HTTPS://MDM.example.com:/", "mdm.example.com", "443");
    row("https://jane:pw@mdm.example.com:1/?q#f", "mdm.example.com", "1");
    row("https://[::1]:8443/", "::1", "8443");
    row("https://xn--bcher-kva.de/", "b\u00fccher.de", "443");
    row("https://m%64m.example.com", "mdm.example.com", "443");
    row("https://mdm.example.com/a b ", "mdm.example.com", "443");
    row("mdm.example.com", "", "443");
}

void ActivationTest::setServerUrl()
{
    QFETCH(QString, address);
    showDialog();
    dialog->setServerUrl(address);
    QTEST(field("edHost").text(), "host");
    QTEST(field("edPort").text(), "port");
}

void ActivationTest::pasteShortcut_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("port");
    const QString longHost = QStringLiteral("mdm.example.com");
    const auto row = [](const char* name, const QString& clipboard, const char* host = nullptr,
                        const char* port = "443") {
        QTest::newRow(name) << clipboard << QString::fromUtf8(host) << QString::fromUtf8(port);
    };
    const QString secondLink = QStringLiteral("https://other.example/") + QString(32, QLatin1Char('z'));
    row("link", link(), "mdm.example.com", "8443");
    row("no port", link(longHost), "mdm.example.com");
    row("within an e-mail", QStringLiteral("Dear Jane,\n\topen ") + link() + QStringLiteral(".\r\nBye"),
        "mdm.example.com", "8443");
    row("zero-width characters around", QStringLiteral("\u200b") + link() + QStringLiteral("\ufeff"), "mdm.example.com",
        "8443");
    row("two links", link() + QLatin1Char(' ') + secondLink, "mdm.example.com", "8443");
    row("an unusable link before", QStringLiteral("https://short.example/ ") + link(), "mdm.example.com", "8443");
    row("query behind", link(longHost) + QStringLiteral("?mode=1#top"), "mdm.example.com");
    row("33 characters", QStringLiteral("https://mdm.example.com/x") + token(), "mdm.example.com");
    row("user info", link(QStringLiteral("jane:pw@mdm.example.com")), "mdm.example.com");
    row("empty port", link(QStringLiteral("mdm.example.com:")), "mdm.example.com");
    row("port zero", link(QStringLiteral("mdm.example.com:0")), "mdm.example.com", "0");
    row("upper case host", link(QStringLiteral("MDM.EXAMPLE.COM")), "mdm.example.com");
    row("IPv6", link(QStringLiteral("[::1]:1")), "::1", "1");
    row("international", link(QStringLiteral("xn--bcher-kva.de")), "b\u00fccher.de");
    row("escaped path", QStringLiteral("https://mdm.example.com/%61%20b/") + token(), "mdm.example.com");
    row("escapes make it short", QStringLiteral("https://mdm.example.com/%41") + token().left(30));
    row("31 characters", QStringLiteral("https://mdm.example.com/") + token().left(31));
    row("path of 32 characters", QStringLiteral("https://mdm.example.com/%2F") + token().left(30));
    row("token in the query", QStringLiteral("https://mdm.example.com/?token=") + token());
    row("line break in the token", QStringLiteral("https://h/") + token().insert(16, QLatin1Char('\n')));
    row("http", QStringLiteral("http://mdm.example.com/") + token());
    row("upper case scheme", QStringLiteral("HTTPS://mdm.example.com/") + token());
    row("no host", link(QString()));
    row("no slashes", QStringLiteral("https:") + token() + token());
    row("bad host", link(QStringLiteral("a..b")));
    row("open bracket", link(QStringLiteral("[::1")));
    row("bad port", link(QStringLiteral("mdm.example.com:99999")));
    row("token alone", token());
    row("nothing", QString());
}

void ActivationTest::pasteShortcut()
{
    QFETCH(QString, clipboard);
    QFETCH(QString, host);
    QFETCH(QString, port);
    showDialog();
    const QStringList typed{QStringLiteral("my host"), QStringLiteral("my port"), QStringLiteral("my token")};
    for (int i = 0; i < typed.size(); ++i)
        QTest::keyClicks(&field(fieldNames[i]), typed.at(i));

    const QStringList expected = host.isEmpty() ? typed : QStringList{host, port, token()};
    QCOMPARE(host.isEmpty() ? QStringList() : expected, expectedFields(clipboard));
    QGuiApplication::clipboard()->setText(clipboard);
    pasteWithShortcut();
    QCOMPARE(fields(), expected);
    QVERIFY(child<QPushButton>(dialog, "btnActivateNow").isEnabled());
    QCOMPARE(takeEvents(), QStringList());
}

void ActivationTest::clipboardWithoutText()
{
    showDialog();
    QTest::keyClicks(&field("edToken"), QStringLiteral("typed"));
    const QStringList before = fields();
    const auto pasteBothWays = [this] {
        pasteWithShortcut();
        QTest::keyClick(&field("edPort"), Qt::Key_V, Qt::ControlModifier);
    };
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(image);
    pasteBothWays();
    QCOMPARE(fields(), before);
    QGuiApplication::clipboard()->clear();
    pasteBothWays();
    QCOMPARE(fields(), before);

    auto* files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/") + token())});
    QGuiApplication::clipboard()->setMimeData(files);
    pasteWithShortcut();
    QCOMPARE(fields(), before);
}

void ActivationTest::randomClipboards()
{
    showDialog();
    const QStringList pieces{QStringLiteral("https:"),
                             QStringLiteral("https://"),
                             QStringLiteral("http://"),
                             QStringLiteral("//"),
                             QStringLiteral("mdm.example.com"),
                             QStringLiteral("[::1]"),
                             QStringLiteral(":8443"),
                             QStringLiteral(":"),
                             QStringLiteral("/"),
                             QStringLiteral("@"),
                             QStringLiteral("?"),
                             QStringLiteral("#"),
                             QStringLiteral(" "),
                             QStringLiteral("\u00a0"),
                             QStringLiteral("\n"),
                             QStringLiteral("%41"),
                             QStringLiteral("%2F"),
                             QStringLiteral("%"),
                             QStringLiteral("\u00fc"),
                             QStringLiteral("\u200b"),
                             QString(QChar(0)),
                             token(),
                             token(),
                             token().left(31),
                             QStringLiteral("\u0663"),
                             QStringLiteral("é-x_~.")};
    QRandomGenerator random(4);
    int usable = 0;
    QStringList before = fields();
    for (int round = 0; round < 4000; ++round) {
        QString text = round % 2 ? QStringLiteral("https://mdm.example.com") : QString();
        for (int count = random.bounded(0, 8); count > 0; --count)
            text += pieces.at(random.bounded(pieces.size()));
        if (round % 3)
            text += QLatin1Char('/') + token();
        QGuiApplication::clipboard()->setText(text);
        QVERIFY(QMetaObject::invokeMethod(&window(dialog), "slPasteEnrollDataFromClipboard"));

        const QStringList found = expectedFields(text);
        QVERIFY2(fields() == (found.isEmpty() ? before : found), qPrintable(text));
        usable += found.isEmpty() ? 0 : 1;
        before = fields();
        dialog->getServerUrl();
    }
    QVERIFY2(usable > 500, qPrintable(QString::number(usable)));
}

void ActivationTest::linkArrivesInAField_data()
{
    const QVector<QPair<QByteArray, Way>> ways{
        {"key", [](QLineEdit& edit, const QString&) { QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier); }},
        {"context menu", [](QLineEdit& edit, const QString&) { edit.paste(); }},
        {"drop",
         [](QLineEdit& edit, const QString& text) {
             QMimeData data;
             data.setText(text);
             QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
             QApplication::sendEvent(&edit, &enter);
             QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
             QApplication::sendEvent(&edit, &drop);
         }},
    };
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Way>("arrive");
    for (const char* name : fieldNames) {
        for (const auto& way : ways)
            QTest::newRow((QByteArray(name) + ", " + way.first).constData()) << QByteArray(name) << way.second;
    }
}

void ActivationTest::linkArrivesInAField()
{
    QFETCH(QByteArray, name);
    QFETCH(Way, arrive);
    showDialog();
    QLineEdit& edit = field(name.constData());
    QTest::keyClicks(&edit, QStringLiteral("https://x"));
    edit.setCursorPosition(3);
    const QString text = QStringLiteral("Open ") + link();
    QGuiApplication::clipboard()->setText(text);
    arrive(edit, text);
    const QStringList expected{QStringLiteral("mdm.example.com"), QStringLiteral("8443"), token()};
    QCOMPARE(fields(), expected);
    QVERIFY(child<QPushButton>(dialog, "btnActivateNow").isEnabled());

    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fields(), expected);
}

void ActivationTest::linkReplacesSelection()
{
    showDialog();
    // Old and new text begin and end alike: only the selection tells what is new.
    dialog->setToken(QStringLiteral("https://old.example/") + token());
    field("edToken").selectAll();
    paste(link(), "edToken");
    QCOMPARE(fields(), QStringList({QStringLiteral("mdm.example.com"), QStringLiteral("8443"), token()}));

    dialog->setToken(QStringLiteral("abc"));
    QTest::keyClick(&field("edToken"), Qt::Key_Home);
    QTest::keyClick(&field("edToken"), Qt::Key_Right, Qt::ShiftModifier);
    paste(link(QStringLiteral("second.example")), "edToken");
    QCOMPARE(fields(), QStringList({QStringLiteral("second.example"), QStringLiteral("443"), token()}));
}

void ActivationTest::hostSettersTakeNoLinkApart()
{
    showDialog();
    dialog->setToken(link());
    QCOMPARE(fields(), QStringList({QString(), QString(), link()}));
    dialog->setToken(QStringLiteral(" a\n\u200b b\t"));
    QCOMPARE(dialog->getToken(), QStringLiteral("a\n\u200b b"));
    dialog->setToken(QString(50000, QLatin1Char('t')));
    QCOMPARE(dialog->getToken().size(), 50000);
}

void ActivationTest::typedTextIsLeftAlone()
{
    showDialog();
    QTest::keyClicks(&field("edHost"), link());
    QCOMPARE(fields(), QStringList({link(), QString(), QString()}));
    paste(QStringLiteral("!"), "edHost");
    QCOMPARE(fields(), QStringList({link() + QLatin1Char('!'), QString(), QString()}));
}

void ActivationTest::pastedInvisiblesAreDropped_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("after");
    QTest::newRow("line break behind") << QString() << 0 << token() + QStringLiteral("\r\n") << token();
    QTest::newRow("wrapped") << QString() << 0 << token().insert(16, QStringLiteral("\r\n")) << token();
    QTest::newRow("separators") << QString() << 0 << QStringLiteral("a\u2028b\u2029c\vd\fe\u0085f")
                                << QStringLiteral("abcdef");
    QTest::newRow("zero-width") << QString() << 0 << QStringLiteral("\ufeffa\u200bb\u200c\u200dc\u2060")
                                << QStringLiteral("abc");
    QTest::newRow("within typed text") << QStringLiteral("1234") << 2 << QStringLiteral("a\nb")
                                       << QStringLiteral("12ab34");
    QTest::newRow("blanks stay") << QString() << 0 << QStringLiteral(" a b ") << QStringLiteral(" a b ");
    QTest::newRow("nothing left") << QStringLiteral("1234") << 2 << QStringLiteral("\n\u200b")
                                  << QStringLiteral("1234");
}

void ActivationTest::pastedInvisiblesAreDropped()
{
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(QString, pasted);
    showDialog();
    for (const char* name : fieldNames) {
        QLineEdit& edit = field(name);
        QTest::keyClicks(&edit, before);
        edit.setCursorPosition(cursor);
        paste(pasted, name);
        QTEST(edit.text(), "after");
        // Typing goes on behind what was pasted.
        const int end = edit.cursorPosition();
        QCOMPARE(edit.text().mid(end), before.mid(cursor));
    }
}

void ActivationTest::megabytesArePasted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("usable");
    const int megabyte = 1 << 20;
    QTest::newRow("letters") << QString(megabyte, QLatin1Char('a')) << false;
    QTest::newRow("schemes") << QStringLiteral("https:").repeated(megabyte / 6) << false;
    QTest::newRow("tokens that are too short")
        << (token().left(31) + QLatin1Char('-')).repeated(megabyte / 32) << false;
    QTest::newRow("an endless host") << QStringLiteral("https://") + QString(megabyte, QLatin1Char('a')) << false;
    QTest::newRow("a link at the end") << QString(megabyte, QLatin1Char(' ')) + link() << true;
    QTest::newRow("a link at the beginning") << link() + QString(megabyte, QLatin1Char('-')) << true;
}

void ActivationTest::megabytesArePasted()
{
    QFETCH(QString, text);
    QFETCH(bool, usable);
    showDialog();
    const QStringList filled{QStringLiteral("mdm.example.com"), QStringLiteral("8443"), token()};
    const QStringList empty{QString(), QString(), QString()};
    QGuiApplication::clipboard()->setText(text);
    pasteWithShortcut();
    QCOMPARE(fields(), usable ? filled : empty);

    field("edHost").clear();
    paste(text, "edHost");
    QCOMPARE(fields(), usable ? filled : QStringList({text, QString(), QString()}));
}

void ActivationTest::clipboardIsReadOnlyForPasting()
{
    int reads = 0;
    QGuiApplication::clipboard()->setMimeData(new WatchedContents(&reads));
    showDialog();
    QTest::keyClicks(&field("edToken"), token());
    press(dialog, Qt::Key_Tab);
    click(dialog, "btnActivateNow");
    dialog->hide();
    showActive(dialog);
    QCOMPARE(reads, 0);
    pasteWithShortcut();
    QVERIFY(reads > 0);
    QGuiApplication::clipboard()->clear();
}

void ActivationTest::buttonFollowsTheToken()
{
    showDialog();
    const auto& button = child<QPushButton>(dialog, "btnActivateNow");
    QTest::keyClicks(&field("edHost"), QStringLiteral("mdm.example.com"));
    QTest::keyClicks(&field("edPort"), QStringLiteral("443"));
    QVERIFY(!button.isEnabled());
    QTest::keyClick(&field("edToken"), Qt::Key_Space);
    QVERIFY(button.isEnabled());
    QCOMPARE(dialog->getToken(), QString());
    field("edHost").clear();
    QVERIFY(button.isEnabled());
    QTest::keyClick(&field("edToken"), Qt::Key_Backspace);
    QVERIFY(!button.isEnabled());
}

void ActivationTest::eventsOfButtonsAndKeys()
{
    showDialog();
    const QString enroll = QStringLiteral("evEnroll");
    const QString close = QStringLiteral("evClose");
    press(dialog, Qt::Key_Return);
    press(dialog, Qt::Key_Enter);
    QCOMPARE(takeEvents(), QStringList({enroll, enroll}));
    press(dialog, Qt::Key_Escape);
    click(dialog, "btnActivateNow");
    QCOMPARE(takeEvents(), QStringList());
    dialog->setToken(token());
    click(dialog, "btnActivateNow");
    click(dialog, "btnCancel");
    click(dialog, "btnClose");
    QVERIFY(!window(dialog).close());
    QCOMPARE(takeEvents(), QStringList({enroll, close, close, close}));
    QVERIFY(QMetaObject::invokeMethod(&window(dialog), "goToRegistration"));
    QVERIFY(QMetaObject::invokeMethod(&window(dialog), "toggleStep"));
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evGoToRegistration")});
    QVERIFY(messages().contains(QStringLiteral("ActivationDialog::toggleStep()")));
    QVERIFY(messages().filter(token()).isEmpty());
    QVERIFY(window(dialog).isVisible());
    QVERIFY(!(window(dialog).windowFlags() & Qt::WindowStaysOnTopHint));
}

void ActivationTest::tabOrder()
{
    showDialog();
    dialog->setToken(token());
    for (const char* name : {"edHost", "edPort", "edToken", "btnActivateNow", "btnCancel", "edHost"}) {
        QCOMPARE(window(dialog).focusWidget()->objectName(), QLatin1String(name));
        press(dialog, Qt::Key_Tab);
    }
}

GUI_TEST_MAIN(ActivationTest)
#include "tst_activation.moc"
