#pragma once

#include <QPoint>
#include <QRect>

/// The hit test of CFramelessHandler: where a position lies on a window's frame. Units are pixels of the
/// screen. It knows no window and no thread, keeps the result of one test, and takes any numbers.
///
/// An edge is `borderWidth` deep; where two edges, or twice as wide bands along them, meet is a corner. One
/// position can be on several of them: a corner counts before its edges, and all of them before the move bar.
class CCursorPosCalculator
{
public:
    /// A border of 5 and no move bar; every flag is clear.
    CCursorPosCalculator();

    /// Clears every flag; the two widths stay.
    void reset();

    /// Recomputes every flag. The position one past the last pixel still counts as on the right or bottom
    /// edge.
    /// \param frameRect the window with its frame, in the same coordinates.
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
    /// How far inward the edges reach; at least 0.
    int borderWidth;
    /// How far below the window's top the move bar reaches; negative for none.
    int moveBarHeight;
};
