#include "RemoteConnectionDialog.h"

#include "ActivityKeys.h"
#include "Announcement.h"
#include "DisplayText.h"
#include "ElapsedTime.h"
#include "LogsListModel.h"
#include "RichTextDelegate.h"
#include "TakeoverPanel.h"
#include "ui_RemoteConnectionDialog.h"

#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace {
const char sessionIdProperty[] = "P_SID";

// Beneath frames that give all their children a background, a scroll bar takes its look from its own style sheet only.
const QLatin1String
    scrollBarStyle("QScrollBar:vertical { background: #3b4147; width: 11px; margin: 30px 0px 30px 0px;"
                   " border-radius: 5px; }"
                   "QScrollBar::handle:vertical { background: #7e8285; min-height: 20px;"
                   " border-radius: 5px; }"
                   "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
                   "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }");

QString sessionIdOf(const QObject* panel)
{
    return panel ? panel->property(sessionIdProperty).toString() : QString();
}

bool isOnAnyScreen(const QRect& window)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(),
                       [&](const QScreen* screen) { return screen->availableGeometry().intersects(window); });
}
} // namespace

RemoteConnectionDialog::RemoteConnectionDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::RemoteConnectionDialog>()), logModel(new LogsListModel(this))
{
    ui->setupUi(this);
    RemoteConnectionDialog::setupWindow();
    // Nobody's typing may end up in a window that a remote person's arrival has opened.
    setAttribute(Qt::WA_ShowWithoutActivating);

    ui->logsListView->setModel(logModel);
    ui->logsListView->setItemDelegate(new RichTextDelegate(this));
    ui->logsListView->verticalScrollBar()->setStyleSheet(scrollBarStyle);
    ui->dummyTakeoverPanel->hide();
    ui->fileTransportPanel->hide();
    ui->fileTransferInfo->hide();
    ui->btnCloseRemoteToolsPopup->hide();
    ui->btnCloseRemoteToolsPopup->setGraphicsEffect(new QGraphicsOpacityEffect);
    setToolsCloseEnabled(true);
    connect(ui->fileTransferInfoPanelCheckBox, &QCheckBox::toggled, this,
            &RemoteConnectionDialog::onFileTransferPanelExpand);

    updateTimer.setInterval(1000);
    connect(&updateTimer, &QTimer::timeout, this, &RemoteConnectionDialog::slUpdateTime);

    followPrimaryScreen(QGuiApplication::primaryScreen());
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &RemoteConnectionDialog::followPrimaryScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &RemoteConnectionDialog::returnToAnchor,
            Qt::QueuedConnection);
    fitPathsToWindow();
}

RemoteConnectionDialog::~RemoteConnectionDialog() = default;

void RemoteConnectionDialog::addRemoteControlSession(const QString& sessionId, const QString& userName,
                                                     qint64 startMsecsSinceEpoch, bool canEnd)
{
    TakeoverPanel* const known = panels.value(sessionId);
    TakeoverPanel* const panel = known ? known : createPanel(sessionId);
    const bool starts = !panel->isRunning();
    panel->setUsername(userName);
    panel->setEndButtonVisible(canEnd);
    panel->setCloseButtonVisible(!canEnd);
    panel->setStartTime(QDateTime::fromMSecsSinceEpoch(startMsecsSinceEpoch, Qt::UTC), !known);
    panel->updateElapsedTime();
    setToolsCloseEnabled(false);
    updateClockTimer();
    setPartVisible(panel, true);
    showForSession();
    if (starts)
        announceStart(panel->sessionName());
}

void RemoteConnectionDialog::endRemoteControlSession(const QString& sessionId)
{
    // The text may belong to something that the event handlers delete.
    const QString id = sessionId;
    const QPointer<RemoteConnectionDialog> self(this);
    TakeoverPanel* const panel = panels.value(id);
    if (panel && panel->isRunning())
        announceEnd(panel->sessionName());
    const bool keep = keepPanels;
    if (!keep)
        removePanel(id);
    if (!self)
        return;
    // Another panel of that name, if the host has started the session anew when it heard of the removal, is not ended.
    if (panel && panels.value(id, panel) == panel)
        setToolsCloseEnabled(true);
    if (panel && keep) {
        panel->setEndButtonVisible(false);
        panel->setCloseButtonVisible(true);
        panel->setStartTime(QDateTime(), true);
        updateClockTimer();
    }
    hideIfEmpty();
    Q_EMIT dialogEvent(this, evRemoteControlSessionEnded, id);
}

bool RemoteConnectionDialog::hasRemoteControlSessions() const
{
    return !panels.isEmpty();
}

void RemoteConnectionDialog::setKeepEndedSessionPanels(bool keep)
{
    keepPanels = keep;
}

