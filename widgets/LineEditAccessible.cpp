#include "LineEditAccessible.h"

#include "AccessibleFactory.h"
#include "LineEdit.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QStyle>
#include <QTextBoundaryFinder>

namespace {
QString masked(const QLineEdit* edit, int length)
{
    const int mask = edit->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, edit);
    return QString(length, QChar(mask));
}

/// What Qt's own interface for line edits does, which cannot be derived from, except for secrets and the search for
/// words.
class LineEditAccessible final : public QAccessibleWidget,
                                 public QAccessibleTextInterface,
                                 public QAccessibleEditableTextInterface {
public:
    explicit LineEditAccessible(LineEdit* lineEdit)
        : QAccessibleWidget(lineEdit, QAccessible::EditableText), edit(lineEdit)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text type) const override
    {
        if (type == QAccessible::Value)
            return edit->isSecret() ? masked(edit, characterCount()) : edit->text();
        const QString text = QAccessibleWidget::text(type);
        return text.isEmpty() && type == QAccessible::Description ? edit->placeholderText() : text;
    }

    void setText(QAccessible::Text type, const QString& text) override
    {
        if (type != QAccessible::Value)
            QAccessibleWidget::setText(type, text);
        else if (isEditable())
            edit->setText(text);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = !edit->isReadOnly();
        state.readOnly = edit->isReadOnly();
        state.passwordEdit = edit->isSecret();
        state.selectable = true;
        state.selected = edit->hasSelectedText();
        state.hasPopup = true;
        return state;
    }

    void selection(int index, int* start, int* end) const override
    {
        const bool selected = index == 0 && edit->hasSelectedText();
        *start = selected ? edit->selectionStart() : 0;
        *end = selected ? edit->selectionEnd() : 0;
    }

    int selectionCount() const override
    {
        return edit->hasSelectedText() ? 1 : 0;
    }

    void addSelection(int start, int end) override
    {
        setSelection(0, start, end);
    }

    void removeSelection(int) override
    {
        edit->deselect();
    }

    void setSelection(int, int start, int end) override
    {
        edit->setSelection(qBound(0, start, characterCount()), end - start);
    }

    int cursorPosition() const override
    {
        return edit->cursorPosition();
    }

    void setCursorPosition(int position) override
    {
        edit->setCursorPosition(position);
    }

    QString text(int start, int end) const override
    {
        return edit->isSecret() || start > end ? QString() : edit->text().mid(start, end - start);
    }

    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override
    {
        textAtOffset(offset, boundary, start, end);
        return textAtOffset(*start > 0 ? *start - 1 : characterCount() + 1, boundary, start, end);
    }

    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override
    {
        textAtOffset(offset, boundary, start, end);
        const bool isLast = *end < 0 || *end >= characterCount();
        return textAtOffset(isLast ? characterCount() + 1 : *end, boundary, start, end);
    }

    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override
    {
        // Up to Qt 5.15 its own search never ends behind the last character, nor at a blank before the first word.
        const QString readable = text(0, characterCount());
        *start = *end = -1;
        if (readable.isEmpty() || offset < -1 || offset > readable.size())
            return QString();
        QTextBoundaryFinder::BoundaryType type = QTextBoundaryFinder::Grapheme;
        if (boundary == QAccessible::WordBoundary) {
            type = QTextBoundaryFinder::Word;
        } else if (boundary == QAccessible::SentenceBoundary) {
            type = QTextBoundaryFinder::Sentence;
        } else if (boundary != QAccessible::CharBoundary) {
            *start = 0;
            *end = readable.size();
            return readable;
        }
        QTextBoundaryFinder finder(type, readable);
        const bool isAtEnd = offset == -1 || offset == readable.size();
        finder.setPosition(isAtEnd ? readable.size() - 1 : offset);
        *start = finder.isAtBoundary() ? finder.position() : qMax(0, finder.toPreviousBoundary());
        const int next = finder.toNextBoundary();
        *end = next < 0 ? readable.size() : next;
        return text(*start, *end);
    }

    int characterCount() const override
    {
        return edit->text().size();
    }

    QRect characterRect(int offset) const override
    {
        if (offset < 0 || offset >= characterCount())
            return QRect();
        const QString text = edit->displayText();
        const QFontMetrics metrics = edit->fontMetrics();
        const QRect caret = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int shift =
            metrics.horizontalAdvance(text.left(offset)) - metrics.horizontalAdvance(text.left(edit->cursorPosition()));
        const QPoint position(caret.center().x() + shift, caret.top());
        return QRect(edit->mapToGlobal(position), QSize(metrics.horizontalAdvance(text.at(offset)), caret.height()));
    }

    int offsetAtPoint(const QPoint& point) const override
    {
        return edit->cursorPositionAt(edit->mapFromGlobal(point));
    }

    void scrollToSubstring(int start, int end) override
    {
        edit->setCursorPosition(end);
        edit->setCursorPosition(start);
    }

    QString attributes(int, int* start, int* end) const override
    {
        *start = *end = -1;
        return QString();
    }

    void deleteText(int start, int end) override
    {
        replaceText(start, end, QString());
    }

    void insertText(int offset, const QString& text) override
    {
        replaceText(offset, offset, text);
    }

    void replaceText(int start, int end, const QString& text) override
    {
        if (isEditable())
            edit->setText(edit->text().replace(start, end - start, text));
    }

