#pragma once

#include <QLabel>

/// A label for one line of plain text from outside. What does not fit is elided in the middle on screen, so that a
/// server name keeps its host and its domain; text() stays complete.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Elides the text also where it would run into that of @p label, which stands to the right and overlaps this one.
    void keepOffTextOf(const QLabel* label);
    /// Whether the label, as large as it is now, does not show all of its text.
    bool isElided() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect textArea() const;
    QString lineWithin(const QRect& area) const;

    const QLabel* neighbour = nullptr;
};
