#pragma once

#include "LineEdit.h"

/// A field for a password. Beyond what a line edit in password mode does, it keeps no history: nothing that was removed
/// stays in memory, and the keys for undo, which would clear the field, do nothing.
class PasswordEdit : public LineEdit {
    Q_OBJECT

public:
    explicit PasswordEdit(QWidget* parent = nullptr);

protected:
    /// A blank in place of a line break would be a character that nobody sees.
    QString cleaned(const QString& text) const override;
    void keyPressEvent(QKeyEvent* event) override;
};
