#include "GuiTest.h"

#include <ctime>

#ifdef Q_OS_LINUX
#include <sys/inotify.h>
#include <unistd.h>
#endif

namespace {
const QTemporaryDir room;
const QString bait = room.filePath(QStringLiteral("bait.png"));

/// A text in which BAIT is the path of the picture that nothing may open.
QString operator""_s(const char16_t* text, size_t size)
{
    return QString(reinterpret_cast<const QChar*>(text), static_cast<int>(size)).replace(QLatin1String("BAIT"), bait);
}

const QString id = u"id"_s;
const QString harmless = u"Harmless"_s;

/// Whether the bait has been opened since the last call.
bool takeOpened()
{
    bool opened = false;
#ifdef Q_OS_LINUX
    static const int queue = inotify_init1(IN_NONBLOCK);
    static const int watch = inotify_add_watch(queue, QFile::encodeName(bait).constData(), IN_OPEN);
    alignas(inotify_event) char events[4096];
    while (watch >= 0 && read(queue, events, sizeof events) > 0)
        opened = true;
#endif
    return opened;
}

/// Texts that deceive, and how they appear where a remote person may have written them: in one line, in several.
const QMap<QString, QStringList> deceptions{
    {u"abc\u202Egpj.exe\u202A \u2066x\u2069 \u200Ey\u200F\uFDD0z"_s,
     {u"abc\uFFFDgpj.exe\uFFFD \uFFFDx\uFFFD \uFFFDy\uFFFD\uFFFDz"_s}},
    {u"\x01\x08\x1b[31m\x7f\x9B"_s, {u"\uFFFD\uFFFD\uFFFD[31m\uFFFD\uFFFD"_s}},
    {u"before\0<b>after</b>"_s, {u"before\uFFFD<b>after</b>"_s}},
    {u"one\ntwo\r\nthree\rfour\tfive\u2028\u2029"_s,
     {u"one\uFFFDtwo\uFFFD\uFFFDthree\uFFFDfour\uFFFDfive\uFFFD\uFFFD"_s,
      u"one\ntwo\nthree\uFFFDfour\tfive\uFFFD\uFFFD"_s}},
};

/// All texts with which somebody might try to trick a dialog or a person.
const QStringList corpus = deceptions.keys()
    + QStringList{
        u"<b>bold</b>"_s,
        u"<img src=\"file://BAIT\">"_s,
        u"<p><img src='BAIT' width=9></p>"_s,
        u"<body background=\"BAIT\"><link rel=stylesheet href=\"BAIT\"><style>@import url(BAIT);</style>"_s,
        u"} * { image: url(BAIT); border-image: url(BAIT) }"_s,
        u"<img src=\"//host.invalid/share/x.png\">\\\\host\\x <a href=\"javascript:alert(1)\">click</a>"_s,
        u"&lt;b&gt; &amp;amp; &#x202e; &nosuch;"_s,
        u"</span></p><<b <i x=\"'> <!-- "_s,
        u"&Allow && &&& & &"_s,
        u"%1 %2 %99 %L1 %n %% %s"_s,
        u"a[*]b[*][*]c"_s,
        u"a - b - (5) ("_s,
        u"\xDC00-b\xDFFF\xD834"_s,
        u"a\xFFFE\xFFFF\xFFFC\xD800"_s,
        u" \u00A0\u3000 "_s,
        u"\u200B\u200C\u200D\u2060\uFEFF\u00AD"_s,
        u"Z"_s + QString(200, QChar(0x0335)),
        u"раураl.com ﷽ 👩‍👩‍👧‍👦 ก็็็็็็็ 守護"_s,
        QString(),
    };

/// What is written into the branding file: no line breaks, which the file cannot hold without escapes.
const QString hostileName = u"<b>T</b>&amp;a & [*] %1 %n <img src='BAIT'>"_s;

QString read(const QString& text, Qt::TextFormat format = Qt::AutoText)
{
    const bool rich = format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
    return rich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// What a person reads in a widget, clocks and counters aside.
QString textIn(const QWidget& widget)
{
    if (QStringList{u"sessionTypeLabel"_s, u"timeElapsed"_s, u"timeElapsedFileTransfer"_s}.contains(
            widget.objectName()))
        return QString();
    if (auto* label = qobject_cast<const QLabel*>(&widget))
        return read(label->text(), label->textFormat());
    QString text;
    for (const char* property : {"text", "title", "plainText", "currentText"})
        text += widget.property(property).toString();
    return text;
}

/// All that a person can read in a window and all that a host can read from the dialog, by place.
QMap<QString, QString> readings(const Family& family, IBaseDialog* dialog)
{
    QMap<QString, QString> result;
    const auto& window = dynamic_cast<QWidget&>(*dialog);
    // Of [*] nothing is seen, of two of them one.
    result[u"title"_s] =
        window.windowTitle().replace(u"[*][*]"_s, u"\uFDD0"_s).remove(u"[*]"_s).replace(u"\uFDD0"_s, u"[*]"_s);
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        // The parts of Qt's own widgets change their order, for example when a scroll bar appears.
        if (widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_"_s))
            continue;
        const QString place = widget->parentWidget()->objectName() + u'.' + widget->objectName();
        result[place] = textIn(*widget);
        result[place + u" tip"_s] = read(widget->toolTip());
    }
    if (auto* log = window.findChild<QListView*>(u"logsListView"_s))
        result[u"log"_s] = read(log->model()->index(0, 0).data().toString(), Qt::RichText);
    for (const Operation& operation : family.operations) {
        if (operation.isGetter)
            result[operation.name + u"()"_s] = operation.call(*dialog, {}).toVariant().toString();
    }
    return result;
}

/// Makes the window do what could open files: layout, painting, tool tips.
void look(QWidget& window)
{
    window.grab();
    const QList<QWidget*> widgets = window.findChildren<QWidget*>() << &window;
    // Qt shows a tool tip in a label.
    for (const QWidget* widget : widgets) {
        if (!widget->toolTip().isEmpty())
            QLabel(widget->toolTip()).grab();
    }
}

/// Whether @p shown is @p text, possibly shortened with an ellipsis.
bool isWhole(const QString& shown, const QString& text)
{
    // A document normalises blanks and line ends.
    const auto inDocument = [](const QString& one) { return QTextDocumentFragment::fromPlainText(one).toPlainText(); };
    const int ellipsis = shown.indexOf(QChar(0x2026));
    return shown == text || inDocument(shown) == inDocument(text)
        || (ellipsis >= 0 && text.startsWith(shown.left(ellipsis)) && text.endsWith(shown.mid(ellipsis + 1)));
}

/// Arguments for @p operation, all harmless but the text at @p position.
QJsonArray argumentsWith(const Operation& operation, int position, const QString& text)
{
    QJsonArray arguments;
    for (const QJsonValue::Type type : operation.argumentTypes) {
        const QString value = arguments.size() == position ? text : u"other"_s;
        const QHash<int, QJsonValue> values{
            {QJsonValue::String, value}, {QJsonValue::Array, QJsonArray{value}}, {QJsonValue::Bool, false}};
        arguments << values.value(type, 1);
    }
    return arguments;
}
} // namespace

/// Hostile texts through all that takes a text: what is shown is the text itself, what is read back is what went in,
/// nothing else changes, and nothing is opened or takes long.
class HostileTest : public GuiTest {
    Q_OBJECT

public:
    HostileTest()
    {
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        const QString branding = QCoreApplication::applicationDirPath() + u"/oem.strings"_s;
        // Another run of this test would write the name of its own bait.
        QLockFile lock(branding + u".lock"_s);
        QFile file(branding);
        if (!lock.lock() || !picture.save(bait) || !file.open(QIODevice::WriteOnly))
            qFatal("cannot write the bait");
        for (const char* key : {"companyName", "agentName", "supportWebsite", "supportEmail", "supportPhone"})
            file.write(QByteArray(key) + "=\"" + hostileName.toUtf8() + "\"\n");
        file.close();
        // Loads the plugin, which reads the file.
        gui();
        takeOpened();
    }

private Q_SLOTS:
    void trapWorks()
    {
#ifndef Q_OS_LINUX
        QSKIP("opened files are noticed on Linux only");
#endif
        QLabel careless(u"<img src=\"file://BAIT\">"_s);
        careless.grab();
        QVERIFY(takeOpened() && !takeOpened());
    }

