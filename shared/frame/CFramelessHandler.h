#pragma once

#include "CCursorPosCalculator.h"

#include <QObject>
#include <QPoint>

class QHoverEvent;
class QMouseEvent;
class QWidget;
class QWindowStateChangeEvent;

/// Gives a frameless window what the window manager's frame would: moving by a band along its top, resizing
/// by edges and corners, and resize cursors. It watches the window's events and lets all of them pass.
class CFramelessHandler : public QObject
{
    Q_OBJECT

public:
    explicit CFramelessHandler(QObject* parent = nullptr);
    ~CFramelessHandler() override;

    /// Starts watching a window, which is not owned; to be called once. Null is ignored. The signals are
    /// connected to the window's slots on_MaxRestore() and on_MoveMaximized(); Qt warns where there are none.
    void activateOn(QWidget* topLevelWidget);

    bool eventFilter(QObject* watched, QEvent* event) override;

    void setWidgetMovable(bool movable);
    bool isWidgetMovable() const;

    /// Not resizable, the edges neither resize nor move the window.
    void setWidgetResizable(bool resizable);
    bool isWidgetResizable() const;

    /// Pixels; a negative width is ignored.
    void setBorderWidth(int width);
    int borderWidth() const;

    /// Pixels below the window's top row, any value.
    void setMoveBarHeight(int height);
    int moveBarHeight() const;

    void handleMousePressEvent(QMouseEvent* event);
    void handleMouseReleaseEvent(QMouseEvent* event);
    void handleMouseMoveEvent(QMouseEvent* event);
    void handleLeaveEvent(QEvent* event);
    void handleHoverMoveEvent(QHoverEvent* event);
    void handleDoubleClickEvent(QMouseEvent* event);
    void handleStateChangeEvent(QWindowStateChangeEvent* event);

    void resizeWidget(const QPoint& globalPos);
    void moveWidget(const QPoint& globalPos);
    void updateCursorShape(const QPoint& globalPos);

signals:
    /// The move bar was double-clicked.
    void toggleMaximize();
    /// Never emitted.
    void movingMaximized();

protected:
    CCursorPosCalculator pressedHit;
    CCursorPosCalculator hoverHit;
    QPoint dragOffset;
    QWidget* targetWidget = nullptr;
    bool widgetMovable = true;
    bool widgetResizable = true;
    bool cursorShapeChanged = false;
    bool leftButtonPressed = false;
    bool pressedOnMoveBar = false;
    bool pressedOnEdges = false;

private:
    void showCursor(Qt::CursorShape shape);
};
