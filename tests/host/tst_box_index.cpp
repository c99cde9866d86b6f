#include "tests/support/TestProgram.h"

#include <graphics/engine/TBoxIndex.h>

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

namespace {

using Box = TBoxIndex::Box;

constexpr double everywhere = std::numeric_limits<double>::infinity();

bool Meet(const Box& one, const Box& other)
{
    return one.left <= other.right && other.left <= one.right && one.top <= other.bottom && other.top <= one.bottom;
}

/** Whether a line has a point in a box, told by which side of it the corners are on. Exact for small whole numbers. */
bool Meet(const Box& box, const QLineF& line)
{
    const auto side = [&line](double x, double y) { return line.dx() * (y - line.y1()) - line.dy() * (x - line.x1()); };
    const auto [least, most] = std::minmax(
        {side(box.left, box.top), side(box.right, box.top), side(box.left, box.bottom), side(box.right, box.bottom)});
    const auto [left, right] = std::minmax({line.x1(), line.x2()});
    const auto [top, bottom] = std::minmax({line.y1(), line.y2()});
    return least <= 0 && most >= 0 && Meet(box, Box{left, top, right, bottom});
}

template <class Shape>
QVector<int> LookedAtAll(const QVector<Box>& boxes, const Shape& shape)
{
    QVector<int> numbers;
    for (int i = 0; i < boxes.size(); ++i) {
        if (Meet(boxes[i], shape)) {
            numbers.append(i);
        }
    }
    return numbers;
}

double SquareDistance(const Box& box, const QPointF& point)
{
    const double dx = std::max({box.left - point.x(), 0.0, point.x() - box.right});
    const double dy = std::max({box.top - point.y(), 0.0, point.y() - box.bottom});
    return dx * dx + dy * dy;
}

bool IsNoMultipleOfThree(int number)
{
    return number % 3 != 0;
}

/** The first of the nearest boxes that are no multiple of three, within a distance. */
int NearestOfAll(const QVector<Box>& boxes, const QPointF& point, double within)
{
    int nearest = -1;
    for (int i = 0; i < boxes.size(); ++i) {
        const double square = SquareDistance(boxes[i], point);
        if (IsNoMultipleOfThree(i) && std::sqrt(square) <= within * (1 + 1e-12)
            && (nearest < 0 || square < SquareDistance(boxes[nearest], point))) {
            nearest = i;
        }
    }
    return nearest;
}

} // namespace

