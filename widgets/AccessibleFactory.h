#pragma once

#include <QAccessible>

/// From the first call on until the library is unloaded, screen readers see each @p Widget through an @p Interface,
/// which is constructed with the widget.
template <class Interface, class Widget>
void installAccessible()
{
    static const struct Installation {
        Installation()
        {
            QAccessible::installFactory(create);
        }

        ~Installation()
        {
            QAccessible::removeFactory(create);
        }

        static QAccessibleInterface* create(const QString&, QObject* object)
        {
            auto* widget = qobject_cast<Widget*>(object);
            return widget ? new Interface(widget) : nullptr;
        }
    } installation;
}
