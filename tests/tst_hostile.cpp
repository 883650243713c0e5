#include "GuiTest.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTextDocumentFragment>
#include <QTextEdit>

#ifdef Q_OS_LINUX
#include <sys/inotify.h>
#include <unistd.h>
#endif

namespace {
/// Notices when a file of a directory is opened.
class OpenWatch {
public:
    explicit OpenWatch(const QString& directory)
    {
#ifdef Q_OS_LINUX
        inotify_add_watch(queue, QFile::encodeName(directory).constData(), IN_OPEN);
#else
        Q_UNUSED(directory)
#endif
    }
    ~OpenWatch()
    {
#ifdef Q_OS_LINUX
        close(queue);
#endif
    }
    bool takeOpened()
    {
#ifdef Q_OS_LINUX
        alignas(inotify_event) char buffer[4096];
        bool opened = false;
        while (read(queue, buffer, sizeof buffer) > 0)
            opened = true;
        return opened;
#else
        return false;
#endif
    }

private:
    Q_DISABLE_COPY(OpenWatch)
#ifdef Q_OS_LINUX
    const int queue = inotify_init1(IN_NONBLOCK);
#endif
};

const QString& baitDirectory()
{
    static const QTemporaryDir directory;
    static const QString path = directory.path();
    return path;
}

QString baitFile()
{
    return baitDirectory() + QStringLiteral("/bait.png");
}

using Corpus = QVector<QPair<QString, QString>>;

/// Texts with which somebody might try to trick a dialog or a person, by name.
const Corpus& corpus()
{
    static const Corpus texts = [] {
        const QString bait = baitFile();
        const auto utf8 = [](const char* text) { return QString::fromUtf8(text); };
        return Corpus{
            {QStringLiteral("bold"), QStringLiteral("<b>bold</b>")},
            {QStringLiteral("rich text mark"), QStringLiteral("<qt>rich</qt>")},
            {QStringLiteral("picture url"), QStringLiteral("<img src=\"file://%1\">").arg(bait)},
            {QStringLiteral("picture path"), QStringLiteral("<p><img src='%1' width=9></p>").arg(bait)},
            {QStringLiteral("background"),
             QStringLiteral("<body background=\"%1\"><table background=\"%1\">").arg(bait)},
            {QStringLiteral("style sheet"), QStringLiteral("<link rel=stylesheet href=\"%1\"><p>x</p>").arg(bait)},
            {QStringLiteral("style import"), QStringLiteral("<style>@import url(%1);</style><p>x</p>").arg(bait)},
            {QStringLiteral("qt style sheet"),
             QStringLiteral("} * { image: url(%1); border-image: url(%1) }").arg(bait)},
            {QStringLiteral("network share"), QStringLiteral("<img src=\"//host.invalid/share/x.png\">\\\\host\\x")},
            {QStringLiteral("network picture"), QStringLiteral("<img src=\"http://host.invalid/x.png\">")},
            {QStringLiteral("link"), QStringLiteral("<a href=\"javascript:alert(1)\">click</a>")},
            {QStringLiteral("entities"), QStringLiteral("&lt;b&gt; &amp;amp; &#x202e; &nosuch;")},
            {QStringLiteral("unclosed"), QStringLiteral("</span></p><<b <i x=\"'> <!-- ")},
            {QStringLiteral("mnemonics"), QStringLiteral("&Allow && &&& & &")},
            {QStringLiteral("places"), QStringLiteral("%1 %2 %99 %L1 %n %% %s")},
            {QStringLiteral("unsaved mark"), QStringLiteral("a[*]b[*][*]c")},
            {QStringLiteral("separator"), QStringLiteral("a - b - (5) (")},
            {QStringLiteral("bidi"), utf8("abc\u202Egpj.exe\u202C \u2066x\u2069 \u200Fy")},
            {QStringLiteral("controls"), QStringLiteral("\x01\x08\x1b[31m\x7f") + QChar(0x9B)},
            {QStringLiteral("nul"), QStringLiteral("before") + QChar(0) + QStringLiteral("<b>after</b>")},
            {QStringLiteral("lines"), QStringLiteral("one\ntwo\r\nthree\rfour\tfive") + QChar(0x2028) + QChar(0x2029)},
            {QStringLiteral("lone high"), QStringLiteral("a") + QChar(0xD800)},
            {QStringLiteral("lone low"), QChar(0xDC00) + QStringLiteral("b") + QChar(0xDFFF) + QChar(0xD834)},
            {QStringLiteral("noncharacters"), QStringLiteral("a") + QChar(0xFFFE) + QChar(0xFFFF) + QChar(0xFFFC)},
            {QStringLiteral("blanks"), QStringLiteral(" \t ") + QChar(0xA0) + QChar(0x3000)},
            {QStringLiteral("invisible"), utf8("\u200B\u200C\u200D\u2060\uFEFF\u00AD")},
            {QStringLiteral("combining"), QStringLiteral("Z") + QString(500, QChar(0x0335))},
            {QStringLiteral("script mix"),
             utf8("раураl.com ﷽ 👩‍👩‍👧‍👦 ก็็็็็็็ 守護")},
            {QStringLiteral("nothing"), QString()},
        };
    }();
    return texts;
}

const QString harmless = QStringLiteral("Harmless");

/// What is written into the branding file: no line breaks, which the file cannot hold without escapes.
QString hostileName()
{
    return QStringLiteral("<b>T</b>&amp;a & [*] %1 %n <img src='%1'>").replace(QStringLiteral("'%1'"), baitFile());
}

QString withoutMnemonics(const QString& text)
{
    return QString(text).replace(QRegularExpression(QStringLiteral("&(.)")), QStringLiteral("\\1"));
}

QString read(const QString& text, Qt::TextFormat format = Qt::AutoText)
{
    const bool rich = format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
    return rich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// What a person reads in a widget.
QString textIn(QWidget* widget)
{
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        static const QStringList counting{QStringLiteral("sessionTypeLabel"), QStringLiteral("timeElapsed"),
                                          QStringLiteral("timeElapsedFileTransfer")};
        if (counting.contains(label->objectName()))
            return QString();
        return label->buddy() ? withoutMnemonics(label->text()) : read(label->text(), label->textFormat());
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return withoutMnemonics(button->text());
    if (auto* box = qobject_cast<QGroupBox*>(widget))
        return withoutMnemonics(box->title());
    if (auto* edit = qobject_cast<QLineEdit*>(widget))
        return edit->echoMode() == QLineEdit::Normal ? edit->text() : QString();
    if (auto* edit = qobject_cast<QTextEdit*>(widget))
        return edit->toPlainText();
    if (auto* edit = qobject_cast<QPlainTextEdit*>(widget))
        return edit->toPlainText();
    if (auto* comboBox = qobject_cast<QComboBox*>(widget)) {
        QStringList items;
        for (int i = 0; i < comboBox->count(); ++i)
            items << comboBox->itemText(i);
        return items.join(QLatin1Char('|'));
    }
    return QString();
}

/// All that a person can read in a window and all that a host can read from the dialog, by place.
QMap<QString, QString> readings(const Family& family, IBaseDialog* dialog)
{
    QMap<QString, QString> result;
    auto& window = dynamic_cast<QWidget&>(*dialog);
    result.insert(QStringLiteral("title"),
                  QString(window.windowTitle()).replace(QLatin1String("[*][*]"), QLatin1String("[*]")));
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets.prepend(&window);
    for (int i = 0; i < widgets.size(); ++i) {
        const QString place = QStringLiteral("%1 %2").arg(i).arg(widgets[i]->objectName());
        result.insert(place, textIn(widgets[i]));
        result.insert(place + QStringLiteral(" tip"), read(widgets[i]->toolTip()));
    }
    for (const Operation& operation : family.operations) {
        if (operation.isGetter)
            result.insert(operation.name + QStringLiteral("()"), operation.call(*dialog, {}).toVariant().toString());
    }
    return result;
}

/// Makes the window do what could open files: layout, painting, tool tips.
void look(QWidget& window)
{
    window.grab();
    const QList<QWidget*> widgets = window.findChildren<QWidget*>() << &window;
    for (const QWidget* widget : widgets) {
        // What Qt shows a tool tip in.
        if (!widget->toolTip().isEmpty())
            QLabel(widget->toolTip()).grab();
    }
}

/// @p text with what could deceive replaced, @p harmless aside.
QString withVisibleControls(QString text, const QString& kept = QString())
{
    static const QRegularExpression deceptive(
        QStringLiteral("[\\x{0}-\\x{1F}\\x{7F}-\\x{9F}\\x{200E}\\x{200F}\\x{2028}-\\x{202E}\\x{2066}-\\x{2069}]"));
    for (QChar& character : text) {
        if (deceptive.match(character).hasMatch() && !kept.contains(character))
            character = QChar::ReplacementCharacter;
    }
    return text;
}

/// What a document makes of @p text: it normalises blanks and line ends.
QString inDocument(const QString& text)
{
    QTextDocument document;
    document.setPlainText(text);
    return document.toPlainText();
}

/// The forms in which a field may show or return @p text.
QStringList formsOf(const QString& text, bool fromRemotePerson)
{
    if (!fromRemotePerson)
        return {text, inDocument(text), text.trimmed()};
    const QString lines = QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return {withVisibleControls(text), inDocument(withVisibleControls(lines, QStringLiteral("\n\t")))};
}

/// Whether @p shown is @p text, possibly shortened with an ellipsis.
bool isWhole(const QString& shown, const QString& text)
{
    const int ellipsis = shown.indexOf(QChar(0x2026));
    return shown == text
        || (ellipsis >= 0 && text.startsWith(shown.left(ellipsis)) && text.endsWith(shown.mid(ellipsis + 1)));
}

bool isAnyWhole(const QString& shown, const QStringList& texts)
{
    return std::any_of(texts.cbegin(), texts.cend(), [&](const QString& text) { return isWhole(shown, text); });
}

bool takesText(const Operation& operation, int position)
{
    const QJsonValue::Type type = operation.argumentTypes[position];
    return type == QJsonValue::String || type == QJsonValue::Array;
}

/// Arguments for @p operation, all harmless but the text at @p position.
QJsonArray argumentsWith(const Operation& operation, int position, const QString& text)
{
    QJsonArray arguments;
    for (int i = 0; i < operation.argumentTypes.size(); ++i) {
        const QString value = i == position ? text : QStringLiteral("other");
        switch (operation.argumentTypes[i]) {
        case QJsonValue::String:
            arguments << value;
            break;
        case QJsonValue::Array:
            arguments << QJsonArray{value};
            break;
        case QJsonValue::Bool:
            arguments << false;
            break;
        default:
            arguments << 1;
        }
    }
    return arguments;
}
} // namespace

/// Hostile texts through all that takes a text: what is shown is the text itself, what is read back is what went in,
/// nothing else changes, and nothing is opened or takes long.
class HostileTest : public GuiTest {
    Q_OBJECT

public:
    HostileTest();

private Q_SLOTS:
    void trapWorks();
    void setters_data();
    void setters();
    void reasonOfRestart_data();
    void reasonOfRestart();
    void log_data();
    void log();
    void pasting_data();
    void pasting();
    void branding_data();
    void branding();
    void longTexts_data();
    void longTexts();
    void noNetworkCode();

private:
    static void addTextRows();