class TestBoxIndex : public QObject
{
    Q_OBJECT

private slots:
    void itFindsWhatLookingAtAllFinds_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("extent");
        QTest::addColumn<int>("largest");
        QTest::addColumn<double>("scale");
        for (const int count : {0, 1, 2, 16, 17, 300, 2000}) {
            QTest::addRow("%d boxes", count) << count << 1000 << 60 << 1.0;
            QTest::addRow("%d boxes without size", count) << count << 40 << 0 << 1.0;
            QTest::addRow("%d boxes on few places", count) << count << 8 << 3 << 1.0;
            QTest::addRow("%d large boxes", count) << count << 100 << 100 << 1.0;
            QTest::addRow("%d boxes far away", count) << count << 1000 << 60 << 1e9;
        }
    }
    void itFindsWhatLookingAtAllFinds()
    {
        QFETCH(int, count);
        QFETCH(int, extent);
        QFETCH(int, largest);
        QFETCH(double, scale);
        std::mt19937 random(static_cast<unsigned>(count * extent + largest));
        const auto pick = [&random](int least, int most) {
            return static_cast<double>(std::uniform_int_distribution<int>(least, most)(random));
        };
        const auto pickBox = [&] {
            const double left = pick(-extent, extent) * scale;
            const double top = pick(-extent, extent) * scale;
            return Box{left, top, left + pick(0, largest) * scale, top + pick(0, largest) * scale};
        };
        QVector<Box> boxes(count);
        std::generate(boxes.begin(), boxes.end(), pickBox);
        const TBoxIndex index(boxes);
        for (int i = 0; i < 200; ++i) {
            const Box box = pickBox();
            QCOMPARE(index.Meeting(box), LookedAtAll(boxes, box));
            const QLineF line(box.left, box.top, pick(-extent, extent) * scale, pick(-extent, extent) * scale);
            const QVector<int> onLine = index.Meeting(line);
            QVERIFY(std::is_sorted(onLine.begin(), onLine.end()));
            for (const double within : {0.0, largest * scale, everywhere}) {
                QCOMPARE(index.Nearest(line.p2(), within, IsNoMultipleOfThree), NearestOfAll(boxes, line.p2(), within));
            }
            const double hair = std::max(scale, 1.0) * 1e-6;
            for (int number = 0; number < count; ++number) {
                const Box& each = boxes[number];
                const Box less{each.left + hair, each.top + hair, each.right - hair, each.bottom - hair};
                const Box more{each.left - hair, each.top - hair, each.right + hair, each.bottom + hair};
                const bool isThinner = less.left > less.right || less.top > less.bottom;
                QVERIFY(!onLine.contains(number) || Meet(more, line));
                QVERIFY(onLine.contains(number) || isThinner || !Meet(less, line));
            }
        }
    }

    void edgesAndCornersBelongToABox()
    {
        const TBoxIndex index({{0, 0, 10, 10}, {10, 10, 20, 20}, {10, 0, 20, 10}});
        QCOMPARE(index.Meeting(Box{10, 10, 10, 10}), (QVector<int>{0, 1, 2}));
        QCOMPARE(index.Meeting(Box{-5, -5, 0, 0}), QVector<int>{0});
        QCOMPARE(index.Meeting(Box{20, 5, 30, 6}), QVector<int>{2});
        QCOMPARE(index.Meeting(Box{20.5, 5, 30, 6}), QVector<int>());
        QCOMPARE(index.Meeting(QLineF(0, 20, 20, 0)), (QVector<int>{0, 1, 2}));
        QCOMPARE(index.Meeting(QLineF(-5, 5, 5, -5)), QVector<int>{0});
        QCOMPARE(index.Meeting(QLineF(-5, 4, 4, -5)), QVector<int>());
    }

    void linesMayBeStraightUpOrWithoutLength()
    {
        const TBoxIndex index({{0, 0, 10, 10}, {20, 0, 30, 10}, {20, 5, 20, 5}});
        QCOMPARE(index.Meeting(QLineF(-5, 10, 25, 10)), (QVector<int>{0, 1}));
        QCOMPARE(index.Meeting(QLineF(20, 40, 20, -40)), (QVector<int>{1, 2}));
        QCOMPARE(index.Meeting(QLineF(20, 5, 20, 5)), (QVector<int>{1, 2}));
        QCOMPARE(index.Meeting(QLineF(15, 5, 15, 5)), QVector<int>());
    }

    void ofThoseJustAsNearTheFirstIsTaken()
    {
        const TBoxIndex index({{9, 9, 9, 9}, {3, 4, 3, 4}, {-7, 3, -4, 3}, {-4, -3, -4, -3}, {5, 0, 6, 0}});
        const auto all = [](int) { return true; };
        QCOMPARE(index.Nearest({0, 0}, everywhere, all), 1);
        QCOMPARE(index.Nearest({0, 0}, 5, all), 1);
        QCOMPARE(index.Nearest({0, 0}, 4.999, all), -1);
        QCOMPARE(index.Nearest({0, 0}, everywhere, [](int number) { return number > 2; }), 3);
        QCOMPARE(index.Nearest({0, 0}, everywhere, [](int) { return false; }), -1);
        QCOMPARE(index.Nearest({6, 0}, 0, all), 4);
    }

    void wholeNumbersAreToldApartAsFarAsDoublesReach()
    {
        const double far = 9e15;
        const TBoxIndex index({{far, -far, far, -far}, {far + 1, -far, far + 1, -far}, {-far, -far, far - 1, far}});
        QCOMPARE(index.Meeting(Box{far, -far, far, -far}), QVector<int>{0});
        QCOMPARE(index.Meeting(Box{far + 1, -far, far + 1, far}), QVector<int>{1});
        QCOMPARE(index.Meeting(Box{far - 1, 0, far, 0}), QVector<int>{2});
    }

    void manyBoxesInOnePlaceAreAllFoundInOrder()
    {
        const TBoxIndex index(QVector<Box>(1000, Box{1, 2, 3, 4}));
        QVector<int> all(1000);
        std::iota(all.begin(), all.end(), 0);
        QCOMPARE(index.Meeting(Box{3, 4, 5, 5}), all);
    }

    void boxesOfItemsAndRectanglesAreTakenAsTheyAre()
    {
        const QVector<QRectF> rects{{1, 2, 3, 4}, {10, 10, 0, 0}};
        const TBoxIndex index(rects, TBoxIndex::Of);
        QCOMPARE(index.Meeting(Box{4, 6, 10, 10}), (QVector<int>{0, 1}));
        const TBoxIndex copy = index; // NOLINT(performance-unnecessary-copy-initialization): what is tested.
        QCOMPARE(copy.Meeting(Box{4.5, 6, 10, 10}), QVector<int>{1});
    }
};

PROPERTIES_TEST(TestBoxIndex)
#include "tst_box_index.moc"
