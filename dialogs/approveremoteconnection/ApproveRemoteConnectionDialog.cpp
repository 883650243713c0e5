#include "ApproveRemoteConnectionDialog.h"

#include "Announcement.h"
#include "DisplayText.h"
#include "ui_ApproveRemoteConnectionDialog.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <limits>
#include <utility>

namespace {
const QLatin1String titleSeparator(" - ");

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

/// @p value modulo @p divisor, never negative.
int wrapped(int value, int divisor)
{
    return (value % divisor + divisor) % divisor;
}
} // namespace

ApproveRemoteConnectionDialog::ApproveRemoteConnectionDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::ApproveRemoteConnectionDialog>())
{
    ui->setupUi(this);
    // Unlike the frameless dialogs the prompt shows its own background.
    setAttribute(Qt::WA_TranslucentBackground, false);
    setAttribute(Qt::WA_NoSystemBackground, false);
    // The person goes on typing where they are, and does not answer a question that they have not read.
    setAttribute(Qt::WA_ShowWithoutActivating);
    ApproveRemoteConnectionDialog::setupWindow();

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

int ApproveRemoteConnectionDialog::exec()
{
    const QPointer<ApproveRemoteConnectionDialog> self(this);
    isEnteringExec = true;
    const int result = BaseDialog::exec();
    // Still set when the prompt runs in another exec() already.
    if (self)
        isEnteringExec = false;
    return result;
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

    // QDialog::exec() shows the prompt before it enters its event loop. A slot of evTimeout that hid or deleted the
    // prompt at that moment would leave the loop without an end, or without its dialog.
    if (std::exchange(isEnteringExec, false) && countdown <= 0)
        QTimer::singleShot(0, this, &ApproveRemoteConnectionDialog::startCountdown);
    else
        startCountdown();
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

QWidget* ApproveRemoteConnectionDialog::startWidget()
{
    return ui->cancelButton;
}

void ApproveRemoteConnectionDialog::startCountdown()
{
    const QPointer<ApproveRemoteConnectionDialog> self(this);
    refreshCountdown();
    // Started even when the time is over: hosts get evTimeout once more a second later.
    if (self)
        countdownTimer.start();
}

void ApproveRemoteConnectionDialog::refreshCountdown()
{
    if (countdown <= 0) {
        countdownTimer.stop();
        Q_EMIT dialogEvent(this, evTimeout);
        return;
    }
    CountdownButton* button = countdownOnCancel != 0 ? ui->cancelButton : ui->allowButton;
    button->setSecondsLeft(countdown);
    const qint64 seconds = qMin<qint64>(countdown, std::numeric_limits<int>::max());
    // For screen readers. A change of the accessible description they would speak each second, if the button has the
    // focus; of a new tool tip, which they take for the description, they are not told.
    button->setToolTip(tr("%n second(s) left to answer", nullptr, static_cast<int>(seconds)));
}

void ApproveRemoteConnectionDialog::setTitleParts(const QString& session)
{
    setWindowTitle(literalWindowTitle(withVisibleControls(requesterName)) + titleSeparator + session);
}

void ApproveRemoteConnectionDialog::moveOffOtherPrompts()
{
    QVector<QPoint> others;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window != this && window->isVisible() && qobject_cast<const ApproveRemoteConnectionDialog*>(window))
            others << window->pos();
    }

    // A step leaves the title bar beneath in sight and is as high as a button. Where two prompts stand side by side,
    // the new one is further left, or so far right that its Allow does not cover the other one's Cancel.
    const int step = qMax(1, ui->cancelButton->minimumHeight());
    const auto isFree = [&](const QPoint& place) {
        return std::none_of(others.cbegin(), others.cend(), [&](const QPoint& other) {
            const QPoint offset = place - other;
            return qAbs(offset.y()) < step && offset.x() > -step && offset.x() < width() / 2;
        });
    };
    // Scaled about its centre, the prompt may have its title bar above a small screen.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(qMax(x(), screen.left()), qMax(y(), screen.top()));
    if (isFree(pos()))
        return;

    // Each further prompt stands a step below and right of the one before. Past an edge of the screen the cascade goes
    // on at the opposite one; when it has been through all rows, it starts again one step to the left. One row is left
    // out for the frame, which is not known before the first show.
    const int columns = qMax(1, (screen.width() - width()) / step);
    const int rows = qMax(1, (screen.height() - height()) / step - 1);
    const QPoint start = pos() - screen.topLeft();
    for (int i = 1; i < columns * rows; ++i) {
        const int row = i % rows;
        const int column = row - i / rows;
        const QPoint place(wrapped(start.x() + column * step, columns * step),
                           wrapped(start.y() + row * step, rows * step));
        if (isFree(screen.topLeft() + place)) {
            move(screen.topLeft() + place);
            return;
        }
    }
    // No place is left. At the left edge Allow covers no Cancel.
    move(screen.left(), y());
}
