#include "DetailsEdit.h"

#include <QMimeData>

void DetailsEdit::setInsertionLimit(int length)
{
    insertionLimit = length;
}

void DetailsEdit::insertFromMimeData(const QMimeData* source)
{
    // The document has one character for a line's end.
    const QString text = source->text().replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (insertionLimit <= 0 || text.size() <= insertionLimit) {
        QTextEdit::insertFromMimeData(source);
        return;
    }
    // One more than fits, so that the form still sees that something is to be cut, and where a character ends.
    QMimeData beginning;
    beginning.setText(text.left(insertionLimit + 1));
    QTextEdit::insertFromMimeData(&beginning);
}
