#include "PlainToolTip.h"

#include "DisplayText.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QScreen>
#include <QStringList>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextLayout>
#include <QToolTip>
#include <QWidget>

namespace {
// More would not fit on a small screen.
constexpr int longestToolTip = 4096;

class PlainToolTip final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QObject::eventFilter(watched, event);
        QString text = static_cast<QWidget*>(watched)->toolTip();
        // What literalToolTip() has escaped would not wrap in a long word. An escaped character is six long at most.
        if (Qt::mightBeRichText(text))
            text = QTextDocumentFragment::fromHtml(text.left(8 * longestToolTip)).toPlainText();
        showPlainToolTip(static_cast<QHelpEvent*>(event)->globalPos(), text, Qt::ElideRight);
        return true;
    }
};

/// @p text with line breaks where it would be wider than @p width, inside words too: a path may have no blank.
QString wrapped(const QString& text, int width)
{
    QTextLayout layout(text, QToolTip::font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(text.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines.join(QLatin1Char('\n'));
}
} // namespace

void showPlainToolTip(const QPoint& globalPosition, const QString& text, Qt::TextElideMode mode)
{
    const QChar ellipsis(0x2026);
    QString shown = text;
    if (text.size() > longestToolTip)
        shown = mode == Qt::ElideLeft ? ellipsis + text.right(longestToolTip) : text.left(longestToolTip) + ellipsis;
    const QScreen* screen = QGuiApplication::screenAt(globalPosition);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const int width = screen->availableGeometry().width() * 9 / 10;
    // Without a widget, as the tool tip would otherwise take its colours.
    QToolTip::showText(globalPosition, literalToolTip(wrapped(shown, width)));
}

void usePlainToolTip(QWidget* widget)
{
    static PlainToolTip plainToolTip;
    widget->installEventFilter(&plainToolTip);
}