void RemoteConnectionDialog::startRemoteToolsSession(const QString& sessionId, int sessionType, const QString& userName,
                                                     qint64 startMsecsSinceEpoch, bool canEnd)
{
    const bool starts = !isToolsSessionRunning() || sessionId != toolsSessionId;
    toolsSessionId = sessionId;
    toolsSessionType = sessionType;
    ui->toolSessionTypeLabel->setText(sessionType == 1 ? tr("File Transfer Session") : tr("Remote Tool Session"));
    toolsSessionName = withVisibleControls(userName) + QLatin1String(", ") + ui->toolSessionTypeLabel->text();
    showUserName(ui->usernameFileTransfer, userName);
    if (!isToolsSessionRunning())
        ui->timeElapsedFileTransfer->setText(tr("00:00:00"));
    toolsStartTime = QDateTime::fromMSecsSinceEpoch(startMsecsSinceEpoch, Qt::UTC);
    showToolsButtons(canEnd, false);
    toolsPopupShown = true;
    slUpdateTime();
    updateClockTimer();
    setPartVisible(ui->fileTransportPanel, true);
    showForSession();
    if (starts)
        announceStart(toolsSessionName);
}

void RemoteConnectionDialog::endRemoteToolsSession(const QString& sessionId)
{
    const QString id = sessionId;
    const QPointer<RemoteConnectionDialog> self(this);
    // It ends first: when the host hears that the area has closed, it may start the next session.
    const bool wasRunning = isToolsSessionRunning();
    if (wasRunning)
        announceEnd(toolsSessionName);
    toolsStartTime = QDateTime();
    showToolsButtons(false, true);
    updateClockTimer();
    if (!keepToolsPopup)
        closeToolsPopup();
    if (self && wasRunning)
        Q_EMIT dialogEvent(this, evRemoteToolsSessionEnded, id);
}

bool RemoteConnectionDialog::isRemoteToolsPopupShown() const
{
    return toolsPopupShown;
}

void RemoteConnectionDialog::addLogEvent(qint64 msecsSinceEpoch, const QString& category, const QString& action,
                                         const QString& path, const QString& status)
{
    logModel->addEntry({QDateTime::fromMSecsSinceEpoch(msecsSinceEpoch, Qt::UTC), logCategory(category),
                        logActionText(action, status), path});
}

const QString& RemoteConnectionDialog::remoteToolsSessionId() const
{
    return toolsSessionId;
}

void RemoteConnectionDialog::setKeepRemoteToolsPopup(bool keep)
{
    keepToolsPopup = keep;
}

void RemoteConnectionDialog::setLogExpanderEnabled(bool enabled)
{
    ui->fileTransferInfoPanelCheckBox->setEnabled(enabled);
}

void RemoteConnectionDialog::clearLog()
{
    logModel->clear();
}

void RemoteConnectionDialog::addEmptyLogRow()
{
    logModel->addEmptyEntry();
}

int RemoteConnectionDialog::remoteToolsValue() const
{
    return toolsSessionType;
}

void RemoteConnectionDialog::setRatio(float newRatio)
{
    newRatio = usableRatio(newRatio);
    if (newRatio == 1.0F)
        return;
    ratio *= newRatio;
    storeAnchor();
    const QPoint topLeft = topLeftAtRatio(newRatio);
    for (QObject* part : children()) {
        if (part->isWidgetType())
            scaleSizeLimits(static_cast<QWidget*>(part), newRatio);
    }
    fitPathsToWindow();
    if (anchor.isNull())
        move(topLeft);
    else
        returnToAnchor();
}

void RemoteConnectionDialog::setVisible(bool visible)
{
    if (visible)
        moveToCorner();
    BaseDialog::setVisible(visible);
}

void RemoteConnectionDialog::accept() { }

void RemoteConnectionDialog::reject() { }

void RemoteConnectionDialog::slUpdateTime()
{
    for (TakeoverPanel* panel : qAsConst(panels))
        panel->updateElapsedTime();
    const qint64 elapsed = toolsStartTime.msecsTo(QDateTime::currentDateTimeUtc());
    if (elapsed > 0)
        ui->timeElapsedFileTransfer->setText(elapsedTimeText(elapsed));
}

void RemoteConnectionDialog::on_closeButton_clicked()
{
    hide();
}

void RemoteConnectionDialog::onFileTransferPanelExpand(bool expanded)
{
    setPartVisible(ui->fileTransferInfo, expanded);
}

void RemoteConnectionDialog::on_btnCloseRemoteToolsPopup_clicked()
{
    closeToolsPopup();
}

void RemoteConnectionDialog::on_btnEndRemoteToolsSession_clicked()
{
    showToolsButtons(false, true);
    Q_EMIT dialogEvent(this, evEndRemoteToolsSession, QString(toolsSessionId));
}

void RemoteConnectionDialog::onAvailableGeometryChanged(QRect)
{
    moveToCorner();
}

void RemoteConnectionDialog::onEndRemoteControlSession()
{
    endRemoteControlSession(sessionIdOf(sender()));
}

void RemoteConnectionDialog::onCloseRemoteControlPopup()
{
    removePanel(sessionIdOf(sender()));
}

void RemoteConnectionDialog::setupWindow()
{
    BaseDialog::setupWindow();
    setWindowFlag(Qt::WindowStaysOnTopHint);
}

