#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/sets/TPropertySetForText.h"

#include <application/TApplication.h>
#include <graphics/TGraphicsTextItem.h>
#include <workspace/TDoubleSpinBox.h>

namespace {

using Set = TPropertySetForText;
using Item = TGraphicsTextItem;

const QList<Osmirel::Layer> layers{Osmirel::PackagesTop, Osmirel::PackagesBottom};

/** A text that says that it is a tag. */
class TagText : public TGraphicsTextItem
{
public:
    int type() const override { return 0x1001b; }
};

template <class Text>
Item* AddText(Test::TestBoard& board, int pixels)
{
    Item* text = Test::Place<Text>(board);
    text->SetLayer(Osmirel::PackagesTop);
    text->SetText("abc");
    text->Font().setFamily("A family that no system has");
    text->Font().setPixelSize(pixels);
    text->SetAlignment(Qt::AlignLeft);
    text->UpdatePath(false);
    return text;
}

/** Two texts and a tag, no two alike, and items of other kinds before and between them. */
struct Texts
{
    using Set = ::Set;
    using Item = ::Item;

    Texts()
    {
        TGraphicsViaItem* via = board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {AddText<Item>(board, 41), AddText<TagText>(board, 45), AddText<Item>(board, 50)};
        items[1]->SetVector(false);
        items[1]->Font().setFamily("Another");
        items[1]->Font().setWeight(QFont::Bold);
        items[1]->SetAltColor(Qt::red);
        items[2]->Font().setStyle(QFont::StyleItalic);
        items[2]->SetMirrorH(true);
        items[2]->SetMirrorV(true);
        items[2]->SetAlignment(Qt::AlignCenter);
        items[2]->SetLayer(Osmirel::PackagesBottom);
        items[2]->setRotation(90);
        items[2]->SetLineWidth(4);
        selection = {via, items[0], items[1], board.AddHole(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, layers); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

QComboBox* BoxOf(Set& set, const char* label)
{
    return qobject_cast<QComboBox*>(Test::FindRow(&set, label)->Editor());
}

QString LastFamily()
{
    return TApplication::CharSetNames().last();
}

constexpr int pixelsOf18Points = 75; // 75.005 before it is truncated

const Test::SlotCase<Texts> slotCases[] = {
    {"outlines", [](Set& set) { set.SetTrueTrue(1); },
     [](Set& set) { BoxOf(set, "Type:")->setCurrentText("True Type"); }, "TCmdTextTrueType",
     [](Item& text) { text.SetVector(false); }, nullptr, nullptr},
    {"outlines, by any number but 0", [](Set& set) { set.SetTrueTrue(-1); }, nullptr, "TCmdTextTrueType",
     [](Item& text) { text.SetVector(false); }, nullptr, nullptr},
    {"strokes", [](Set& set) { set.SetTrueTrue(0); }, nullptr, "TCmdTextTrueType",
     [](Item& text) { text.SetVector(true); }, nullptr, nullptr},
    {"family", [](Set& set) { set.SetFontName(LastFamily()); },
     [](Set& set) { BoxOf(set, "Font name:")->setCurrentText(LastFamily()); }, "TCmdTextFontName",
     [](Item& text) { text.Font().setFamily(LastFamily()); }, nullptr, nullptr},
    {"font size, in points", [](Set& set) { set.SetFontSize(18); },
     [](Set& set) { BoxOf(set, "Font size:")->setCurrentText("18"); }, "TCmdTextFontSize",
     [](Item& text) { text.Font().setPixelSize(pixelsOf18Points); }, nullptr, nullptr},
    {"alignment", [](Set& set) { set.SetAlign(2); },
     [](Set& set) { BoxOf(set, "Alignment:")->setCurrentText("Right"); }, "TCmdTextAlign",
     [](Item& text) { text.SetAlignment(Qt::AlignRight); }, nullptr, nullptr},
    {"angle", [](Set& set) { set.SetAngle(270); }, [](Set& set) { BoxOf(set, "Angle:")->setCurrentIndex(3); },
     "TCmdTextAngle", [](Item& text) { text.setRotation(270); }, nullptr, nullptr},
    {"bold", [](Set& set) { set.SetBold(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck>(&set, "Bold:")->SetCurrentState(true); }, "TCmdTextBold",
     [](Item& text) { text.Font().setWeight(75); }, nullptr, nullptr},
    {"not bold", [](Set& set) { set.SetBold(false); }, nullptr, "TCmdTextBold",
     [](Item& text) { text.Font().setWeight(50); }, nullptr, nullptr},
    {"italic", [](Set& set) { set.SetItalic(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck>(&set, "Italic:")->SetCurrentState(true); }, "TCmdTextItalic",
     [](Item& text) { text.Font().setStyle(QFont::StyleItalic); }, nullptr, nullptr},
    {"not italic", [](Set& set) { set.SetItalic(false); }, nullptr, "TCmdTextItalic",
     [](Item& text) { text.Font().setStyle(QFont::StyleNormal); }, nullptr, nullptr},
    {"layer", [](Set& set) { set.SetLayer(Osmirel::PackagesBottom); },
     [](Set& set) { BoxOf(set, "Layer:")->setCurrentText("Packages bottom"); }, "TCmdTextLayer",
     [](Item& text) { text.SetLayer(Osmirel::PackagesBottom); }, nullptr, nullptr},
    {"mirrored horizontally", [](Set& set) { set.SetMirrorH(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck2>(&set, "Mirror:")->SetChecked1(true); }, "TCmdTextMirrH",
     [](Item& text) { text.SetMirrorH(true); }, nullptr, nullptr},
    {"mirrored vertically", [](Set& set) { set.SetMirrorV(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck2>(&set, "Mirror:")->SetChecked2(true); }, "TCmdTextMirrV",
     [](Item& text) { text.SetMirrorV(true); }, nullptr, nullptr},
    {"colour", [](Set& set) { set.SetColor(QColor("#0066FF")); },
     [](Set& set) { BoxOf(set, "Color:")->setCurrentText("#0066FF"); }, "TCmdUserColor",
     [](Item& text) { text.SetAltColor(QColor("#0066FF")); }, nullptr, nullptr},
    {"default colour", [](Set& set) { set.SetColor(QColor()); }, nullptr, "TCmdUserColor",
     [](Item& text) { text.SetAltColor(QColor()); }, nullptr, nullptr},
};

/** Written at once, undo bypassed or not. */
const Test::SlotCase<Texts> lineCases[] = {
    {"line width, not converted", [](Set& set) { set.SetLine(7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Line width:")->spin->setValue(7); }, "",
     [](Item& text) { text.SetLineWidth(7); }, nullptr, nullptr},
    {"line width, in single precision", [](Set& set) { set.SetLine(0.1); }, nullptr, "",
     [](Item& text) { text.SetLineWidth(0.1F); }, nullptr, nullptr},
};

using CallSlot = void (*)(Set& set);

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Texts>*)
Q_DECLARE_METATYPE(CallSlot)

class TestTextSlots : public QObject
{
    Q_OBJECT

private slots:
    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Texts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Texts>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Texts>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Texts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Texts>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Texts>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void lineWidthIsAlwaysWrittenAtOnce_data() { Test::AddSlotRows(lineCases); }

    void lineWidthIsAlwaysWrittenAtOnce()
    {
        QFETCH(const Test::SlotCase<Texts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Texts>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Texts>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void directWriteRefreshesThePath_data()
    {
        QTest::addColumn<CallSlot>("callSlot");
        QTest::newRow("kind of font") << CallSlot([](Set& set) { set.SetTrueTrue(1); });
        QTest::newRow("family") << CallSlot([](Set& set) { set.SetFontName(LastFamily()); });
        QTest::newRow("size") << CallSlot([](Set& set) { set.SetFontSize(30); });
        QTest::newRow("alignment") << CallSlot([](Set& set) { set.SetAlign(2); });
        QTest::newRow("bold") << CallSlot([](Set& set) { set.SetBold(true); });
        QTest::newRow("italic") << CallSlot([](Set& set) { set.SetItalic(true); });
        QTest::newRow("line width") << CallSlot([](Set& set) { set.SetLine(9); });
        QTest::newRow("size below a pixel") << CallSlot([](Set& set) { set.SetFontSize(0); });
    }

    void directWriteRefreshesThePath()
    {
        QFETCH(CallSlot, callSlot);
        Test::TestBoard board;
        Item* text = AddText<Item>(board, 41);
        text->SetTFlag(TGraphicsItem::UndoBypass, true);
        text->boundingRect();
        text->SetText("longer than before"); // Laid out only when the path is brought up to date.
        const QRectF before = text->boundingRect();
        Set set({text}, layers);
        callSlot(set);
        QVERIFY(text->boundingRect() != before);
    }

    void sizeBelowAPixelIsNotWritten()
    {
        Test::TestBoard board;
        Item* text = AddText<Item>(board, 41);
        text->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({text}, layers);
        set.SetFontSize(0);
        QCOMPARE(text->Font().pixelSize(), 41);
        set.SetFontSize(1);
        QCOMPARE(text->Font().pixelSize(), 4);
    }

    void commandsColorSkipsPartsOfOtherItems_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("command") << false;
        QTest::newRow("written at once: parts too") << true;
    }

    void commandsColorSkipsPartsOfOtherItems()
    {
        QFETCH(bool, bypass);
        Test::TestBoard board;
        Item* free = AddText<Item>(board, 41);
        Item* part = AddText<Item>(board, 41);
        part->setParentItem(board.AddPackage());
        free->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        Set set({free, part}, layers);
        Test::CommandLog log(set);
        set.SetColor(Qt::red);
        log.Redo();
        QCOMPARE(free->AltColor(), QColor(Qt::red));
        QCOMPARE(part->AltColor().isValid(), bypass);
    }
};

PROPERTIES_TEST(TestTextSlots)
#include "tst_textslots.moc"
