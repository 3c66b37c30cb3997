#include "CFramelessHandler.h"

#include <QCoreApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindowStateChangeEvent>

namespace {

/// The rectangle with the gripped edges at the position and the others where they were.
QRect draggedTo(const QPoint& position, QRect frame, const CCursorPosCalculator& grip)
{
    if (grip.onTopLeftEdge)
        frame.setTopLeft(position);
    else if (grip.onBottomLeftEdge)
        frame.setBottomLeft(position);
    else if (grip.onTopRightEdge)
        frame.setTopRight(position);
    else if (grip.onBottomRightEdge)
        frame.setBottomRight(position);
    else if (grip.onLeftEdge)
        frame.setLeft(position.x());
    else if (grip.onRightEdge)
        frame.setRight(position.x());
    else if (grip.onTopEdge)
        frame.setTop(position.y());
    else if (grip.onBottomEdge)
        frame.setBottom(position.y());
    return frame;
}

} // namespace

CFramelessHandler::CFramelessHandler(QObject* parent) : QObject(parent) {}

CFramelessHandler::~CFramelessHandler() = default;

void CFramelessHandler::activateOn(QWidget* topLevelWidget)
{
    if (topLevelWidget == nullptr)
        return;
    targetWidget = topLevelWidget;
    targetWidget->installEventFilter(this);
    targetWidget->setAttribute(Qt::WA_Hover);
    connect(this, SIGNAL(toggleMaximize()), targetWidget, SLOT(on_MaxRestore()));
    connect(this, SIGNAL(movingMaximized()), targetWidget, SLOT(on_MoveMaximized()));
}

bool CFramelessHandler::eventFilter(QObject*, QEvent* event)
{
    if (targetWidget == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        handleMousePressEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        handleMouseReleaseEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonDblClick:
        handleDoubleClickEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseMove:
        handleMouseMoveEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::HoverMove:
        handleHoverMoveEvent(static_cast<QHoverEvent*>(event));
        break;
    case QEvent::Leave:
        handleLeaveEvent(event);
        break;
    case QEvent::WindowStateChange:
        handleStateChangeEvent(static_cast<QWindowStateChangeEvent*>(event));
        break;
    default:
        break;
    }
    return false;
}

void CFramelessHandler::setWidgetMovable(bool movable)
{
    widgetMovable = movable;
}

bool CFramelessHandler::isWidgetMovable() const
{
    return widgetMovable;
}

void CFramelessHandler::setWidgetResizable(bool resizable)
{
    widgetResizable = resizable;
}

bool CFramelessHandler::isWidgetResizable() const
{
    return widgetResizable;
}

void CFramelessHandler::setBorderWidth(int width)
{
    if (width < 0)
        return;
    pressedHit.borderWidth = width;
    hoverHit.borderWidth = width;
}

int CFramelessHandler::borderWidth() const
{
    return pressedHit.borderWidth;
}

void CFramelessHandler::setMoveBarHeight(int height)
{
    pressedHit.moveBarHeight = height;
    hoverHit.moveBarHeight = height;
}

int CFramelessHandler::moveBarHeight() const
{
    return pressedHit.moveBarHeight;
}

void CFramelessHandler::handleMousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    leftButtonPressed = true;
    const QRect frame = targetWidget->frameGeometry();
    pressedHit.recalculate(event->globalPos(), frame);
    dragOffset = event->globalPos() - frame.topLeft();
    pressedOnEdges = pressedHit.onEdges;
    if (!pressedOnEdges)
        pressedOnMoveBar = pressedHit.onMoveBar;
}

void CFramelessHandler::handleMouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        leftButtonPressed = false;
        pressedHit.reset();
    }
    // Any other button's release ends a drag too, though the left button stays pressed.
    pressedOnMoveBar = false;
    pressedOnEdges = false;
}

void CFramelessHandler::handleMouseMoveEvent(QMouseEvent* event)
{
    if (leftButtonPressed) {
        if (widgetResizable && pressedOnEdges && !pressedOnMoveBar)
            resizeWidget(event->globalPos());
        else if (widgetMovable && !pressedOnEdges && pressedOnMoveBar)
            moveWidget(event->globalPos());
    } else if (widgetResizable) {
        updateCursorShape(event->globalPos());
    }
}

void CFramelessHandler::handleLeaveEvent(QEvent*)
{
    if (!leftButtonPressed)
        targetWidget->unsetCursor();
}

void CFramelessHandler::handleHoverMoveEvent(QHoverEvent* event)
{
    if (widgetResizable)
        updateCursorShape(targetWidget->mapToGlobal(event->pos()));
}

void CFramelessHandler::handleDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    pressedHit.recalculate(event->globalPos(), targetWidget->frameGeometry());
    if (pressedHit.onMoveBar)
        emit toggleMaximize();
}

void CFramelessHandler::handleStateChangeEvent(QWindowStateChangeEvent* event)
{
    targetWidget->setAttribute(Qt::WA_Mapped, event->oldState() == Qt::WindowMinimized);
    targetWidget->setFocus(Qt::OtherFocusReason);
    targetWidget->raise();
    QCoreApplication::postEvent(targetWidget, new QEvent(QEvent::UpdateRequest), Qt::HighEventPriority);
}

void CFramelessHandler::resizeWidget(const QPoint& globalPos)
{
    const QRect current = targetWidget->frameGeometry();
    QRect wanted = draggedTo(globalPos, current, pressedHit);
    if (!wanted.isValid())
        return;
    const QSize least = targetWidget->minimumSize();
    if (wanted.width() < least.width()) {
        wanted.setLeft(current.left());
        wanted.setRight(current.right());
    }
    if (wanted.height() < least.height()) {
        wanted.setTop(current.top());
        wanted.setBottom(current.bottom());
    }
    targetWidget->move(wanted.topLeft());
    targetWidget->resize(wanted.size());
}

void CFramelessHandler::moveWidget(const QPoint& globalPos)
{
    pressedHit.recalculate(globalPos, targetWidget->frameGeometry());
    if (pressedOnMoveBar)
        targetWidget->move(globalPos - dragOffset);
}

void CFramelessHandler::updateCursorShape(const QPoint& globalPos)
{
    hoverHit.recalculate(globalPos, targetWidget->frameGeometry());
    if (hoverHit.onTopLeftEdge || hoverHit.onBottomRightEdge) {
        showCursor(Qt::SizeFDiagCursor);
    } else if (hoverHit.onTopRightEdge || hoverHit.onBottomLeftEdge) {
        showCursor(Qt::SizeBDiagCursor);
    } else if (hoverHit.onLeftEdge || hoverHit.onRightEdge) {
        showCursor(Qt::SizeHorCursor);
    } else if (hoverHit.onTopEdge || hoverHit.onBottomEdge) {
        showCursor(Qt::SizeVerCursor);
    } else if (cursorShapeChanged) {
        targetWidget->unsetCursor();
        cursorShapeChanged = false;
    }
}

void CFramelessHandler::showCursor(Qt::CursorShape shape)
{
    targetWidget->setCursor(shape);
    cursorShapeChanged = true;
}
