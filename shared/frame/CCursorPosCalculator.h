#pragma once

#include <QPoint>
#include <QRect>

/// The hit test of CFramelessHandler: where a position lies on a window's frame. Units are pixels of the
/// screen.
class CCursorPosCalculator
{
public:
    CCursorPosCalculator();

    /// Clears every flag; the two widths stay.
    void reset();

    /// Recomputes every flag. The position one past the last pixel still counts as on the right or bottom
    /// edge.
    void recalculate(const QPoint& globalMousePos, const QRect& frameRect);

    /// Any of the eight edges and corners; the move bar and the bands do not count.
    bool onEdges;
    bool onLeftEdge;
    bool onRightEdge;
    bool onTopEdge;
    bool onBottomEdge;
    /// Within twice the border width of the edge.
    bool inLeftCornerBand;
    bool inRightCornerBand;
    bool inTopCornerBand;
    bool inBottomCornerBand;
    bool onTopLeftEdge;
    bool onBottomLeftEdge;
    /// Only where the two edges meet: half as wide and high as the other corners' grips.
    bool onTopRightEdge;
    bool onBottomRightEdge;
    /// At or above the lower end of the move bar, however far to the side or above the window.
    bool onMoveBar;
    int borderWidth;
    int moveBarHeight;
};
