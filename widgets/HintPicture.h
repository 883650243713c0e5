#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

/// Shows the picture ":/images/" + @p picture + ".png" at the left of @p edit while it is empty, and none otherwise.
void showHintPicture(QLineEdit* edit, const QString& picture);
