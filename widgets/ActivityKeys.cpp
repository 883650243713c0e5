#include "ActivityKeys.h"

#include <QCoreApplication>
#include <QHash>

#include <array>

namespace {
constexpr std::array<const char*, 4> categoryKeys = {"file", "process", "service", "event"};
constexpr std::array<const char*, 4> categoryColors = {"#89C1FE", "#BCBCFA", "#C1C36D", "#6BC39A"};

constexpr std::array<const char*, 4> statusKeys = {"reply", "abort", "cancel", "error"};

struct Action {
    const char* key;
    // One per status key.
    std::array<const char*, 4> texts;
};

// clang-format off
constexpr Action actions[] = {
    {"file-upload",
     //: Upload: from the technician to this computer
     {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "File uploaded"),
      //: Upload: from the technician to this computer
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Upload aborted"),
      //: Upload: from the technician to this computer
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Upload cancelled"),
      ""}},
    {"file-download",
     //: Download: from this computer to the technician
     {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "File downloaded"),
      //: Download: from this computer to the technician
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Download aborted"),
      //: Download: from this computer to the technician
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Download cancelled"),
      ""}},
    {"dir-upload",
     //: Upload: from the technician to this computer
     {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Folder uploaded"),
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Upload aborted"),
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Upload cancelled"),
      ""}},
    {"dir-download",
     //: Download: from this computer to the technician
     {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Folder downloaded"),
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Download aborted"),
      QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Download cancelled"),
      ""}},
    {"file-erase", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "File deleted"), "", "", ""}},
    {"file-rename", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "File renamed"), "", "", ""}},
    {"dir-erase", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Folder deleted"), "", "", ""}},
    {"dir-rename", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Folder renamed"), "", "", ""}},
    {"make-dir", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Folder created"), "", "", ""}},
    {"proc-kill", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Process ended"), "", "", ""}},
    {"serv-start", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Service started"), "", "", ""}},
    {"serv-stop", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Service stopped"), "", "", ""}},
    {"serv-restart", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Service restarted"), "", "", ""}},
    {"serv-pause", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Service paused"), "", "", ""}},
    {"serv-resume", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Service resumed"), "", "", ""}},
    {"session-suspend", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Session suspended"), "", "", ""}},
    {"session-resume", {QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Session resumed"), "", "", ""}},
};
// clang-format on

/// The position of each key in @p keys.
QHash<QString, int> positions(const std::array<const char*, 4>& keys)
{
    QHash<QString, int> result;
    for (const char* key : keys)
        result.insert(QLatin1String(key), result.size());
    return result;
}

using ActionTexts = std::array<QString, 4>;

// Translated once, so that all rows of a kind share one text.
QHash<QString, ActionTexts> translatedActions()
{
    QHash<QString, ActionTexts> result;
    for (const Action& action : actions) {
        ActionTexts texts;
        for (size_t i = 0; i < texts.size(); ++i)
            texts[i] = *action.texts[i] == '\0'
                ? QString()
                : QCoreApplication::translate("RemoteConnectionDialog", action.texts[i]);
        result.insert(QLatin1String(action.key), texts);
    }
    return result;
}
} // namespace

int logCategory(const QString& categoryKey)
{
    static const QHash<QString, int> categories = positions(categoryKeys);
    return categories.value(categoryKey, 0);
}

QLatin1String logCategoryColor(int category)
{
    return QLatin1String(categoryColors.at(static_cast<size_t>(category)));
}

QString logActionText(const QString& actionKey, const QString& statusKey)
{
    static const QHash<QString, int> statuses = positions(statusKeys);
    static const QHash<QString, ActionTexts> texts = translatedActions();
    const auto action = texts.constFind(actionKey);
    const auto status = statuses.constFind(statusKey);
    if (action == texts.constEnd() || status == statuses.constEnd())
        return actionKey;
    return action->at(static_cast<size_t>(*status));
}
