#pragma once

#include <QAccessible>

/// From the first call on until the library is unloaded, screen readers see each @p Widget through an @p Interface,
/// which is constructed with the widget. Classes derived from @p Widget that have an interface of their own keep it.
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

        static QAccessibleInterface* create(const QString& className, QObject* object)
        {
            // Qt asks for each class of the object, beginning with the most derived.
            if (className != QLatin1String(Widget::staticMetaObject.className()))
                return nullptr;
            auto* widget = qobject_cast<Widget*>(object);
            return widget ? new Interface(widget) : nullptr;
        }
    } installation;
}
