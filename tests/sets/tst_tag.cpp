#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForTag.h"

#include <application/TApplication.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsTagItem.h>
#include <workspace/TDoubleSpinBox.h>

namespace {

using Set = TPropertySetForTag;
using Item = TGraphicsTagItem;

const QString unknownFamily = "A family that no system has";

/** A project that holds a value under the names "Title" and "Date". */
struct TagDesign : Test::SheetProject
{
    TagDesign() { project.SetTagValues({{"Title", "Amplifier"}, {"Date", "1 May"}}); }

    /** A tag that shows its value. */
    Item* AddTag(const QString& name, int pixels = 41)
    {
        auto* tag = Add<Item>();
        tag->Font().setFamily(unknownFamily);
        tag->Font().setPixelSize(pixels);
        tag->SetAlignment(Qt::AlignLeft);
        tag->SetLineWidth(3);
        tag->SetValue(project.TagValues().value(name), false);
        tag->SetName(name, true);
        return tag;
    }
};

QString LastFamily()
{
    return TApplication::CharSetNames().last();
}

/** Three tags, no two alike, and items of other kinds before and between them. */
struct Tags
{
    using Set = ::Set;
    using Item = ::Item;

    Tags()
    {
        auto* text = board.Add<TGraphicsTextItem>();
        text->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {board.AddTag("Title", 41), board.AddTag("Date", 45), board.AddTag("none", 50)};
        for (const int index : {0, 1}) { // The last one's is shown.
            items[index]->SetVector(false);
            items[index]->SetAlignment(Qt::AlignCenter);
        }
        items[2]->Font().setFamily("Another");
        items[2]->SetLineWidth(5);
        selection = {text, items[0], items[1], board.board.AddVia(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, &board.project); }

    TagDesign board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

QComboBox* BoxOf(Set& set, const char* label)
{
    return Test::RowOf<TPropertyEnum>(&set, label)->Box();
}

constexpr int pixelsOf18Points = 75; // 75.005 before it is truncated

const Test::SlotCase<Tags> slotCases[] = {
    {"name that the project knows", [](Set& set) { set.SetName("Date"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Name:")->line->textChanged("Date"); }, "TCmdTagName",
     [](Item& tag) {
         tag.SetValue("1 May", false);
         tag.SetName("Date", true);
     },
     [](Item& tag) { tag.SetName("Date", true); }, nullptr},
    {"name that it does not know", [](Set& set) { set.SetName("Author"); }, nullptr, "TCmdTagName",
     [](Item& tag) {
         tag.SetValue({}, false);
         tag.SetName("Author", true);
     },
     [](Item& tag) { tag.SetName("Author", true); }, nullptr},
    {"outlines", [](Set& set) { set.SetTrueTrue(1); },
     [](Set& set) { BoxOf(set, "Font type:")->setCurrentText("True Type"); }, "TCmdTextTrueType",
     [](Item& tag) { tag.SetVector(false); }, nullptr, nullptr},
    {"outlines, by any number but 0", [](Set& set) { set.SetTrueTrue(-1); }, nullptr, "TCmdTextTrueType",
     [](Item& tag) { tag.SetVector(false); }, nullptr, nullptr},
    {"strokes", [](Set& set) { set.SetTrueTrue(0); }, nullptr, "TCmdTextTrueType",
     [](Item& tag) { tag.SetVector(true); }, nullptr, nullptr},
    {"family", [](Set& set) { set.SetFontName(LastFamily()); },
     [](Set& set) { BoxOf(set, "Font name:")->setCurrentText(LastFamily()); }, "TCmdTextFontName",
     [](Item& tag) { tag.Font().setFamily(LastFamily()); }, nullptr, nullptr},
    {"font size, in points", [](Set& set) { set.SetFontSize(18); },
     [](Set& set) { BoxOf(set, "Font size:")->setCurrentText("18"); }, "TCmdTextFontSize",
     [](Item& tag) { tag.Font().setPixelSize(pixelsOf18Points); }, nullptr, nullptr},
    {"alignment", [](Set& set) { set.SetAlign(2); },
     [](Set& set) { BoxOf(set, "Alignment:")->setCurrentText("Right"); }, "TCmdTextAlign",
     [](Item& tag) { tag.SetAlignment(Qt::AlignRight); }, nullptr, nullptr},
};

/** Written at once, undo bypassed or not. */
const Test::SlotCase<Tags> lineCases[] = {
    {"line width, not converted", [](Set& set) { set.SetLine(7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Line width:")->spin->setValue(7); }, "",
     [](Item& tag) { tag.SetLineWidth(7); }, nullptr, nullptr},
    {"line width, in single precision", [](Set& set) { set.SetLine(0.1); }, nullptr, "",
     [](Item& tag) { tag.SetLineWidth(0.1F); }, nullptr, nullptr},
};

QString FamilyRow(const QString& shown)
{
    QStringList items;
    for (const QString& family : TApplication::CharSetNames()) {
        items.append(family + " 0");
    }
    if (!TApplication::CharSetNames().contains(shown)) {
        items.prepend(shown);
    }
    return "TPropertyEnum Font name: " + items.join(", ") + " = " + shown;
}

const QList<int> sizes{2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 32, 36, 40, 48, 56, 64, 72};

QString SizeRow(int shown)
{
    QStringList items;
    for (const int size : sizes) {
        items.append(QStringLiteral("%1 %1").arg(size));
    }
    return QStringLiteral("TPropertyEnum Font size: %1 = %2").arg(items.join(", ")).arg(shown);
}

QString AlignmentRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Alignment: Left 1, Center 132, Right 2 = ") + shown;
}

QStringList PlainRows()
{
    return {"TPropertyText Name: = Title", "TPropertyEnum Font type: Vector 0, True Type 1 = Vector",
            FamilyRow(unknownFamily),      SizeRow(10),
            AlignmentRow("Left"),          "TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 3 mm"};
}

using ChangeTag = void (*)(Item& tag);
using CallSlot = void (*)(Set& set);

} // namespace

Q_DECLARE_METATYPE(ChangeTag)
Q_DECLARE_METATYPE(CallSlot)
Q_DECLARE_METATYPE(const Test::SlotCase<Tags>*)

class TestTagSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOneTag_data()
    {
        QTest::addColumn<ChangeTag>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeTag change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("name", [](Item& tag) { tag.SetName("Sheet no", true); }, {"TPropertyText Name: = Sheet no"});
        add("no name", [](Item& tag) { tag.SetName({}, true); }, {"TPropertyText Name: = "});
        add("value: not shown", [](Item& tag) { tag.SetValue("other", true); }, {});
        add("outlines", [](Item& tag) { tag.SetVector(false); },
            {"TPropertyEnum Font type: Vector 0, True Type 1 = True Type"});
        add("family of the system", [](Item& tag) { tag.Font().setFamily(LastFamily()); }, {FamilyRow(LastFamily())});
        add("centred", [](Item& tag) { tag.SetAlignment(132); }, {AlignmentRow("Center")});
        add("to the right", [](Item& tag) { tag.SetAlignment(2); }, {AlignmentRow("Right")});
        add("alignment that is not offered", [](Item& tag) { tag.SetAlignment(Qt::AlignTop); }, {AlignmentRow("none")});
        add("line width, rounded", [](Item& tag) { tag.SetLineWidth(6.6F); },
            {"TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 7 mm"});
        add("line width beyond the range", [](Item& tag) { tag.SetLineWidth(1000); },
            {"TPropertyFloatSpin Line width: 0..100 step 1 decimals 0 = 100 mm"});
    }

    void showsOneTag()
    {
        QFETCH(ChangeTag, change);
        QFETCH(QStringList, rows);
        TagDesign design;
        Item* tag = design.AddTag("Title");
        change(*tag);
        const Set set({tag}, &design.project);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(PlainRows(), rows));
    }

    void offersTwentyFiveSizes()
    {
        TagDesign design;
        Set set({design.AddTag("Title")}, &design.project);
        QCOMPARE(BoxOf(set, "Font size:")->count(), 25);
    }

    void sizesAreShownInPointsThatAreOffered_data()
    {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("points");
        QTest::newRow("far below the smallest") << 1 << 2;
        QTest::newRow("2 points") << 8 << 2;
        QTest::newRow("3 points") << 12 << 3;
        QTest::newRow("10 points") << 42 << 10;
        QTest::newRow("11 points") << 46 << 12;
        QTest::newRow("13 points") << 54 << 14;
        QTest::newRow("25 points") << 104 << 26;
        QTest::newRow("29 points") << 121 << 32;
        QTest::newRow("41 points") << 171 << 48;
        QTest::newRow("56 points") << 233 << 56;
        QTest::newRow("57 points") << 238 << 64;
        QTest::newRow("65 points") << 271 << 72;
        QTest::newRow("far above the largest") << 2000 << 72;
    }

    void sizesAreShownInPointsThatAreOffered()
    {
        QFETCH(int, pixels);
        TagDesign design;
        Set set({design.AddTag("Title", pixels)}, &design.project);
        QTEST(BoxOf(set, "Font size:")->currentData().toInt(), "points");
    }

    void showsTheLastTag()
    {
        Tags tags;
        const std::unique_ptr<Set> set(tags.MakeSet());
        const Set ofTheLast({tags.items[2]}, &tags.board.project);
        QCOMPARE(Test::RowTexts(set.get()), Test::RowTexts(&ofTheLast));
        QCOMPARE(Test::RowTexts(set.get()).value(0), QString("TPropertyText Name: = none"));
        QCOMPARE(Test::RowTexts(set.get()).value(3), SizeRow(12));
    }

    void nameIsTheSameWhateverTheCount()
    {
        Tags tags;
        const std::unique_ptr<Set> set(tags.MakeSet());
        QCOMPARE(set->Name(), QString("Tags"));
        QCOMPARE(Set({tags.items[0]}, &tags.board.project).Name(), QString("Tags"));
    }

    void withoutTagsThereAreNoRows()
    {
        TagDesign design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.Add<TGraphicsTextItem>(), design.AddWire("A")}}) {
            Set set(selection, &design.project);
            const Test::CommandLog log(set);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Tags"));
            const QString before = design.Dump();
            set.SetName("Date");
            set.SetTrueTrue(1);
            set.SetFontName(LastFamily());
            set.SetFontSize(18);
            set.SetAlign(2);
            set.SetLine(7);
            QCOMPARE(log.Count(), 0);
            QCOMPARE(design.Dump(), before);
        }
    }

    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Tags>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Tags>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Tags>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Tags>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Tags>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Tags>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void lineWidthIsAlwaysWrittenAtOnce_data() { Test::AddSlotRows(lineCases); }

