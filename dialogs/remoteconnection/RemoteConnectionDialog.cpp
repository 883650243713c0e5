#include "RemoteConnectionDialog.h"

#include "ActivityKeys.h"
#include "Announcement.h"
#include "DisplayText.h"
#include "ElapsedTime.h"
#include "LogsListModel.h"
#include "PlainToolTip.h"
#include "RichTextDelegate.h"
#include "Scaling.h"
#include "TakeoverPanel.h"
#include "WindowCorner.h"
#include "ui_RemoteConnectionDialog.h"

#include <QGraphicsOpacityEffect>

#include <algorithm>
#include <utility>

namespace {
const char sessionIdProperty[] = "P_SID";

QString sessionIdOf(const QObject* panel)
{
    return panel ? panel->property(sessionIdProperty).toString() : QString();
}
} // namespace

RemoteConnectionDialog::RemoteConnectionDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::RemoteConnectionDialog>()), logModel(new LogsListModel(this)),
      logDelegate(new RichTextDelegate(this))
{
    ui->setupUi(this);
    corner = new WindowCorner(this, ui->header);
    // Screen readers take the tool tip for the description where there is none, and would say the name twice.
    ui->closeButton->setAccessibleDescription(QStringLiteral(" "));
    RemoteConnectionDialog::setupWindow();
    // A remote person's arrival must not take the keyboard from what somebody is typing.
    setAttribute(Qt::WA_ShowWithoutActivating);
    // The window is hardly ever the active one.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    // The focus starts on the window itself and goes back there, so that no key presses a button by accident.
    setFocusPolicy(Qt::ClickFocus);

    ui->logsListView->setModel(logModel);
    ui->logsListView->setItemDelegate(logDelegate);
    // The scroll bar has cached the look that the frames around it give it, before the form set the list's style sheet.
    ui->logsListView->ensurePolished();
    ui->logsListView->setStyleSheet(ui->logsListView->styleSheet());
    usePlainToolTip(ui->closeButton);
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
    connect(corner, &WindowCorner::workAreaChanged, this, &RemoteConnectionDialog::onAvailableGeometryChanged);
    layOutNow();
    fitLogToWindow();
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
    // Copy: a slot may destroy the string that sessionId refers to.
    const QString id = sessionId;
    const QPointer<RemoteConnectionDialog> self(this);
    TakeoverPanel* const panel = panels.value(id);
    if (panel && panel->isRunning())
        announceEnd(panel->sessionName());
    const bool hasChanged = panel && (!keepPanels || panel->isRunning());
    if (panel)
        setToolsCloseEnabled(true);
    if (!keepPanels)
        removePanel(id);
    else if (panel)
        showAsEnded(panel);
    if (!self)
        return;
    hideIfEmpty();
    report(evRemoteControlSessionEnded, id, hasChanged);
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
    toolsUserName = userName;
    ui->toolSessionTypeLabel->setText(sessionType == 1 ? tr("File Transfer Session") : tr("Remote Tool Session"));
    showToolsUserName();
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
        announceStart(toolsSessionName());
}

