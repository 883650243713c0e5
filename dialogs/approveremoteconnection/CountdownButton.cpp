#include "CountdownButton.h"

void CountdownButton::setSecondsLeft(qint64 seconds)
{
    const QString label = text().section(QLatin1Char('('), 0, 0);
    if (accessibleName() != label)
        setAccessibleName(label);
    setText(label + QLatin1Char('(') + QString::number(seconds) + QLatin1Char(')'));
}

QSize CountdownButton::sizeHint() const
{
    // In the style sheet a focused button has smaller paddings, which would cut the text. The minimum height is scaled
    // with the dialog, so the room beside the text is too.
    return QPushButton::sizeHint().expandedTo({fontMetrics().horizontalAdvance(text()) + minimumHeight(), 0});
}