    void setters_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("position");
        for (const Family& family : dialogFamilies()) {
            for (const Operation& operation : family.operations) {
                for (int i = 0; i < operation.argumentTypes.size(); ++i) {
                    const QJsonValue::Type type = operation.argumentTypes[i];
                    if (type == QJsonValue::String || type == QJsonValue::Array)
                        QTest::addRow("%s.%s #%d", qPrintable(family.name), qPrintable(operation.name), i)
                            << family.name << operation.name << i;
                }
            }
        }
    }

    void setters()
    {
        QFETCH(QString, family);
        QFETCH(QString, operation);
        QFETCH(int, position);
        IBaseDialog* dialog = nullptr;
        const QMap<QString, QString> before = readingsWith(harmless, dialog);
        const QStringList holders = before.keys(harmless).filter(u"()"_s);
        QVERIFY2(holders.size() <= 1, qPrintable(holders.join(u' ')));
        for (const QString& text : corpus) {
            const QMap<QString, QString> after = readingsWith(text, dialog);
            QVERIFY2(!takeOpened(), qPrintable(text));
            QCOMPARE(after.keys(), before.keys());
            for (const QString& place : before.keys()) {
                const bool isRich = place == u"log"_s || family == u"RebootDialog"_s;
                const bool isSafe = family.contains(u"RemoteConnection"_s) && !place.endsWith(u"()"_s);
                const QStringList forms =
                    isSafe ? deceptions.value(text, QStringList(text)) : QStringList{text, text.trimmed()};
                const bool matches = std::any_of(forms.cbegin(), forms.cend(), [&](const QString& form) {
                    const QString expected = QString(before[place]).replace(harmless, form);
                    // Blanks collapse in rich text. What is shortened can be read in full as a tool tip.
                    return isWhole(after[place], expected)
                        || (isRich && isWhole(after[place].simplified(), expected.simplified()))
                        || (place.endsWith(u" tip"_s) && after[place] == form);
                });
                QVERIFY2(matches, qPrintable(u"%1 at %2: %3"_s.arg(text, place, after[place])));
            }
        }

        // Long ones take no longer than others of their length.
        const Operation& setter = dialogFamily(family).operation(operation);
        dialog = get(family, id);
        const auto timeFor = [&](const QString& piece) {
            constexpr int length = hasSanitizer ? 1 << 17 : 1 << 18;
            const QJsonArray arguments =
                argumentsWith(setter, position, piece.repeated(length / piece.size() + 1).left(length));
            // The processor's time, which other programs do not lengthen.
            const std::clock_t start = std::clock();
            setter.call(*dialog, arguments);
            return qint64(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
        };
        const qint64 usual = timeFor(u"lorem "_s);
        for (const QString& piece : {u"<b><i>"_s, u"<"_s, u"&"_s, u"&lt;"_s, u"%1%n"_s, u"https:a"_s, u" - ("_s,
                                     u"\u202E"_s, u"\xD800"_s, u"\0"_s}) {
            const qint64 taken = timeFor(piece);
            QVERIFY2(taken <= 20 * usual + 1000,
                     qPrintable(u"%1 takes %2 ms, usual are %3 ms"_s.arg(piece).arg(taken).arg(usual)));
        }
    }

    void branding()
    {
        for (const Family& family : dialogFamilies()) {
            IBaseDialog* dialog = get(family.name, id);
            showActive(dialog);
            look(window(dialog));
            QVERIFY2(!takeOpened(), qPrintable(family.name));
            // Wherever a piece of the name is read, the whole of it is.
            const QStringList texts = QStringList(readings(family, dialog).values()).filter(u"&amp;a"_s);
            QCOMPARE(texts.filter(hostileName), texts);
            QCOMPARE(texts.isEmpty(), family.name.contains(u"RemoteConnection"_s));
        }
    }

private:
    /// Sets a text, in the dialog of the text before where the one replaces the other.
    QMap<QString, QString> readingsWith(const QString& text, IBaseDialog*& dialog)
    {
        QFETCH(QString, family);
        QFETCH(QString, operation);
        QFETCH(int, position);
        if (!dialog || !operation.startsWith(u"set"_s)) {
            dialogFamily(family).remove(gui(), id);
            settle();
            dialog = get(family, id);
            dialog->show();
            if (auto* session = dynamic_cast<IRemoteConnectionDialog*>(dialog)) {
                session->startRemoteToolsSession(id, 1, u"user"_s, 0, true);
                click(dialog, "fileTransferInfoPanelCheckBox");
            }
        }
        const auto set = [&](const QString& argument) {
            const Operation& setter = dialogFamily(family).operation(operation);
            setter.call(*dialog, argumentsWith(setter, position, argument));
            settle();
            look(window(dialog));
        };
        set(text);
        // The one rich text: what the host does not escape opens nothing, what it escapes is shown as it is.
        if (family == u"RebootDialog"_s)
            set(u"<p style=\"white-space:pre-wrap\">%1</p>"_s.arg(text.toHtmlEscaped()));
        return readings(dialogFamily(family), dialog);
    }
};

GUI_TEST_MAIN(HostileTest)
#include "tst_hostile.moc"
