#include "LinkLabel.h"

#include "AccessibleFactory.h"
#include "TextAccessible.h"

#include <QTextBlock>
#include <QTextDocument>

namespace {
class LinkAccessible final : public LabelAccessible {
public:
    explicit LinkAccessible(LinkLabel* linkLabel) : LabelAccessible(linkLabel, QAccessible::Link), link(linkLabel) { }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + LabelAccessible::actionNames();
    }

    void doAction(const QString& actionName) override
    {
        if (actionName == pressAction())
            link->follow();
        else
            LabelAccessible::doAction(actionName);
    }

private:
    LinkLabel* const link;
};
} // namespace

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent)
{
    installAccessible<LinkAccessible, LinkLabel>();
}

void LinkLabel::follow()
{
    QTextDocument document;
    document.setHtml(text());
    Q_EMIT linkActivated(document.begin().begin().fragment().charFormat().anchorHref());
}

void LinkLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    if (!hasSelectedText())
        QLabel::focusNextPrevChild(true);
}

bool LinkLabel::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): not to the next link
}