    OpenWatch bait{baitDirectory()};
};

HostileTest::HostileTest()
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    // Before the plugin is loaded, which reads the branding file.
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/oem.strings"));
    if (!picture.save(baitFile()) || !file.open(QIODevice::WriteOnly))
        qFatal("cannot write the bait");
    for (const char* key : {"companyName", "agentName", "supportWebsite", "supportEmail", "supportPhone"})
        file.write(QByteArray(key) + "=\"" + hostileName().toUtf8() + "\"\n");
    bait.takeOpened();
}

void HostileTest::trapWorks()
{
#ifndef Q_OS_LINUX
    QSKIP("opened files are noticed on Linux only");
#endif
    QLabel careless(QStringLiteral("<img src=\"file://%1\">").arg(baitFile()));
    careless.grab();
    QVERIFY(bait.takeOpened());
    QVERIFY(!bait.takeOpened());
}

void HostileTest::setters_data()
{
    QTest::addColumn<QString>("familyName");
    QTest::addColumn<QString>("operationName");
    QTest::addColumn<int>("position");
    for (const Family& family : dialogFamilies()) {
        for (const Operation& operation : family.operations) {
            for (int position = 0; position < operation.argumentTypes.size(); ++position) {
                if (takesText(operation, position))
                    QTest::addRow("%s.%s #%d", qPrintable(family.name), qPrintable(operation.name), position)
                        << family.name << operation.name << position;
            }
        }
    }
}

