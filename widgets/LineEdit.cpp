#include "LineEdit.h"

#include "LineEditAccessible.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent)
{
    installLineEditAccessible();
    // textEdited() comes for every way to insert, but does not tell what was inserted. That starts where selection or
    // cursor stood before, and ends at the cursor. Only for input methods this comes too late: see inputMethodEvent().
    connect(this, &QLineEdit::selectionChanged, this, &LineEdit::noteInsertionStart);
    connect(this, &QLineEdit::cursorPositionChanged, this, &LineEdit::noteInsertionStart);
    connect(this, &QLineEdit::textEdited, this, &LineEdit::cleanInsertion);
    connect(this, &QLineEdit::textChanged, this, &LineEdit::dropHalfPair);
}

bool LineEdit::isSecret() const
{
    return echoMode() != Normal;
}

bool LineEdit::isLineBreak(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x0A && code <= 0x0D) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

QString LineEdit::cleaned(const QString& text) const
{
    QString line;
    bool lineEnded = false;
    for (const QChar character : text) {
        if (isLineBreak(character)) {
            lineEnded = !line.isEmpty();
            continue;
        }
        if (lineEnded)
            line += QLatin1Char(' ');
        lineEnded = false;
        line += character;
    }
    return line;
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    if (!menu)
        return;
    // As the field's child the menu would take the field's own style sheet, and with it the hint picture.
    menu->setParent(window(), menu->windowFlags());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    // QLineEdit moves the cursor to the end of what is committed before it emits textEdited(), so cleanInsertion()
    // would find nothing. The text is cleaned, and cut without splitting a surrogate pair, before it gets in.
    const QString committed = event->commitString();
    const int start = qMax(0, insertionStart + event->replacementStart());
    const int unselected = text().size() - selectedText().size();
    const int replaced = qBound(0, unselected - start, event->replacementLength());
    const int room = maxLength() - unselected + replaced;
    QString kept = cleaned(committed);
    if (kept.size() > room)
        kept.truncate(kept.at(room).isLowSurrogate() ? room - 1 : room);
    event->setCommitString(kept, event->replacementStart(), event->replacementLength());
    {
        const QScopedValueRollback<bool> own(replacing, true);
        QLineEdit::inputMethodEvent(event);
    }
    if (!committed.isEmpty() && !isReadOnly())
        Q_EMIT inserted(committed);
}

void LineEdit::noteInsertionStart()
{
    insertionStart = hasSelectedText() ? selectionStart() : cursorPosition();
}

void LineEdit::cleanInsertion()
{
    // An undo inserts nothing new. It is the only edit after which there is something to redo.
    if (replacing || isRedoAvailable())
        return;
    const QString text = this->text();
    const int end = cursorPosition();
    const QString insertion = text.mid(insertionStart, qMax(0, end - insertionStart));
    if (insertion.isEmpty())
        return;
    QString kept = cleaned(insertion);
    // The length limit may have cut a surrogate pair.
    if (text.size() >= maxLength() && insertion.back().isHighSurrogate() && kept.endsWith(insertion.back()))
        kept.chop(1);
    if (kept != insertion)
        replaceInsertion(insertionStart, end, kept);
    Q_EMIT inserted(insertion);
}

void LineEdit::replaceInsertion(int start, int end, const QString& kept)
{
    const QScopedValueRollback<bool> own(replacing, true);
    const QString wanted = text().replace(start, end - start, kept);
    if (echoMode() != Normal) {
        // Undo would clear such a field.
        setText(wanted);
        setCursorPosition(start + kept.size());
        return;
    }
    // Taking the insertion back first leaves one step in the history. It may reach further back than the insertion:
    // what was typed just before it is part of the same step, and comes again together with it.
    undo();
    if (!hasSelectedText() && text() == wanted) {
        clearRedo();
        return;
    }
    start = hasSelectedText() ? selectionStart() : cursorPosition();
    insert(wanted.mid(start, wanted.size() - text().size() + selectedText().size()));
}

void LineEdit::clearRedo()
{
    // Inserting an empty text does not clear it, any other does. What a validator refuses is not left for undo either.
    const QRegularExpressionValidator nothing(QRegularExpression(QStringLiteral("(?!)")));
    setValidator(&nothing);
    insert(QStringLiteral(" "));
    setValidator(nullptr);
}

void LineEdit::dropHalfPair(const QString& text)
{
    if (!replacing && text.size() >= maxLength() && text.back().isHighSurrogate() && text == this->text())
        setText(text.chopped(1));
}
