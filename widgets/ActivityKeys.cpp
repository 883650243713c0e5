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

#define ACTION_TEXT(text) QT_TRANSLATE_NOOP("RemoteConnectionDialog", text)
// clang-format off
constexpr Action actions[] = {
    {"file-upload",     {ACTION_TEXT("File uploaded"),     ACTION_TEXT("Upload aborted"),   ACTION_TEXT("Upload cancelled"),   ""}},
    {"file-download",   {ACTION_TEXT("File downloaded"),   ACTION_TEXT("Download aborted"), ACTION_TEXT("Download cancelled"), ""}},
    {"dir-upload",      {ACTION_TEXT("Folder uploaded"),   ACTION_TEXT("Upload aborted"),   ACTION_TEXT("Upload cancelled"),   ""}},
    {"dir-download",    {ACTION_TEXT("Folder downloaded"), ACTION_TEXT("Download aborted"), ACTION_TEXT("Download cancelled"), ""}},
    {"file-erase",      {ACTION_TEXT("File deleted"),      "", "", ""}},
    {"file-rename",     {ACTION_TEXT("File renamed"),      "", "", ""}},
    {"dir-erase",       {ACTION_TEXT("Folder deleted"),    "", "", ""}},
    {"dir-rename",      {ACTION_TEXT("Folder renamed"),    "", "", ""}},
    {"make-dir",        {ACTION_TEXT("Folder created"),    "", "", ""}},
    {"proc-kill",       {ACTION_TEXT("Process ended"),     "", "", ""}},
    {"serv-start",      {ACTION_TEXT("Service started"),   "", "", ""}},
    {"serv-stop",       {ACTION_TEXT("Service stopped"),   "", "", ""}},
    {"serv-restart",    {ACTION_TEXT("Service restarted"), "", "", ""}},
    {"serv-pause",      {ACTION_TEXT("Service paused"),    "", "", ""}},
    {"serv-resume",     {ACTION_TEXT("Service resumed"),   "", "", ""}},
    {"session-suspend", {ACTION_TEXT("Session suspended"), "", "", ""}},
    {"session-resume",  {ACTION_TEXT("Session resumed"),   "", "", ""}},
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
