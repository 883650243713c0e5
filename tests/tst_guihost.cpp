#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The reference host as an administrator runs it: a program, its script, its output and its exit status.
class GuihostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void stories_data();
    void stories();
    void wrongLines_data();
    void wrongLines();
    void goodLinesAfterWrongOnes();
    void secretsAreMasked();
    void wrongArguments();
    void galleryShowsEveryPicture();

private:
    struct Run {
        int exitCode = -1;
        QByteArray output;
        QByteArray errors;
    };
    static Run run(const QStringList& arguments, const QByteArray& input = QByteArray());
    static QVector<QJsonObject> objects(const QByteArray& output);

    const QTemporaryDir pictures;
};

void GuihostTest::initTestCase()
{
    QVERIFY(pictures.isValid());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("LANGUAGE", "en");
}

GuihostTest::Run GuihostTest::run(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(QStringLiteral(GUIHOST), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        qFatal("guihost hung or crashed: %s", process.readAllStandardError().constData());
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QVector<QJsonObject> GuihostTest::objects(const QByteArray& output)
{
    QVector<QJsonObject> result;
    for (const QByteArray& line : output.split('\n')) {
        if (!line.isEmpty())
            result << QJsonDocument::fromJson(line).object();
    }
    return result;
}

void GuihostTest::stories_data()
{
    QTest::addColumn<QString>("path");
    const QDir directory(QStringLiteral(STORIES));
    const QStringList stories = directory.entryList({QStringLiteral("*.jsonl")});
    QVERIFY(!stories.isEmpty());
    for (const QString& story : stories)
        QTest::newRow(qPrintable(story)) << directory.filePath(story);
}

void GuihostTest::stories()
{
    QFETCH(QString, path);
    const Run result = run({QStringLiteral("run"), path, QStringLiteral("--pictures"), pictures.path()});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
    int events = 0;
    for (const QJsonObject& object : objects(result.output)) {
        QVERIFY(object.contains(QLatin1String("dialog")));
        events += object.contains(QLatin1String("event")) ? 1 : 0;
        if (object.contains(QLatin1String("picture")))
            QVERIFY(QFile::exists(object.value(QLatin1String("picture")).toString()));
    }
    QVERIFY(events > 0);
}

void GuihostTest::wrongLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, const char* line, const char* complaint) {
        QTest::newRow(name) << QByteArray(line) << QByteArray(complaint);
    };
    row("no JSON", "get ErrorMessageDialog", "not a JSON object");
    row("a list", "[1, 2]", "not a JSON object");
    row("cut off", R"({"do": "get", "dialog": "Err)", "not a JSON object");
    row("no command", R"({"dialog": "ErrorMessageDialog"})", "\"do\" must be a string");
    row("unknown command", R"({"do": "launch"})", "unknown command \"launch\"");
    row("unknown key", R"({"do": "get", "dialog": "ErrorMessageDialog", "colour": "red"})", "takes no \"colour\"");
    row("unknown dialog", R"({"do": "get", "dialog": "FooDialog"})", "no dialog \"FooDialog\"");
    row("not got", R"({"do": "show", "dialog": "AboutDialog"})", "was not got");
    row("unknown property", R"({"do": "set", "dialog": "ErrorMessageDialog", "properties": {"size": 1}})",
        "no property \"size\"");
    row("wrong kind", R"({"do": "set", "dialog": "ErrorMessageDialog", "properties": {"message": 7}})",
        "message: expected a string");
    row("unknown operation", R"({"do": "call", "dialog": "ErrorMessageDialog", "operation": "explode"})",
        "no operation \"explode\"");
    row("wrong count", R"({"do": "call", "dialog": "ErrorMessageDialog", "operation": "setMessage"})",
        "takes 1 arguments");
    row("unknown widget", R"({"do": "click", "dialog": "ErrorMessageDialog", "widget": "btnNone"})",
        "no widget \"btnNone\"");
    row("unknown keys", R"({"do": "type", "dialog": "ErrorMessageDialog", "keys": "Hyper+Foo"})", "no such keys");
    row("unknown event", R"({"do": "wait", "dialog": "ErrorMessageDialog", "event": "evNone"})", "no event \"evNone\"");
    row("event that never comes", R"({"do": "wait", "dialog": "ErrorMessageDialog", "event": "evClose", "within": 20})",
        "did not come in time");
    row("wrong expectation", R"({"do": "expect", "dialog": "ErrorMessageDialog", "properties": {"message": "x"}})",
        "expected {");
}

