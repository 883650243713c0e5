#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

WheelGuard::WheelGuard(QWidget* field) : QObject(field)
{
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* field, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(field)->hasFocus())
        return false;
    event->ignore();
    return true;
}
