#include "CountdownButton.h"

#include "AccessibleFactory.h"
#include "ApproveRemoteConnectionDialog.h"

#include <QAccessibleWidget>

#include <limits>

namespace {
class CountdownButtonAccessible final : public QAccessibleWidget {
public:
    explicit CountdownButtonAccessible(CountdownButton* countdownButton)
        : QAccessibleWidget(countdownButton, QAccessible::Button), button(countdownButton)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        if (type == QAccessible::Name)
            return button->label();
        if (type != QAccessible::Description || button->secondsLeft() == 0)
            return QAccessibleWidget::text(type);
        const qint64 seconds = qMin<qint64>(button->secondsLeft(), std::numeric_limits<int>::max());
        return ApproveRemoteConnectionDialog::tr("%n second(s) left to answer", nullptr, static_cast<int>(seconds));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = button->isDown();
        state.defaultButton = button->isDefault();
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& actionName) override
    {
        if (actionName == pressAction())
            button->animateClick();
        else
            QAccessibleWidget::doAction(actionName);
    }

private:
    CountdownButton* const button;
};
} // namespace

CountdownButton::CountdownButton(QWidget* parent) : QPushButton(parent)
{
    installAccessible<CountdownButtonAccessible, CountdownButton>();
}

QString CountdownButton::label() const
{
    return text().section(QLatin1Char('('), 0, 0);
}

qint64 CountdownButton::secondsLeft() const
{
    return text().section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0).toLongLong();
}

void CountdownButton::setSecondsLeft(qint64 seconds)
{
    setText(label() + QLatin1Char('(') + QString::number(seconds) + QLatin1Char(')'));
}

QSize CountdownButton::sizeHint() const
{
    // The style sheet lets a focused button ask for less room, which its text then lacks.
    return QPushButton::sizeHint().expandedTo({fontMetrics().horizontalAdvance(text()) + 28, 0});
}
