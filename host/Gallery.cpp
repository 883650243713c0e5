#include "Gallery.h"

#include "ScriptPlayer.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {
QString section(const QString& dialog, const QVector<QJsonObject>& pictures)
{
    QString html = QStringLiteral("<h2>%1</h2>\n<div class=\"states\">\n").arg(dialog.toHtmlEscaped());
    for (const QJsonObject& picture : pictures) {
        const QString file = QFileInfo(picture.value(QLatin1String("picture")).toString()).fileName();
        const QString title = picture.value(QLatin1String("title")).toString();
        html += QStringLiteral("<figure><img src=\"%1\" alt=\"%2\"><figcaption>%2</figcaption></figure>\n")
                    .arg(file.toHtmlEscaped(), title.toHtmlEscaped());
    }
    return html + QStringLiteral("</div>\n");
}

QString page(const QString& sections)
{
    return QStringLiteral(
               "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>Dialog gallery</title>\n"
               "<style>body{font-family:Arial,sans-serif;background:#e9ebef;color:#222;margin:2em}"
               ".states{display:flex;flex-wrap:wrap;gap:1.5em}figure{margin:0}"
               "figcaption{margin-top:.4em;color:#444}</style>\n<h1>Dialog gallery</h1>\n%1</html>\n")
        .arg(sections);
}

QVector<QJsonObject> renderDialog(GuiInterface& gui, const QDir& directory, QFile& script, int* failures)
{
    QVector<QJsonObject> pictures;
    ScriptPlayer player(gui, ScriptPlayer::Mode::Unattended, directory);
    QObject::connect(&player, &ScriptPlayer::output, &player, [&pictures](const QJsonObject& object) {
        if (object.contains(QLatin1String("picture")))
            pictures.append(object);
    });
    QObject::connect(&player, &ScriptPlayer::error, &player, [&script](int line, const QString& message) {
        QTextStream(stderr) << script.fileName() << ':' << line << ": " << message << '\n';
    });
    QEventLoop loop;
    QObject::connect(&player, &ScriptPlayer::finished, &loop, &QEventLoop::quit);
    while (!script.atEnd())
        player.addLine(script.readLine());
    player.endInput();
    loop.exec();
    *failures += player.errorCount();
    return pictures;
}
} // namespace

int renderGallery(GuiInterface& gui, const QDir& directory, const QString& onlyDialog)
{
    int failures = 0;
    QString sections;
    for (const Family& family : dialogFamilies()) {
        if (!onlyDialog.isEmpty() && family.name != onlyDialog)
            continue;
        QFile script(QStringLiteral(":/gallery/%1.jsonl").arg(family.name));
        if (script.open(QIODevice::ReadOnly))
            sections += section(family.name, renderDialog(gui, directory, script, &failures));
    }
    QFile index(directory.filePath(QStringLiteral("index.html")));
    if (sections.isEmpty() || !directory.mkpath(QStringLiteral(".")) || !index.open(QIODevice::WriteOnly)) {
        QTextStream(stderr) << "nothing to render, or cannot write " << index.fileName() << '\n';
        return failures + 1;
    }
    index.write(page(sections).toUtf8());
    return failures;
}
