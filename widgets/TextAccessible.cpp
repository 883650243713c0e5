#include "TextAccessible.h"

#include <QLabel>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVariant>

namespace {
QString withoutMarkup(const QString& text)
{
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}
} // namespace

QString TextAccessible::text(QAccessible::Text type) const
{
    QString text = QAccessibleWidget::text(type);
    if (type == QAccessible::Name)
        return text.trimmed();
    if (type != QAccessible::Description)
        return text;
    if (Qt::mightBeRichText(text))
        text = withoutMarkup(text);
    text = text.trimmed();
    return text == this->text(QAccessible::Name) ? QString() : text;
}

DialogAccessible::DialogAccessible(QWidget* dialog) : TextAccessible(dialog, QAccessible::Dialog) { }

LabelAccessible::LabelAccessible(QLabel* label, QAccessible::Role role) : TextAccessible(label, role) { }

QString LabelAccessible::text(QAccessible::Text type) const
{
    if (type != QAccessible::Name || !label()->accessibleName().isEmpty())
        return TextAccessible::text(type);
    const QString text = label()->text();
    const Qt::TextFormat format = label()->textFormat();
    const bool rich = format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
    return (rich ? withoutMarkup(text) : text).trimmed();
}

QAccessible::Role LabelAccessible::role() const
{
    // A label can get its picture after the screen reader has heard of it.
    return label()->property("pixmap").value<QPixmap>().isNull() ? TextAccessible::role() : QAccessible::Graphic;
}

QAccessible::State LabelAccessible::state() const
{
    QAccessible::State state = TextAccessible::state();
    state.readOnly = true;
    return state;
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
LabelAccessible::relations(QAccessible::Relation match) const
{
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations = TextAccessible::relations(match);
    if ((match & QAccessible::Labelled) && label()->buddy())
        relations.append({QAccessible::queryAccessibleInterface(label()->buddy()), QAccessible::Labelled});
    return relations;
}

QLabel* LabelAccessible::label() const
{
    return static_cast<QLabel*>(widget());
}
