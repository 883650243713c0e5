#pragma once

#include <QAccessibleWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/// A widget as a screen reader speaks of it: no blanks around its name, and no tool tip that repeats the name.
class TextAccessible : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text type) const override;
};

class DialogAccessible final : public TextAccessible {
public:
    explicit DialogAccessible(QWidget* dialog);
};

/// The name of a label is its text without markup, unless it has an accessible name of its own.
class LabelAccessible : public TextAccessible {
public:
    explicit LabelAccessible(QLabel* label, QAccessible::Role role = QAccessible::StaticText);

    QString text(QAccessible::Text type) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match = QAccessible::AllRelations) const override;

protected:
    QLabel* label() const;
};
