#include "shared/frame/CFramelessHandler.h"

#include "support/Methods.h"
#include "support/Rows.h"
#include "support/people/Hand.h"

#include <QtTest>

namespace {

/// The flags that are set, bands left out.
QString shown(const CCursorPosCalculator& hit)
{
    const std::pair<bool, const char*> flags[] = {{hit.onLeftEdge, "left"},
                                                  {hit.onRightEdge, "right"},
                                                  {hit.onTopEdge, "top"},
                                                  {hit.onBottomEdge, "bottom"},
                                                  {hit.onTopLeftEdge, "top-left"},
                                                  {hit.onBottomLeftEdge, "bottom-left"},
                                                  {hit.onTopRightEdge, "top-right"},
                                                  {hit.onBottomRightEdge, "bottom-right"},
                                                  {hit.onMoveBar, "bar"}};
    QStringList set;
    for (const auto& [flag, name] : flags)
        if (flag)
            set << name;
    return set.join(' ');
}

/// A window with a handler, as the dialogs have it.
class Window : public QWidget
{
    Q_OBJECT

public:
    Window() : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        handler.activateOn(this);
        handler.setBorderWidth(9);
        handler.setMoveBarHeight(30);
        setMinimumSize(120, 80);
        setGeometry(100, 100, 400, 300);
        show();
    }

    CFramelessHandler handler{nullptr};
    int toggles = 0;
    int updateRequests = 0;

public slots:
    void on_MaxRestore() { ++toggles; }
    void on_MoveMaximized() {}

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::UpdateRequest)
            ++updateRequests;
        return QWidget::event(event);
    }
};

const QPoint corner(100, 100);

} // namespace

class TestFramelessHandler : public QObject
{
    Q_OBJECT

private slots:
    void hitTest_data()
    {
        const Rows<QPoint, QString> add;
        const auto row = [&add](int x, int y, const char* hit) {
            add(QString::asprintf("%d, %d", x, y), {x, y}, QString(hit));
        };
        row(0, 0, "left top top-left bar");
        row(18, 18, "top-left bar");
        // The top-right corner is half as wide and high as the others.
        row(385, 15, "bar");
        row(392, 8, "right top top-right bar");
        row(391, 10, "right bar");
        row(382, 282, "bottom-right");
        row(18, 282, "bottom-left");
        row(5, 295, "left bottom bottom-left");
        row(10, 150, "");
        row(-1, 150, "");
        row(390, 150, "");
        // One past the last pixel belongs to the edge.
        row(400, 150, "right");
        row(401, 150, "");
        row(200, 300, "bottom");
        row(200, 301, "");
        row(200, 9, "top bar");
        row(200, 30, "bar");
        row(200, 31, "");
        // The bar has neither sides nor an upper end.
        row(-5000, -5000, "bar");
    }

    void hitTest()
    {
        const auto [position, hit] = Rows<QPoint, QString>::current();
        CCursorPosCalculator calculator;
        calculator.borderWidth = 9;
        calculator.moveBarHeight = 30;
        for (const QPoint& place : {QPoint(0, 0), QPoint(-1900, -20), QPoint(700, 33)}) {
            calculator.recalculate(position + place, QRect(place, QSize(400, 300)));
            QCOMPARE(shown(calculator), hit);
            QCOMPARE(calculator.onEdges, !hit.isEmpty() && hit != "bar");
        }
    }

    void hitTestFillsTheBandsAndForgetsThem()
    {
        CCursorPosCalculator hit;
        const auto bands = [&hit] {
            return QList<bool>{hit.inLeftCornerBand, hit.inRightCornerBand, hit.inTopCornerBand,
                               hit.inBottomCornerBand};
        };
        hit.recalculate(QPoint(10, 300), QRect(0, 0, 400, 300));
        QCOMPARE(bands(), (QList<bool>{true, false, false, true}));
        hit.recalculate(QPoint(390, 0), QRect(0, 0, 400, 300));
        QCOMPARE(bands(), (QList<bool>{false, true, true, false}));
        hit.borderWidth = INT_MAX;
        hit.recalculate(QPoint(INT_MAX, INT_MIN), QRect(-7, -7, 400, 300));
        hit.reset();
        QVERIFY(!hit.onEdges && !hit.inRightCornerBand && !hit.inTopCornerBand);
        QCOMPARE(shown(hit), QString());
        QCOMPARE(hit.borderWidth, INT_MAX);
    }

