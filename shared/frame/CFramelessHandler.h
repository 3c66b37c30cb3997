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
///
///     framelessHandler.activateOn(this);
///     framelessHandler.setMoveBarHeight(30);
///
/// What a press begins is decided by where it falls: an edge or corner resizes, the move bar moves, and
/// elsewhere nothing happens. Positions and widths are pixels of the screen. GUI thread; one handler for one
/// window, which has to outlive it. Nothing here fails.
class CFramelessHandler : public QObject
{
    Q_OBJECT

public:
    /// Watches nothing yet. The border is 5 wide, and there is no move bar but the window's top row.
    /// \param parent owns the handler; null for a handler that is a member.
    explicit CFramelessHandler(QObject* parent = nullptr);
    ~CFramelessHandler() override;

    /// Starts watching a window, which is not owned; to be called once. Null is ignored. The signals are
    /// connected to the window's slots on_MaxRestore() and on_MoveMaximized(); Qt warns where there are none,
    /// and all else works without them.
    void activateOn(QWidget* topLevelWidget);

    /// Hands the window's events to the functions below. \returns false, so that the window gets them too.
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

    // What the filter does with the events of the window, and what they lead to. Only after activateOn().

    /// The left button begins a drag; others do nothing.
    void handleMousePressEvent(QMouseEvent* event);
    /// Any button ends the drag.
    void handleMouseReleaseEvent(QMouseEvent* event);
    /// Goes on with the drag, or shows the cursor of what is below the mouse.
    void handleMouseMoveEvent(QMouseEvent* event);
    /// Takes the resize cursor away, unless a drag goes on.
    void handleLeaveEvent(QEvent* event);
    /// Shows the cursor of what is below the mouse.
    void handleHoverMoveEvent(QHoverEvent* event);
    /// The left button on the move bar asks for toggleMaximize().
    void handleDoubleClickEvent(QMouseEvent* event);
    /// Raises the window, gives it the focus and has it drawn anew.
    void handleStateChangeEvent(QWindowStateChangeEvent* event);

    /// The pressed edges follow the mouse, as far as the window's least and largest size let them.
    void resizeWidget(const QPoint& globalPos);
    /// The place that was pressed stays below the mouse.
    void moveWidget(const QPoint& globalPos);
    /// The cursor of the edge or corner there, the window's own elsewhere.
    void updateCursorShape(const QPoint& globalPos);

signals:
    /// The move bar was double-clicked.
    void toggleMaximize();
    /// Never emitted.
    void movingMaximized();

protected:
    /// Where the drag was begun, and where the mouse is without one.
    CCursorPosCalculator pressedHit;
    CCursorPosCalculator hoverHit;
    /// From the window's upper left corner to the place that was pressed.
    QPoint dragOffset;
    /// Null before activateOn(). Not owned.
    QWidget* targetWidget = nullptr;
    bool widgetMovable = true;
    bool widgetResizable = true;
    /// The cursor is one that this handler has set.
    bool cursorShapeChanged = false;
    bool leftButtonPressed = false;
    bool pressedOnMoveBar = false;
    bool pressedOnEdges = false;

private:
    void showCursor(Qt::CursorShape shape);
};
