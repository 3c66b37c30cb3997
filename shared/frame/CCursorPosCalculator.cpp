#include "CCursorPosCalculator.h"

namespace {

// Wide enough that no width, height or distance overflows.
using Coordinate = qint64;

bool lies(Coordinate position, Coordinate first, Coordinate last)
{
    return first <= position && position <= last;
}

} // namespace

CCursorPosCalculator::CCursorPosCalculator() : borderWidth(5), moveBarHeight(0)
{
    reset();
}

void CCursorPosCalculator::reset()
{
    onEdges = false;
    onLeftEdge = onRightEdge = onTopEdge = onBottomEdge = false;
    inLeftCornerBand = inRightCornerBand = inTopCornerBand = inBottomCornerBand = false;
    onTopLeftEdge = onBottomLeftEdge = onTopRightEdge = onBottomRightEdge = false;
    onMoveBar = false;
}

void CCursorPosCalculator::recalculate(const QPoint& globalMousePos, const QRect& frameRect)
{
    const Coordinate x = globalMousePos.x();
    const Coordinate y = globalMousePos.y();
    const Coordinate left = frameRect.x();
    const Coordinate top = frameRect.y();
    const Coordinate right = left + frameRect.width();
    const Coordinate bottom = top + frameRect.height();
    const Coordinate edge = borderWidth;
    const Coordinate band = 2 * edge;

    onLeftEdge = lies(x, left, left + edge);
    onRightEdge = lies(x, right - edge, right);
    onTopEdge = lies(y, top, top + edge);
    onBottomEdge = lies(y, bottom - edge, bottom);

    inLeftCornerBand = lies(x, left, left + band);
    inRightCornerBand = lies(x, right - band, right);
    inTopCornerBand = lies(y, top, top + band);
    inBottomCornerBand = lies(y, bottom - band, bottom);

    onTopLeftEdge = (onTopEdge && onLeftEdge) || (inTopCornerBand && inLeftCornerBand);
    onBottomLeftEdge = (onBottomEdge && onLeftEdge) || (inBottomCornerBand && inLeftCornerBand);
    onBottomRightEdge = (onBottomEdge && onRightEdge) || (inBottomCornerBand && inRightCornerBand);
    // A larger grip would lie under the header's last button.
    onTopRightEdge = onTopEdge && onRightEdge;

    onMoveBar = y <= top + moveBarHeight;
    onEdges = onLeftEdge || onRightEdge || onTopEdge || onBottomEdge || onTopLeftEdge || onBottomLeftEdge ||
              onTopRightEdge || onBottomRightEdge;
}
