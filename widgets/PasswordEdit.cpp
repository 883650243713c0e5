#include "PasswordEdit.h"

#include <QKeyEvent>

PasswordEdit::PasswordEdit(QWidget* parent) : QLineEdit(parent)
{
    setEchoMode(Password);
    // Setting the text is what makes a line edit forget its history.
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        const int position = cursorPosition();
        setText(text);
        setCursorPosition(position);
    });
}

void PasswordEdit::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Undo) && !event->matches(QKeySequence::Redo))
        QLineEdit::keyPressEvent(event);
}
