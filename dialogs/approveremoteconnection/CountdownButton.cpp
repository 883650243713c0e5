#include "CountdownButton.h"

#include <QEvent>

void CountdownButton::setSecondsLeft(qint64 seconds)
{
    const QString label = text().section(QLatin1Char('('), 0, 0);
    if (accessibleName() != label)
        setAccessibleName(label);
    setText(label + QLatin1Char('(') + QString::number(seconds) + QLatin1Char(')'));
}

bool CountdownButton::event(QEvent* event)
{
    // The tool tip is for screen readers. On screen it would repeat the number, and would soon be wrong.
    return event->type() == QEvent::ToolTip || QPushButton::event(event);
}

QSize CountdownButton::sizeHint() const
{
    // In the style sheet a focused button has smaller paddings, which would cut the text. The minimum height is scaled
    // with the dialog, so the room beside the text is too.
    return QPushButton::sizeHint().expandedTo({fontMetrics().horizontalAdvance(text()) + minimumHeight(), 0});
}