    void startsMovableAndResizableAndTakesAnyNumber()
    {
        CFramelessHandler handler(nullptr);
        QVERIFY(handler.isWidgetMovable() && handler.isWidgetResizable());
        QVERIFY(handler.borderWidth() == 5 && handler.moveBarHeight() == 0);
        handler.setBorderWidth(0);
        handler.setBorderWidth(-1); // does not count
        handler.setMoveBarHeight(-3);
        handler.activateOn(nullptr);
        QVERIFY(handler.borderWidth() == 0 && handler.moveBarHeight() == -3);
    }

    void warnsWhereTheWindowHasNoSlots()
    {
        QWidget window;
        CFramelessHandler handler(nullptr);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such slot QWidget::on_MaxRestore\\(\\)"));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("No such slot QWidget::on_MoveMaximized\\(\\)"));
        handler.activateOn(&window);
        QVERIFY(window.testAttribute(Qt::WA_Hover));
    }

    void drags_data()
    {
        const Rows<QPoint, QPoint, QRect> add;
        const auto row = [&add](const char* name, QPoint from, QPoint by, int left, int top, int right,
                                int bottom) {
            add(name, from, by, {QPoint(left, top), QPoint(right, bottom)});
        };
        row("bar", {200, 15}, {60, 40}, 160, 140, 559, 439);
        row("top-left", {15, 15}, {20, 10}, 135, 125, 499, 399);
        row("bottom-left", {15, 290}, {-30, 50}, 85, 100, 499, 440);
        row("top-right", {392, 8}, {40, -20}, 100, 88, 532, 399);
        row("bottom-right", {385, 285}, {10, 20}, 100, 100, 495, 405);
        row("left", {3, 150}, {-50, 70}, 53, 100, 499, 399);
        row("right", {395, 150}, {-50, 70}, 100, 100, 445, 399);
        row("bottom", {200, 298}, {30, 40}, 100, 100, 499, 438);
        row("left beyond right", {3, 150}, {900, 0}, 100, 100, 499, 399);
        row("bottom-left, too narrow", {3, 295}, {370, 60}, 100, 100, 499, 455);
        row("bottom-right, too low", {395, 295}, {30, -250}, 100, 100, 525, 399);
    }

    void drags()
    {
        const auto [from, by, after] = Rows<QPoint, QPoint, QRect>::current();
        Window window;
        Hand hand(window);
        hand.press(corner + from);
        hand.moveTo(corner + from + by);
        QCOMPARE(window.geometry(), after);
        hand.release(corner + from + by);
        hand.moveTo(corner + from);
        QCOMPARE(window.geometry(), after);
    }

    void dragsOnlyWhatIsAllowed()
    {
        Window window;
        Hand hand(window);
        const QRect before = window.geometry();
        window.handler.setWidgetResizable(false);
        for (const QPoint& grip : {QPoint(3, 150), QPoint(200, 5), QPoint(15, 15), QPoint(395, 295)})
            hand.drag(corner + grip, corner + grip + QPoint(40, 40));
        QCOMPARE(window.geometry(), before);
        hand.drag(corner + QPoint(200, 20), corner + QPoint(240, 60));
        QCOMPARE(window.geometry(), before.translated(40, 40));

        window.move(corner);
        window.handler.setWidgetResizable(true);
        window.handler.setWidgetMovable(false);
        hand.drag(corner + QPoint(200, 20), corner + QPoint(240, 60));
        QCOMPARE(window.geometry(), before);
        hand.drag(corner + QPoint(200, 298), corner + QPoint(200, 338));
        QCOMPARE(window.geometry(), before.adjusted(0, 0, 0, 39));
    }

