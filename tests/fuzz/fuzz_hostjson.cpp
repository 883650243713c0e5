#include "FuzzHost.h"
#include "ScriptPlayer.h"

#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
/// Commands that wait or write files; all others are played.
bool isPlayed(const QByteArray& line)
{
    const QString command = QJsonDocument::fromJson(line).object().value(QLatin1String("do")).toString();
    return !QStringList{QStringLiteral("wait"), QStringLiteral("pause"), QStringLiteral("picture")}.contains(command);
}
} // namespace

/// A script of the reference host, and through it any value for any operation of any dialog.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    GuiInterface& gui = fuzzedGui();
    ScriptPlayer player(gui, ScriptPlayer::Mode::Unattended, QDir());
    bool finished = false;
    QObject::connect(&player, &ScriptPlayer::finished, &player, [&finished] { finished = true; });
    const auto lines = QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)).split('\n');
    for (const QByteArray& line : lines) {
        if (isPlayed(line))
            player.addLine(line);
    }
    player.endInput();
    // The script goes on inside exec() and questions; they end with it.
    QObject::connect(&player, &ScriptPlayer::finished, &player, [] {
        while (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->QDialog::done(0);
            if (dialog->isVisible())
                break;
        }
    });
    while (!finished)
        QCoreApplication::processEvents();
    gui.setRatio(1.0F);
    gui.deleteAllApproveRemoteConnectionDialogInstances();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
