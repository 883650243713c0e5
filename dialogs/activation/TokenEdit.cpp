#include "TokenEdit.h"

#include "AccessibleFactory.h"

#include <QAccessibleWidget>
#include <QStyle>

namespace {
class TokenEditAccessible final : public QAccessibleWidget {
public:
    explicit TokenEditAccessible(TokenEdit* tokenEdit)
        : QAccessibleWidget(tokenEdit, QAccessible::EditableText), edit(tokenEdit)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        if (type != QAccessible::Value)
            return QAccessibleWidget::text(type);
        const int mask = edit->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, edit);
        return QString(edit->text().size(), QChar(mask));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.passwordEdit = true;
        return state;
    }

private:
    TokenEdit* const edit;
};
} // namespace

TokenEdit::TokenEdit(QWidget* parent) : QLineEdit(parent)
{
    installAccessible<TokenEditAccessible, TokenEdit>();
}
