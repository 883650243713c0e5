#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

/// Shows the picture ":/images/" + @p picture + ".png" at the left of @p edit while it is empty, and none otherwise.
void showHintPicture(QLineEdit* edit, const QString& picture);

/// Makes a password field forget each edit at once, so that neither undo nor the process's memory keeps what was
/// removed from it.
void keepNoHistory(QLineEdit* edit);

/// Raises the text of a heading that is as low as its letters, so that those that reach below the line are not cut.
void giveDescendersRoom(QLabel* heading);
