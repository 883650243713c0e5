#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QPoint;
class QWidget;
QT_END_NAMESPACE

/// Shows @p text as a tool tip: literally, in the desktop's colours, and in lines that fit the screen. Of a text of
/// more than 4096 characters the beginning (Qt::ElideLeft) or the end (Qt::ElideRight) is cut.
void showPlainToolTip(const QPoint& globalPosition, const QString& text, Qt::TextElideMode mode);

/// Lets the tool tip of @p widget appear so. Otherwise it would take the colours of the widget's own style sheet.
void usePlainToolTip(QWidget* widget);
