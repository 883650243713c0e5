#include "GuiTest.h"

#include <QDir>
#include <QImage>
#include <QPluginLoader>
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

void GuihostTest::initTestCase()
{
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        qunsetenv(variable);
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
    for (const char* printed : {"\"event\":\"ev", "\"picture\":"})
        QVERIFY2(result.output.contains(printed), printed);
}

void GuihostTest::wrongLines()
{
    const QVector<QPair<QByteArray, QLatin1String>> lines{
        {R"({"do": "get", "dialog": "Err)", QLatin1String("not a JSON object")},
        {R"({"do": "get", $, "colour": "red"})", QLatin1String(R"(takes no "colour")")},
        {R"({"do": "set", $, "properties": {"message": 7}})", QLatin1String("message: expected a string")},
        {R"({"do": "picture", $, "file": "../picture"})", QLatin1String("a name without a directory")},
        {R"({"do": "wait", $, "event": "evClose", "within": "500"})", QLatin1String(R"("within" must be a number)")},
        {R"({"do": "wait", "dialog": "AboutDialog", "event": "evClose"})", QLatin1String("was not got")},
        {R"({"do": "wait", $, "event": "evClose", "within": 20})", QLatin1String("did not come in time")},
        {R"({"do": "expect", $, "properties": {"message": "x"}})", QLatin1String("expected {")},
    };
    QByteArray script = "{\"do\": \"get\", $}\n\n";
    for (const auto& line : lines)
        script += line.first + '\n';
    const Run result = play(script, "ErrorMessageDialog");
    QCOMPARE(result.exitCode, 1);
    const QStringList errors = QString::fromUtf8(result.errors).split(QLatin1Char('\n')).filter(QLatin1String("line "));
    QCOMPARE(errors.size(), lines.size());
    for (int i = 0; i < lines.size(); ++i)
        QVERIFY2(errors[i].startsWith(QStringLiteral("line %1: ").arg(i + 3)) && errors[i].contains(lines[i].second),
                 qPrintable(errors[i]));
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
    for (const char* printed :
         {R"("result":"***")", R"("event":"evContinue")", R"("password":"***")", R"("finished":5)"})
        QVERIFY2(result.output.contains(printed), printed);
    QVERIFY(!(result.output + result.errors).contains("hunter2"));
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
        {"run x --language xx", "unknown language \"xx\"; there are: da de en es fr it ja ko nl pt ru tr zh pseudo"},
        {"run x --ratio -1", "the ratio \"-1\" is not a positive number"},
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
    const QStringList files = usual.entryList({QStringLiteral("*.png")});
    QVERIFY(files.size() >= 3 && QFile::exists(usual.filePath(QStringLiteral("index.html"))));
    for (const QString& file : files)
        QCOMPARE(QImage(other.filePath(file)), QImage(usual.filePath(file)));
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