    void lineWidthIsAlwaysWrittenAtOnce()
    {
        QFETCH(const Test::SlotCase<Tags>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Tags>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Tags>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void directNameDoesNotLookUpTheValue()
    {
        TagDesign design;
        Item* tag = design.AddTag("Title");
        tag->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({tag}, &design.project);
        set.SetName("Date");
        QCOMPARE(tag->Name(), QString("Date"));
        QCOMPARE(tag->Value(), QString("Amplifier"));
        QCOMPARE(tag->Text(), QString("Amplifier"));
    }

    void undoOfANameLooksUpTheValueOfNow()
    {
        TagDesign design;
        Item* tag = design.AddTag("Title");
        Set set({tag}, &design.project);
        Test::CommandLog log(set);
        set.SetName("Author");
        log.Redo();
        QCOMPARE(tag->Value(), QString());
        QCOMPARE(tag->Text(), QString("{Author}"));
        design.project.SetTagValues({{"Title", "Receiver"}});
        log.Undo();
        QCOMPARE(tag->Name(), QString("Title"));
        QCOMPARE(tag->Text(), QString("Receiver"));
    }

    void withoutAProjectTagsHaveNoValues()
    {
        TagDesign design;
        Item* tag = design.AddTag("Title");
        Set set({tag}, nullptr);
        Test::CommandLog log(set);
        QCOMPARE(Test::RowTexts(&set), PlainRows());
        set.SetName("Date");
        log.Redo();
        QCOMPARE(tag->Name(), QString("Date"));
        QCOMPARE(tag->Value(), QString());
    }

    void directWriteRefreshesThePath_data()
    {
        QTest::addColumn<CallSlot>("callSlot");
        QTest::newRow("kind of font") << CallSlot([](Set& set) { set.SetTrueTrue(1); });
        QTest::newRow("family") << CallSlot([](Set& set) { set.SetFontName(LastFamily()); });
        QTest::newRow("size") << CallSlot([](Set& set) { set.SetFontSize(30); });
        QTest::newRow("size below a pixel") << CallSlot([](Set& set) { set.SetFontSize(0); });
        QTest::newRow("alignment") << CallSlot([](Set& set) { set.SetAlign(2); });
        QTest::newRow("line width") << CallSlot([](Set& set) { set.SetLine(9); });
    }

    void directWriteRefreshesThePath()
    {
        QFETCH(CallSlot, callSlot);
        TagDesign design;
        Item* tag = design.AddTag("Title");
        tag->SetTFlag(TGraphicsItem::UndoBypass, true);
        tag->boundingRect();
        tag->SetText("longer than before"); // Laid out only when the path is brought up to date.
        const QRectF before = tag->boundingRect();
        Set set({tag}, &design.project);
        callSlot(set);
        QVERIFY(tag->boundingRect() != before);
    }

    void lineWidthRefreshesThePathWithoutABypassToo()
    {
        TagDesign design;
        Item* tag = design.AddTag("Title");
        const QRectF before = tag->boundingRect();
        Set set({tag}, &design.project);
        set.SetLine(9);
        QVERIFY(tag->boundingRect() != before);
    }

    void sizeBelowAPixelIsNotWritten()
    {
        TagDesign design;
        Item* tag = design.AddTag("Title");
        tag->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({tag}, &design.project);
        set.SetFontSize(0);
        QCOMPARE(tag->Font().pixelSize(), 41);
        set.SetFontSize(1);
        QCOMPARE(tag->Font().pixelSize(), 4);
    }

    void textsAreTranslatedAndNamesAreNot()
    {
        TagDesign design;
        Item* tag = design.AddTag("Title");
        const Test::MarkingTranslator translator;
        const Set set({tag}, &design.project);
        QCOMPARE(set.Name(), QString("~Tags"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForTag",
                                    {"Name:", "Font type:", "Font name:", "Font size:", "Alignment:", "Line width:",
                                     "Vector", "True Type", "Left", "Center", "Right"}),
                 QStringList());
        QVERIFY(!translator.WasAsked("TPropertySetForTag", "Title"));
        QVERIFY(!translator.WasAsked("TPropertySetForTag", LastFamily()));
    }
};

PROPERTIES_TEST(TestTagSet)
#include "tst_tag.moc"
