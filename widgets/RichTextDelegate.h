#pragma once

#include <QCache>
#include <QStyledItemDelegate>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

/// Paints items whose text is HTML: from left to right, with all its blanks, and on a line that does not depend on the
/// fonts which some of its characters need.
class RichTextDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit RichTextDelegate(QObject* parent = nullptr);
    ~RichTextDelegate() override;

    /// How much larger than the HTML says the text is drawn; 1 at first.
    void setRatio(float newRatio);
    /// What is left free on each side of a text.
    int margin() const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Does what can be done for painting an item before it comes into sight.
    void prepare(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    Q_DISABLE_COPY(RichTextDelegate)

    void setHtml(QTextDocument* document, const QString& html, const QFont& font) const;
    QTextDocument* document(const QString& html, const QFont& font) const;

    float ratio = 1.0F;

    /// The rows last painted: reading HTML takes far longer than drawing it, and scrolling draws the same rows again.
    mutable QCache<QString, QTextDocument> documents;
};
