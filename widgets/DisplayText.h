#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QFontMetrics;
class QPlainTextEdit;
class QTextEdit;
QT_END_NAMESPACE

// Text that comes from outside is data. These functions make it appear as what it is, on screen only: what an
// interface returns is always the text that was given.

/// @p text with control characters, line breaks and bidirectional controls replaced by U+FFFD, so that a remote
/// person's name or path can neither hide a part of itself nor reorder or continue what stands around it.
QString withVisibleControls(const QString& text);

/// The same for a text of several lines: line feeds and tabs stay.
QString linesWithVisibleControls(const QString& text);

/// withVisibleControls(@p text) elided to @p width pixels. Takes no longer for a text of a megabyte than for a line.
QString elidedWithVisibleControls(const QString& text, const QFontMetrics& metrics, Qt::TextElideMode mode, int width);

/// @p text as a tool tip that shows it literally, also when it looks like markup.
QString literalToolTip(const QString& text);

/// @p text as a window title that shows it literally, also when it contains Qt's mark for unsaved changes.
QString literalWindowTitle(const QString& text);

/// Shows @p text in @p edit, in a time that grows with its length even when it is one endless word.
void showPlainText(QTextEdit* edit, const QString& text);
void showPlainText(QPlainTextEdit* edit, const QString& text);
