#include "CActionUtils.h"
#include "CUtils.h"
#include "support/Rows.h"

#include <QFont>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

namespace {

using Prefs = QMap<QString, QVariant>;

const double pageWidth = 612;
const double pageHeight = 792;
const QTransform untouched(1, 2, 3, 4, 5, 6, 7, 8, 9);

QMatrix placed(Prefs prefs, double width = 100, double height = 50)
{
    return CActionUtils::Prefs2Matrix(&prefs, width, height, pageWidth, pageHeight);
}

QRectF placedBox(const Prefs& prefs, double width = 100, double height = 50)
{
    return placed(prefs, width, height).mapRect(QRectF(0, 0, 1, 1));
}

/// QTransform::map takes a perspective of less than 1e-12 for none.
QPointF mapped(const QTransform& m, double x, double y)
{
    const double w = m.m13() * x + m.m23() * y + m.m33();
    return QPointF((m.m11() * x + m.m21() * y + m.m31()) / w, (m.m12() * x + m.m22() * y + m.m32()) / w);
}

bool isNear(QPointF a, QPointF b, double tolerance)
{
    return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
}

std::array<double, 9> elements(const QTransform& m)
{
    return {m.m11(), m.m12(), m.m13(), m.m21(), m.m22(), m.m23(), m.m31(), m.m32(), m.m33()};
}

bool isNear(const QTransform& a, const QTransform& b)
{
    const auto first = elements(a);
    const auto second = elements(b);
    return std::equal(first.begin(), first.end(), second.begin(),
                      [](double x, double y) { return std::abs(x - y) < 1e-8; });
}

/// The same numbers in every run.
class Numbers
{
public:
    double between(double low, double high) { return low + m_generator.generateDouble() * (high - low); }
    QPointF pointNear(double x, double y, double spread)
    {
        return QPointF(x + between(-spread, spread), y + between(-spread, spread));
    }

private:
    QRandomGenerator m_generator{7};
};

} // namespace

class TestPlacement : public QObject
{
    Q_OBJECT

private slots:
    void converts()
    {
        const double v = 7.3;
        const double results[4][4] = {{v, v * 2.54, v * 2.54 * 10, v * 72},
                                      {v / 2.54, v, v * 10, v * 72 / 2.54},
                                      {v / 25.4, v / 10, v, v * 72 / 25.4},
                                      {v / 72, v * 2.54 / 72, v * 2.54 * 10 / 72, v}};
        for (int from = 0; from < 4; ++from)
            for (int to = 0; to < 4; ++to)
                QVERIFY(CUtils::Convert(from, v, to) == results[from][to]);
        for (const long unknown : {4L, -1L, 4294967296L, LONG_MIN})
            QVERIFY(CUtils::Convert(unknown, v, 3) == v && CUtils::Convert(0, v, unknown) == v);
    }

    void places_data()
    {
        const Rows<Prefs, QMatrix> row;
        row("top left corner by default", {}, QMatrix(100, 0, 0, 50, 0, 742));
        row("centre", {{"horizontalFromCombo", 2}, {"verticalFromCombo", 2}},
            QMatrix(100, 0, 0, 50, 256, 371));
        row("bottom right corner", {{"horizontalFromCombo", 1}, {"verticalFromCombo", 1}},
            QMatrix(100, 0, 0, 50, 512, 0));
        row("an inch from the left, down from the top",
            {{"unitsComboBox", 0}, {"horiznotalSpinBox", 1}, {"verticalSpinBox", 1}},
            QMatrix(100, 0, 0, 50, 72, 670));
        row("an inch in from the right, up from the bottom",
            {{"unitsComboBox", 0},
             {"horiznotalSpinBox", 1},
             {"verticalSpinBox", 1},
             {"horizontalFromCombo", 1},
             {"verticalFromCombo", 1}},
            QMatrix(100, 0, 0, 50, 440, 72));
        row("any other reference shifts from the origin",
            {{"horiznotalSpinBox", 10},
             {"verticalSpinBox", 20},
             {"horizontalFromCombo", 3},
             {"verticalFromCombo", -1}},
            QMatrix(100, 0, 0, 50, 10, 20));
        row("any other unit counts as points", {{"unitsComboBox", 9}, {"horiznotalSpinBox", 10}},
            QMatrix(100, 0, 0, 50, 10, 742));
        row("size in percent", {{"sizeSpinBox", 50}, {"sizeSpinBoxY", 200}}, QMatrix(50, 0, 0, 100, 0, 692));
        row("a quarter turn clockwise", {{"rotationSpinBox", 90}}, QMatrix(0, -100, 50, 0, 0, 792));
        row("texts are numbers too", {{"sizeSpinBox", "50"}, {"horizontalFromCombo", "1"}},
            QMatrix(50, 0, 0, 50, 562, 742));
    }