void RemoteConnectionDialog::endRemoteToolsSession(const QString& sessionId)
{
    const QString id = sessionId;
    const QPointer<RemoteConnectionDialog> self(this);
    // End the session first: a slot may start the next one when it is told that the area has closed.
    const bool wasRunning = isToolsSessionRunning();
    if (wasRunning)
        announceEnd(toolsSessionName());
    toolsStartTime = QDateTime();
    showToolsButtons(false, true);
    updateClockTimer();
    if (!keepToolsPopup)
        closeToolsPopup();
    if (self && wasRunning)
        report(evRemoteToolsSessionEnded, id, true);
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

void RemoteConnectionDialog::scaleBy(float newRatio)
{
    const QPoint topLeft = topLeftAtRatio(newRatio);
    for (QWidget* part : {static_cast<QWidget*>(ui->header), static_cast<QWidget*>(ui->fileTransportPanel)})
        scalePixels(part, newRatio, fullRatio());
    // An icon is never drawn larger than its picture.
    QPixmap cross(QStringLiteral(":/images/close_status_window@2x.png"));
    cross.setDevicePixelRatio(1);
    ui->closeButton->setIcon(cross.scaled(ui->closeButton->iconSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    for (TakeoverPanel* panel : qAsConst(panels))
        panel->scaleBy(newRatio, fullRatio());
    showToolsUserName();
    logDelegate->setRatio(fullRatio());
    if (!corner->isSet())
        move(topLeft);
    corner->resize(fittingSize());
    fitLogToWindow();
}

void RemoteConnectionDialog::moveIntoReach() { }

void RemoteConnectionDialog::setVisible(bool visible)
{
    if (visible) {
        showAndHideParts();
        corner->moveToScreen(fittingSize());
    }
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
    report(evEndRemoteToolsSession, toolsSessionId, true);
}

void RemoteConnectionDialog::onAvailableGeometryChanged(QRect)
{
    if (corner->isSet())
        corner->moveToScreen(fittingSize());
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
    panel->scaleBy(fullRatio(), fullRatio());
    connect(panel, &TakeoverPanel::endRemoteControlSession, this, &RemoteConnectionDialog::onEndRemoteControlSession);
    connect(panel, &TakeoverPanel::closeRemoteControlPopup, this, &RemoteConnectionDialog::onCloseRemoteControlPopup);
    ui->verticalLayout->insertWidget(1, panel);
    panel->setTabOrderAfter(ui->closeButton);
    panels.insert(sessionId, panel);
    return panel;
}

void RemoteConnectionDialog::showAsEnded(TakeoverPanel* panel)
{
    panel->setEndButtonVisible(false);
    panel->setCloseButtonVisible(true);
    panel->setStartTime(QDateTime(), true);
    updateClockTimer();
}

void RemoteConnectionDialog::removePanel(const QString& sessionId)
{
    const QString id = sessionId;
    TakeoverPanel* const panel = panels.take(id);
    if (panel) {
        takeFocusFrom(panel);
        ui->verticalLayout->removeWidget(panel);
        panel->setParent(nullptr);
        // Later, as the click that removes it comes from one of its own buttons.
        panel->deleteLater();
        if (panels.isEmpty())
            setToolsCloseEnabled(true);
        updateClockTimer();
        scheduleLayout();
    }
    hideIfEmpty();
    report(evRemoteControlPopupClosed, id, panel);
}

bool RemoteConnectionDialog::isToolsSessionRunning() const
{
    return !toolsStartTime.isNull();
}

void RemoteConnectionDialog::showToolsUserName()
{
    showUserName(ui->usernameFileTransfer, toolsUserName);
    const QString title = ui->toolSessionTypeLabel->text();
    nameSessionButton(ui->btnEndRemoteToolsSession, tr("End session", "in full"), title, toolsUserName);
    nameSessionButton(ui->btnCloseRemoteToolsPopup, ui->btnCloseRemoteToolsPopup->text(), title, toolsUserName);
}

void RemoteConnectionDialog::closeToolsPopup()
{
    const bool wasShown = toolsPopupShown;
    toolsPopupShown = false;
    setPartVisible(ui->fileTransportPanel, false);
    clearLog();
    hideIfEmpty();
    report(evRemoteToolsPopupClosed, toolsSessionId, wasShown);
}

void RemoteConnectionDialog::showToolsButtons(bool end, bool close)
{
    if (!end)
        takeFocusFrom(ui->btnEndRemoteToolsSession);
    if (!close)
        takeFocusFrom(ui->btnCloseRemoteToolsPopup);
    ui->btnEndRemoteToolsSession->setVisible(end);
    ui->btnCloseRemoteToolsPopup->setVisible(close);
}

void RemoteConnectionDialog::setToolsCloseEnabled(bool enabled)
{
    if (!enabled)
        takeFocusFrom(ui->btnCloseRemoteToolsPopup);
    ui->btnCloseRemoteToolsPopup->setEnabled(enabled);
    // The button's own style sheet has one colour for both states.
    ui->btnCloseRemoteToolsPopup->graphicsEffect()->setEnabled(!enabled);
}

QString RemoteConnectionDialog::toolsSessionName() const
{
    return withVisibleControls(toolsUserName) + QLatin1String(", ") + ui->toolSessionTypeLabel->text();
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
    // Restoring would activate it on some systems. Not hide(), which would end an exec().
    if (isMinimized())
        QWidget::setVisible(false);
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

void RemoteConnectionDialog::report(TEvent event, const QString& sessionId, bool hasChanged)
{
    const auto reported = qMakePair(event, sessionId);
    // A slot may call the very operation that it is being told of.
    if (!hasChanged && eventsBeingEmitted.contains(reported))
        return;
    const QPointer<RemoteConnectionDialog> self(this);
    eventsBeingEmitted.append(reported);
    Q_EMIT dialogEvent(this, reported.first, reported.second);
    if (self)
        eventsBeingEmitted.removeOne(reported);
}

void RemoteConnectionDialog::setPartVisible(QWidget* part, bool visible)
{
    partsToChange.append(qMakePair(QPointer<QWidget>(part), visible));
    scheduleLayout();
}

void RemoteConnectionDialog::scheduleLayout()
{
    // Deferred, so that several changes cause one layout.
    if (!std::exchange(isLayoutScheduled, true))
        QTimer::singleShot(0, this, &RemoteConnectionDialog::layOutNow);
}

void RemoteConnectionDialog::layOutNow()
{
    isLayoutScheduled = false;
    showAndHideParts();
    corner->resize(fittingSize());
}

void RemoteConnectionDialog::showAndHideParts()
{
    // Each part that appears would activate the layout.
    layout()->setEnabled(false);
    for (const auto& change : std::exchange(partsToChange, {})) {
        QWidget* const part = change.first;
        if (!part || !isAncestorOf(part))
            continue;
        if (!change.second)
            takeFocusFrom(part);
        part->setVisible(change.second);
    }
    layout()->setEnabled(true);
}

QSize RemoteConnectionDialog::fittingSize()
{
    ensurePolished();
    // The window's layout hears by itself only with the next turn what has changed inside a part.
    ui->fileTransportPanel->updateGeometry();
    layout()->invalidate();
    layout()->activate();
    return layout()->sizeHint();
}

void RemoteConnectionDialog::fitLogToWindow()
{
    ui->logsListView->ensurePolished();
    const QMargins margins = ui->logsListLayout->contentsMargins();
    const int listWidth = width() - margins.left() - margins.right();
    // Part of every path stays legible, however narrow the window.
    const int pathWidth = qMax(width() / 3, qRound(178 * fullRatio()));
    logModel->setRowDisplay(ui->logsListView->font(), ui->logsListView->textWidth(listWidth), pathWidth);
}
