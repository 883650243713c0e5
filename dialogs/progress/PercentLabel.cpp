#include "PercentLabel.h"

#include "AccessibleFactory.h"

#include <QAccessibleWidget>

namespace {
class PercentLabelAccessible final : public QAccessibleWidget {
public:
    explicit PercentLabelAccessible(PercentLabel* percentLabel)
        : QAccessibleWidget(percentLabel, QAccessible::ProgressBar), label(percentLabel)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Value ? label->text() : QAccessibleWidget::text(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

private:
    PercentLabel* const label;
};
} // namespace

PercentLabel::PercentLabel(QWidget* parent) : QLabel(parent)
{
    installAccessible<PercentLabelAccessible, PercentLabel>();
}
