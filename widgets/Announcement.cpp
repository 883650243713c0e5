#include "Announcement.h"

#include "AccessibleFactory.h"

#include <QAccessibleObject>
#include <QTimer>
#include <QWidget>

namespace {
/// A screen reader asks for the text after it has been told that there is one, perhaps after what it is saying.
constexpr int lifetimeMsecs = 60'000;

class AnnouncementAccessible final : public QAccessibleObject {
public:
    explicit AnnouncementAccessible(Announcement* spoken) : QAccessibleObject(spoken), announcement(spoken) { }

    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(announcement->parent());
    }

    int childCount() const override
    {
        return 0;
    }

    QAccessibleInterface* child(int) const override
    {
        return nullptr;
    }

    int indexOfChild(const QAccessibleInterface*) const override
    {
        return -1;
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Name ? announcement->text : QString();
    }

    QAccessible::Role role() const override
    {
        return QAccessible::Notification;
    }

    QAccessible::State state() const override
    {
        return {};
    }

private:
    Announcement* const announcement;
};
} // namespace

Announcement::Announcement(QWidget* window, const QString& spokenText) : QObject(window), text(spokenText) { }

void announce(QWidget* window, const QString& text)
{
    if (!QAccessible::isActive())
        return;
    installAccessible<AnnouncementAccessible, Announcement>();
    auto* announcement = new Announcement(window, text);
    QTimer::singleShot(lifetimeMsecs, announcement, &QObject::deleteLater);
    // Qt passes alerts on to some platforms' screen readers only; AT-SPI's speak a notification that appears.
    for (const QAccessible::Event type : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(announcement, type);
        QAccessible::updateAccessibility(&event);
    }
}
