#include "TokenEdit.h"

TokenEdit::TokenEdit(QWidget* parent) : EnrollmentEdit(parent)
{
    // What a line edit in password mode asks of input methods: to learn nothing and to change nothing.
    setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText);
}

bool TokenEdit::isSecret() const
{
    return true;
}