void HostileTest::setters()
{
    QFETCH(QString, familyName);
    QFETCH(QString, operationName);
    QFETCH(int, position);
    const Family& family = dialogFamily(familyName);
    const Operation& operation = family.operation(operationName);
    // The reason of a restart is rich text; see below.
    const bool isRich = familyName == QLatin1String("RebootDialog");
    const bool isFromRemotePerson = familyName.contains(QLatin1String("RemoteConnection"));

    const auto show = [&](const QString& text) {
        IBaseDialog* dialog = get(familyName, QStringLiteral("id"));
        dialog->show();
        operation.call(*dialog, argumentsWith(operation, position, text));
        settle();
        look(window(dialog));
        const QMap<QString, QString> texts = readings(family, dialog);
        family.remove(gui(), QStringLiteral("id"));
        settle();
        return texts;
    };
    const QMap<QString, QString> before = show(harmless);
    for (const auto& hostile : corpus()) {
        const QString& text = hostile.second;
        const QMap<QString, QString> after = show(text);
        QVERIFY2(!bait.takeOpened(), qPrintable(hostile.first));
        if (isRich)
            continue;

        QCOMPARE(after.keys(), before.keys());
        for (const QString& place : before.keys()) {
            const bool readByHost = place.endsWith(QLatin1String("()"));
            QStringList expected;
            for (const QString& form : formsOf(text, isFromRemotePerson && !readByHost))
                expected << QString(before[place]).replace(harmless, form);
            // What is shortened can be read in full as a tool tip.
            if (place.endsWith(QLatin1String(" tip")))
                expected << formsOf(text, isFromRemotePerson);
            QVERIFY2(isAnyWhole(after[place], expected),
                     qPrintable(QStringLiteral("%1 at %2: %3").arg(hostile.first, place, after[place])));
        }
    }
}

