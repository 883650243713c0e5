#pragma once

#include "BaseDialog.h"
#include "IProgressDialog.h"

#include <QImage>

#include <array>
#include <memory>

QT_BEGIN_NAMESPACE
class QTimer;
namespace Ui {
class ProgressDialog;
}
QT_END_NAMESPACE

class ProgressDialog final : public BaseDialog, public virtual IProgressDialog {
    Q_OBJECT

public:
    explicit ProgressDialog(const QString& message, QWidget* parent = nullptr);
    ~ProgressDialog() override;

    QString getMessage() const override;
    void setMessage(const QString& text) override;
    void setProgress(unsigned int value, unsigned int total) override;
    int getProgress() const override;
    void startWaiter(float seconds) override;
    void hideProgressValue() override;

Q_SIGNALS:
    void progressChanged();
    void cancelDownload();
    void sigWaiterComplete();
    void dialogEvent(IProgressDialog* pSender, IProgressDialog::TEvent eventType);

public Q_SLOTS:
    void showProgress();
    void slCancel();
    void slClose();
    void updateProgressAnimation();
    void slWaiterTimer();
    void accept() override;
    void reject() override;

private:
    static constexpr int frameCount = 24;
    /// Read from their files once, and kept with their palettes: as pixmaps they would take 25 megabytes, not 6.
    using FramePictures = std::array<QImage, frameCount>;

    static std::shared_ptr<FramePictures> sharedFramePictures();

    /// The frame to show next. All dialogs take turns: a second one continues where the first is.
    static int nextFrame;

    const std::unique_ptr<Ui::ProgressDialog> ui;
    quint32 progress = 0;
    std::array<QString, frameCount> framePaths;
    QTimer* const animationTimer;
    QTimer* const waiterTimer;
    const std::shared_ptr<FramePictures> framePictures = sharedFramePictures();
};
