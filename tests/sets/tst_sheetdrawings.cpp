#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/commands/TCmdText.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForText.h"

#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsRectItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

namespace {

/** Sheets have one layer for each thing, so that there is nothing to choose. */
const QList<Osmirel::Layer> textLayer{Osmirel::SchematicTexts};
const QList<Osmirel::Layer> symbolLayer{Osmirel::SchematicSymbols};

template <class Item>
Item* AddText(Test::SheetProject& design, const QString& text)
{
    auto* item = design.Add<Item>();
    item->SetLayer(Osmirel::SchematicTexts);
    item->SetText(text);
    item->Font().setPixelSize(41);
    item->SetAlignment(Qt::AlignLeft);
    item->UpdatePath(false);
    return item;
}

TGraphicsTagItem* AddTag(Test::SheetProject& design)
{
    auto* tag = AddText<TGraphicsTagItem>(design, {});
    tag->SetValue("Amplifier", false);
    tag->SetName("Title", true);
    return tag;
}

/** A text and two tags of a page, and what is written there and is neither. */
struct SheetTexts
{
    using Set = TPropertySetForText;
    using Item = TGraphicsTextItem;

    SheetTexts()
    {
        auto* port = board.Add<TGraphicsPortItem>();
        port->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {AddTag(board), AddText<TGraphicsTextItem>(board, "note"), AddTag(board)};
        items[1]->setRotation(90);
        items[2]->SetMirrorV(true);
        selection = {port, items[0], items[1], board.AddWire("A"), items[2]};
    }

    Set* MakeSet() { return new Set(selection, textLayer); }

    Test::SheetProject board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<SheetTexts> textCases[] = {
    {"outlines", [](TPropertySetForText& set) { set.SetTrueTrue(1); }, nullptr, "TCmdTextTrueType",
     [](TGraphicsTextItem& text) { text.SetVector(false); }, nullptr, nullptr},
    {"size", [](TPropertySetForText& set) { set.SetFontSize(18); }, nullptr, "TCmdTextFontSize",
     [](TGraphicsTextItem& text) { text.Font().setPixelSize(75); }, nullptr, nullptr},
    {"alignment", [](TPropertySetForText& set) { set.SetAlign(2); }, nullptr, "TCmdTextAlign",
     [](TGraphicsTextItem& text) { text.SetAlignment(Qt::AlignRight); }, nullptr, nullptr},
    {"angle", [](TPropertySetForText& set) { set.SetAngle(180); }, nullptr, "TCmdTextAngle",
     [](TGraphicsTextItem& text) { text.setRotation(180); }, nullptr, nullptr},
    {"bold", [](TPropertySetForText& set) { set.SetBold(true); }, nullptr, "TCmdTextBold",
     [](TGraphicsTextItem& text) { text.Font().setWeight(75); }, nullptr, nullptr},
    {"mirror", [](TPropertySetForText& set) { set.SetMirrorH(true); }, nullptr, "TCmdTextMirrH",
     [](TGraphicsTextItem& text) { text.SetMirrorH(true); }, nullptr, nullptr},
    {"colour", [](TPropertySetForText& set) { set.SetColor(Qt::red); }, nullptr, "TCmdUserColor",
     [](TGraphicsTextItem& text) { text.SetAltColor(Qt::red); }, nullptr, nullptr},
};

TGraphicsRectItem* AddRectangle(Test::SheetProject& design)
{
    auto* rectangle = design.Add<TGraphicsRectItem>();
    rectangle->SetLayer(Osmirel::SchematicSymbols);
    rectangle->SetPenWidth(Test::SceneF(0.254));
    rectangle->SetSize(Test::SceneF(4), Test::SceneF(3));
    return rectangle;
}

const QStringList shownOfTexts{"Type:", "Font name:", "Font size:", "Alignment:", "Mirror:",
                               "Bold:", "Italic:",    "Angle:",     "Color:",     "Line width:"};

using EditDrawings = void (*)(TPropertySetForPrimitives& set);

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<SheetTexts>*)
Q_DECLARE_METATYPE(EditDrawings)

/** The sets that boards and sheets share, over what stands on a sheet. */
class TestSheetDrawings : public QObject
{
    Q_OBJECT

private slots:
    void textsHaveNoLayerRow_data()
    {
        QTest::addColumn<QList<Osmirel::Layer>>("layers");
        QTest::newRow("one layer") << textLayer;
        QTest::newRow("no layer") << QList<Osmirel::Layer>();
    }

    void textsHaveNoLayerRow()
    {
        QFETCH(QList<Osmirel::Layer>, layers);
        SheetTexts texts;
        const TPropertySetForText set(texts.selection, layers);
        QCOMPARE(Test::Labels(&set), shownOfTexts);
        QCOMPARE(set.Name(), QString("Text"));
    }

    void tagsCountAsTexts()
    {
        Test::SheetProject design;
        TGraphicsTagItem* tag = AddTag(design);
        tag->setRotation(270);
        const TPropertySetForText set({tag}, textLayer);
        QCOMPARE(Test::Labels(&set), shownOfTexts);
        QVERIFY(Test::RowTexts(&set).value(7).endsWith(QString::fromUtf8("= 270°")));
        const TPropertySetForText ofOthers({design.Add<TGraphicsPortItem>(), design.AddWire("A")}, textLayer);
        QVERIFY(ofOthers.Properties().isEmpty());
    }

