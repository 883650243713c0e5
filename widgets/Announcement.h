#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Makes screen readers speak @p text now, wherever the focus is. On screen nothing changes. @p window is where the
/// text comes from.
void announce(QWidget* window, const QString& text);
