#include "DisplayText.h"

#include <QTextDocument>

#include <algorithm>

namespace {
bool isDeceptive(QChar character)
{
    const ushort code = character.unicode();
    return code < 0x20 || (code >= 0x7F && code < 0xA0) // C0, delete, C1
        || code == 0x2028 || code == 0x2029             // line and paragraph separator
        || code == 0x200E || code == 0x200F             // bidirectional marks,
        || (code >= 0x202A && code <= 0x202E)           // embeddings and overrides,
        || (code >= 0x2066 && code <= 0x2069);          // isolates
}
} // namespace

QString withVisibleControls(const QString& text)
{
    QString visible = text;
    std::replace_if(visible.begin(), visible.end(), isDeceptive, QChar(QChar::ReplacementCharacter));
    return visible;
}

QString literalToolTip(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QLatin1String("<span style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() + QLatin1String("</span>");
}

QString literalWindowTitle(const QString& text)
{
    QString title = text;
    return title.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}
