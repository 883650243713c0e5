#pragma once

#include <QString>

// What the keys of the agent's activity events mean.

/// The category of a key, 0 when it is unknown.
int logCategory(const QString& categoryKey);

/// The colour that a category's actions are shown in, as "#RRGGBB".
QLatin1String logCategoryColor(int category);

/// What happened, in the person's language. Unknown action and status keys give the action key as it is.
QString logActionText(const QString& actionKey, const QString& statusKey);