    void places()
    {
        const auto [prefs, matrix] = Rows<Prefs, QMatrix>::current();
        const QMatrix result = placed(prefs);
        QVERIFY2(qFuzzyCompare(result, matrix), QTest::toString(QTransform(result)));
    }

    void keepsTheBoxAtItsEdges()
    {
        Numbers numbers;
        const double tolerance = 1e-9;
        for (int round = 0; round < 500; ++round) {
            Prefs prefs{{"rotationSpinBox", numbers.between(-400, 400)},
                        {"sizeSpinBox", numbers.between(1, 300)},
                        {"sizeSpinBoxY", numbers.between(1, 300)}};
            const double width = numbers.between(1, 500);
            const double height = numbers.between(1, 500);
            const QRectF topLeft = placedBox(prefs, width, height);
            QVERIFY(std::abs(topLeft.left()) < tolerance);
            QVERIFY(std::abs(topLeft.bottom() - pageHeight) < tolerance);

            prefs["horizontalFromCombo"] = prefs["verticalFromCombo"] = 1;
            const QRectF bottomRight = placedBox(prefs, width, height);
            QVERIFY(std::abs(bottomRight.right() - pageWidth) < tolerance);
            QVERIFY(std::abs(bottomRight.top()) < tolerance);

            prefs["horizontalFromCombo"] = prefs["verticalFromCombo"] = 2;
            const QPointF middle = placedBox(prefs, width, height).center();
            QVERIFY(isNear(middle, QPointF(pageWidth / 2, pageHeight / 2), tolerance));
        }
    }

    void adjugates()
    {
        Numbers numbers;
        for (int round = 0; round < 500; ++round) {
            const auto n = [&numbers] { return numbers.between(-10, 10); };
            const QTransform a(n(), n(), n(), n(), n(), n(), n(), n(), n());
            QTransform adjoint;
            const double det = CUtils::mx3d_adjoint(a, adjoint);
            QVERIFY(std::abs(det - a.determinant()) < 1e-9);
            QVERIFY(isNear(a * adjoint, QTransform(det, 0, 0, 0, det, 0, 0, 0, det)));
        }
    }

    void adjugatesSingularMatrices()
    {
        QTransform adjoint;
        QCOMPARE(CUtils::mx3d_adjoint(untouched, adjoint), 0.0);
        QCOMPARE(adjoint, QTransform(-3, 6, -3, 6, -12, 6, -3, 6, -3));
    }

