#pragma once

#include <QLineEdit>

/// A field for a password. Beyond what a line edit in password mode does, it keeps no history: nothing that was removed
/// stays in memory, and the keys for undo, which would clear the field, do nothing.
class PasswordEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit PasswordEdit(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
