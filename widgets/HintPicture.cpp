#include "HintPicture.h"

#include <QLineEdit>

void showHintPicture(QLineEdit* edit, const QString& picture)
{
    edit->setStyleSheet(edit->text().isEmpty()
                            ? QStringLiteral("image: url(:/images/%1.png); image-position: left;").arg(picture)
                            : QStringLiteral("image: none;"));
}
