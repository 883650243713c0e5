#pragma once

#include <QElapsedTimer>
#include <QMetaObject>
#include <QObject>
#include <QPoint>

#include <optional>

QT_BEGIN_NAMESPACE
class QRect;
class QScreen;
class QSize;
class QWidget;
QT_END_NAMESPACE

/// Keeps the bottom-right corner of a frameless window in place while the window grows and shrinks: in the corner of
/// the primary screen's work area at first, and wherever the person has moved it later.
///
/// Where the window would reach beyond the top or a side of its screen, it stands further down or to the side, so that
/// its header stays in sight; the corner is remembered and taken up again when there is room.
class WindowCorner final : public QObject {
    Q_OBJECT

public:
    /// @param header the strip at the top of @p window that has to stay on the screen
    WindowCorner(QWidget* window, const QWidget* header);

    /// Whether moveToScreen() has ever been called.
    bool isSet() const;
    /// Puts the window into the corner of the primary screen's work area.
    void moveToScreen(const QSize& windowSize);
    /// Resizes the window. Before moveToScreen() this leaves its top-left corner in place.
    void resize(const QSize& windowSize);

    /// Takes notice when the window is moved.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Another screen has become the primary one, or a task bar has changed.
    void workAreaChanged(const QRect& workArea);

private:
    Q_DISABLE_COPY(WindowCorner)

    void followPrimaryScreen(QScreen* screen);
    /// Where the window belongs at a size; null when that is off every screen.
    QRect geometryFor(const QSize& windowSize) const;
    void place(const QRect& geometry);

    QWidget* const window;
    const QWidget* const header;
    /// The first pixel beyond the window's bottom right.
    std::optional<QPoint> corner;
    bool isPlacing = false;
    QElapsedTimer sincePlacing;
    QMetaObject::Connection workAreaConnection;
};
