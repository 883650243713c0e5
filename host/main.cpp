#include "BrandingReport.h"
#include "DialogCatalogue.h"
#include "Gallery.h"
#include "GuiInterface.h"
#include "LineReader.h"
#include "PseudoTranslator.h"
#include "ScriptPlayer.h"
#include "Surroundings.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonDocument>
#include <QPluginLoader>
#include <QTextStream>

#include <cmath>
#include <utility>

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

QStringList dialogNames()
{
    QStringList names;
    for (const Family& family : dialogFamilies())
        names << family.name;
    return names;
}

QStringList languages()
{
    return QStringLiteral(LANGUAGES " pseudo").split(QLatin1Char(' '));
}

int run(GuiInterface& gui, const QString& path, ScriptPlayer::Mode mode, const QDir& pictures)
{
    LineReader reader(path);
    if (!reader.open())
        return complain(QStringLiteral("cannot read %1").arg(path), Failure);

    ScriptPlayer player(gui, mode, pictures);
    QObject::connect(&player, &ScriptPlayer::output, &player, [](const QJsonObject& object) {
        QTextStream(stdout) << QJsonDocument(object).toJson(QJsonDocument::Compact) << '\n';
    });
    QObject::connect(&player, &ScriptPlayer::error, &player, [](int line, const QString& message) {
        QTextStream(stderr) << "line " << line << ": " << message << '\n';
    });
    QObject::connect(&player, &ScriptPlayer::finished, qApp, &QCoreApplication::quit, Qt::QueuedConnection);

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
#endif
}

void addOptions(QCommandLineParser& parser)
{
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
         QStringLiteral("path")},
        {QStringLiteral("language"),
         QStringLiteral("Language of the dialogs (not on Windows): %1. \"pseudo\" is longer, accented English.")
             .arg(languages().join(QLatin1Char(' '))),
         QStringLiteral("code")},
        {QStringLiteral("ratio"),
         QStringLiteral("Scale factor of the dialogs and, unless QT_FONT_DPI is set, of 96 dpi."),
         QStringLiteral("number"), QStringLiteral("1")},
        {QStringLiteral("dialog"), QStringLiteral("The only dialog to render."), QStringLiteral("name")},
        {QStringLiteral("pictures"), QStringLiteral("Where a script's pictures go."), QStringLiteral("directory"),
         QStringLiteral(".")},
        {QStringLiteral("attended"), QStringLiteral("A person answers: skip the script's clicks and keys.")},
    });
}

bool isBranding(const QCommandLineParser& parser)
{
    return parser.positionalArguments().value(0) == QLatin1String("branding");
}

/// What is wrong with the arguments; empty if nothing is.
QString mistake(const QCommandLineParser& parser)
{
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 2 && !(isBranding(parser) && arguments.size() == 1))
        return QStringLiteral("expected a command and its target, see guihost --help");
    if (!isBranding(parser) && arguments.at(0) != QLatin1String("run") && arguments.at(0) != QLatin1String("gallery"))
        return QStringLiteral("unknown command \"%1\", see guihost --help").arg(arguments.at(0));
    for (const auto& option : {std::make_pair(QStringLiteral("language"), languages()),
                               std::make_pair(QStringLiteral("dialog"), dialogNames())}) {
        const QString value = parser.value(option.first);
        if (parser.isSet(option.first) && !option.second.contains(value))
            return QStringLiteral("unknown %1 \"%2\"; there are: %3")
                .arg(option.first, value, option.second.join(QLatin1Char(' ')));
    }
    const float ratio = parser.value(QStringLiteral("ratio")).toFloat();
    if (!std::isfinite(ratio) || ratio <= 0.0F)
        return QStringLiteral("the ratio \"%1\" is not a positive number").arg(parser.value(QStringLiteral("ratio")));
    return QString();
}
} // namespace

int main(int argc, char** argv)
{
    QCommandLineParser parser;
    addOptions(parser);
    // The language has a say in the fonts, which the application looks up when it is created.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    parser.parse(arguments);
    const QString language = parser.value(QStringLiteral("language"));
    const bool isPseudo = language == QLatin1String("pseudo");
    useOffscreenWithoutDisplay();
    const float ratio = parser.value(QStringLiteral("ratio")).toFloat();
    prepareSurroundings(isPseudo ? QString() : language, ratio);

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("guihost"));
    QApplication::setQuitOnLastWindowClosed(false);
    parser.process(application);
    const QString wrong = mistake(parser);
    if (!wrong.isEmpty())
        return complain(wrong, Usage);
    if (isBranding(parser)) {
        const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/oem.strings");
        return BrandingReport(parser.positionalArguments().value(1, beside)).print() ? Success : Failure;
    }

    // The plugin chooses its language when it is loaded.
    if (!language.isEmpty())
        qputenv("LANGUAGE", language.toUtf8());
    const QString library = parser.isSet(QStringLiteral("library"))
        ? parser.value(QStringLiteral("library"))
        : QCoreApplication::applicationDirPath() + QStringLiteral("/Gui");
    QPluginLoader loader(library);
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    if (!gui)
        return complain(QStringLiteral("cannot load %1: %2").arg(library, loader.errorString()), Failure);
    gui->setRatio(ratio);
    PseudoTranslator pseudoTranslator;
    if (isPseudo)
        QCoreApplication::installTranslator(&pseudoTranslator);

    const QString target = parser.positionalArguments().at(1);
    if (parser.positionalArguments().at(0) == QLatin1String("gallery"))
        return renderGallery(*gui, QDir(target), parser.value(QStringLiteral("dialog"))) == 0 ? Success : Failure;
    const auto mode =
        parser.isSet(QStringLiteral("attended")) ? ScriptPlayer::Mode::Attended : ScriptPlayer::Mode::Unattended;
    return run(*gui, target, mode, QDir(parser.value(QStringLiteral("pictures"))));
}
