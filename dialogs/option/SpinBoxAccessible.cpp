#include "SpinBoxAccessible.h"

#include "AccessibleFactory.h"

#include <QAccessibleWidget>
#include <QSpinBox>

namespace {
class SpinBoxAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SpinBoxAccessible(QSpinBox* spinBox) : QAccessibleWidget(spinBox, QAccessible::SpinBox), box(spinBox) { }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override
    {
        return 0;
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Value ? box->text() : QAccessibleWidget::text(type);
    }

    QVariant currentValue() const override
    {
        return box->value();
    }

    void setCurrentValue(const QVariant& value) override
    {
        if (box->isEnabled() && !box->isReadOnly())
            box->setValue(value.toInt());
    }

    QVariant minimumValue() const override
    {
        return box->minimum();
    }

    QVariant maximumValue() const override
    {
        return box->maximum();
    }

    QVariant minimumStepSize() const override
    {
        return box->singleStep();
    }

private:
    QSpinBox* const box;
};
} // namespace

void installSpinBoxAccessible()
{
    installAccessible<SpinBoxAccessible, QSpinBox>();
}
