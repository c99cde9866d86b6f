#include "properties/commands/TCmdText.h"
#include "tests/support/Observers.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

namespace {

using Texts = QList<TGraphicsTextItem*>;

/** A text that says it is of some other kind. */
class Tag : public TGraphicsTextItem
{
public:
    int type() const override { return 0x1001b; }
};

template <class Item = TGraphicsTextItem>
Item* Added(TBoard& board)
{
    auto text = std::make_unique<Item>();
    Item* added = text.get();
    added->SetText("text");
    added->Font().setPixelSize(41); // 10 points
    added->UpdatePath(false);
    board.Attach(std::move(text));
    return added;
}

} // namespace

// What undo of text commands does not bring back, on purpose, and how sizes are converted.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void pointsBecomePixels_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("pixels");
        // 4.1669… pixels a point, cut off.
        QTest::newRow("2") << 2 << 8;
        QTest::newRow("3") << 3 << 12;
        QTest::newRow("6") << 6 << 25;
        QTest::newRow("10") << 10 << 41;
        QTest::newRow("12") << 12 << 50;
        QTest::newRow("24") << 24 << 100;
        QTest::newRow("72") << 72 << 300;
    }
    void pointsBecomePixels()
    {
        QFETCH(int, points);
        QFETCH(int, pixels);
        Test::TestBoard board;
        auto* text = Added(board);
        TCmdTextFontSize command(Texts{text}, points);
        command.redo();
        QCOMPARE(text->Font().pixelSize(), pixels);
        command.undo();
        QCOMPARE(text->Font().pixelSize(), 41);
    }

    void everyWholeSizeComesBack()
    {
        Test::TestBoard board;
        auto* text = Added(board);
        for (int points = 1; points <= 200; ++points) {
            TCmdTextFontSize(Texts{text}, points).redo();
            const int pixels = text->Font().pixelSize();
            TCmdTextFontSize command(Texts{text}, 10);
            command.redo();
            command.undo();
            QCOMPARE(text->Font().pixelSize(), pixels);
        }
    }

    void undoRoundsSizesToWholePoints_data()
    {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("undone");
        QTest::newRow("rounded down") << 43 << 41;      // 10.3 points
        QTest::newRow("rounded up") << 44 << 45;        // 10.6 points
        QTest::newRow("just below a half") << 18 << 16; // 4.3 points
        QTest::newRow("just above a half") << 19 << 20; // 4.6 points
    }
    void undoRoundsSizesToWholePoints()
    {
        QFETCH(int, pixels);
        QFETCH(int, undone);
        Test::TestBoard board;
        auto* text = Added(board);
        text->Font().setPixelSize(pixels);
        TCmdTextFontSize command(Texts{text}, 72);
        command.redo();
        QCOMPARE(text->Font().pixelSize(), 300);
        command.undo();
        QCOMPARE(text->Font().pixelSize(), undone);
    }

    // No font has such a size: the new one stays.
    void undoOfASizeBelowHalfAPointLeavesTheNewOne()
    {
        Test::TestBoard board;
        auto* text = Added(board);
        text->Font().setPixelSize(2);
        TCmdTextFontSize command(Texts{text}, 12);
        command.redo();
        command.undo();
        QCOMPARE(text->Font().pixelSize(), 50);
    }

    void sizeOfNoPixelChangesNothing()
    {
        Test::TestBoard board;
        auto* text = Added(board);
        for (const int points : {0, -3}) {
            TCmdTextFontSize(Texts{text}, points).redo();
            QCOMPARE(text->Font().pixelSize(), 41);
        }
    }

    void undoCutsFractionsOfADegree_data()
    {
        QTest::addColumn<double>("angle");
        QTest::addColumn<double>("undone");
        QTest::newRow("less than a half") << 12.25 << 12.0;
        QTest::newRow("more than a half") << 12.75 << 12.0;
        QTest::newRow("negative") << -12.75 << -12.0;
        QTest::newRow("less than a degree") << 0.9 << 0.0;
        QTest::newRow("whole") << 271.0 << 271.0;
    }
    void undoCutsFractionsOfADegree()
    {
        QFETCH(double, angle);
        QFETCH(double, undone);
        Test::TestBoard board;
        auto* text = Added(board);
        text->setRotation(angle);
        TCmdTextAngle command(Texts{text}, 90);
        command.redo();
        QCOMPARE(text->rotation(), 90.0);
        command.undo();
        QCOMPARE(text->rotation(), undone);
    }

    void undoKnowsTwoWeights_data()
    {
        QTest::addColumn<int>("weight");
        QTest::addColumn<int>("undone");
        QTest::newRow("light") << 25 << 50;
        QTest::newRow("normal") << 50 << 50;
        QTest::newRow("medium") << 57 << 50;
        QTest::newRow("one more") << 58 << 75;
        QTest::newRow("half bold") << 63 << 75;
        QTest::newRow("bold") << 75 << 75;
        QTest::newRow("black") << 87 << 75;
    }
    void undoKnowsTwoWeights()
    {
        QFETCH(int, weight);
        QFETCH(int, undone);
        Test::TestBoard board;
        auto* text = Added(board);
        text->Font().setWeight(weight);
        for (const bool bold : {true, false}) {
            text->Font().setWeight(weight);
            TCmdTextBold command(Texts{text}, bold);
            command.redo();
            QCOMPARE(text->Font().weight(), bold ? 75 : 50);
            command.undo();
            QCOMPARE(text->Font().weight(), undone);
        }
    }

    void undoMakesObliqueTextsItalic()
    {
        Test::TestBoard board;
        auto* text = Added(board);
        text->Font().setStyle(QFont::StyleOblique);
        TCmdTextItalic command(Texts{text}, false);
        command.redo();
        QCOMPARE(text->Font().style(), QFont::StyleNormal);
        command.undo();
        QCOMPARE(text->Font().style(), QFont::StyleItalic);
    }

    // The path is laid out anew at the same position, wherever that leaves the text's centre.
    void positionStays()
    {
        Test::TestBoard board;
        auto* text = Added(board);
        text->setPos(30, 40);
        const QRectF before = text->sceneBoundingRect();
        TCmdTextAlign align(Texts{text}, Qt::AlignRight);
        align.redo();
        QCOMPARE(text->pos(), QPointF(30, 40));
        QVERIFY(text->sceneBoundingRect() != before);
        align.undo();
        QCOMPARE(text->sceneBoundingRect(), before);
        TCmdTextFontSize size(Texts{text}, 40);
        size.redo();
        QCOMPARE(text->pos(), QPointF(30, 40));
        QVERIFY(text->sceneBoundingRect().height() > 2 * before.height());
        size.undo();
        QCOMPARE(text->sceneBoundingRect(), before);
    }

    void sizeMergesOnlyWithItself()
    {
        Test::TestBoard board;
        const Texts texts{Added(board), Added(board)};
        TCmdTextFontSize ten(texts, 10);
        const TCmdTextFontSize same(texts, 10);
        const TCmdTextFontSize twelve(texts, 12);
        QVERIFY(ten.mergeWith(&same));
        QVERIFY(!ten.mergeWith(&twelve));
    }

    // A set's texts are taken as they are; of a selection only those whose type number is that of free texts.
    void alignmentOfASelectionKeepsFreeTexts()
    {
        Test::TestBoard board;
        auto* text = Added(board);
        auto* tag = Added<Tag>(board);
        auto* via = board.AddVia();
        const QString before = board.Dump();
        TCmdTextAlign ofSelection(QList<TGraphicsItem*>{via, tag, nullptr, text}, Qt::AlignRight);
        ofSelection.redo();
        QCOMPARE(text->Alignment(), static_cast<int>(Qt::AlignRight));
        QCOMPARE(tag->Alignment(), static_cast<int>(Qt::AlignCenter));
        ofSelection.undo();
        QCOMPARE(board.Dump(), before);

        TCmdTextAlign ofTexts(Texts{tag, text}, Qt::AlignLeft);
        ofTexts.redo();
        QCOMPARE(text->Alignment(), static_cast<int>(Qt::AlignLeft));
        QCOMPARE(tag->Alignment(), static_cast<int>(Qt::AlignLeft));
        ofTexts.undo();
        QCOMPARE(board.Dump(), before);
    }
};

PROPERTIES_TEST(TestTexts)
#include "tst_texts.moc"
