#pragma once

#include <QCache>
#include <QStyledItemDelegate>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

/// Paints items whose text is HTML.
class RichTextDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit RichTextDelegate(QObject* parent = nullptr);
    ~RichTextDelegate() override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Does what can be done for painting an item before it comes into sight.
    void prepare(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    Q_DISABLE_COPY(RichTextDelegate)

    QTextDocument* document(const QString& html, const QFont& font) const;

    /// The rows last painted: reading HTML takes far longer than drawing it, and scrolling draws the same rows again.
    mutable QCache<QString, QTextDocument> documents;
};
