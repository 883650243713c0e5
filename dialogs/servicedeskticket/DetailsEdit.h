#pragma once

#include <QTextEdit>

/// A text edit that takes no more of a paste or drop than its form will keep: laying out megabytes that are cut away at
/// once would freeze the window.
class DetailsEdit : public QTextEdit {
    Q_OBJECT

public:
    using QTextEdit::QTextEdit;

    /// Zero or less takes everything.
    void setInsertionLimit(int length);

protected:
    void insertFromMimeData(const QMimeData* source) override;

private:
    int insertionLimit = 0;
};
