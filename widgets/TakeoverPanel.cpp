#include "TakeoverPanel.h"

#include "DisplayText.h"
#include "ElapsedTime.h"
#include "PlainToolTip.h"
#include "Scaling.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUiLoader>

namespace {
QAtomicInt panelCounter;

// All texts of the session window are translated in one context.
QString text(const char* source)
{
    return QCoreApplication::translate("RemoteConnectionDialog", source);
}
} // namespace

TakeoverPanel::TakeoverPanel(QWidget* parent) : QFrame(parent)
{
    loadForm();
    const QString title = text(QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Remote Control Session"));
    const int number = ++panelCounter;
    sessionTypeLabel->setText(title + QLatin1String(" #") + QString::number(number));
    username->setText(text(QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Username")));
    timeElapsed->setText(text(QT_TRANSLATE_NOOP("RemoteConnectionDialog", "00:00:00")));
    btnEndRemoteControlSession->setText(text(QT_TRANSLATE_NOOP("RemoteConnectionDialog", "End session")));
    btnEndRemoteControlSession->setAccessibleName(
        QCoreApplication::translate("RemoteConnectionDialog", "End session", "in full"));
    btnCloseRemoteControlPopup->setText(text(QT_TRANSLATE_NOOP("RemoteConnectionDialog", "Close")));

    connect(btnEndRemoteControlSession, &QPushButton::clicked, this, [this] { Q_EMIT endRemoteControlSession(); });
    connect(btnCloseRemoteControlPopup, &QPushButton::clicked, this, [this] { Q_EMIT closeRemoteControlPopup(); });
}

void TakeoverPanel::setStartTime(const QDateTime& time, bool force)
{
    if (force || startTime.isNull() || time <= startTime)
        startTime = time;
}

void TakeoverPanel::setUsername(const QString& name)
{
    fullUsername = name;
    showUserName(username, name);
    const QString title = sessionTypeLabel->text();
    const QString end = QCoreApplication::translate("RemoteConnectionDialog", "End session", "in full");
    nameSessionButton(btnEndRemoteControlSession, end, title, name);
    nameSessionButton(btnCloseRemoteControlPopup, btnCloseRemoteControlPopup->text(), title, name);
}

void TakeoverPanel::updateElapsedTime()
{
    const qint64 elapsed = startTime.msecsTo(QDateTime::currentDateTimeUtc());
    if (elapsed > 0)
        timeElapsed->setText(elapsedTimeText(elapsed));
}

void TakeoverPanel::setCloseButtonVisible(bool visible)
{
    if (!visible)
        takeFocusFrom(btnCloseRemoteControlPopup);
    btnCloseRemoteControlPopup->setVisible(visible);
}

void TakeoverPanel::setEndButtonVisible(bool visible)
{
    if (!visible)
        takeFocusFrom(btnEndRemoteControlSession);
    btnEndRemoteControlSession->setVisible(visible);
}

QString TakeoverPanel::sessionName() const
{
    return withVisibleControls(fullUsername) + QLatin1String(", ") + sessionTypeLabel->text();
}

bool TakeoverPanel::isRunning() const
{
    return !startTime.isNull();
}

void TakeoverPanel::scaleBy(float ratio, float fullRatio)
{
    scalePixels(this, ratio, fullRatio);
    showUserName(username, fullUsername);
}

void TakeoverPanel::setTabOrderAfter(QWidget* previous)
{
    setTabOrder(previous, btnEndRemoteControlSession);
    setTabOrder(btnEndRemoteControlSession, btnCloseRemoteControlPopup);
}

void TakeoverPanel::resetSessionCounter()
{
    panelCounter.storeRelease(0);
}

void TakeoverPanel::loadForm()
{
    QFile file(QStringLiteral(":/widgets/takeoverpanel.ui"));
    file.open(QIODevice::ReadOnly);
    QWidget* const form = QUiLoader().load(&file, this);
    Q_ASSERT(form);

    setSizePolicy(form->sizePolicy());
    setMinimumSize(form->minimumSize());
    setMaximumSize(form->maximumSize());
    setFrameShape(NoFrame);
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);

    sessionTypeLabel = part<QLabel>("sessionTypeLabel");
    username = part<QLabel>("username");
    timeElapsed = part<QLabel>("timeElapsed");
    btnCloseRemoteControlPopup = part<QPushButton>("btnCloseRemoteControlPopup");
    btnEndRemoteControlSession = part<QPushButton>("btnEndRemoteControlSession");
}

template <class Widget>
Widget* TakeoverPanel::part(const char* name) const
{
    auto* const widget = findChild<Widget*>(QLatin1String(name));
    Q_ASSERT_X(widget, "takeoverpanel.ui", name);
    return widget;
}

void showUserName(QLabel* label, const QString& name)
{
    usePlainToolTip(label);
    // Otherwise a right-to-left name would stand at the far end of the label.
    label->setAlignment(Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
    label->ensurePolished();
    const int width = label->maximumWidth();
    const QString elided = elidedWithVisibleControls(name, label->fontMetrics(), Qt::ElideRight, width);
    const QString full = withVisibleControls(name);
    label->setText(elided);
    label->setToolTip(elided == full ? QString() : literalToolTip(full));
}

void nameSessionButton(QPushButton* button, const QString& action, const QString& sessionTitle, const QString& userName)
{
    const QStringList parts{action, sessionTitle, withVisibleControls(userName)};
    button->setAccessibleName(parts.join(QLatin1String(", ")));
}

void takeFocusFrom(QWidget* part)
{
    QWidget* const window = part->window();
    const QWidget* const focused = window->focusWidget();
    if (focused && (focused == part || part->isAncestorOf(focused)))
        window->setFocus();
}