    void textsThatHangOnPartsHaveTwoRows()
    {
        Test::SheetProject design;
        auto* part = design.Add<TGraphicsPartItem>();
        auto* text = AddText<TGraphicsTextItem>(design, "R1");
        text->SetTFlag(TGraphicsItem::OnlyAngleAndLine, true);
        part->SetRefDesText(text);
        const TPropertySetForText set({AddTag(design), text}, textLayer);
        QCOMPARE(Test::Labels(&set), (QStringList{"Angle:", "Line width:"}));
    }

    void slotOfTextsReachesTags_data() { Test::AddSlotRows(textCases); }

    void slotOfTextsReachesTags()
    {
        QFETCH(const Test::SlotCase<SheetTexts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<SheetTexts>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<SheetTexts>(*slot, {byRow, {1, 2}}).CheckCommand();
        Test::SlotLaw<SheetTexts>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void alignmentOfAnyItemsSkipsTags()
    {
        Test::SheetProject design;
        auto* text = AddText<TGraphicsTextItem>(design, "note");
        TGraphicsTagItem* tag = AddTag(design);
        auto* pin = design.Add<TGraphicsPinItem>();
        const QString others = tag->StateLine() + pin->StateLine();
        TCmdTextAlign command(QList<TGraphicsItem*>{tag, pin, text, design.AddWire("A")}, Qt::AlignRight);
        command.redo();
        QCOMPARE(text->Alignment(), static_cast<int>(Qt::AlignRight));
        QCOMPARE(tag->StateLine() + pin->StateLine(), others);
        command.undo();
        QCOMPARE(text->Alignment(), static_cast<int>(Qt::AlignLeft));
    }

    void drawingsHaveNoLayerRow_data()
    {
        QTest::addColumn<QList<Osmirel::Layer>>("layers");
        QTest::newRow("one layer") << symbolLayer;
        QTest::newRow("no layer") << QList<Osmirel::Layer>();
    }

    void drawingsHaveNoLayerRow()
    {
        QFETCH(QList<Osmirel::Layer>, layers);
        Test::SheetProject design;
        const TPropertySetForPrimitives set({AddRectangle(design)}, layers);
        QCOMPARE(Test::Labels(&set), (QStringList{"Line width:", "Line style:", "Fill style:", "Color:", "Size:"}));
        QCOMPARE(set.Name(), QString("Primitive"));
    }

    void widthOfDrawingsIsInTheUnitOfTheSheetAndCalledMillimetres()
    {
        Test::SheetProject design;
        design.schematic.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil);
        const TPropertySetForPrimitives set({AddRectangle(design)}, symbolLayer);
        QCOMPARE(Test::RowTexts(&set).value(0),
                 QString("TPropertyFloatSpin Line width: 0..9999.99 step 0.1 decimals 2 = 10.00 mm"));
        QVERIFY(Test::RowTexts(&set).last().contains("= 4.00 mm x 3.00 mm"));
    }

    void sectionsAndEntriesAreNoDrawings()
    {
        Test::SheetProject design;
        const TPropertySetForPrimitives set(
            {design.AddWire("A"), design.Add<TGraphicsBusItem>(), design.Add<TGraphicsBusEntryItem>()}, symbolLayer);
        QVERIFY(set.Properties().isEmpty());
        QCOMPARE(set.Name(), QString("Primitives"));
    }

    void drawingsOfSymbolsAreChangedByDirectWritesOnly_data()
    {
        QTest::addColumn<EditDrawings>("edit");
        QTest::newRow("line width") << EditDrawings([](TPropertySetForPrimitives& set) { set.slotSetLineWidth(1); });
        QTest::newRow("line style") << EditDrawings(
            [](TPropertySetForPrimitives& set) { set.slotSetLineStyle(Qt::DotLine); });
        QTest::newRow("fill style") << EditDrawings([](TPropertySetForPrimitives& set) { set.slotSetFillStyle(1); });
        QTest::newRow("layer") << EditDrawings(
            [](TPropertySetForPrimitives& set) { set.slotSetLayer(Osmirel::SchematicTexts); });
        QTest::newRow("colour") << EditDrawings([](TPropertySetForPrimitives& set) { set.slotSetColor(Qt::red); });
    }

    void drawingsOfSymbolsAreChangedByDirectWritesOnly()
    {
        QFETCH(EditDrawings, edit);
        for (const bool bypass : {false, true}) {
            Test::SheetProject design;
            TGraphicsRectItem* free = AddRectangle(design);
            TGraphicsRectItem* body = AddRectangle(design);
            body->setParentItem(design.Add<TGraphicsPartItem>());
            free->SetTFlag(TGraphicsItem::UndoBypass, bypass);
            const QString freeBefore = free->StateLine();
            const QString bodyBefore = body->StateLine();
            TPropertySetForPrimitives set({free, body}, symbolLayer);
            Test::CommandLog log(set);
            edit(set);
            QCOMPARE(log.Count(), bypass ? 0 : 1);
            log.Redo();
            QVERIFY(free->StateLine() != freeBefore);
            QCOMPARE(body->StateLine() != bodyBefore, bypass);
        }
    }
};

PROPERTIES_TEST(TestSheetDrawings)
#include "tst_sheetdrawings.moc"
