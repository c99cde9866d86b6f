#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestProgram.h"

#include "properties/sets/TPropertySetForOutline.h"

#include <objects/TGraphicsOutlineItem.h>

namespace {

using Test::Scene;
using Set = TPropertySetForOutline;
using Item = TGraphicsOutlineItem;

OutlinePointStruct PointAt(double x, double y, int kind = 0)
{
    return {Scene(x), Scene(y), kind};
}

using Points = QVector<OutlinePointStruct>;

/** A triangle of 40 by 30 millimetres, which is drawn from right to left. */
const Points triangle{PointAt(20, 5), PointAt(-20, 5), PointAt(20, 35)};

Item* AddOutline(Test::TestBoard& board, const Points& points, bool bypass)
{
    Item* outline = Test::Place<Item>(board, {7, 8});
    outline->SetPenWidth(20);
    outline->SetPoints(points);
    outline->SetTFlag(TGraphicsItem::UndoBypass, bypass);
    return outline;
}

QString SizeRow(const char* value)
{
    return QStringLiteral("TPropertySize Size: 0..9999 step 1 decimals 2 = %1, height locked, disabled").arg(value);
}

} // namespace

Q_DECLARE_METATYPE(Points)

class TestOutlineSet : public QObject
{
    Q_OBJECT

private slots:
    void showsSizeAndLastLine_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<bool>("bypass");
        QTest::addColumn<QStringList>("rows");
        const QString size = SizeRow("40.00 mm x 30.00 mm");
        const auto line = [](const char* length) {
            return QStringLiteral("TPropertyText Line length: = %1 mm, disabled").arg(length);
        };
        QTest::newRow("drawn: size only") << triangle << false << QStringList{size};
        QTest::newRow("being drawn: the last line too") << triangle << true << QStringList{size, line("50.00")};
        QTest::newRow("two points") << Points{PointAt(0, 0), PointAt(1, 2)} << true
                                    << QStringList{SizeRow("1.00 mm x 2.00 mm"), line("2.24")};
        QTest::newRow("two points in one place")
            << Points{PointAt(1, 1), PointAt(1, 1)} << true << QStringList{SizeRow("0.00 mm x 0.00 mm"), line("0.00")};
        QTest::newRow("one point") << Points{PointAt(3, 4)} << true << QStringList{SizeRow("0.00 mm x 0.00 mm")};
        QTest::newRow("no point") << Points() << true << QStringList{SizeRow("0.00 mm x 0.00 mm")};
        QTest::newRow("last point of an arc") << Points{PointAt(0, 0), PointAt(4, 0), PointAt(0, 0, 1)} << true
                                              << QStringList{SizeRow("4.00 mm x 0.00 mm")};
        QTest::newRow("second to last point of an arc") << Points{PointAt(0, 0), PointAt(2, 0, 1), PointAt(4, 0)}
                                                        << true << QStringList{SizeRow("4.00 mm x 0.00 mm")};
        QTest::newRow("arc before the last line")
            << Points{PointAt(0, 0), PointAt(2, 0, 1), PointAt(4, 0), PointAt(4, 3)} << true
            << QStringList{SizeRow("4.00 mm x 3.00 mm"), line("3.00")};
        QTest::newRow("beyond the range") << Points{PointAt(0, 0), PointAt(12000, 0)} << true
                                          << QStringList{SizeRow("9999.00 mm x 0.00 mm"), line("12000.00")};
    }

    void showsSizeAndLastLine()
    {
        QFETCH(Points, points);
        QFETCH(bool, bypass);
        Test::TestBoard board;
        board.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil); // Always millimetres.
        const Set set({AddOutline(board, points, bypass)});
        QTEST(Test::RowTexts(&set), "rows");
        QCOMPARE(set.Name(), QString("Outline"));
    }

    void showsTheLastOutline()
    {
        Test::TestBoard board;
        Item* first = AddOutline(board, {PointAt(0, 0), PointAt(1, 1)}, true);
        const Set set({first, AddOutline(board, triangle, false), board.AddVia()});
        QCOMPARE(Test::RowTexts(&set), QStringList{SizeRow("40.00 mm x 30.00 mm")});
    }

    void withoutAnOutlineThereAreNoRows()
    {
        Test::TestBoard board;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{board.AddVia(), board.AddHole()}}) {
            const Set set(selection);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Outline"));
        }
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const Set set({AddOutline(board, triangle, true)});
        QCOMPARE(set.Name(), QString("~Outline"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForOutline", {"Size:", "Line length:"}), QStringList());
    }
};

PROPERTIES_TEST(TestOutlineSet)
#include "tst_outline.moc"
