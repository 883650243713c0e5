#include "PercentLabel.h"

#include "AccessibleFactory.h"
#include "TextAccessible.h"

namespace {
class PercentLabelAccessible final : public LabelAccessible, public QAccessibleValueInterface {
public:
    explicit PercentLabelAccessible(PercentLabel* percentLabel)
        : LabelAccessible(percentLabel, QAccessible::ProgressBar), percentage(percentLabel)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && !percentage->isHidden())
            return static_cast<QAccessibleValueInterface*>(this);
        return LabelAccessible::interface_cast(type);
    }

    QString text(QAccessible::Text type) const override
    {
        if (type == QAccessible::Value)
            return percentage->isHidden() ? QString() : percentage->text();
        return LabelAccessible::text(type);
    }

    QVariant currentValue() const override
    {
        return percentage->value();
    }

    void setCurrentValue(const QVariant&) override { }

    QVariant minimumValue() const override
    {
        return 0;
    }

    QVariant maximumValue() const override
    {
        return 100;
    }

    QVariant minimumStepSize() const override
    {
        return 1;
    }

private:
    PercentLabel* const percentage;
};
} // namespace

PercentLabel::PercentLabel(QWidget* parent) : QLabel(parent)
{
    installAccessible<PercentLabelAccessible, PercentLabel>();
}

void PercentLabel::setPercent(int newPercent)
{
    const int lastTenth = value() / 10;
    percent = newPercent;
    setText(QString::number(percent) + QLatin1Char('%'));
    if (value() / 10 == lastTenth || isHidden())
        return;
    QAccessibleValueChangeEvent event(this, value());
    QAccessible::updateAccessibility(&event);
}

int PercentLabel::value() const
{
    return qBound(0, percent, 100);
}
