#pragma once

#include <QString>

class GuiInterface;
class QDir;

/// Renders each dialog in its notable states into @p directory, with one index.html that shows them all.
/// @param dialog the only dialog to render; all when empty
/// @return the number of failures, which are reported on standard error
int renderGallery(GuiInterface& gui, const QDir& directory, const QString& dialog);