    void mapsTheSquare_data()
    {
        const Rows<QVector<QPointF>, int, QTransform> row;
        using Quad = QVector<QPointF>;
        row("square", Quad{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, 1, QTransform(2, 0, 0, 0, 2, 0, 0, 0, 1));
        row("parallelogram", Quad{{1, 2}, {4, 3}, {6, 7}, {3, 6}}, 1, QTransform(3, 1, 0, 2, 4, 0, 1, 2, 1));
        row("parallel but for a trifle", Quad{{0, 0}, {2, 0}, {2, 2 + 4e-14}, {0, 2}}, 1,
            QTransform(2, 0, 0, 0, 2 + 4e-14, 0, 0, 0, 1));
        row("parallel but for more", Quad{{0, 0}, {2, 0}, {2, 2 + 1e-12}, {0, 2}}, 2,
            QTransform(2, 0, 0, 0, 2, 0, 0, 0, 1));
        row("projective", Quad{{0, 0}, {2, 0}, {3, 3}, {0, 2}}, 2,
            QTransform(1.5, 0, -0.25, 0, 1.5, -0.25, 0, 0, 1));
        row("last three in line", Quad{{0, 0}, {2, 0}, {1, 1}, {0, 2}}, 0, untouched);
        row("one point", Quad{{3, 3}, {3, 3}, {3, 3}, {3, 3}}, 1, QTransform(0, 0, 0, 0, 0, 0, 3, 3, 1));
    }

    void mapsTheSquare()
    {
        const auto [quad, kind, matrix] = Rows<QVector<QPointF>, int, QTransform>::current();
        QTransform result = untouched;
        QCOMPARE(CUtils::pmap_square_quad(quad[0], quad[1], quad[2], quad[3], result), kind);
        QVERIFY2(isNear(result, matrix), QTest::toString(result));
    }

    void mapsRandomRectangles()
    {
        Numbers numbers;
        for (int round = 0; round < 500; ++round) {
            const QPointF quad[] = {numbers.pointNear(0, 0, 30), numbers.pointNear(100, 0, 30),
                                    numbers.pointNear(100, 100, 30), numbers.pointNear(0, 100, 30)};
            const double u0 = numbers.between(-50, 50);
            const double v0 = numbers.between(-50, 50);
            const double u1 = u0 + numbers.between(1, 90);
            const double v1 = v0 - numbers.between(1, 90);
            const QPointF corners[] = {{u0, v0}, {u1, v0}, {u1, v1}, {u0, v1}};
            QTransform toQuad;
            QVERIFY(CUtils::pmap_quad_rect(u0, v0, u1, v1, quad[0], quad[1], quad[2], quad[3], toQuad));
            QTransform back;
            CUtils::mx3d_adjoint(toQuad, back);
            for (int i = 0; i < 4; ++i) {
                QVERIFY(isNear(mapped(toQuad, corners[i].x(), corners[i].y()), quad[i], 1e-6));
                QVERIFY(isNear(mapped(back, quad[i].x(), quad[i].y()), corners[i], 1e-6));
            }
        }
    }

    void mapsNoRectangleWithoutArea()
    {
        const QPointF p0(0, 0), p1(2, 0), p2(3, 3), p3(0, 2);
        QTransform m = untouched;
        QVERIFY2(!CUtils::pmap_quad_rect(10, 20, 10, 60, p0, p1, p2, p3, m), "no width");
        QVERIFY2(!CUtils::pmap_quad_rect(10, 20, 30, 20, p0, p1, p2, p3, m), "no height");
        QVERIFY2(!CUtils::pmap_quad_rect(10, 20, 30, 60, p0, p1, {1, 1}, p3, m), "no area on one side");
        QCOMPARE(m, untouched);
    }

    void measuresText()
    {
        const QFont font("DejaVu Sans", 12);
        QFont larger = font;
        larger.setPointSize(24);
        const QString words = "some words that need several lines where the width is small";
        const double single = CActionUtils::GetTextItemHeight(font, words, 5000);
        const double wrapped = CActionUtils::GetTextItemHeight(font, words, 80);
        QVERIFY(single > 0);
        QVERIFY(wrapped > 2 * single);
        QVERIFY(CActionUtils::GetTextItemHeight(larger, words, 5000) > 1.5 * single);
        QVERIFY(CActionUtils::GetTextItemHeight(font, "a<br>b<br>c", 5000) > 2 * single);
    }

    void drawsTextIcons()
    {
        const std::tuple<double, double, QSize> icons[] = {
            {300.9, 150.9, {128, 64}}, {100.0, 400.0, {32, 128}}, {16.0, 8.0, {128, 64}},
            {1000.0, 1.0, {128, 1}},   {1e9, 5e8, {128, 64}},     {1e300, 1e300, {128, 128}},
            {0.9, 10.0, {}},           {10.0, -10.0, {}},         {std::nan(""), 10.0, {}}};
        for (const auto& [width, height, size] : icons) {
            QIcon icon;
            CActionUtils::GenerateTextItemIcon(width, height, "text", &icon);
            const QList<QSize> sizes = icon.availableSizes(QIcon::Normal, QIcon::Off);
            QCOMPARE(sizes, size.isValid() ? QList<QSize>{size} : QList<QSize>());
        }
    }

    void drawsTheTextOfAnIcon()
    {
        const auto drawn = [](const QString& text) {
            QIcon icon;
            CActionUtils::GenerateTextItemIcon(200.7, 100.2, text, &icon);
            return icon.pixmap(128, 64).toImage().convertToFormat(QImage::Format_ARGB32);
        };
        QImage empty(128, 64, QImage::Format_ARGB32);
        empty.fill(Qt::transparent);
        QCOMPARE(drawn(""), empty);
        QVERIFY(drawn("some text that wraps at the edge") != empty);
        QVERIFY(drawn("some text that wraps at the edge") != drawn("some text that wraps at"));
    }
};

QTEST_MAIN(TestPlacement)
#include "TestPlacement.moc"
