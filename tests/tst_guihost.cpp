#include "GuiTest.h"

#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPluginLoader>
#include <QProcess>
#include <QTemporaryDir>

/// The reference host as an administrator runs it: a program, its script, its output and its exit status.
class GuihostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stories_data();
    void stories();
    void wrongLines();
    void goodLinesAfterAWrongOne();
    void attendedRunEndsWithTheDialog();
    void wrongArguments();
    void picturesAreTheSameEverywhere();
    void noDialogWithoutApplication();

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
Run play(QByteArray script, const char* dialog, const QStringList& options = {})
{
    script.replace('$', QByteArray("\"dialog\": \"") + dialog + '"');
    return run(QStringList{QStringLiteral("run"), QStringLiteral("-")} + options, script);
}
} // namespace

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
        {R"({"do": "get", "dialog": "Err)", "not a JSON object"},
        {R"({"do": "launch"})", R"(unknown command "launch")"},
        {R"({"do": "get", $, "colour": "red"})", R"(takes no "colour")"},
        {R"({"do": "get", "dialog": "FooDialog"})", R"(no dialog "FooDialog")"},
        {R"({"do": "set", $, "properties": {"message": 7}})", "message: expected a string"},
        {R"({"do": "call", $, "operation": "setMessage"})", "takes 1 arguments"},
        {R"({"do": "click", $, "widget": "btnNone"})", R"(no widget "btnNone")"},
        {R"({"do": "picture", $, "file": "../picture"})", "a name without a directory"},
        {R"({"do": "wait", $, "event": "evClose", "within": "500"})", R"("within" must be a number)"},
        {R"({"do": "wait", "dialog": "AboutDialog", "event": "evClose"})", "was not got"},
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

void GuihostTest::attendedRunEndsWithTheDialog()
{
    // The person is not there; nothing but the hidden dialog ends the wait, and nothing is expected of a person.
    const Run result = play(R"({"do": "get", $}
{"do": "show", $}
{"do": "expect", $, "properties": {"message": "x"}}
{"do": "hide", $}
{"do": "wait", $, "event": "evClose"}
{"do": "launch"}
)",
                            "ErrorMessageDialog", {QStringLiteral("--attended")});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
}

void GuihostTest::wrongArguments()
{
    const QVector<QPair<const char*, const char*>> lines{
        {"run", "see guihost --help"},
        {"dance x", "unknown command \"dance\""},
        {"run x --language xx", "unknown language \"xx\"; there are: da de en es fr it ja ko nl pt ru tr zh pseudo"},
        {"run x --ratio -1", "the ratio \"-1\" is not a positive number"},
        {"run x --ratio nan", "the ratio \"nan\" is not a positive number"},
        {"gallery x --dialog None", "unknown dialog \"None\"; there are: AboutDialog "},
    };
    for (const auto& line : lines) {
        const Run result = run(QString::fromLatin1(line.first).split(QLatin1Char(' ')));
        QVERIFY2(result.exitCode == 2 && result.errors.contains(line.second), result.errors.constData());
    }
    QCOMPARE(run({QStringLiteral("run"), QStringLiteral("/nonexistent.jsonl")}).exitCode, 1);
}

void GuihostTest::picturesAreTheSameEverywhere()
{
    const QDir usual(pictures.filePath(QStringLiteral("usual")));
    const QDir other(pictures.filePath(QStringLiteral("other")));
    for (const QDir& directory : {usual, other}) {
        const Run result = run({QStringLiteral("gallery"), directory.path(), QStringLiteral("--dialog"),
                                QStringLiteral("ErrorMessageDialog")});
        QVERIFY2(result.exitCode == 0, result.errors.constData());
        // Whoever names the platform, and whichever fonts the machine has.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("FONTCONFIG_FILE", "/nonexistent");
    }
    QFile index(usual.filePath(QStringLiteral("index.html")));
    QVERIFY(index.open(QIODevice::ReadOnly));
    const QByteArray html = index.readAll();
    const QStringList files = usual.entryList({QStringLiteral("*.png")});
    QVERIFY(files.size() >= 3);
    for (const QString& file : files) {
        QVERIFY(html.contains("src=\"" + file.toUtf8() + '"'));
        QCOMPARE(QImage(other.filePath(file)), QImage(usual.filePath(file)));
    }
}

void GuihostTest::noDialogWithoutApplication()
{
    // This program has no QApplication.
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("without a QApplication")));
    QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    QVERIFY2(gui, qPrintable(loader.errorString()));
    QVERIFY(!gui->getAboutDialogInstance());
}

QTEST_GUILESS_MAIN(GuihostTest)
#include "tst_guihost.moc"
