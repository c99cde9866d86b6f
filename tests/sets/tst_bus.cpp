#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForBus.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>

namespace {

using Set = TPropertySetForBus;
using Item = TGraphicsBusItem;

/** A bus that does not say that it is one. */
class UntypedBus : public Item
{
public:
    int type() const override { return 0x1000e; }
};

template <class Bus = Item>
Item* AddBus(Test::SheetProject& design, const QString& name)
{
    Item* bus = design.Add<Bus>();
    bus->SetPoint2({100, 0});
    bus->SetName(name);
    return bus;
}

/** Three buses, no two alike, and items of other kinds before and between them. */
struct Buses
{
    using Set = ::Set;
    using Item = ::Item;

    Buses()
    {
        items = {AddBus(board, "D[0..7]"), AddBus<UntypedBus>(board, "A[0..15]"), AddBus(board, {})};
        selection = {board.AddWire("D0"), items[0], items[1], board.board.AddVia(), items[2]};
    }

    Set* MakeSet() { return new Set(selection); }

    Test::SheetProject board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

/** Written at once, undo bypassed or not. */
const Test::SlotCase<Buses> nameCases[] = {
    {"name", [](Set& set) { set.SetName("ADDR"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Name")->line->textChanged("ADDR"); }, "",
     [](Item& bus) { bus.SetName("ADDR"); }, nullptr, nullptr},
    {"no name", [](Set& set) { set.SetName({}); }, nullptr, "", [](Item& bus) { bus.SetName({}); }, nullptr, nullptr},
};

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Buses>*)

class TestBusSet : public QObject
{
    Q_OBJECT

private slots:
    void showsTheCommonName_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("shown");
        QTest::newRow("one") << QStringList{"D[0..7]"} << "D[0..7]";
        QTest::newRow("one without a name") << QStringList{QString()} << "";
        QTest::newRow("all the same") << QStringList{"D", "D", "D"} << "D";
        QTest::newRow("the second differs") << QStringList{"D", "A", "D"} << "";
        QTest::newRow("the last differs") << QStringList{"D", "D", "A"} << "";
        QTest::newRow("the case differs") << QStringList{"D", "d"} << "";
        QTest::newRow("the first has none") << QStringList{QString(), "D"} << "";
    }

    void showsTheCommonName()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, shown);
        Test::SheetProject design;
        QList<TGraphicsItem*> selection;
        for (const QString& name : names) {
            selection.append(AddBus(design, name));
        }
        const Set set(selection);
        QCOMPARE(Test::RowTexts(&set), QStringList{"TPropertyText Name = " + shown});
        QCOMPARE(set.Name(), QString("Bus"));
    }

    void labelHasNoColon()
    {
        Test::SheetProject design;
        const Set set({AddBus(design, "D")});
        QCOMPARE(Test::Labels(&set), QStringList{"Name"});
    }

    void withoutBusesThereAreNoRows()
    {
        Test::SheetProject design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(),
              QList<TGraphicsItem*>{design.AddWire("D"), design.Add<TGraphicsBusEntryItem>()}}) {
            Set set(selection);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Bus"));
            const QString before = design.Dump();
            set.SetName("A");
            QCOMPARE(design.Dump(), before);
        }
    }

    void busesAreKnownByTheirLayerAndNotByTheirType()
    {
        Test::SheetProject design;
        Item* moved = AddBus(design, "moved");
        moved->SetLayer(Osmirel::SchematicNets);
        Item* untyped = AddBus<UntypedBus>(design, "untyped");
        QCOMPARE(static_cast<int>(untyped->Layer()), 21);
        Set set({moved, untyped});
        QCOMPARE(Test::RowTexts(&set), QStringList{"TPropertyText Name = untyped"});
        set.SetName("A");
        QCOMPARE(moved->Name(), QString("moved"));
        QCOMPARE(untyped->Name(), QString("A"));
    }

    void whatHasNoNameOfABusIsLeftAlone()
    {
        Test::SheetProject design;
        auto* junction = design.Add<TGraphicsJunctionItem>();
        junction->SetLayer(Osmirel::SchematicBuses);
        auto* text = design.Add<TGraphicsTextItem>();
        text->SetLayer(Osmirel::SchematicBuses);
        Item* bus = AddBus(design, "D");
        Set set({junction, text, bus});
        QCOMPARE(Test::RowTexts(&set), QStringList{"TPropertyText Name = D"});
        const QString others = junction->StateLine() + text->StateLine();
        set.SetName("A");
        QCOMPARE(bus->Name(), QString("A"));
        QCOMPARE(junction->StateLine() + text->StateLine(), others);
    }

    void nameIsAlwaysWrittenAtOnce_data() { Test::AddSlotRows(nameCases); }

    void nameIsAlwaysWrittenAtOnce()
    {
        QFETCH(const Test::SlotCase<Buses>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Buses>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Buses>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Buses>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void nameRepaintsNothing()
    {
        Test::SheetProject design;
        Item* bus = AddBus(design, "D");
        Set set({bus});
        Test::RepaintLog repaints(*design.page->Scene());
        set.SetName("A");
        QCOMPARE(repaints.Take(), QRectF());
        bus->update(); // Such a log would show it.
        QVERIFY(!repaints.Take().isNull());
    }

    void typedNameIsWritten()
    {
        Test::SheetProject design;
        Item* bus = AddBus(design, "D");
        Test::PanelWindow place;
        auto* set = new Set({bus});
        const Test::CommandLog log(*set);
        place.Show(set);
        Test::TypeHalfText(Test::FindRow(set, "Name"), "ADDR");
        QCOMPARE(bus->Name(), QString("D"));
        QTest::keyClick(Test::RowOf<TPropertyText>(set, "Name")->line->edit, Qt::Key_Return);
        QCOMPARE(bus->Name(), QString("ADDR"));
        QCOMPARE(log.Count(), 0);
    }

    void textsAreTranslated()
    {
        Test::SheetProject design;
        const Test::MarkingTranslator translator;
        const Set set({AddBus(design, "D")});
        QCOMPARE(set.Name(), QString("~Bus"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForBus", {"Bus", "Name"}), QStringList());
    }
};

PROPERTIES_TEST(TestBusSet)
#include "tst_bus.moc"
