#pragma once

#include <QLineEdit>

/// A field whose text is readable on screen but goes to no other program: assistive technology, and whatever poses as
/// such, finds a password field.
class TokenEdit final : public QLineEdit {
    Q_OBJECT

public:
    explicit TokenEdit(QWidget* parent = nullptr);
};
