#include "RichTextDelegate.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

namespace {
// Enough for the rows of a few screens.
constexpr int keptDocuments = 200;

// QTextDocument's default.
constexpr int documentMargin = 4;

void scaleFonts(QTextDocument* document, float ratio)
{
    QTextCursor cursor(document);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        // The formats first, as changing one may join fragments.
        const QVector<QTextLayout::FormatRange> ranges = block.textFormats();
        for (const QTextLayout::FormatRange& range : ranges) {
            const int size = range.format.intProperty(QTextFormat::FontPixelSize);
            if (size == 0)
                continue;
            QTextCharFormat larger;
            larger.setProperty(QTextFormat::FontPixelSize, qMax(1, qRound(static_cast<float>(size) * ratio)));
            cursor.setPosition(block.position() + range.start);
            cursor.setPosition(block.position() + range.start + range.length, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(larger);
        }
    }
}

/// How far the first line lies below where it would be if its font had all its characters: other fonts are higher.
qreal extraAscent(const QTextDocument* document)
{
    const QTextBlock first = document->firstBlock();
    const QTextLine line = first.layout()->lineAt(0);
    const QVector<QTextLayout::FormatRange> formats = first.textFormats();
    if (!line.isValid() || formats.isEmpty())
        return 0;
    return line.ascent() - QFontMetricsF(formats.first().format.font()).ascent();
}

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
        // The palette does not change text that has a colour in its HTML; a selection does.
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

void RichTextDelegate::setRatio(float newRatio)
{
    ratio = newRatio;
    documents.clear();
}

int RichTextDelegate::margin() const
{
    return qRound(documentMargin * ratio);
}

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
    // Lays the lines out.
    text->size();
    painter->translate(0, -extraAscent(text));
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
    setHtml(&text, item.text, item.font);
    text.setTextWidth(item.rect.width());
    return {static_cast<int>(text.idealWidth()), static_cast<int>(text.size().height())};
}

void RichTextDelegate::setHtml(QTextDocument* document, const QString& html, const QFont& font) const
{
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    document->setDefaultTextOption(option);
    document->setDefaultStyleSheet(QStringLiteral("p { white-space: pre; }"));
    document->setDocumentMargin(margin());
    document->setDefaultFont(font);
    document->setHtml(html);
    if (ratio != 1.0F)
        scaleFonts(document, ratio);
}

QTextDocument* RichTextDelegate::document(const QString& html, const QFont& font) const
{
    QTextDocument* text = documents.object(html);
    if (!text) {
        text = new QTextDocument;
        setHtml(text, html, font);
        keepGlyphs(text);
        documents.insert(html, text);
    } else if (text->defaultFont() != font) {
        text->setDefaultFont(font);
    }
    return text;
}