void GuihostTest::wrongLines()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, complaint);
    const QByteArray script = R"({"do": "get", "dialog": "ErrorMessageDialog"})"
                              "\n\n"
        + line + "\n";
    const Run result = run({QStringLiteral("run"), QStringLiteral("-")}, script);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains("line 3: ") && result.errors.contains(complaint), result.errors.constData());
    QVERIFY(!result.errors.contains("line 1: "));
}

void GuihostTest::goodLinesAfterWrongOnes()
{
    const Run result = run({QStringLiteral("run"), QStringLiteral("-")},
                           R"({"do": "nothing"}
{"do": "get", "dialog": "AcceptMessageDialog"}
{"do": "set", "dialog": "AcceptMessageDialog", "properties": {"message": "a \"quoted\" text"}}
{"do": "exec", "dialog": "AcceptMessageDialog"}
{"do": "click", "dialog": "AcceptMessageDialog", "widget": "btnCancel"}
{"do": "wait", "dialog": "AcceptMessageDialog", "event": "evClose"}
{"do": "done", "dialog": "AcceptMessageDialog", "result": 5}
)");
    QCOMPARE(result.exitCode, 1);
    const QVector<QJsonObject> output = objects(result.output);
    QCOMPARE(output.size(), 2);
    QCOMPARE(output.at(0).value(QLatin1String("event")).toString(), QStringLiteral("evClose"));
    QCOMPARE(output.at(0).value(QLatin1String("values")).toObject().value(QLatin1String("message")).toString(),
             QStringLiteral("a \"quoted\" text"));
    QCOMPARE(output.at(1).value(QLatin1String("finished")).toInt(), 5);
}

void GuihostTest::secretsAreMasked()
{
    const Run result = run({QStringLiteral("run"), QStringLiteral("-")},
                           R"({"do": "get", "dialog": "ZentPasswordDialog"}
{"do": "show", "dialog": "ZentPasswordDialog"}
{"do": "type", "dialog": "ZentPasswordDialog", "widget": "edPassword", "text": "hunter2"}
{"do": "call", "dialog": "ZentPasswordDialog", "operation": "getPassword"}
{"do": "click", "dialog": "ZentPasswordDialog", "widget": "btnContinue"}
{"do": "wait", "dialog": "ZentPasswordDialog", "event": "evContinue"}
{"do": "expect", "dialog": "ZentPasswordDialog", "properties": {"password": "other"}}
)");
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.output.contains("\"password\":\"***\""));
    QVERIFY(!result.output.contains("hunter2"));
    QVERIFY(!result.errors.contains("hunter2"));
}

void GuihostTest::wrongArguments()
{
    QCOMPARE(run({}).exitCode, 2);
    QCOMPARE(run({QStringLiteral("dance"), QStringLiteral("x")}).exitCode, 2);
    QCOMPARE(run({QStringLiteral("run"), QStringLiteral("/nonexistent.jsonl")}).exitCode, 1);
    QCOMPARE(
        run({QStringLiteral("--library"), QStringLiteral("/nonexistent"), QStringLiteral("run"), QStringLiteral("-")})
            .exitCode,
        1);
    QVERIFY(
        run({QStringLiteral("gallery"), pictures.path(), QStringLiteral("--dialog"), QStringLiteral("None")}).exitCode
        != 0);
}

void GuihostTest::galleryShowsEveryPicture()
{
    const QString directory = pictures.filePath(QStringLiteral("gallery"));
    const Run result = run({QStringLiteral("gallery"), directory, QStringLiteral("--ratio"), QStringLiteral("1.5"),
                            QStringLiteral("--dialog"), QStringLiteral("ErrorMessageDialog")});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
    QFile index(directory + QStringLiteral("/index.html"));
    QVERIFY(index.open(QIODevice::ReadOnly));
    const QByteArray html = index.readAll();
    const QStringList files = QDir(directory).entryList({QStringLiteral("*.png")});
    QVERIFY(files.size() >= 3);
    for (const QString& file : files) {
        QVERIFY(html.contains(file.toUtf8()));
        QCOMPARE(QImage(directory + QLatin1Char('/') + file).size(), QSize(751, 753));
    }
}

QTEST_GUILESS_MAIN(GuihostTest)
#include "tst_guihost.moc"
