#include "RichTextDelegate.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

namespace {
// A few screens full.
constexpr int keptDocuments = 200;

/// Choosing the glyphs is most of the work; a document does it anew for every painting unless it is told otherwise.
void keepGlyphs(const QTextDocument* document)
{
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        block.layout()->setCacheEnabled(true);
}

QAbstractTextDocumentLayout::PaintContext paintContext(const QStyleOptionViewItem& option, QTextDocument* document)
{
    QAbstractTextDocumentLayout::PaintContext context;
    if (option.state & QStyle::State_Selected) {
        const QColor color = option.palette.color(QPalette::Active, QPalette::HighlightedText);
        context.palette.setColor(QPalette::Text, color);
        // Text with a colour of its own takes no notice of the palette.
        QAbstractTextDocumentLayout::Selection all;
        all.cursor = QTextCursor(document);
        all.cursor.select(QTextCursor::Document);
        all.format.setForeground(color);
        context.selections.append(all);
    }
    return context;
}
} // namespace

RichTextDelegate::RichTextDelegate(QObject* parent) : QStyledItemDelegate(parent), documents(keptDocuments) { }

RichTextDelegate::~RichTextDelegate() = default;

void RichTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();

    QTextDocument* const text = document(item.text, item.font);
    item.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QRect textArea = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget);
    painter->save();
    painter->translate(textArea.topLeft());
    painter->setClipRect(textArea.translated(-textArea.topLeft()), Qt::IntersectClip);
    text->documentLayout()->draw(painter, paintContext(item, text));
    painter->restore();
}

void RichTextDelegate::prepare(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    // The size is what the layout is made for.
    document(item.text, item.font)->size();
}

QSize RichTextDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    QTextDocument text;
    text.setDefaultFont(item.font);
    text.setHtml(item.text);
    text.setTextWidth(item.rect.width());
    return {static_cast<int>(text.idealWidth()), static_cast<int>(text.size().height())};
}

QTextDocument* RichTextDelegate::document(const QString& html, const QFont& font) const
{
    QTextDocument* text = documents.object(html);
    if (!text) {
        text = new QTextDocument;
        text->setDefaultFont(font);
        text->setHtml(html);
        keepGlyphs(text);
        documents.insert(html, text);
    } else if (text->defaultFont() != font) {
        text->setDefaultFont(font);
    }
    return text;
}
