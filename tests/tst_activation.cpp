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
    /// The fields after link() was pasted.
    const QStringList filled{QStringLiteral("mdm.example.com"), QStringLiteral("8443"), token()};

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
    const auto row = [](const char* host, const char* port, const char* authority) {
        QTest::addRow("\"%s\" \"%s\"", host, port)
            << QString::fromUtf8(host) << QString::fromUtf8(port)
            << (*authority ? QStringLiteral("https://%1/command/windows/").arg(QString::fromUtf8(authority))
                           : QString());
    };
    for (const char* usual : {"mdm.example.com", "  mdm.example.com ", "http://mdm.example.com",
                              "HTTP://MDM.Example.com", "mdm.example.com:8443", "http://jane:pw@mdm.example.com",
                              "mdm.example.com?token=1", "mdm.example.com#top", "m%64m.example.com"})
        row(usual, "443", "mdm.example.com:443");
    row("mdm.example.com.", "443", "mdm.example.com.:443");
    row("b\u00fccher.de", "443", "b\u00fccher.de:443");
    row("xn--bcher-kva.de", "443", "b\u00fccher.de:443");
    row("10.0.0.1", "443", "10.0.0.1:443");
    row("::1", "443", "[::1]:443");
    row("http://[2001:DB8::7]", "443", "[2001:db8::7]:443");
    for (const char* unusable :
         {"", " ", "mdm example", "https://mdm.example.com", "ftp://mdm.example.com", "ftp.example.com",
          "mdm.example.com/", "http://mdm.example.com/enroll", "http://", "/etc/hosts", "C:\\mdm",
          "mailto:jane@example.com", "mdm.example.com..", "mdm%20example.com", "http://mdm.example.com%2F", "[::1"})
        row(unusable, "443", "");
    row("mdm.example.com", "1", "mdm.example.com:1");
    row("mdm.example.com", "65535", "mdm.example.com:65535");
    row("mdm.example.com", "+443", "mdm.example.com:443");
    row("mdm.example.com", "00443", "mdm.example.com:443");
    for (const char* unusable : {"65536", "65537", "4294967739", "0", "-443", "", " 443", "443 ", " ", "https", "443.0",
                                 "1,000", "0x1bb", "1e3", "\uff14\uff14\uff13"})
        row("mdm.example.com", unusable, "");
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
    const auto row = [](const char* text, const char* host, const char* port) {
        QTest::newRow(qPrintable(QString::fromUtf8(text).simplified()))
            << QString::fromUtf8(text).replace(QStringLiteral("TOKEN"), token()) << QString::fromUtf8(host)
            << QString::fromUtf8(port);
    };
    for (const char* usual :
         {"https://mdm.example.com:8443/enroll/TOKEN", "Jane,\n\topen https://mdm.example.com:8443/TOKEN.",
          "\u200bhttps://mdm.example.com:8443/enroll/TOKEN\ufeff",
          "https://mdm.example.com:8443/TOKEN https://other.example/zzzzzzzzTOKEN",
          "https://short.example/ https://mdm.example.com:8443/TOKEN"})
        row(usual, "mdm.example.com", "8443");
    for (const char* withoutPort :
         {"https://mdm.example.com/TOKEN", "https://mdm.example.com/33TOKEN",
          "https://mdm.example.com:/TOKEN?mode=1#top", "https://jane:pw@mdm.example.com/TOKEN",
          "https://MDM.EXAMPLE.COM/TOKEN", "https://mdm.example.com/%61%20b/TOKEN"})
        row(withoutPort, "mdm.example.com", "443");
    row("https://mdm.example.com:0/TOKEN", "mdm.example.com", "0");
    row("https://[::1]:1/TOKEN", "::1", "1");
    row("https://xn--bcher-kva.de/TOKEN", "b\u00fccher.de", "443");
    for (const char* unusable :
         {"", "TOKEN", "http://mdm.example.com/TOKEN", "HTTPS://mdm.example.com/TOKEN", "https:TOKENTOKEN",
          "https:///TOKEN", "https://a..b/TOKEN", "https://[::1/TOKEN", "https://mdm.example.com:99999/TOKEN",
          "https://mdm.example.com/\nTOKEN", "https://mdm.example.com/?token=TOKEN",
          "https://mdm.example.com/0123456789012345678901234567890",
          "https://mdm.example.com/%41234567890123456789012345678901",
          "https://mdm.example.com/01234567890\n2345678901234567890"})
        row(unusable, "", "");
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
    QStringList pieces = QStringLiteral("https: https:// http:// // mdm.example.com [::1] :8443 : / @ ? # %41 %2F % "
                                        "\u00fc \u00e9-x_~. \u200b \u0663")
                             .split(QLatin1Char(' '));
    pieces << QStringLiteral(" ") << QStringLiteral("\u00a0") << QStringLiteral("\n") << QString(QChar(0)) << token()
           << token().left(31);
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
    QVERIFY2(usable > 300, qPrintable(QString::number(usable)));
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
    QCOMPARE(fields(), filled);
    QVERIFY(child<QPushButton>(dialog, "btnActivateNow").isEnabled());

    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fields(), filled);
}

void ActivationTest::linkReplacesSelection()
{
    showDialog();
    // Old and new text begin and end alike: only the selection tells what is new.
    dialog->setToken(QStringLiteral("https://old.example/") + token());
    field("edToken").selectAll();
    paste(link(), "edToken");
    QCOMPARE(fields(), filled);

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
    const auto row = [](const char* before, int cursor, const char* pasted, const char* after) {
        QTest::newRow(qPrintable(QString::fromUtf8(pasted).simplified()))
            << QString::fromUtf8(before) << cursor << QString::fromUtf8(pasted) << QString::fromUtf8(after);
    };
    row("", 0, "token\r\n", "token");
    row("", 0, "to\r\nken", "token");
    row("", 0, "a\u2028b\u2029c\vd\fe\u0085f", "abcdef");
    row("", 0, "\ufeffa\u200bb\u200c\u200dc\u2060", "abc");
    row("1234", 2, "a\nb", "12ab34");
    row("1234", 2, "\n\u200b", "1234");
    row("", 0, " c d ", " c d ");
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
    QGuiApplication::clipboard()->setText(text);
    pasteWithShortcut();
    QCOMPARE(fields(), usable ? filled : QStringList({QString(), QString(), QString()}));

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
