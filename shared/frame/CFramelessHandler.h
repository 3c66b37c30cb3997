#pragma once

#include "CCursorPosCalculator.h"

#include <QObject>
#include <QPoint>

class QHoverEvent;
class QMouseEvent;
class QWidget;
class QWindowStateChangeEvent;

/// Gives a frameless window what the window manager's frame would: moving by a band along its top, resizing
/// by edges and corners, and resize cursors. It watches the window's events and lets all of them pass. GUI
/// thread; one handler for one window.
///
/// What a press begins is decided by where it falls: an edge or corner resizes, the move bar moves, and
/// elsewhere nothing happens. Positions and widths are pixels of the screen.
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

    /// Whether the move bar moves the window; it does at first.
    void setWidgetMovable(bool movable);
    bool isWidgetMovable() const;

    /// Whether edges and corners resize the window; they do at first. Where they do not, a press on them does
    /// not move it either, and the cursor stays as it is.
    void setWidgetResizable(bool resizable);
    bool isWidgetResizable() const;

    /// How far inward a press counts as on an edge; corners reach twice as far. A negative width is ignored.
    void setBorderWidth(int width);
    int borderWidth() const;

    /// How far below the window's top row the move bar reaches; a negative height leaves none.
    void setMoveBarHeight(int height);
    int moveBarHeight() const;

    // What the filter does with the events of the window, and what they lead to. The first do nothing before
    // activateOn().

    void handleMousePressEvent(QMouseEvent* event);
    void handleMouseReleaseEvent(QMouseEvent* event);
    void handleMouseMoveEvent(QMouseEvent* event);
    void handleLeaveEvent(QEvent* event);
    void handleHoverMoveEvent(QHoverEvent* event);
    void handleDoubleClickEvent(QMouseEvent* event);
    void handleStateChangeEvent(QWindowStateChangeEvent* event);

    /// The pressed edges follow the mouse, as far as the window's least and largest size let them.
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
