#include "EnrollmentEdit.h"

#include <algorithm>

namespace {
bool isInvisible(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}
} // namespace

QString EnrollmentEdit::cleaned(const QString& text) const
{
    QString visible = text;
    visible.replace(QLatin1Char('\t'), QLatin1Char(' '));
    visible.truncate(static_cast<int>(std::remove_if(visible.begin(), visible.end(), isInvisible) - visible.begin()));
    // A blank by itself is typed, and stays.
    const QString trimmed = visible.trimmed();
    return trimmed.isEmpty() ? visible : trimmed;
}
