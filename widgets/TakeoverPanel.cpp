#include "TakeoverPanel.h"

#include "DisplayText.h"
#include "ElapsedTime.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QFile>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>
#include <QUiLoader>

namespace {
QAtomicInt panelCounter;

/// Shows a label's tool tip in the desktop's colours: with the label's own style sheet it would be grey on white.
class UnstyledToolTip final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QObject::eventFilter(watched, event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), static_cast<QWidget*>(watched)->toolTip());
        return true;
    }
};

// The strip speaks in the words of the window it stands in.
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
}

void TakeoverPanel::updateElapsedTime()
{
    const qint64 elapsed = startTime.msecsTo(QDateTime::currentDateTimeUtc());
    if (elapsed > 0)
        timeElapsed->setText(elapsedTimeText(elapsed));
}

void TakeoverPanel::setCloseButtonVisible(bool visible)
{
    btnCloseRemoteControlPopup->setVisible(visible);
}

void TakeoverPanel::setEndButtonVisible(bool visible)
{
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

void TakeoverPanel::resetSessionCounter()
{
    panelCounter.storeRelease(0);
}

void TakeoverPanel::loadForm()
{
    QFile file(QStringLiteral(":/widgets/takeoverpanel.ui"));
    file.open(QIODevice::ReadOnly);
    QWidget* const form = QUiLoader().load(&file, this);

    setSizePolicy(form->sizePolicy());
    setMinimumSize(form->minimumSize());
    setMaximumSize(form->maximumSize());
    setFrameShape(NoFrame);
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
    // What the buttons' own style sheets leave open.
    setStyleSheet(QStringLiteral("QPushButton:focus { text-decoration: underline; }"
                                 "#separator { background-color: #484a51; }"));

    sessionTypeLabel = findChild<QLabel*>(QStringLiteral("sessionTypeLabel"));
    username = findChild<QLabel*>(QStringLiteral("username"));
    timeElapsed = findChild<QLabel*>(QStringLiteral("timeElapsed"));
    btnCloseRemoteControlPopup = findChild<QPushButton*>(QStringLiteral("btnCloseRemoteControlPopup"));
    btnEndRemoteControlSession = findChild<QPushButton*>(QStringLiteral("btnEndRemoteControlSession"));
}

void showUserName(QLabel* label, const QString& name)
{
    static UnstyledToolTip unstyledToolTip;
    label->installEventFilter(&unstyledToolTip);
    label->ensurePolished();
    const int width = label->maximumWidth();
    const QString elided = elidedWithVisibleControls(name, label->fontMetrics(), Qt::ElideRight, width);
    const QString full = withVisibleControls(name);
    label->setText(elided);
    label->setToolTip(elided == full ? QString() : literalToolTip(full));
}
