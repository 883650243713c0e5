#include "WindowCorner.h"

#include <QEvent>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QWidget>

namespace {
/// How long a window system may take, in milliseconds, to report positions that were in force before a request.
constexpr int longestDelay = 1000;

QPoint toPoint(const QSize& size)
{
    return {size.width(), size.height()};
}

QPoint cornerOf(const QRect& rect)
{
    return rect.topLeft() + toPoint(rect.size());
}

int area(const QRect& rect)
{
    return rect.width() * rect.height();
}

/// The work area of the screen that shows most of a window; null if none shows any of it.
QRect workAreaOf(const QRect& windowGeometry)
{
    QRect best;
    int largest = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect workArea = screen->availableGeometry();
        const int shown = area(workArea.intersected(windowGeometry));
        if (shown > largest) {
            largest = shown;
            best = workArea;
        }
    }
    return best;
}
} // namespace

WindowCorner::WindowCorner(QWidget* windowToPlace, const QWidget* headerToShow)
    : QObject(windowToPlace), window(windowToPlace), header(headerToShow)
{
    window->installEventFilter(this);
    followPrimaryScreen(QGuiApplication::primaryScreen());
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, [this](QScreen* screen) {
        followPrimaryScreen(screen);
        if (screen)
            Q_EMIT workAreaChanged(screen->availableGeometry());
    });
    // Queued, as the screen is still in the list while its removal is being told.
    connect(
        qGuiApp, &QGuiApplication::screenRemoved, this, [this] { resize(window->size()); }, Qt::QueuedConnection);
}

bool WindowCorner::isSet() const
{
    return corner.has_value();
}

void WindowCorner::moveToScreen(const QSize& windowSize)
{
    corner = cornerOf(QGuiApplication::primaryScreen()->availableGeometry());
    place(geometryFor(windowSize));
}

void WindowCorner::resize(const QSize& windowSize)
{
    if (!corner) {
        window->resize(windowSize);
        return;
    }
    const QRect geometry = geometryFor(windowSize);
    if (geometry.isNull())
        moveToScreen(windowSize);
    else
        place(geometry);
}

bool WindowCorner::eventFilter(QObject* watched, QEvent* event)
{
    // X11 reports positions late, and odd ones while a window manager adopts the window.
    const bool isLate = event->spontaneous() && sincePlacing.isValid() && !sincePlacing.hasExpired(longestDelay);
    if (watched == window && event->type() == QEvent::Move && corner && !isPlacing && !isLate) {
        const QRect geometry = window->geometry();
        if (geometry != geometryFor(geometry.size()))
            corner = cornerOf(geometry);
    }
    return QObject::eventFilter(watched, event);
}

void WindowCorner::followPrimaryScreen(QScreen* screen)
{
    disconnect(workAreaConnection);
    if (screen)
        workAreaConnection = connect(screen, &QScreen::availableGeometryChanged, this, &WindowCorner::workAreaChanged);
}

QRect WindowCorner::geometryFor(const QSize& windowSize) const
{
    QRect geometry(*corner - toPoint(windowSize), windowSize);
    const QRect workArea = workAreaOf(geometry);
    if (workArea.isNull())
        return QRect();
    // A header that is wider than the screen shows its right end, with the hide button.
    const int rightmost = workArea.right() + 1 - windowSize.width();
    const int leftmost = windowSize.width() > workArea.width() ? geometry.x() : workArea.x();
    const int lowest = workArea.bottom() + 1 - header->height();
    geometry.moveTo(qMin(qMax(geometry.x(), leftmost), rightmost), qMax(qMin(geometry.y(), lowest), workArea.y()));
    return geometry;
}

void WindowCorner::place(const QRect& geometry)
{
    isPlacing = true;
    sincePlacing.start();
    // Position and size in one request, so that the window never shows or is reported with only one of them changed.
    window->setGeometry(geometry);
    isPlacing = false;
}
