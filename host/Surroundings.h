#pragma once

#include <QString>

/// Makes the dialogs look the same on every machine: the fonts of host/fonts.conf and the font resolution to which the
/// dialogs' geometry belongs. To be called before QApplication is created.
/// @param language two letters, or empty for the machine's; decides the shapes of Chinese, Japanese and Korean
/// characters
/// @param ratio the scale factor of the dialogs. At 1 a window system keeps its own resolution; any other is shown as
/// on the finer or coarser screen for which a host would choose it.
void prepareSurroundings(const QString& language = QString(), float ratio = 1.0F);
