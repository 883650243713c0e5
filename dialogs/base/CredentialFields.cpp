#include "CredentialFields.h"

#include <QLabel>
#include <QLineEdit>

void showHintPicture(QLineEdit* edit, const QString& picture)
{
    edit->setStyleSheet(edit->text().isEmpty()
                            ? QStringLiteral("image: url(:/images/%1.png); image-position: left;").arg(picture)
                            : QStringLiteral("image: none;"));
}

void keepNoHistory(QLineEdit* edit)
{
    QObject::connect(edit, &QLineEdit::textEdited, edit, [edit](const QString& text) {
        const int position = edit->cursorPosition();
        edit->setText(text);
        edit->setCursorPosition(position);
    });
}

void giveDescendersRoom(QLabel* heading)
{
    heading->setContentsMargins(0, 0, 0, 2);
}
