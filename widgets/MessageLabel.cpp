#include "MessageLabel.h"

#include "DisplayText.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

namespace {
/// More characters than this never fit. Breaking a long word takes time by the square of its length.
constexpr int longestMessage = 2048;
} // namespace

void MessageLabel::setText(const QString& text)
{
    QLabel::setText(text);
    updateToolTip();
}

void MessageLabel::paintEvent(QPaintEvent*)
{
    bool elided = false;
    const QString lines = visibleLines(&elided).join(QLatin1Char('\n'));
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), lines,
                          foregroundRole());
}

void MessageLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    updateToolTip();
}

void MessageLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateToolTip();
}

QStringList MessageLabel::visibleLines(bool* elided) const
{
    const QFontMetrics metrics = fontMetrics();
    const int width = contentsRect().width();
    const int lineCount = qMax(1, (contentsRect().height() - metrics.height()) / metrics.lineSpacing() + 1);
    *elided = text().size() > longestMessage;
    QStringList lines;
    const QStringList paragraphs = text().left(longestMessage).split(QLatin1Char('\n'));
    for (const QString& paragraph : paragraphs) {
        QTextLayout layout(paragraph, font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }
    if (lines.size() > lineCount) {
        *elided = true;
        const QString rest = QStringList(lines.mid(lineCount - 1)).join(QLatin1Char(' '));
        lines = lines.mid(0, lineCount - 1);
        lines << metrics.elidedText(rest, Qt::ElideRight, width);
    }
    return lines;
}

void MessageLabel::updateToolTip()
{
    bool elided = false;
    visibleLines(&elided);
    setToolTip(elided ? literalToolTip(text()) : QString());
}
