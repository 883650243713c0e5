#include "PasswordEdit.h"

#include <QKeyEvent>

#include <algorithm>

PasswordEdit::PasswordEdit(QWidget* parent) : LineEdit(parent)
{
    setEchoMode(Password);
    // Setting the text is what makes a line edit forget its history.
    connect(this, &QLineEdit::textEdited, this, [this] {
        const int position = cursorPosition();
        setText(text());
        setCursorPosition(position);
    });
}

QString PasswordEdit::cleaned(const QString& text) const
{
    QString line = text;
    line.truncate(static_cast<int>(std::remove_if(line.begin(), line.end(), isLineBreak) - line.begin()));
    return line;
}

void PasswordEdit::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Undo) && !event->matches(QKeySequence::Redo))
        LineEdit::keyPressEvent(event);
}
