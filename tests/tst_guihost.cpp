#include "GuiTest.h"

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

/// The events that a script waits for or that an output tells, with their dialogs.
QStringList eventsIn(const QByteArray& lines)
{
    QStringList events;
    for (const QByteArray& line : lines.split('\n')) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (object.contains(QLatin1String("event")))
            events << object[QLatin1String("dialog")].toString() + object[QLatin1String("event")].toString();
    }
    return events;
}
} // namespace

/// The reference host as an administrator runs it: a program, its script, its output and its exit status.
class GuihostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            qunsetenv(variable);
    }

    void stories_data()
    {
        QTest::addColumn<QString>("path");
        const QDir directory(QStringLiteral(STORIES));
        for (const QString& story : directory.entryList({QStringLiteral("*.jsonl")}))
            QTest::newRow(qPrintable(story)) << directory.filePath(story);
    }

    void stories()
    {
        QFETCH(QString, path);
        const Run result = run({QStringLiteral("run"), path, QStringLiteral("--pictures"), pictures.path()});
        QVERIFY2(result.exitCode == 0, result.errors.constData());
        QVERIFY(result.output.contains("\"picture\":"));
        // The story names all that the dialogs report, in this order.
        QFile story(path);
        QVERIFY(story.open(QIODevice::ReadOnly));
        const QStringList named = eventsIn(story.readAll());
        QVERIFY(!named.isEmpty());
        QCOMPARE(eventsIn(result.output), named);
    }

    void goodAndWrongLines()
    {
        const QPair<const char*, const char*> lines[] = {
            {R"({"do": "nothing"})", "unknown command"},
            {R"({"do": "get", )", "not a JSON object"},
            {R"({"do": "get", $, "colour": "red"})", R"(takes no "colour")"},
            {R"({"do": "get", $})", ""},
            {"", ""},
            {R"({"do": "set", $, "properties": {"password": 7}})", "password: expected a string"},
            {R"({"do": "picture", $, "file": "../picture"})", "a name without a directory"},
            {R"({"do": "exec", $})", ""},
            {R"({"do": "type", $, "widget": "edPassword", "text": "hunter2"})", ""},
            {R"({"do": "call", $, "operation": "getPassword"})", ""},
            {R"({"do": "click", $, "widget": "btnContinue"})", ""},
            {R"({"do": "wait", $, "event": "evContinue"})", ""},
            {R"({"do": "wait", $, "event": "evContinue", "within": 20})", "did not come in time"},
            {R"({"do": "expect", $, "properties": {"password": "other"}})", "expected {"},
            {R"({"do": "done", $, "result": 5})", ""},
            {R"({"do": "delete", $})", ""},
            {R"({"do": "show", $})", "is deleted"},
        };
        QByteArray script;
        QString errors;
        int number = 0;
        for (const auto& line : lines) {
            script += line.first + QByteArray("\n");
            ++number;
            if (*line.second)
                errors += QStringLiteral("line %1: .*\\Q%2\\E.*\n").arg(number).arg(QLatin1String(line.second));
        }
        const Run result = play(script, "ZentPasswordDialog");
        QCOMPARE(result.exitCode, 1);
        const bool isTold = QRegularExpression(errors).match(QString::fromUtf8(result.errors)).hasMatch();
        QVERIFY2(isTold, result.errors.constData());
        for (const char* printed :
             {R"("result":"***")", R"("event":"evContinue")", R"("password":"***")", R"("finished":5)"})
            QVERIFY2(result.output.contains(printed), printed);
        QVERIFY(!(result.output + result.errors).contains("hunter2"));
    }

    void attendedRunEndsWithTheDialog()
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

    void gallery()
    {
        const QString arguments = QStringLiteral("gallery,%1,--dialog,ErrorMessageDialog").arg(pictures.path());
        const Run result = run(arguments.split(QLatin1Char(',')));
        QVERIFY2(result.exitCode == 0, result.errors.constData());
        for (const char* ratio : {"0", "-1", "nan", "large"})
            QCOMPARE(
                run(arguments.split(QLatin1Char(',')) << QStringLiteral("--ratio") << QLatin1String(ratio)).exitCode,
                2);
        QFile page(pictures.filePath(QStringLiteral("index.html")));
        QVERIFY(page.open(QIODevice::ReadOnly) && page.readAll().contains("ErrorMessageDialog-hover.png"));
    }

    void noDialogWithoutApplication()
    {
        // This program has no QApplication.
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("without a QApplication")));
        QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
        auto* gui = qobject_cast<GuiInterface*>(loader.instance());
        QVERIFY2(gui, qPrintable(loader.errorString()));
        QVERIFY(!gui->getAboutDialogInstance());
    }

private:
    const QTemporaryDir pictures;
};

QTEST_GUILESS_MAIN(GuihostTest)
#include "tst_guihost.moc"
