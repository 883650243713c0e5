#pragma once

#include <QLabel>
#include <QTextOption>

/// A label for a message of several lines of plain text. Words that are too long for a line, such as paths, are broken
/// anywhere. What does not fit is elided on screen, and the tool tip then has all of the text; text() stays complete.
class MessageLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// The lines that fit, the last one elided when there are more.
    QStringList visibleLines(bool* elided) const;
    QStringList brokenLines(QTextOption::WrapMode wrapMode) const;
    void updateToolTip();
};
