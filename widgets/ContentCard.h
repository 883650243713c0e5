#pragma once

#include <QLabel>

/// The card that carries a dialog's contents. It says that its picture hides all that lies beneath, so that the
/// window's own picture, which is large and costly to stretch, is drawn only where it shows.
/// Without Q_OBJECT: its class is part of the contract with hosts, where it is a QLabel.
class ContentCard final : public QLabel {
public:
    using QLabel::QLabel;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
