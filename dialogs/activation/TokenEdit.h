#pragma once

#include "EnrollmentEdit.h"

/// A field whose text is readable on screen but goes to no other program.
class TokenEdit final : public EnrollmentEdit {
    Q_OBJECT

public:
    explicit TokenEdit(QWidget* parent = nullptr);

    bool isSecret() const override;
};
