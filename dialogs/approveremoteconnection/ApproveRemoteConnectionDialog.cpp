#include "ApproveRemoteConnectionDialog.h"

#include "Announcement.h"
#include "DisplayText.h"
#include "ui_ApproveRemoteConnectionDialog.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <limits>

namespace {
const QLatin1String titleSeparator(" - ");
constexpr int cascadeStep = 32;

QString sessionText(int sessionType)
{
    switch (sessionType) {
    case 0:
    case 2:
        //: Kind of remote session in a window title, after the name of the person who asks for it
        return ApproveRemoteConnectionDialog::tr("Remote control");
    case 1:
        //: Kind of remote session in a window title, after the name of the person who asks for it
        return ApproveRemoteConnectionDialog::tr("Remote tools");
    case 3:
        //: Kind of remote session in a window title, after the name of the person who asks for it
        return ApproveRemoteConnectionDialog::tr("Remote access");
    default:
        return QString();
    }
}

bool isTaken(const QPoint& place, const QWidget* self)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [&](const QWidget* window) {
        const QPoint distance = window->pos() - place;
        return window != self && window->isVisible() && qobject_cast<const ApproveRemoteConnectionDialog*>(window)
            && qMax(qAbs(distance.x()), qAbs(distance.y())) < cascadeStep;
    });
}
} // namespace

ApproveRemoteConnectionDialog::ApproveRemoteConnectionDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::ApproveRemoteConnectionDialog>())
{
    ui->setupUi(this);
    // Unlike the frameless dialogs the prompt shows its own background.
    setAttribute(Qt::WA_TranslucentBackground, false);
    setAttribute(Qt::WA_NoSystemBackground, false);
    ApproveRemoteConnectionDialog::setupWindow();
    ui->cancelButton->setFocus();

    countdownTimer.setInterval(1000);
    connect(&countdownTimer, &QTimer::timeout, this, &ApproveRemoteConnectionDialog::slCountdownTimerTick);
}

ApproveRemoteConnectionDialog::~ApproveRemoteConnectionDialog() = default;

qint64 ApproveRemoteConnectionDialog::getCountdown() const
{
    return countdown;
}

void ApproveRemoteConnectionDialog::setCountdown(qint64 seconds)
{
    countdown = seconds;
}

QString ApproveRemoteConnectionDialog::getRequesterName() const
{
    return requesterName;
}

void ApproveRemoteConnectionDialog::setRequesterName(const QString& name)
{
    requesterName = name;
    setTitleParts(windowTitle().split(titleSeparator).constLast());
}

void ApproveRemoteConnectionDialog::setCountdownOnCancel(int flag)
{
    countdownOnCancel = flag;
}

int ApproveRemoteConnectionDialog::getCountdownOnCancel() const
{
    return countdownOnCancel;
}

void ApproveRemoteConnectionDialog::setContextValue(int value)
{
    contextValue = value;
}

int ApproveRemoteConnectionDialog::getContextValue() const
{
    return contextValue;
}

void ApproveRemoteConnectionDialog::setSessionType(int type)
{
    sessionType = type;
    setTitleParts(sessionText(type));
}

int ApproveRemoteConnectionDialog::getSessionType() const
{
    return sessionType;
}

void ApproveRemoteConnectionDialog::setMessage(const QString& text, bool translate)
{
    message = translate ? QCoreApplication::translate("ControllerConsts", text.toLocal8Bit().constData()) : text;
    showPlainText(ui->messageTextEdit, linesWithVisibleControls(message));
}

const QString& ApproveRemoteConnectionDialog::getMessage() const
{
    return message;
}

void ApproveRemoteConnectionDialog::setAuxText1(const QString& text)
{
    auxText1 = text;
}

const QString& ApproveRemoteConnectionDialog::getAuxText1() const
{
    return auxText1;
}

void ApproveRemoteConnectionDialog::setAuxText2(const QString& text)
{
    auxText2 = text;
}

const QString& ApproveRemoteConnectionDialog::getAuxText2() const
{
    return auxText2;
}

void ApproveRemoteConnectionDialog::setConnectionId(const QString& id)
{
    connectionId = id;
}

const QString& ApproveRemoteConnectionDialog::getConnectionId() const
{
    return connectionId;
}

void ApproveRemoteConnectionDialog::setRatio(float ratio)
{
    ratio = usableRatio(ratio);
    if (ratio == 1.0F)
        return;
    const QPoint topLeft = topLeftAtRatio(ratio);
    scaleSizeLimits(this, ratio);
    move(topLeft);
}

void ApproveRemoteConnectionDialog::setVisible(bool visible)
{
    const bool appears = visible && !isVisible();
    if (!visible)
        countdownTimer.stop();
    if (appears)
        moveOffOtherPrompts();
    BaseDialog::setVisible(visible);
    // Screen readers follow the focus, which the prompt does not take.
    if (appears)
        announce(this,
                 withVisibleControls(requesterName) + titleSeparator + sessionText(sessionType) + QLatin1String(". ")
                     + ui->messageTextEdit->toPlainText());
    if (!visible)
        return;

    const QPointer<ApproveRemoteConnectionDialog> self(this);
    refreshCountdown();
    // Started even when the time is over: hosts get evTimeout once more a second later.
    if (self)
        countdownTimer.start();
}

void ApproveRemoteConnectionDialog::accept() { }

void ApproveRemoteConnectionDialog::reject() { }

void ApproveRemoteConnectionDialog::slCountdownTimerTick()
{
    if (countdown > std::numeric_limits<qint64>::min())
        --countdown;
    refreshCountdown();
}

void ApproveRemoteConnectionDialog::on_allowButton_clicked()
{
    countdownTimer.stop();
    Q_EMIT dialogEvent(this, evAllow);
}

void ApproveRemoteConnectionDialog::on_cancelButton_clicked()
{
    countdownTimer.stop();
    Q_EMIT dialogEvent(this, evCancel);
}

void ApproveRemoteConnectionDialog::setupWindow()
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
}

void ApproveRemoteConnectionDialog::refreshCountdown()
{
    if (countdown <= 0) {
        countdownTimer.stop();
        Q_EMIT dialogEvent(this, evTimeout);
        return;
    }
    (countdownOnCancel != 0 ? ui->cancelButton : ui->allowButton)->setSecondsLeft(countdown);
}

void ApproveRemoteConnectionDialog::setTitleParts(const QString& session)
{
    setWindowTitle(literalWindowTitle(withVisibleControls(requesterName)) + titleSeparator + session);
}

void ApproveRemoteConnectionDialog::moveOffOtherPrompts()
{
    // Each further prompt stands a title bar's height below and right of the one before, so that every name stays
    // readable; past an edge of the screen the cascade goes on at the opposite one.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int columns = qMax(1, (screen.width() - frameSize().width()) / cascadeStep);
    const int rows = qMax(1, (screen.height() - frameSize().height()) / cascadeStep);
    const QPoint start = pos() - screen.topLeft();
    QPoint place = pos();
    for (int i = 1; i < columns * rows && isTaken(place, this); ++i) {
        const QPoint next = start + QPoint(i, i) * cascadeStep;
        place = screen.topLeft() + QPoint(next.x() % (columns * cascadeStep), next.y() % (rows * cascadeStep));
    }
    move(place);
}
