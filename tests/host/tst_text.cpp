#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <application/TApplication.h>
#include <graphics/TGraphicsTextItem.h>

#include <QFontDatabase>
#include <QSet>

namespace {

/** A text of one capital letter: what is drawn is nearly as high as the letter. */
std::unique_ptr<TGraphicsTextItem> Letter()
{
    auto text = std::make_unique<TGraphicsTextItem>();
    text->SetText("H");
    text->SetVector(false);
    text->Font().setPixelSize(40);
    text->UpdatePath(false);
    return text;
}

} // namespace

class TestText : public QObject
{
    Q_OBJECT

private slots:
    void theAnchorIsWhereTheAlignmentSays_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<int>("side"); // of the anchor that the text lies on: -1 left, 0 both, 1 right
        QTest::addColumn<int>("height");
        const int center = Qt::AlignHCenter | Qt::AlignVCenter;
        QTest::newRow("left") << int(Qt::AlignLeft) << 1 << 0;
        QTest::newRow("centre") << center << 0 << 0;
        QTest::newRow("right") << int(Qt::AlignRight) << -1 << 0;
        QTest::newRow("left and top") << int(Qt::AlignLeft | Qt::AlignTop) << 1 << 1;
        QTest::newRow("right and bottom") << int(Qt::AlignRight | Qt::AlignBottom) << -1 << -1;
    }
    void theAnchorIsWhereTheAlignmentSays()
    {
        QFETCH(int, alignment);
        QFETCH(int, side);
        QFETCH(int, height);
        const auto text = Letter();
        text->SetAlignment(alignment);
        text->UpdatePath(false);
        const QPointF center = text->boundingRect().center();
        const QSizeF size = text->boundingRect().size();
        QVERIFY(std::abs(center.x() - side * size.width() / 2) < size.width() / 4);
        QVERIFY(std::abs(center.y() - height * size.height() / 2) < size.height() / 8);
    }

    void plainSettersTakeEffectWithTheUpdate()
    {
        const auto text = Letter();
        const QRectF before = text->boundingRect();
        text->Font().setPixelSize(80);
        text->SetText("HHH");
        QCOMPARE(text->boundingRect(), before);
        text->UpdatePath(false);
        QVERIFY(text->boundingRect().height() > 1.5 * before.height());
        QVERIFY(text->boundingRect().width() > 3 * before.width());
    }

    void mirroringIsSeenAtOnceAndKeptInTheFlags()
    {
        const auto text = Letter();
        text->SetAlignment(Qt::AlignLeft | Qt::AlignTop);
        text->UpdatePath(false);
        const QPointF center = text->boundingRect().center();
        text->SetMirrorH(true);
        QCOMPARE(text->TFlags(), unsigned(TGraphicsItem::MirrorHorizontal));
        QCOMPARE(text->boundingRect().center(), QPointF(-center.x(), center.y()));
        text->SetMirrorV(true);
        QCOMPARE(text->boundingRect().center(), -center);
        text->SetMirrorH(false);
        text->SetMirrorV(false);
        QCOMPARE(text->TFlags(), 0u);
        QCOMPARE(text->boundingRect().center(), center);
    }

    void keepingThePlaceMovesTheAnchor()
    {
        const auto text = Letter();
        text->SetAlignment(Qt::AlignLeft);
        text->setPos(100, 50);
        text->setRotation(90);
        text->UpdatePath(false);
        const QPointF center = text->mapToScene(text->boundingRect().center());
        text->SetAlignment(Qt::AlignRight);
        text->UpdatePath(true);
        QVERIFY(text->pos() != QPointF(100, 50));
        const QPointF moved = text->mapToScene(text->boundingRect().center()) - center;
        QVERIFY(moved.manhattanLength() < 1e-6);
        text->SetAlignment(Qt::AlignLeft);
        text->UpdatePath(false);
        QVERIFY(text->mapToScene(text->boundingRect().center()) != center);
    }

    void aTextOfAPackageShowsItsDesignator()
    {
        Test::Network board;
        TGraphicsPackageItem* package = board.AddPackage("R1");
        package->SetValue("10k");
        QCOMPARE(package->RefDesText(), nullptr);
        auto* refDes = new TGraphicsTextItem(package);
        auto* value = new TGraphicsTextItem(package);
        package->SetRefDesText(refDes);
        package->SetValueText(value);
        QCOMPARE(refDes->Text(), QString("R1"));
        QCOMPARE(value->Text(), QString("10k"));
        package->SetRefDes("R2");
        package->SetValue("22k");
        QCOMPARE(refDes->Text(), QString("R2"));
        QCOMPARE(value->Text(), QString("22k"));

        delete refDes;
        QCOMPARE(package->RefDesText(), nullptr);
        QCOMPARE(package->ValueText(), value);
        package->SetRefDes("R3");
        QCOMPARE(package->RefDes(), QString("R3"));
    }

    void fontsAreThoseOfTheToolkit()
    {
        const QStringList names = TApplication::CharSetNames();
        QVERIFY(!names.isEmpty());
        QCOMPARE(names, QFontDatabase().families());
        QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), names.size());
    }
};

PROPERTIES_TEST(TestText)
#include "tst_text.moc"