    void dragsOnlyWithTheLeftButtonAndEndsWithAny()
    {
        Window window;
        Hand hand(window);
        const QPoint grip = corner + QPoint(200, 20);
        hand.press(grip, Qt::RightButton);
        hand.moveTo(grip + QPoint(40, 40));
        hand.release(grip + QPoint(40, 40), Qt::RightButton);
        QCOMPARE(window.pos(), corner);

        hand.press(grip);
        hand.moveTo(grip + QPoint(10, 10));
        hand.press(grip + QPoint(10, 10), Qt::RightButton);
        hand.moveTo(grip + QPoint(20, 20));
        QCOMPARE(window.pos(), corner + QPoint(20, 20));
        hand.release(grip + QPoint(20, 20), Qt::RightButton);
        hand.moveTo(grip + QPoint(90, 90));
        QCOMPARE(window.pos(), corner + QPoint(20, 20));
    }

    void announcesADoubleClickOnTheBar()
    {
        Window window;
        Hand hand(window);
        hand.doubleClick(corner + QPoint(200, 20));
        QCOMPARE(window.toggles, 1);
        hand.doubleClick(corner + QPoint(3, 20)); // an edge too
        QCOMPARE(window.toggles, 2);
        hand.doubleClick(corner + QPoint(200, 31));
        hand.doubleClick(corner + QPoint(200, 20), Qt::RightButton);
        QCOMPARE(window.toggles, 2);
        window.handler.setMoveBarHeight(0);
        hand.doubleClick(corner + QPoint(200, 1));
        QCOMPARE(window.toggles, 2);
        hand.doubleClick(corner + QPoint(200, 0));
        QCOMPARE(window.toggles, 3);
    }

    void showsWhereTheWindowCanBeResized()
    {
        const std::pair<QPoint, Qt::CursorShape> shapes[] = {
            {{15, 15}, Qt::SizeFDiagCursor}, {{385, 285}, Qt::SizeFDiagCursor},
            {{393, 7}, Qt::SizeBDiagCursor}, {{15, 285}, Qt::SizeBDiagCursor},
            {{4, 150}, Qt::SizeHorCursor},   {{394, 150}, Qt::SizeHorCursor},
            {{200, 4}, Qt::SizeVerCursor},   {{200, 294}, Qt::SizeVerCursor}};
        Window window;
        Hand hand(window);
        for (const auto& [position, shape] : shapes) {
            for (const bool resizable : {true, false}) {
                window.handler.setWidgetResizable(resizable);
                hand.moveTo(corner + position);
                QCOMPARE(window.cursor().shape(), resizable ? shape : Qt::ArrowCursor);
                hand.moveTo(corner + QPoint(200, 150));
                QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
            }
        }
    }

    void keepsTheCursorDuringADrag()
    {
        Window window;
        Hand hand(window);
        hand.moveTo(corner + QPoint(4, 150));
        hand.press(corner + QPoint(4, 150));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&window, &leave);
        QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
        hand.release(corner + QPoint(4, 150));
        QCoreApplication::sendEvent(&window, &leave);
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
        window.setCursor(Qt::CrossCursor); // cleared as well, though it is another's
        QCoreApplication::sendEvent(&window, &leave);
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    }

    void repaintsAWindowWhoseStateHasChanged()
    {
        Window window;
        QCoreApplication::processEvents();
        window.updateRequests = 0;
        const QList<QPair<Qt::WindowStates, bool>> olds{
            {Qt::WindowMinimized, true},
            {Qt::WindowNoState, false},
            {Qt::WindowMinimized | Qt::WindowMaximized, false},
        };
        for (const auto& [old, mapped] : olds) {
            QWindowStateChangeEvent change(old);
            QCoreApplication::sendEvent(&window, &change);
            QCOMPARE(window.testAttribute(Qt::WA_Mapped), mapped);
        }
        QCoreApplication::sendPostedEvents(&window, QEvent::UpdateRequest);
        QVERIFY(window.updateRequests >= 1);
    }

    void hasItsSignalsInOrder()
    {
        QCOMPARE(methodsOf<CFramelessHandler>(),
                 (QStringList{"signal toggleMaximize()", "signal movingMaximized()"}));
    }
};

QTEST_MAIN(TestFramelessHandler)
#include "TestFramelessHandler.moc"
