#include "DisplayText.h"

#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

namespace {
bool isDeceptive(QChar character)
{
    const ushort code = character.unicode();
    return code < 0x20 || (code >= 0x7F && code < 0xA0) // C0, delete, C1
        || code == 0x2028 || code == 0x2029             // line and paragraph separator
        || code == 0xFDD0 || code == 0xFDD1             // what QTextDocument ends its blocks with
        || code == 0x200E || code == 0x200F             // bidirectional marks,
        || (code >= 0x202A && code <= 0x202E)           // embeddings and overrides,
        || (code >= 0x2066 && code <= 0x2069);          // isolates
}

// More characters than this never fit into a line on screen.
constexpr int longestLine = 1024;

QString cutForLine(const QString& text, Qt::TextElideMode mode)
{
    const QChar ellipsis(0x2026);
    if (text.size() <= longestLine)
        return text;
    if (mode == Qt::ElideLeft)
        return ellipsis + text.right(longestLine);
    if (mode == Qt::ElideMiddle)
        return text.left(longestLine / 2) + ellipsis + text.right(longestLine / 2);
    return text.left(longestLine) + ellipsis;
}
bool hasEndlessWord(const QString& text)
{
    const auto isBlank = [](QChar character) { return character.isSpace(); };
    for (auto start = text.cbegin(); text.cend() - start > longestLine;) {
        const auto end = std::find_if(start, text.cend(), isBlank);
        if (end - start > longestLine)
            return true;
        start = end + 1;
    }
    return false;
}

template <class Edit>
void showWrapped(Edit* edit, const QString& text)
{
    // To wrap at words where possible and anywhere else takes Qt quadratic time for a long word.
    const bool anywhere = hasEndlessWord(text);
    if (anywhere)
        edit->setWordWrapMode(QTextOption::WrapAnywhere);
    edit->setPlainText(text);
    if (!anywhere)
        edit->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}
} // namespace

QString withVisibleControls(const QString& text)
{
    QString visible = text;
    std::replace_if(visible.begin(), visible.end(), isDeceptive, QChar(QChar::ReplacementCharacter));
    return visible;
}

QString linesWithVisibleControls(const QString& text)
{
    QString visible = text;
    visible.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const auto isDeceptiveInLines = [](QChar character) {
        return isDeceptive(character) && character != QLatin1Char('\n') && character != QLatin1Char('\t');
    };
    std::replace_if(visible.begin(), visible.end(), isDeceptiveInLines, QChar(QChar::ReplacementCharacter));
    return visible;
}

QString elidedWithVisibleControls(const QString& text, const QFontMetrics& metrics, Qt::TextElideMode mode, int width)
{
    return metrics.elidedText(withVisibleControls(cutForLine(text, mode)), mode, width);
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

void showPlainText(QTextEdit* edit, const QString& text)
{
    showWrapped(edit, text);
}

void showPlainText(QPlainTextEdit* edit, const QString& text)
{
    showWrapped(edit, text);
}
