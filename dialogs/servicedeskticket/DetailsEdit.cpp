#include "DetailsEdit.h"

#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace {
/// The last position up to @p limit that does not lie within what a person sees as one character.
int characterBoundary(QTextDocument* document, int limit)
{
    QTextCursor cursor(document);
    cursor.setPosition(limit);
    // The layout of an empty line knows no cursor positions.
    if (!cursor.atBlockStart() && !cursor.block().layout()->isValidCursorPosition(cursor.positionInBlock()))
        cursor.movePosition(QTextCursor::PreviousCharacter);
    return cursor.position();
}

/// Makes @p text of the document in one step, which changes only what differs.
void replaceDifference(QTextDocument* document, const QString& text)
{
    const QString before = document->toRawText();
    const auto [oldDifference, newDifference] = std::mismatch(before.begin(), before.end(), text.begin(), text.end());
    const auto [oldEnd, newEnd] = std::mismatch(before.rbegin(), std::make_reverse_iterator(oldDifference),
                                                text.rbegin(), std::make_reverse_iterator(newDifference));
    if (oldEnd.base() == oldDifference && newEnd.base() == newDifference)
        return;
    QTextCursor cursor(document);
    cursor.setPosition(static_cast<int>(oldDifference - before.begin()));
    cursor.setPosition(static_cast<int>(oldEnd.base() - before.begin()), QTextCursor::KeepAnchor);
    cursor.insertText(QString(newDifference, static_cast<int>(newEnd.base() - newDifference)));
}
} // namespace

DetailsEdit::DetailsEdit(QWidget* parent) : QTextEdit(parent)
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position) { editPosition = inputPosition < 0 ? position : inputPosition; });
}

void DetailsEdit::setMaxLength(int length)
{
    maxLength = length;
}

bool DetailsEdit::isComposing() const
{
    return composing;
}

void DetailsEdit::cutSurplus()
{
    // The document ends with a paragraph mark that is no part of the text. What undo brings back, also from before the
    // limit, stays; only undo leaves something to redo.
    if (maxLength <= 0 || document()->characterCount() - 1 <= maxLength || document()->isRedoAvailable())
        return;
    // Never cut inside text that is older than this edit: a combining mark typed at the limit leaves its letter alone.
    const int end = qMax(characterBoundary(document(), maxLength), qMin(editPosition, maxLength));
    const QString kept = document()->toRawText().left(end);
    // Undoing the edit before the kept text is inserted leaves one step in the history. Qt may have joined the edit
    // with what was typed just before it; `kept` holds that too, so it is inserted again.
    const bool isUndoable = document()->isUndoAvailable();
    if (isUndoable)
        document()->undo();
    replaceDifference(document(), kept);
    document()->clearUndoRedoStacks(isUndoable ? QTextDocument::RedoStack : QTextDocument::UndoAndRedoStacks);
    moveCursor(QTextCursor::End);
}

void DetailsEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const bool edits =
        !event->commitString().isEmpty() || event->replacementLength() > 0 || textCursor().hasSelection();
    const QScopedValueRollback<bool> state(composing, !edits);
    const QScopedValueRollback<int> place(inputPosition,
                                          qMax(0, textCursor().selectionStart() + event->replacementStart()));
    QTextEdit::inputMethodEvent(event);
}

void DetailsEdit::insertFromMimeData(const QMimeData* source)
{
    // The document has one character for a line's end.
    const QString text = source->text().replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (maxLength <= 0 || text.size() <= maxLength) {
        QTextEdit::insertFromMimeData(source);
        return;
    }
    // One character more than fits makes cutSurplus() cut, and lets it see whether a character would be split.
    QMimeData beginning;
    beginning.setText(text.left(maxLength + 1));
    QTextEdit::insertFromMimeData(&beginning);
}
