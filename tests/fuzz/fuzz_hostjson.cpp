#include "FuzzHost.h"
#include "ScriptPlayer.h"

#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QTimer>

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
    // Nobody answers the dialogs' own questions; what exec() has started ends with the script.
    QTimer patience;
    QObject::connect(&patience, &QTimer::timeout, &player, [&finished] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog && (finished || qobject_cast<QMessageBox*>(dialog)))
            dialog->QDialog::done(0);
    });
    patience.start(0);
    while (!finished)
        QCoreApplication::processEvents();
    gui.setRatio(1.0F);
    gui.deleteAllApproveRemoteConnectionDialogInstances();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
