#include "ProgressDialog.h"

#include "ui_ProgressDialog.h"

#include <QPixmap>
#include <QPointer>
#include <QTimer>

#include <limits>

namespace {
constexpr int frameMsecs = 200;
constexpr int waiterStep = 10;
const char* const waiterValue = "waiter_current_value";

/// The time for a tenth of @p seconds as a timer takes it. NaN counts as zero.
int tenthInMsecs(float seconds)
{
    constexpr int longest = std::numeric_limits<int>::max();
    const float msecs = seconds * 100.0F;
    if (!(msecs > 0.0F))
        return 0;
    return msecs < static_cast<float>(longest) ? static_cast<int>(msecs) : longest;
}
} // namespace

int ProgressDialog::nextFrame = 0;

ProgressDialog::ProgressDialog(const QString& message, QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::ProgressDialog>()), animationTimer(new QTimer(this)),
      waiterTimer(new QTimer(this))
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, nullptr, QString());
    ui->btnMessageInnerButton->setEnabled(false);

    connect(ui->btnMessageInnerButton, &QPushButton::clicked, this, &ProgressDialog::accept);
    connect(ui->btnCancel, &QPushButton::clicked, this, &ProgressDialog::slCancel);
    connect(ui->btnClose, &QPushButton::clicked, this, &ProgressDialog::slCancel);
    connect(this, &ProgressDialog::progressChanged, this, &ProgressDialog::showProgress);
    ui->lblMessage->setText(message);

    for (int i = 0; i < frameCount; ++i)
        framePaths[static_cast<size_t>(i)] = QStringLiteral(":/images/progress bar/%1.png").arg(i + 1);
    connect(animationTimer, &QTimer::timeout, this, &ProgressDialog::updateProgressAnimation);
    animationTimer->start(frameMsecs);
    connect(waiterTimer, &QTimer::timeout, this, &ProgressDialog::slWaiterTimer);
}

ProgressDialog::~ProgressDialog() = default;

QString ProgressDialog::getMessage() const
{
    return ui->lblMessage->text();
}

void ProgressDialog::setMessage(const QString& text)
{
    ui->lblMessage->setText(text);
}

void ProgressDialog::setProgress(unsigned int value, unsigned int total)
{
    const quint32 onePercent = total / 100;
    if (onePercent == 0)
        return;
    const quint32 newProgress = value / onePercent;
    if (newProgress == progress)
        return;
    progress = newProgress;
    Q_EMIT progressChanged();
}

int ProgressDialog::getProgress() const
{
    return static_cast<int>(progress);
}

void ProgressDialog::startWaiter(float seconds)
{
    waiterTimer->setProperty(waiterValue, 0);
    waiterTimer->start(tenthInMsecs(seconds));
}

void ProgressDialog::hideProgressValue()
{
    ui->lblProgress->setVisible(false);
}

void ProgressDialog::showProgress()
{
    ui->lblProgress->setPercent(getProgress());
}

void ProgressDialog::slCancel()
{
    Q_EMIT dialogEvent(this, evCancel);
}

void ProgressDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void ProgressDialog::updateProgressAnimation()
{
    if (nextFrame >= frameCount)
        nextFrame = 0;
    const auto frame = static_cast<size_t>(nextFrame);
    QImage& picture = (*framePictures)[frame];
    if (picture.isNull())
        picture.load(framePaths[frame]);
    ui->messageIcon->setPixmap(QPixmap::fromImage(picture));
    ++nextFrame;
}

void ProgressDialog::slWaiterTimer()
{
    const QPointer<QTimer> timer = qobject_cast<QTimer*>(sender());
    if (!timer)
        return;
    const int value = timer->property(waiterValue).toInt();
    setProgress(static_cast<unsigned int>(value), 100);
    // A slot of progressChanged() may have called startWaiter() again, or run a loop in which the dialog was deleted.
    if (!timer || timer->property(waiterValue).toInt() != value)
        return;
    const int nextValue = value + waiterStep;
    if (nextValue > 100) {
        timer->stop();
        Q_EMIT sigWaiterComplete();
    } else {
        timer->setProperty(waiterValue, nextValue);
    }
}

void ProgressDialog::accept() { }

void ProgressDialog::reject()
{
    slClose();
}

std::shared_ptr<ProgressDialog::FramePictures> ProgressDialog::sharedFramePictures()
{
    // Shared by all dialogs and freed with the last one: pictures must not outlive the application.
    static std::weak_ptr<FramePictures> pictures;
    std::shared_ptr<FramePictures> shared = pictures.lock();
    if (!shared)
        pictures = shared = std::make_shared<FramePictures>();
    return shared;
}
