#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Scales all that is measured in pixels in @p root and the widgets in it, for windows whose layouts do the rest: size
/// limits, layout margins and spacing, icons, and the pixels in style sheets.
/// @param ratio how much larger than now
/// @param fullRatio how much larger than the forms have it, for what must not add up rounding errors
void scalePixels(QWidget* root, float ratio, float fullRatio);