TakeoverPanel* RemoteConnectionDialog::createPanel(const QString& sessionId)
{
    auto* panel = new TakeoverPanel(this);
    panel->hide();
    panel->setProperty(sessionIdProperty, sessionId);
    scaleSizeLimits(panel, ratio);
    connect(panel, &TakeoverPanel::endRemoteControlSession, this, &RemoteConnectionDialog::onEndRemoteControlSession);
    connect(panel, &TakeoverPanel::closeRemoteControlPopup, this, &RemoteConnectionDialog::onCloseRemoteControlPopup);
    ui->verticalLayout->insertWidget(1, panel);
    panels.insert(sessionId, panel);
    return panel;
}

void RemoteConnectionDialog::removePanel(const QString& sessionId)
{
    const QString id = sessionId;
    if (TakeoverPanel* const panel = panels.take(id)) {
        storeAnchor();
        ui->verticalLayout->removeWidget(panel);
        panel->setParent(nullptr);
        // Later, as the click that removes it comes from one of its own buttons.
        panel->deleteLater();
        if (panels.isEmpty())
            setToolsCloseEnabled(true);
        updateClockTimer();
        returnToAnchor();
    }
    hideIfEmpty();
    Q_EMIT dialogEvent(this, evRemoteControlPopupClosed, id);
}

bool RemoteConnectionDialog::isToolsSessionRunning() const
{
    return !toolsStartTime.isNull();
}

void RemoteConnectionDialog::closeToolsPopup()
{
    toolsPopupShown = false;
    setPartVisible(ui->fileTransportPanel, false);
    clearLog();
    hideIfEmpty();
    Q_EMIT dialogEvent(this, evRemoteToolsPopupClosed, QString(toolsSessionId));
}

void RemoteConnectionDialog::showToolsButtons(bool end, bool close)
{
    ui->btnEndRemoteToolsSession->setVisible(end);
    ui->btnCloseRemoteToolsPopup->setVisible(close);
}

void RemoteConnectionDialog::setToolsCloseEnabled(bool enabled)
{
    ui->btnCloseRemoteToolsPopup->setEnabled(enabled);
    // The button's own style sheet has one colour for both states.
    ui->btnCloseRemoteToolsPopup->graphicsEffect()->setEnabled(!enabled);
}

void RemoteConnectionDialog::announceStart(const QString& sessionName)
{
    //: Spoken by screen readers; %1 is a person's name and the kind of session
    announce(this, tr("Session started: %1").arg(sessionName));
}

void RemoteConnectionDialog::announceEnd(const QString& sessionName)
{
    //: Spoken by screen readers; %1 is a person's name and the kind of session
    announce(this, tr("Session ended: %1").arg(sessionName));
}

void RemoteConnectionDialog::showForSession()
{
    if (isHidden())
        show();
}

void RemoteConnectionDialog::hideIfEmpty()
{
    if (panels.isEmpty() && !toolsPopupShown)
        hide();
}

void RemoteConnectionDialog::updateClockTimer()
{
    const bool running = isToolsSessionRunning()
        || std::any_of(panels.cbegin(), panels.cend(), [](const TakeoverPanel* panel) { return panel->isRunning(); });
    if (!running)
        updateTimer.stop();
    else if (!updateTimer.isActive())
        updateTimer.start();
}

void RemoteConnectionDialog::fitPathsToWindow()
{
    fitSize();
    ui->logsListView->ensurePolished();
    logModel->setPathDisplay(ui->logsListView->font(), qMax(width() / 3, 178));
}

void RemoteConnectionDialog::setPartVisible(QWidget* part, bool visible)
{
    storeAnchor();
    // With the next turn of the event loop, when the layout knows of all that this turn changes.
    QTimer::singleShot(0, this, [this, part = QPointer<QWidget>(part), visible] {
        if (part && isAncestorOf(part))
            part->setVisible(visible);
        returnToAnchor();
    });
}

void RemoteConnectionDialog::fitSize()
{
    ensurePolished();
    // The window's layout hears by itself only with the next turn what has changed inside a part.
    ui->fileTransportPanel->updateGeometry();
    layout()->activate();
    resize(layout()->sizeHint());
}

void RemoteConnectionDialog::storeAnchor()
{
    if (!anchor.isNull())
        anchor = pos() + QPoint(width(), height());
}

void RemoteConnectionDialog::returnToAnchor()
{
    fitSize();
    if (anchor.isNull())
        return;
    move(anchor - QPoint(width(), height()));
    if (!isOnAnyScreen(geometry()))
        moveToCorner();
}

void RemoteConnectionDialog::moveToCorner()
{
    fitSize();
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    move(area.x() + area.width() - width(), area.y() + area.height() - height());
    anchor = pos() + QPoint(width(), height());
}

void RemoteConnectionDialog::followPrimaryScreen(QScreen* screen)
{
    disconnect(workAreaConnection);
    if (!screen)
        return;
    workAreaConnection =
        connect(screen, &QScreen::availableGeometryChanged, this, &RemoteConnectionDialog::onAvailableGeometryChanged);
    if (!anchor.isNull())
        moveToCorner();
}
