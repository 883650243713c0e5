#include "GuiTest.h"

#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

/// The reference host as an administrator runs it: a program, its script, its output and its exit status.
class GuihostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void stories_data();
    void stories();
    void wrongLines();
    void goodLinesAfterAWrongOne();
    void wrongArguments();
    void galleryShowsEveryPicture();

private:
    const QTemporaryDir pictures;
};

namespace {
struct Run {
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;

    QVector<QJsonObject> objects() const
    {
        QVector<QJsonObject> result;
        for (const QByteArray& line : output.trimmed().split('\n'))
            result << QJsonDocument::fromJson(line).object();
        return result;
    }
};

Run run(const QStringList& arguments, const QByteArray& input = QByteArray())
{
    QProcess process;
    process.start(QStringLiteral(GUIHOST), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        qFatal("guihost hung or crashed: %s", process.readAllStandardError().constData());
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/// Runs a script from standard input, in which $ stands for a dialog.
Run play(QByteArray script, const char* dialog)
{
    script.replace('$', QByteArray("\"dialog\": \"") + dialog + '"');
    return run({QStringLiteral("run"), QStringLiteral("-")}, script);
}
} // namespace

void GuihostTest::initTestCase()
{
    prepareTestEnvironment();
}

void GuihostTest::stories_data()
{
    QTest::addColumn<QString>("path");
    const QDir directory(QStringLiteral(STORIES));
    for (const QString& story : directory.entryList({QStringLiteral("*.jsonl")}))
        QTest::newRow(qPrintable(story)) << directory.filePath(story);
}

void GuihostTest::stories()
{
    QFETCH(QString, path);
    const Run result = run({QStringLiteral("run"), path, QStringLiteral("--pictures"), pictures.path()});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
    int events = 0;
    for (const QJsonObject& object : result.objects()) {
        QVERIFY(object.contains(QLatin1String("dialog")));
        events += object.contains(QLatin1String("event")) ? 1 : 0;
        if (object.contains(QLatin1String("picture")))
            QVERIFY(QFile::exists(object.value(QLatin1String("picture")).toString()));
    }
    QVERIFY(events > 0);
}

void GuihostTest::wrongLines()
{
    const QVector<QPair<QByteArray, QByteArray>> lines{
        {"get ErrorMessageDialog", "not a JSON object"},
        {"[1, 2]", "not a JSON object"},
        {R"({"do": "get", "dialog": "Err)", "not a JSON object"},
        {R"({$})", R"("do" must be a string)"},
        {R"({"do": "launch"})", R"(unknown command "launch")"},
        {R"({"do": "get", $, "colour": "red"})", R"(takes no "colour")"},
        {R"({"do": "get", "dialog": "FooDialog"})", R"(no dialog "FooDialog")"},
        {R"({"do": "show", "dialog": "AboutDialog"})", "was not got"},
        {R"({"do": "set", $, "properties": {"size": 1}})", R"(no property "size")"},
        {R"({"do": "set", $, "properties": {"message": 7}})", "message: expected a string"},
        {R"({"do": "call", $, "operation": "explode"})", R"(no operation "explode")"},
        {R"({"do": "call", $, "operation": "setMessage"})", "takes 1 arguments"},
        {R"({"do": "click", $, "widget": "btnNone"})", R"(no widget "btnNone")"},
        {R"({"do": "type", $, "keys": "Hyper+Foo"})", "no such keys"},
        {R"({"do": "wait", $, "event": "evNone"})", R"(no event "evNone")"},
        {R"({"do": "wait", $, "event": "evClose", "within": 20})", "did not come in time"},
        {R"({"do": "expect", $, "properties": {"message": "x"}})", "expected {"},
    };
    QByteArray script = "{\"do\": \"get\", $}\n\n";
    for (const auto& line : lines)
        script += line.first + '\n';
    const Run result = play(script, "ErrorMessageDialog");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.errors.count("line "), lines.size());
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray error = result.errors.mid(result.errors.indexOf("line " + QByteArray::number(i + 3) + ": "));
        QVERIFY2(error.left(error.indexOf('\n')).contains(lines.at(i).second), result.errors.constData());
    }
}

void GuihostTest::goodLinesAfterAWrongOne()
{
    const Run result = play(R"({"do": "nothing"}
{"do": "get", $}
{"do": "exec", $}
{"do": "type", $, "widget": "edPassword", "text": "hunter2"}
{"do": "call", $, "operation": "getPassword"}
{"do": "click", $, "widget": "btnContinue"}
{"do": "wait", $, "event": "evContinue"}
{"do": "expect", $, "properties": {"password": "other"}}
{"do": "done", $, "result": 5}
)",
                            "ZentPasswordDialog");
    QCOMPARE(result.exitCode, 1);
    const QVector<QJsonObject> output = result.objects();
    QCOMPARE(output.size(), 3);
    QCOMPARE(output.at(0).value(QLatin1String("result")).toString(), QStringLiteral("***"));
    QCOMPARE(output.at(1).value(QLatin1String("event")).toString(), QStringLiteral("evContinue"));
    const QJsonObject values = output.at(1).value(QLatin1String("values")).toObject();
    QCOMPARE(values.value(QLatin1String("password")).toString(), QStringLiteral("***"));
    QCOMPARE(output.at(2).value(QLatin1String("finished")).toInt(), 5);
    QVERIFY(!result.output.contains("hunter2"));
    QVERIFY(!result.errors.contains("hunter2"));
}

void GuihostTest::wrongArguments()
{
    const auto exitCode = [](const char* arguments) {
        return run(QString::fromLatin1(arguments).split(QLatin1Char(' '))).exitCode;
    };
    QCOMPARE(exitCode("run"), 2);
    QCOMPARE(exitCode("dance x"), 2);
    QCOMPARE(exitCode("run /nonexistent.jsonl"), 1);
    QCOMPARE(exitCode("--library /nonexistent run -"), 1);
    QCOMPARE(exitCode("gallery /tmp --dialog None"), 1);
}

void GuihostTest::galleryShowsEveryPicture()
{
    const QDir directory(pictures.filePath(QStringLiteral("gallery")));
    const Run result = run({QStringLiteral("gallery"), directory.path(), QStringLiteral("--ratio"),
                            QStringLiteral("1.5"), QStringLiteral("--dialog"), QStringLiteral("ErrorMessageDialog")});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
    QFile index(directory.filePath(QStringLiteral("index.html")));
    QVERIFY(index.open(QIODevice::ReadOnly));
    const QByteArray html = index.readAll();
    const QStringList files = directory.entryList({QStringLiteral("*.png")});
    QVERIFY(files.size() >= 3);
    for (const QString& file : files) {
        QVERIFY(html.contains("src=\"" + file.toUtf8() + '"'));
        QCOMPARE(QImage(directory.filePath(file)).size(), QSize(751, 753));
    }
}

QTEST_GUILESS_MAIN(GuihostTest)
#include "tst_guihost.moc"
