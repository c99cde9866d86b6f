#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/sets/TPropertySetForText.h"

#include <application/TApplication.h>
#include <graphics/TGraphicsTextItem.h>

namespace {

using Set = TPropertySetForText;
using Item = TGraphicsTextItem;

const QList<Osmirel::Layer> layers{Osmirel::PackagesTop, Osmirel::PackagesBottom};

Item* AddText(Test::TestBoard& board)
{
    Item* text = Test::Place<Item>(board);
    text->SetLayer(Osmirel::PackagesTop);
    text->SetText("abc");
    text->Font().setFamily("A family that no system has");
    text->Font().setPixelSize(41); // 10 points
    text->SetAlignment(Qt::AlignLeft);
    text->SetLineWidth(3);
    text->UpdatePath(false);
    return text;
}

QString FontNameRow(const char* shown)
{
    QStringList names;
    for (const QString& name : TApplication::CharSetNames()) {
        names.append(name + " 0");
    }
    return "TPropertyEnum Font name: " + names.join(", ") + " = " + shown;
}

/** A row whose family is not offered: it is put first. */
QString FontNameRowWith(const QString& family)
{
    return FontNameRow(qPrintable(family)).replace("Font name: ", "Font name: " + family + ", ");
}

QString FontSizeRow(const QString& shown)
{
    QStringList sizes;
    for (const int points :
         {2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 32, 36, 40, 48, 56, 64, 72}) {
        sizes.append(QStringLiteral("%1 %1").arg(points));
    }
    return "TPropertyEnum Font size: " + sizes.join(", ") + " = " + shown;
}

QString AngleRow(const char* shown)
{
    return QString::fromUtf8("TPropertyEnum Angle: 0\xC2\xB0 0, 90\xC2\xB0 90, 180\xC2\xB0 180, 270\xC2\xB0 270 = ")
           + QString::fromUtf8(shown);
}

QStringList PlainRows()
{
    return {
        "TPropertyEnum Type: Vector 0, True Type 1 = Vector",
        FontNameRowWith("A family that no system has"),
        FontSizeRow("10"),
        "TPropertyEnum Alignment: Left 1, Center 132, Right 2 = Left",
        "TPropertyCheck2 Mirror: = [ ] Hor. [ ] Ver.",
        "TPropertyCheck Bold: = [ ]",
        "TPropertyCheck Italic: = [ ]",
        AngleRow("0\xC2\xB0"),
        "TPropertyLayer Layer: Packages top 59, Packages bottom 84 = Packages top",
        "TPropertyColor Color: 23 colours = Default",
        "TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 3 mm",
    };
}

using ChangeText = void (*)(Item& text);

} // namespace

Q_DECLARE_METATYPE(ChangeText)

