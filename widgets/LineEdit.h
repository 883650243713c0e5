#pragma once

#include <QLineEdit>

/// The one-line field of all dialogs. What a person types, pastes, drops or enters with an input method is cleaned
/// before it stays. Undo then goes from the cleaned text straight to what was there before, and redo brings back no
/// more than the cleaned text. What the program sets is never changed.
///
/// Assistive technology, and whatever poses as such, can fill a secret field but not read it: it learns how many
/// characters there are, come and go, not which.
class LineEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit LineEdit(QWidget* parent = nullptr);

    /// Whether the text goes to no other program: in password mode.
    virtual bool isSecret() const;

Q_SIGNALS:
    /// The person inserted @p text, of which the field has kept what cleaned() says.
    void inserted(const QString& text);

protected:
    /// What the field keeps of an inserted text. Here line breaks become blanks, those at both ends go.
    virtual QString cleaned(const QString& text) const;
    static bool isLineBreak(QChar character);
    void contextMenuEvent(QContextMenuEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void noteInsertionStart();
    void cleanInsertion();
    void replaceInsertion(int start, int end, const QString& kept);
    void clearRedo();
    /// Keeps the length limit from splitting the last character of a text that the program sets.
    void dropHalfPair(const QString& text);

    /// Where the next insertion begins: at the selection or the cursor.
    int insertionStart = 0;
    bool replacing = false;
};
