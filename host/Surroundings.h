#pragma once

#include <QString>

/// Makes the dialogs look the same on every machine: the fonts of host/fonts.conf and, without a window system, the
/// font resolution to which the dialogs' fixed geometry belongs. To be called before QApplication is created.
/// @param language two letters, or empty for the machine's; decides the shapes of Chinese, Japanese and Korean
/// characters
void prepareSurroundings(const QString& language = QString());