void HostileTest::addTextRows()
{
    QTest::addColumn<QString>("text");
    for (const auto& hostile : corpus())
        QTest::newRow(qPrintable(hostile.first)) << hostile.second;
}

void HostileTest::reasonOfRestart_data()
{
    addTextRows();
}

void HostileTest::reasonOfRestart()
{
    QFETCH(QString, text);
    auto* dialog = get<IRebootDialog>();
    dialog->show();
    // The one rich text: what the host escapes is shown as it is, and what it does not escape still opens nothing.
    dialog->setMessage(QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped()));
    QCOMPARE(QString(dialog->getMessage()).remove(QRegularExpression(QStringLiteral("[^\\x{21}-\\x{7E}]"))),
             QString(text).remove(QRegularExpression(QStringLiteral("[^\\x{21}-\\x{7E}]"))));
    dialog->setMessage(QStringLiteral("<html>%1</html>").arg(text));
    look(window(dialog));
    QVERIFY(!bait.takeOpened());
}

void HostileTest::log_data()
{
    addTextRows();
}

void HostileTest::log()
{
    QFETCH(QString, text);
    auto* dialog = get<IRemoteConnectionDialog>();
    dialog->startRemoteToolsSession(QStringLiteral("id"), 1, QStringLiteral("user"), 0, true);
    child<QAbstractButton>(dialog, "fileTransferInfoPanelCheckBox").click();
    dialog->addLogEvent(0, text, text, text, text);
    settle();
    look(window(dialog));
    QVERIFY(!bait.takeOpened());

    const QModelIndex row = child<QListView>(dialog, "logsListView").model()->index(0, 0);
    const QString time = QDateTime::fromMSecsSinceEpoch(0).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    constexpr int plainTextRole = Qt::UserRole + 1;
    QCOMPARE(row.data(plainTextRole).toString(), QStringLiteral("%1 %2 %2").arg(time, text));
    QCOMPARE(row.data(Qt::ToolTipRole).toString(), text);
    // On screen: one template, in which the texts are nothing but text.
    const QString html = row.data().toString();
    QCOMPARE(html.count(QLatin1Char('<')), 8);
    const QString shown = QTextDocumentFragment::fromHtml(html).toPlainText().mid(time.size());
    const QString action = withVisibleControls(text.left(256)).simplified();
    QVERIFY2(shown.simplified().startsWith(action), qPrintable(shown));
    QVERIFY2(isWhole(shown.simplified().mid(action.size()).trimmed(), withVisibleControls(text).simplified()),
             qPrintable(shown));
}

void HostileTest::pasting_data()
{
    QTest::addColumn<QString>("familyName");
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name;
}

