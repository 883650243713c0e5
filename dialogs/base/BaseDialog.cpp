#include "BaseDialog.h"

#include "AccessibleFactory.h"
#include "BrandingStrings.h"
#include "DisplayText.h"
#include "TextAccessible.h"

#include <QCloseEvent>
#include <QFont>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QScreen>

#include <cmath>

// Initialised while the library is being loaded, which is also when the branding file is read.
const QString captionPrefix = QLatin1Char(' ') + brandingStrings().agentName;
const QString productPrefix = QLatin1Char(' ') + brandingStrings().productFullName;

namespace {
// No desktop is larger, and a window larger than this could not get its backing store.
constexpr int longestSide = 8192;

int truncated(float value)
{
    return static_cast<int>(qBound<float>(-QWIDGETSIZE_MAX, value, QWIDGETSIZE_MAX));
}

QPoint scaled(const QPoint& position, float ratio)
{
    return {truncated(position.x() * ratio), truncated(position.y() * ratio)};
}

QSize scaled(const QSize& size, float ratio)
{
    return {truncated(size.width() * ratio), truncated(size.height() * ratio)};
}
} // namespace

BaseDialog::BaseDialog(QWidget* parent) : QDialog(parent)
{
    // One type face and size wherever a form does not name its own, whatever the desktop's settings.
    // No QStringLiteral: Qt's font cache keeps the name, which must not lie in a library that a host may unload.
    setFont(QFont(QLatin1String("Arial"), 9));
    BaseDialog::setupWindow();
    installAccessible<DialogAccessible, BaseDialog>();
    installAccessible<LabelAccessible, QLabel>();
}

void BaseDialog::setModal(bool modal)
{
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
}

void BaseDialog::show()
{
    QDialog::show();
}

void BaseDialog::hide()
{
    QDialog::hide();
}

void BaseDialog::done(int result)
{
    QDialog::done(result);
}

int BaseDialog::exec()
{
    return QDialog::exec();
}

void BaseDialog::setRatio(float ratio)
{
    ratio = usableRatio(ratio);
    if (ratio == 1.0F)
        return;

    const QList<QWidget*> children = findChildren<QWidget*>();
    move(topLeftAtRatio(ratio));
    resize(scaled(size(), ratio));
    for (QWidget* child : children) {
        child->resize(scaled(child->size(), ratio));
        child->move(scaled(child->pos(), ratio));
    }
}

void BaseDialog::mousePressEvent(QMouseEvent* event)
{
    dragPosition = event->pos();
}

void BaseDialog::mouseReleaseEvent(QMouseEvent*)
{
    dragPosition = QPoint();
}

void BaseDialog::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragPosition.isNull())
        move(event->globalPos() - dragPosition);
}

void BaseDialog::keyPressEvent(QKeyEvent* event)
{
    // Every other key, Escape included, is swallowed: only a dialog's own buttons and the host close it.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accept();
}

void BaseDialog::closeEvent(QCloseEvent* event)
{
    // A refused close request would cancel the person's logoff or shutdown.
    if (qGuiApp->isSavingSession())
        event->accept();
    else
        QDialog::closeEvent(event);
}

void BaseDialog::setupWindow()
{
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    moveToScreenCenter();
}

void BaseDialog::moveToScreenCenter()
{
    QRect frame = frameGeometry();
    frame.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    move(frame.topLeft());
}

void BaseDialog::setCaption(QLabel* prefixLabel, QLabel* titleLabel, const QString& title)
{
    prefixLabel->setTextFormat(Qt::PlainText);
    prefixLabel->setText(captionPrefix);
    setTitle(title);
    if (titleLabel)
        titleLabel->setText(title);
}

void BaseDialog::setTitle(const QString& title)
{
    const QString caption = captionPrefix + QLatin1Char(' ') + title;
    setToolTip(literalToolTip(caption));
    setWindowTitle(literalWindowTitle(caption));
}

float BaseDialog::usableRatio(float ratio) const
{
    if (!std::isfinite(ratio) || ratio <= 0.0F)
        return 1.0F;
    const int longest = qMax(width(), height());
    return longest > 0 ? qMin(ratio, static_cast<float>(longestSide) / static_cast<float>(longest)) : ratio;
}

QPoint BaseDialog::topLeftAtRatio(float ratio) const
{
    const float growth = ratio - 1.0F;
    return {truncated(x() - width() * growth * 0.5F), truncated(y() - height() * growth * 0.5F)};
}

void BaseDialog::scaleSizeLimits(QWidget* root, float ratio)
{
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.append(root);
    for (QWidget* widget : qAsConst(widgets)) {
        const QSize maximum = widget->maximumSize();
        widget->setMinimumSize(scaled(widget->minimumSize(), ratio));
        widget->setMaximumSize(maximum.width() < QWIDGETSIZE_MAX ? truncated(maximum.width() * ratio) : QWIDGETSIZE_MAX,
                               maximum.height() < QWIDGETSIZE_MAX ? truncated(maximum.height() * ratio)
                                                                  : QWIDGETSIZE_MAX);
        if (QLayout* layout = widget->layout())
            layout->setContentsMargins(layout->contentsMargins() * ratio);
    }
}
