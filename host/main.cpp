#include "BrandingReport.h"
#include "Gallery.h"
#include "GuiInterface.h"
#include "LineReader.h"
#include "PseudoTranslator.h"
#include "ScriptPlayer.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonDocument>
#include <QPluginLoader>
#include <QTextStream>

#include <cstdio>

namespace {
enum ExitCode {
    Success = 0,
    Failure = 1,
    Usage = 2,
};

int complain(const QString& message, ExitCode code)
{
    QTextStream(stderr) << "guihost: " << message << '\n';
    return code;
}

int run(GuiInterface& gui, const QString& path, ScriptPlayer::Mode mode, const QDir& pictures)
{
    std::FILE* file = path == QLatin1String("-") ? stdin : std::fopen(QFile::encodeName(path).constData(), "rb");
    if (!file)
        return complain(QStringLiteral("cannot read %1").arg(path), Failure);

    ScriptPlayer player(gui, mode, pictures);
    QObject::connect(&player, &ScriptPlayer::output, &player, [](const QJsonObject& object) {
        QTextStream(stdout) << QJsonDocument(object).toJson(QJsonDocument::Compact) << '\n';
    });
    QObject::connect(&player, &ScriptPlayer::error, &player, [](int line, const QString& message) {
        QTextStream(stderr) << "line " << line << ": " << message << '\n';
    });
    QObject::connect(&player, &ScriptPlayer::finished, qApp, &QCoreApplication::quit, Qt::QueuedConnection);

    LineReader reader(file);
    QObject::connect(&reader, &LineReader::lineRead, &player, &ScriptPlayer::addLine);
    QObject::connect(&reader, &LineReader::finished, &player, &ScriptPlayer::endInput);
    reader.start();
    QApplication::exec();
    return player.errorCount() == 0 ? Success : Failure;
}

/// Unattended runs on servers and build machines need no window system.
void useOffscreenWithoutDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    for (const char* display : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(display))
            return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The resolution to which the dialogs' fixed geometry belongs; this platform has another one.
    if (qEnvironmentVariableIsEmpty("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
#endif
}
} // namespace

int main(int argc, char** argv)
{
    useOffscreenWithoutDisplay();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("guihost"));
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Loads the dialog plugin and drives its dialogs as an agent does.\n\n"
                       "  guihost run FILE      play a script of JSON Lines, \"-\" for standard input\n"
                       "  guihost gallery DIR   render every dialog in its notable states\n"
                       "  guihost branding [FILE]  say what a branding file gives and what in it is ignored"));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("run, gallery or branding"));
    parser.addPositionalArgument(QStringLiteral("target"), QStringLiteral("the script, the directory or the file"));
    parser.addOptions({
        {QStringLiteral("library"), QStringLiteral("The plugin; beside this program by default."),
         QStringLiteral("path"), QCoreApplication::applicationDirPath() + QStringLiteral("/Gui")},
        {QStringLiteral("language"),
         QStringLiteral(
             "Two-letter language of the dialogs (not on Windows), or \"pseudo\": longer, accented English."),
         QStringLiteral("code")},
        {QStringLiteral("ratio"), QStringLiteral("Scale factor of the dialogs."), QStringLiteral("number"),
         QStringLiteral("1")},
        {QStringLiteral("dialog"), QStringLiteral("The only dialog to render."), QStringLiteral("name")},
        {QStringLiteral("pictures"), QStringLiteral("Where a script's pictures go."), QStringLiteral("directory"),
         QStringLiteral(".")},
        {QStringLiteral("attended"), QStringLiteral("A person answers: skip the script's clicks and keys.")},
    });
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.value(0) == QLatin1String("branding") && arguments.size() <= 2) {
        const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/oem.strings");
        return BrandingReport(arguments.value(1, beside)).print() ? Success : Failure;
    }
    bool ratioIsNumber = false;
    const float ratio = parser.value(QStringLiteral("ratio")).toFloat(&ratioIsNumber);
    if (arguments.size() != 2 || !ratioIsNumber)
        return complain(QStringLiteral("see guihost --help"), Usage);

    // The plugin chooses its language when it is loaded.
    if (parser.isSet(QStringLiteral("language")))
        qputenv("LANGUAGE", parser.value(QStringLiteral("language")).toUtf8());
    QPluginLoader loader(parser.value(QStringLiteral("library")));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    if (!gui)
        return complain(loader.errorString(), Failure);
    gui->setRatio(ratio);
    PseudoTranslator pseudoTranslator;
    if (parser.value(QStringLiteral("language")) == QLatin1String("pseudo"))
        QCoreApplication::installTranslator(&pseudoTranslator);

    const QString command = arguments.at(0);
    const QString target = arguments.at(1);
    if (command == QLatin1String("gallery"))
        return renderGallery(*gui, QDir(target), parser.value(QStringLiteral("dialog"))) == 0 ? Success : Failure;
    if (command == QLatin1String("run")) {
        const auto mode =
            parser.isSet(QStringLiteral("attended")) ? ScriptPlayer::Mode::Attended : ScriptPlayer::Mode::Unattended;
        return run(*gui, target, mode, QDir(parser.value(QStringLiteral("pictures"))));
    }
    return complain(QStringLiteral("unknown command \"%1\"").arg(command), Usage);
}
