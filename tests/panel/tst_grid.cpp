#include "tests/support/PanelFixture.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertySeparator.h"

#include <QImage>

namespace {

/** What the tree itself paints, without the editors that stand over it. */
class Painted
{
public:
    explicit Painted(TTreeWidget* tree) : image(tree->viewport()->size(), QImage::Format_RGB32)
    {
        image.fill(Qt::white);
        tree->viewport()->render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    }

    bool IsGrid(int x, int y) const { return image.pixelColor(x, y) == QColor(Qt::lightGray); }

    /** Whether a column of pixels is grid from @p top to @p bottom, both included. */
    bool HasVertical(int x, int top, int bottom) const
    {
        for (int y = top; y <= bottom; ++y) {
            if (!IsGrid(x, y)) {
                return false;
            }
        }
        return true;
    }

    bool HasHorizontal(int y, int left, int right) const
    {
        for (int x = left; x <= right; ++x) {
            if (!IsGrid(x, y)) {
                return false;
            }
        }
        return true;
    }

    int GridPixels() const
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += IsGrid(x, y) ? 1 : 0;
            }
        }
        return count;
    }

    /** Grid pixels below a height. */
    int GridPixelsBelow(int y) const
    {
        return Painted(image.copy(0, y + 1, image.width(), image.height())).GridPixels();
    }

private:
    explicit Painted(const QImage& part) : image(part) {}

    QImage image;
};

/** Heights of all rows that are not hidden, summed. */
int TotalHeight(const TTreeWidget* tree)
{
    int total = 0;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        total += tree->visualItemRect(tree->topLevelItem(i)).height();
    }
    return total;
}

Test::PlainSet* ThreeRows()
{
    auto* set = new Test::PlainSet;
    set->Add<TPropertyCheck>("First:");
    set->Add<TPropertySeparator>("A group");
    set->Add<TPropertyCheck>("Last:");
    return set;
}

} // namespace

class TestGrid : public QObject
{
    Q_OBJECT

private slots:
    void linesStandRightOfBothColumns()
    {
        Test::PanelWindow place;
        place.Show(ThreeRows());
        TTreeWidget* tree = place.Tree();
        const Painted painted(tree);
        const int total = TotalHeight(tree);
        const int labelEnd = -1 + tree->columnWidth(1);
        const int editorEnd = labelEnd + tree->columnWidth(2);
        QVERIFY(total > 0 && total < tree->viewport()->height());
        QVERIFY(editorEnd < tree->viewport()->width());
        QVERIFY(painted.HasVertical(labelEnd, 0, total));
        QVERIFY(painted.HasVertical(editorEnd, 0, total));
        QVERIFY(!painted.IsGrid(labelEnd, total + 1));
        QCOMPARE(painted.GridPixelsBelow(total), 0);
    }

    void eachRowIsOutlined()
    {
        Test::PanelWindow place;
        place.Show(ThreeRows());
        TTreeWidget* tree = place.Tree();
        const Painted painted(tree);
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            const QRect rect = tree->visualItemRect(tree->topLevelItem(i));
            const int right = rect.left() + rect.width() - 1;
            QVERIFY(painted.HasHorizontal(rect.top(), rect.left(), right));
            QVERIFY(painted.HasHorizontal(rect.top() + rect.height(), rect.left(), right));
            QVERIFY(painted.HasVertical(rect.left(), rect.top(), rect.bottom()));
        }
    }

    void outlinesAreNotFilled()
    {
        Test::PanelWindow place;
        place.Show(ThreeRows());
        TTreeWidget* tree = place.Tree();
        const Painted painted(tree);
        const QRect rect = tree->visualItemRect(tree->topLevelItem(0));
        QVERIFY(!painted.IsGrid(tree->columnWidth(1) - 3, rect.top() + 2));
        QVERIFY(!painted.IsGrid(rect.right() - 10, rect.center().y()));
    }

    void hiddenRowsCountForNothing()
    {
        Test::PanelWindow place;
        Test::PlainSet* set = ThreeRows();
        place.Show(set);
        const int all = TotalHeight(place.Tree());
        set->Properties().last()->SetVisible(false);
        Test::Settle();
        const Painted painted(place.Tree());
        const int total = TotalHeight(place.Tree());
        QVERIFY(total < all);
        QVERIFY(painted.HasVertical(place.Tree()->columnWidth(1) - 1, 0, total));
        QCOMPARE(painted.GridPixelsBelow(total), 0);
    }

    void noRowsNoGrid_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("no set") << -1;
        QTest::newRow("empty set") << 0;
        QTest::newRow("all rows hidden") << 2;
    }

    void noRowsNoGrid()
    {
        QFETCH(int, rows);
        Test::PanelWindow place;
        place.Show(ThreeRows());
        QVERIFY(Painted(place.Tree()).GridPixels() > 0);
        Test::PlainSet* set = rows < 0 ? nullptr : new Test::PlainSet;
        for (int i = 0; i < rows; ++i) {
            set->Add<TPropertyCheck>("Hidden:")->SetVisible(false);
        }
        place.Show(set);
        QCOMPARE(Painted(place.Tree()).GridPixels(), 0);
    }
};

PROPERTIES_TEST(TestGrid)
#include "tst_grid.moc"