/** What the set of texts shows; see also `TestTextSlots`. */
class TestTextSet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(!TApplication::CharSetNames().isEmpty()); }

    void showsOneText_data()
    {
        QTest::addColumn<ChangeText>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeText change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("outlines", [](Item& text) { text.SetVector(false); },
            {"TPropertyEnum Type: Vector 0, True Type 1 = True Type"});
        add("family that is offered", [](Item& text) { text.Font().setFamily(TApplication::CharSetNames().last()); },
            {FontNameRow(qPrintable(TApplication::CharSetNames().last()))});
        add("centred", [](Item& text) { text.SetAlignment(Qt::AlignCenter); },
            {"TPropertyEnum Alignment: Left 1, Center 132, Right 2 = Center"});
        add("right", [](Item& text) { text.SetAlignment(Qt::AlignRight); },
            {"TPropertyEnum Alignment: Left 1, Center 132, Right 2 = Right"});
        add("alignment that is not offered", [](Item& text) { text.SetAlignment(Qt::AlignTop); },
            {"TPropertyEnum Alignment: Left 1, Center 132, Right 2 = none"});
        add("mirrored horizontally", [](Item& text) { text.SetTFlag(TGraphicsItem::MirrorHorizontal, true); },
            {"TPropertyCheck2 Mirror: = [x] Hor. [ ] Ver."});
        add("mirrored vertically", [](Item& text) { text.SetTFlag(TGraphicsItem::MirrorVertical, true); },
            {"TPropertyCheck2 Mirror: = [ ] Hor. [x] Ver."});
        add("bold", [](Item& text) { text.Font().setWeight(58); }, {"TPropertyCheck Bold: = [x]"});
        add("not quite bold", [](Item& text) { text.Font().setWeight(57); }, {});
        add("italic", [](Item& text) { text.Font().setStyle(QFont::StyleItalic); }, {"TPropertyCheck Italic: = [x]"});
        add("oblique", [](Item& text) { text.Font().setStyle(QFont::StyleOblique); }, {"TPropertyCheck Italic: = [x]"});
        add("angle", [](Item& text) { text.setRotation(270); }, {AngleRow("270\xC2\xB0")});
        add("angle, truncated", [](Item& text) { text.setRotation(90.9); }, {AngleRow("90\xC2\xB0")});
        add("angle, truncated towards zero", [](Item& text) { text.setRotation(-0.9); }, {});
        add("angle that is not offered", [](Item& text) { text.setRotation(45); }, {AngleRow("none")});
        add("layer", [](Item& text) { text.SetLayer(Osmirel::PackagesBottom); },
            {"TPropertyLayer Layer: Packages top 59, Packages bottom 84 = Packages bottom"});
        add("colour", [](Item& text) { text.SetAltColor(QColor("#123456")); },
            {"TPropertyColor Color: 24 colours = #123456"});
        add("colour of the palette", [](Item& text) { text.SetAltColor(QColor("#FF5511")); },
            {"TPropertyColor Color: 24 colours = #ff5511"});
        add("line width, not converted", [](Item& text) { text.SetLineWidth(59); },
            {"TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 59 mm"});
        add("line width, beyond the range", [](Item& text) { text.SetLineWidth(101); },
            {"TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 100 mm"});
    }

    void showsOneText()
    {
        QFETCH(ChangeText, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Item* text = AddText(board);
        change(*text);
        const Set set({text}, layers);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(PlainRows(), rows));
        QCOMPARE(set.Name(), QString("Text"));
    }

    void showsWhatTheSecondTextLeavesShared_data()
    {
        QTest::addColumn<ChangeText>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeText change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("nothing differs", [](Item&) {}, {});
        add("kind of font: the first's", [](Item& text) { text.SetVector(false); }, {});
        add("family", [](Item& text) { text.Font().setFamily("Another"); }, {FontNameRow("none")});
        add("size", [](Item& text) { text.Font().setPixelSize(50); }, {FontSizeRow("none")});
        add("size, by less than a point", [](Item& text) { text.Font().setPixelSize(42); }, {});
        add("sizes that are shown alike", [](Item& text) { text.Font().setPixelSize(45); }, {FontSizeRow("none")});
        add("alignment", [](Item& text) { text.SetAlignment(Qt::AlignRight); },
            {"TPropertyEnum Alignment: Left 1, Center 132, Right 2 = none"});
        add("mirrored horizontally", [](Item& text) { text.SetTFlag(TGraphicsItem::MirrorHorizontal, true); }, {});
        add("bold", [](Item& text) { text.Font().setWeight(QFont::Bold); }, {});
        add("italic", [](Item& text) { text.Font().setStyle(QFont::StyleItalic); }, {});
        add("angle", [](Item& text) { text.setRotation(90); }, {AngleRow("none")});
        add("angle, by less than a degree", [](Item& text) { text.setRotation(0.5); }, {});
        add("layer", [](Item& text) { text.SetLayer(Osmirel::PackagesBottom); },
            {"TPropertyLayer Layer: Packages top 59, Packages bottom 84 = none"});
        add("colour: default", [](Item& text) { text.SetAltColor(Qt::red); }, {});
        add("line width: the last's", [](Item& text) { text.SetLineWidth(9); }, {});
    }

    void showsWhatTheSecondTextLeavesShared()
    {
        QFETCH(ChangeText, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Item* second = AddText(board);
        change(*second);
        const Set set({board.AddVia(), AddText(board), second, AddText(board), board.AddHole()}, layers);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(PlainRows(), rows));
    }

    void boxesOfMixedValuesAreUnticked()
    {
        Test::TestBoard board;
        Item* first = AddText(board);
        first->SetTFlag(TGraphicsItem::MirrorHorizontal, true);
        first->SetTFlag(TGraphicsItem::MirrorVertical, true);
        first->Font().setBold(true);
        first->Font().setItalic(true);
        first->SetAltColor(Qt::red);
        Item* second = AddText(board);
        second->SetTFlag(TGraphicsItem::MirrorVertical, true);
        second->SetLineWidth(9);
        const Set set({first, second}, layers);
        const QStringList rows =
            Test::WithRows(PlainRows(), {"TPropertyCheck2 Mirror: = [ ] Hor. [x] Ver.",
                                         "TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 9 mm"});
        QCOMPARE(Test::RowTexts(&set), rows);
    }

    void kindOfFontIsTheFirstTexts()
    {
        Test::TestBoard board;
        Item* first = AddText(board);
        first->SetVector(false);
        const Set set({first, AddText(board)}, layers);
        QCOMPARE(Test::RowTexts(&set).first(), QString("TPropertyEnum Type: Vector 0, True Type 1 = True Type"));
    }

    void sizesAreShownAsOffered_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("shown");
        for (int points = 3; points <= 10; ++points) {
            QTest::addRow("%d", points) << points << points << QString::number(points);
        }
        const int ends[] = {10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 32, 36, 40, 48, 56, 64};
        for (int i = 1; i < 16; ++i) {
            QTest::addRow("%d to %d", ends[i - 1] + 1, ends[i])
                << ends[i - 1] + 1 << ends[i] << QString::number(ends[i]);
        }
        QTest::newRow("above 64") << 65 << 200 << "72";
        QTest::newRow("2 and less") << 1 << 2 << "2";
    }

    void sizesAreShownAsOffered()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, shown);
        Test::TestBoard board;
        Item* text = AddText(board);
        for (int points = from; points <= to; ++points) {
            text->Font().setPixelSize(static_cast<int>(points * 0.3528 * 11.811023622047244));
            const Set set({text}, layers);
            QCOMPARE(Test::RowTexts(&set).value(2), FontSizeRow(shown));
        }
    }

    void layerRowNeedsTwoLayers_data()
    {
        QTest::addColumn<QList<Osmirel::Layer>>("offered");
        QTest::addColumn<bool>("shown");
        QTest::newRow("none") << QList<Osmirel::Layer>() << false;
        QTest::newRow("one") << QList<Osmirel::Layer>{Osmirel::PackagesTop} << false;
        QTest::newRow("two") << layers << true;
    }

    void layerRowNeedsTwoLayers()
    {
        QFETCH(QList<Osmirel::Layer>, offered);
        QFETCH(bool, shown);
        Test::TestBoard board;
        const Set set({AddText(board)}, offered);
        QStringList rows = PlainRows();
        if (!shown) {
            rows.removeAt(8);
        }
        QCOMPARE(Test::RowTexts(&set), rows);
    }

    void someTextsHaveOnlyAngleAndLineWidth()
    {
        Test::TestBoard board;
        Item* second = AddText(board);
        second->SetTFlag(TGraphicsItem::OnlyAngleAndLine, true);
        QCOMPARE(second->TFlags(), 2U);
        const Set set({AddText(board), second, AddText(board)}, layers);
        QCOMPARE(Test::Labels(&set), (QStringList{"Angle:", "Line width:"}));
        QCOMPARE(Test::RowTexts(&set), (QStringList{PlainRows().value(7), PlainRows().value(10)}));
    }

    void withoutTextsThereAreNoRows()
    {
        Test::TestBoard board;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{board.AddVia(), board.AddHole()}}) {
            Set set(selection, layers);
            const Test::CommandLog log(set);
            set.SetBold(true);
            set.SetColor(Qt::red);
            set.SetLine(2);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Text"));
            QCOMPARE(log.Count(), 0);
        }
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const Set set({AddText(board)}, layers);
        QCOMPARE(set.Name(), QString("~Text"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForText",
                                    {"Type:", "Font name:", "Font size:", "Alignment:", "Angle:", "Mirror:", "Bold:",
                                     "Italic:", "Layer:", "Color:", "Line width:", "Vector", "True Type", "Left",
                                     "Center", "Right", "Hor.", "Ver."}),
                 QStringList());
    }
};

PROPERTIES_TEST(TestTextSet)
#include "tst_text.moc"
