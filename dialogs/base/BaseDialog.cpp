#include "BaseDialog.h"

#include "AccessibleFactory.h"
#include "BrandingStrings.h"
#include "DisplayText.h"
#include "ElidedLabel.h"
#include "Scaling.h"
#include "TextAccessible.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QFont>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>
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

BaseDialog::~BaseDialog()
{
    keepShownModality();
}

void BaseDialog::setModal(bool modal)
{
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    if (isVisible())
        keepShownModality();
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
    // A window becomes modal only when it appears.
    if (isVisible() && shownModality == Qt::NonModal)
        QDialog::hide();
    return QDialog::exec();
}

void BaseDialog::setRatio(float ratio)
{
    if (!std::isfinite(ratio) || ratio <= 0.0F)
        return;
    const int longest = qMax(1, qMax(width(), height()));
    ratio = qMin(ratio, static_cast<float>(longestSide) / static_cast<float>(longest));
    if (ratio == 1.0F)
        return;
    scaledSoFar = qMin(scaledSoFar * ratio, static_cast<float>(longestSide));
    scaleBy(ratio);
}

void BaseDialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        // Not in the show event: on X11 Qt would not know where a window is that was moved there.
        moveIntoReach();
        shownModality = windowModality();
        // It may have been minimised when it was hidden.
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    keepShownModality();
    QDialog::setVisible(visible);
}

void BaseDialog::mousePressEvent(QMouseEvent* event)
{
    dragPosition = event->pos();
    // Some widgets pass a press on to the dialog and keep its release.
    qApp->installEventFilter(this);
}

void BaseDialog::mouseReleaseEvent(QMouseEvent*)
{
    dragPosition = QPoint();
}

void BaseDialog::mouseMoveEvent(QMouseEvent* event)
{
    // move() places the frame, where the window has one; the mouse is measured from within it.
    const QPoint frame = geometry().topLeft() - pos();
    if (!dragPosition.isNull())
        move(event->globalPos() - dragPosition - frame);
}

bool BaseDialog::eventFilter(QObject* watched, QEvent* event)
{
    // No release comes while another window is modal. Dragging then ends with the next press, before anything moves.
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonPress) {
        qApp->removeEventFilter(this);
        dragPosition = QPoint();
    }
    return QDialog::eventFilter(watched, event);
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

void BaseDialog::showEvent(QShowEvent* event)
{
    // Spontaneous events come from the window system, which restores what the person has minimised.
    if (!event->spontaneous())
        startAfresh();
    QDialog::showEvent(event);
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

void BaseDialog::showCaptionPrefix(QLabel* prefixLabel, const QLabel* titleLabel)
{
    prefixLabel->setTextFormat(Qt::PlainText);
    prefixLabel->setText(captionPrefix);
    captionName = qobject_cast<ElidedLabel*>(prefixLabel);
    if (captionName)
        captionName->keepOffTextOf(titleLabel);
    updateNameToolTip();
}

void BaseDialog::setCaption(QLabel* prefixLabel, QLabel* titleLabel, const QString& title)
{
    setTitle(title);
    if (titleLabel)
        titleLabel->setText(title);
    showCaptionPrefix(prefixLabel, titleLabel);
}

void BaseDialog::setTitle(const QString& title)
{
    const QString caption = captionPrefix + QLatin1Char(' ') + title;
    setToolTip(literalToolTip(caption));
    setWindowTitle(literalWindowTitle(caption));
}

void BaseDialog::scaleBy(float ratio)
{
    // New size limits and style sheets may move and resize widgets, so all places are computed before.
    const QPoint topLeft = topLeftAtRatio(ratio);
    const QSize newSize = scaled(size(), ratio);
    QVector<QPair<QWidget*, QRect>> places;
    const QList<QWidget*> children = findChildren<QWidget*>();
    for (QWidget* child : children)
        places.append(qMakePair(child, QRect(scaled(child->pos(), ratio), scaled(child->size(), ratio))));

    scalePixels(this, ratio, fullRatio());
    move(topLeft);
    resize(newSize);
    for (const auto& place : qAsConst(places)) {
        place.first->resize(place.second.size());
        place.first->move(place.second.topLeft());
    }
    updateNameToolTip();
}

float BaseDialog::fullRatio() const
{
    return scaledSoFar;
}

QPoint BaseDialog::topLeftAtRatio(float ratio) const
{
    const float growth = ratio - 1.0F;
    return {truncated(x() - width() * growth * 0.5F), truncated(y() - height() * growth * 0.5F)};
}

void BaseDialog::moveIntoReach()
{
    const QRect frame = frameGeometry();
    const QScreen* screen = QGuiApplication::screenAt(frame.center());
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    if (frame.width() > area.width() || frame.height() > area.height())
        move(qMax(frame.x(), area.x()), qMax(frame.y(), area.y()));
}

QWidget* BaseDialog::startWidget()
{
    return this;
}

QLineEdit* BaseDialog::firstEmpty(std::initializer_list<QLineEdit*> fields, QLineEdit* otherwise)
{
    const auto isEmpty = [](const QLineEdit* field) { return field->text().isEmpty(); };
    const auto* const first = std::find_if(fields.begin(), fields.end(), isEmpty);
    return first != fields.end() ? *first : otherwise;
}

void BaseDialog::updateNameToolTip()
{
    if (captionName)
        captionName->setToolTip(captionName->isElided() ? literalToolTip(captionPrefix.trimmed()) : QString());
}

void BaseDialog::keepShownModality()
{
    if (windowHandle())
        windowHandle()->setModality(shownModality);
}

void BaseDialog::startAfresh()
{
    dragPosition = QPoint();
    // In a window that is not active the focus moves without focus events, and the link used last would stay selected.
    QWidget* const last = focusWidget();
    if (last && !last->hasFocus()) {
        QFocusEvent focusOut(QEvent::FocusOut, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(last, &focusOut);
    }
    const auto buttons = findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->setDown(false);

    QWidget* start = startWidget();
    if (!start->isEnabled())
        start = this;
    start->setFocus(Qt::OtherFocusReason);
    if (auto* field = qobject_cast<QLineEdit*>(start))
        field->selectAll();
}
