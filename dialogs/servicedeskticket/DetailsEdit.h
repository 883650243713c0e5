#pragma once

#include <QTextEdit>

/// A text edit with a length limit: what is too long is cut at the end of the text. Undo then goes from the cut text
/// straight to what was there before.
class DetailsEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit DetailsEdit(QWidget* parent = nullptr);

    /// Zero or less lifts the limit. Longer text that is already there stays until the next edit.
    void setMaxLength(int length);
    /// Whether the change that is being reported is one of a composition only, which the text does not hold yet.
    bool isComposing() const;
    /// For the slot that hears of a change. Never splits what a person sees as one character.
    void cutSurplus();

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;
    /// Takes no more than will be kept: laying out megabytes that are cut away at once would freeze the window.
    void insertFromMimeData(const QMimeData* source) override;

private:
    int maxLength = 0;
    /// Where the latest edit began.
    int editPosition = 0;
    /// Where the text of the present input method event goes; Qt reports a change of the whole paragraph.
    int inputPosition = -1;
    bool composing = false;
};