void HostileTest::pasting()
{
    QFETCH(QString, familyName);
    IBaseDialog* dialog = get(familyName, QStringLiteral("id"));
    showActive(dialog);
    for (const auto& hostile : corpus()) {
        auto* content = new QMimeData;
        content->setText(hostile.second);
        content->setHtml(QStringLiteral("<html>%1<img src=\"file://%2\"></html>").arg(hostile.second, baitFile()));
        QGuiApplication::clipboard()->setMimeData(content);
        press(dialog, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        const QList<QWidget*> widgets = window(dialog).findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            const bool isLine = qobject_cast<QLineEdit*>(widget) && widget->isEnabled();
            auto* edit = qobject_cast<QTextEdit*>(widget);
            if (!isLine && !edit)
                continue;
            QMetaObject::invokeMethod(widget, "clear");
            QMetaObject::invokeMethod(widget, "paste");
            if (edit)
                QVERIFY2(!edit->toHtml().contains(QLatin1String("<img")), qPrintable(hostile.first));
        }
        look(window(dialog));
        QVERIFY2(!bait.takeOpened(), qPrintable(hostile.first));
    }
    // Pasting is no answer; the prompt's countdown just ends.
    QStringList answers = takeEvents();
    answers.removeAll(QStringLiteral("evTimeout"));
    QCOMPARE(answers, QStringList());
}

void HostileTest::branding_data()
{
    pasting_data();
}

void HostileTest::branding()
{
    QFETCH(QString, familyName);
    IBaseDialog* dialog = get(familyName, QStringLiteral("id"));
    showActive(dialog);
    look(window(dialog));
    QVERIFY(!bait.takeOpened());
    // Wherever a piece of the name is read, the whole of it is.
    int places = 0;
    const QMap<QString, QString> texts = readings(dialogFamily(familyName), dialog);
    for (const QString& text : texts) {
        const bool mentionsIt = text.contains(QLatin1String("&amp;a"));
        QCOMPARE(text.contains(hostileName()), mentionsIt);
        places += mentionsIt ? 1 : 0;
    }
    const bool showsNames = !familyName.contains(QLatin1String("RemoteConnection"));
    QCOMPARE(places > 0, showsNames);
}

void HostileTest::longTexts_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("tags") << QStringLiteral("<b><i>");
    QTest::newRow("opening") << QStringLiteral("<");
    QTest::newRow("ampersands") << QStringLiteral("&");
    QTest::newRow("entities") << QStringLiteral("&lt;");
    QTest::newRow("places") << QStringLiteral("%1%n");
    QTest::newRow("links") << QStringLiteral("https:a");
    QTest::newRow("separators") << QStringLiteral(" - (");
    QTest::newRow("overrides") << QString(QChar(0x202E));
    QTest::newRow("halves") << QString(QChar(0xD800));
    QTest::newRow("nul") << QString(QChar(0));
}

void HostileTest::longTexts()
{
    QFETCH(QString, piece);
    constexpr int length = hasSanitizer ? 1 << 17 : 1 << 20;
    const QString hostile = piece.repeated(length / piece.size() + 1).left(length);
    const QString benign = QStringLiteral("lorem ").repeated(length / 6 + 1).left(length);
    const auto time = [](const Operation& operation, int position, IBaseDialog* dialog, const QString& text) {
        QElapsedTimer timer;
        timer.start();
        operation.call(*dialog, argumentsWith(operation, position, text));
        return timer.elapsed();
    };
    for (const Family& family : dialogFamilies()) {
        IBaseDialog* dialog = get(family.name, QStringLiteral("id"));
        for (const Operation& operation : family.operations) {
            for (int position = 0; position < operation.argumentTypes.size(); ++position) {
                if (!takesText(operation, position))
                    continue;
                const qint64 usual = time(operation, position, dialog, benign);
                const qint64 taken = time(operation, position, dialog, hostile);
                QVERIFY2(taken <= 20 * usual + 1000,
                         qPrintable(QStringLiteral("%1.%2: %3 ms, usual %4 ms")
                                        .arg(family.name, operation.name)
                                        .arg(taken)
                                        .arg(usual)));
            }
        }
    }
}

void HostileTest::noNetworkCode()
{
    // Qt's text documents fetch nothing by themselves; the rest is in the list of libraries that the plugin needs.
    QFile plugin(QStringLiteral(GUI_PLUGIN));
    QVERIFY(plugin.open(QIODevice::ReadOnly));
    const QByteArray code = plugin.readAll();
    QVERIFY(code.contains("Qt5Widgets"));
    QVERIFY(!code.contains("Qt5Network"));
}

GUI_TEST_MAIN(HostileTest)
#include "tst_hostile.moc"
