#include "CUtils.h"

#include <cmath>

namespace {

/// Sides of a quadrilateral that differ by less count as parallel.
const double parallelTolerance = 1e-13;

struct Conversion
{
    double times;
    double timesAgain;
    double over;
};

/// From the row's unit to the column's: inch, centimetre, millimetre, point. The order of the three steps
/// decides the last bit of a result.
// clang-format off
constexpr Conversion conversions[4][4] = {
    {{1, 1, 1},     {2.54, 1, 1},  {2.54, 10, 1},  {72, 1, 1}},
    {{1, 1, 2.54},  {1, 1, 1},     {10, 1, 1},     {72, 1, 2.54}},
    {{1, 1, 25.4},  {1, 1, 10},    {1, 1, 1},      {72, 1, 25.4}},
    {{1, 1, 72},    {2.54, 1, 72}, {2.54, 10, 72}, {1, 1, 1}},
};
// clang-format on

bool isUnit(long code)
{
    return code >= 0 && code <= 3;
}

QTransform parallelogram(QPointF p0, QPointF p1, QPointF p2)
{
    return QTransform(p1.x() - p0.x(), p1.y() - p0.y(), 0, p2.x() - p1.x(), p2.y() - p1.y(), 0, p0.x(),
                      p0.y(), 1);
}

} // namespace

double CUtils::Convert(long fromUnit, double value, long toUnit)
{
    if (!isUnit(fromUnit) || !isUnit(toUnit))
        return value;
    const Conversion& by = conversions[fromUnit][toUnit];
    return value * by.times * by.timesAgain / by.over;
}

double CUtils::mx3d_adjoint(QTransform a, QTransform& adjoint)
{
    adjoint = a.adjoint();
    return a.m11() * adjoint.m11() + a.m12() * adjoint.m21() + a.m13() * adjoint.m31();
}

// The names are those of Heckbert's "Fundamentals of Texture Mapping and Image Warping".
int CUtils::pmap_square_quad(QPointF p0, QPointF p1, QPointF p2, QPointF p3, QTransform& squareToQuad)
{
    const double px = p0.x() - p1.x() + p2.x() - p3.x();
    const double py = p0.y() - p1.y() + p2.y() - p3.y();
    if (std::abs(px) < parallelTolerance && std::abs(py) < parallelTolerance) {
        squareToQuad = parallelogram(p0, p1, p2);
        return 1;
    }
    const double dx1 = p1.x() - p2.x();
    const double dx2 = p3.x() - p2.x();
    const double dy1 = p1.y() - p2.y();
    const double dy2 = p3.y() - p2.y();
    const double del = dx1 * dy2 - dy1 * dx2;
    if (del == 0)
        return 0;
    const double m13 = (px * dy2 - dx2 * py) / del;
    const double m23 = (dx1 * py - dy1 * px) / del;
    squareToQuad =
        QTransform(p1.x() - p0.x() + m13 * p1.x(), p1.y() - p0.y() + m13 * p1.y(), m13,
                   p3.x() - p0.x() + m23 * p3.x(), p3.y() - p0.y() + m23 * p3.y(), m23, p0.x(), p0.y(), 1);
    return 2;
}

bool CUtils::pmap_quad_rect(double uStart, double vStart, double uEnd, double vEnd, QPointF p0, QPointF p1,
                            QPointF p2, QPointF p3, QTransform& rectToQuad)
{
    const double du = uEnd - uStart;
    const double dv = vEnd - vStart;
    QTransform s;
    if (du == 0 || dv == 0 || pmap_square_quad(p0, p1, p2, p3, s) == 0)
        return false;
    const double m11 = s.m11() / du;
    const double m12 = s.m12() / du;
    const double m13 = s.m13() / du;
    const double m21 = s.m21() / dv;
    const double m22 = s.m22() / dv;
    const double m23 = s.m23() / dv;
    rectToQuad = QTransform(m11, m12, m13, m21, m22, m23, s.m31() - (uStart * m11 + vStart * m21),
                            s.m32() - (uStart * m12 + vStart * m22), s.m33() - (uStart * m13 + vStart * m23));
    return true;
}