private:
    bool isEditable() const
    {
        return edit->isEnabled() && !edit->isReadOnly();
    }

    LineEdit* const edit;
};

/// Whom the events go to next: to a handler that was there before ours, or with nullptr to the window system.
QAccessible::UpdateHandler nextHandler = nullptr;

void sendMasked(QAccessibleEvent* event);

void send(QAccessibleEvent* event)
{
    if (nextHandler) {
        nextHandler(event);
        return;
    }
    // Qt passes an event to the window system only while no handler is installed. It has told the table of a change
    // before it called the handler; passing TableModelChanged on would tell the table again.
    if (event->type() == QAccessible::TableModelChanged)
        return;
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(sendMasked);
}

/// Sends every event on, but none with the text of a secret field: a line edit puts that into them in password mode
/// too.
void sendMasked(QAccessibleEvent* event)
{
    auto* edit = qobject_cast<LineEdit*>(event->object());
    const bool isSecret = edit && edit->isSecret();
    if (isSecret && event->type() == QAccessible::TextInserted) {
        const auto* insertion = static_cast<QAccessibleTextInsertEvent*>(event);
        QAccessibleTextInsertEvent told(edit, insertion->changePosition(),
                                        masked(edit, insertion->textInserted().size()));
        send(&told);
    } else if (isSecret && event->type() == QAccessible::TextRemoved) {
        const auto* removal = static_cast<QAccessibleTextRemoveEvent*>(event);
        QAccessibleTextRemoveEvent told(edit, removal->changePosition(), masked(edit, removal->textRemoved().size()));
        send(&told);
    } else if (isSecret && event->type() == QAccessible::TextUpdated) {
        const auto* update = static_cast<QAccessibleTextUpdateEvent*>(event);
        // A password field sets its text again after each edit, to lose its history.
        if (update->textRemoved() == update->textInserted())
            return;
        QAccessibleTextUpdateEvent told(edit, update->changePosition(), masked(edit, update->textRemoved().size()),
                                        masked(edit, update->textInserted().size()));
        send(&told);
    } else {
        send(event);
    }
}

struct EventMask {
    EventMask()
    {
        nextHandler = QAccessible::installUpdateHandler(sendMasked);
    }

    ~EventMask()
    {
        const auto installed = QAccessible::installUpdateHandler(nextHandler);
        if (installed != sendMasked)
            QAccessible::installUpdateHandler(installed);
    }
};
} // namespace

void installLineEditAccessible()
{
    installAccessible<LineEditAccessible, LineEdit>();
    static const EventMask mask;
}
