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
    const int lineCount = qMax(1, (contentsRect().height() - metrics.height()) / metrics.lineSpacing() + 1);
    QStringList lines = brokenLines(QTextOption::WrapAtWordBoundaryOrAnywhere);
    if (lines.size() > lineCount) {
        // A path has few places to break at; broken anywhere it may still fit.
        const QStringList dense = brokenLines(QTextOption::WrapAnywhere);
        if (dense.size() <= lineCount)
            lines = dense;
    }
    *elided = lines.size() > lineCount;
    if (*elided) {
        const QString rest = QStringList(lines.mid(lineCount - 1)).join(QLatin1Char(' '));
        lines = lines.mid(0, lineCount - 1);
        lines << metrics.elidedText(rest, Qt::ElideRight, contentsRect().width());
    }
    return lines;
}

QStringList MessageLabel::brokenLines(QTextOption::WrapMode wrapMode) const
{
    QTextOption option;
    option.setWrapMode(wrapMode);
    QStringList lines;
    const QStringList paragraphs = text().left(longestMessage).split(QLatin1Char('\n'));
    for (const QString& paragraph : paragraphs) {
        QTextLayout layout(paragraph, font());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(contentsRect().width());
            lines << paragraph.mid(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }
    return lines;
}

void MessageLabel::updateToolTip()
{
    bool elided = false;
    visibleLines(&elided);
    setToolTip(elided ? literalToolTip(text()) : QString());
}
