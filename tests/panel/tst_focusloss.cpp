#include "tests/panel/KindsBoard.h"
#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"

#include <workspace/TDoubleSpinBox.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QSpinBox>

#include <memory>

namespace {

template <class SpinBox>
void TypeNumber(SpinBox* box, bool tracked)
{
    box->setKeyboardTracking(tracked);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "2.");
}

void OpenPopup(QComboBox* box)
{
    box->setFocus();
    box->showPopup();
    QTest::keyClick(box->view(), Qt::Key_Down);
}

/** An editor with the focus that holds what is not yet committed. */
struct HalfEdit
{
    const char* name;
    TPropertySet* (*makeSet)(Test::KindsBoard& board);
    void (*edit)(TPropertySet* set);
};

const HalfEdit halfEdits[] = {
    {"half-typed text", Test::MakePadSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Number:"), "X"); }},
    {"emptied text", Test::MakePadSet,
     [](TPropertySet* set) {
         auto* row = Test::RowOf<TPropertyText>(set, "Number:");
         Test::TypeHalfText(row, "X");
         QTest::keyClick(row->line->edit, Qt::Key_Backspace);
     }},
    {"number that is reported when finished", Test::MakeViaSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Diameter:")->spin, false); }},
    {"number that is reported as it is typed", Test::MakeViaSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Drill:")->spin, true); }},
    {"number that was deleted", Test::MakeHoleSet,
     [](TPropertySet* set) {
         auto* box = Test::RowOf<TPropertyFloatSpin>(set, "Diameter:")->spin;
         TypeNumber(box, false);
         QTest::keyClick(box, Qt::Key_Backspace);
         QTest::keyClick(box, Qt::Key_Backspace);
     }},
    {"width that a height follows", Test::MakePadSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertySize>(set, "Size (W x H):")->width, false); }},
    {"list that is open", Test::MakeViaSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Thermal:")->Box()); }},
    {"list that is open and shows a row's siblings", Test::MakePadSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Type:")->Box()); }},
    {"net of a pour", Test::MakePourSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Net:"), "X"); }},
    {"priority of a pour", Test::MakePourSet,
     [](TPropertySet* set) { TypeNumber(qobject_cast<QSpinBox*>(Test::FindRow(set, "Priority:")->Editor()), false); }},
    {"filling of a pour", Test::MakePourSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Fill type:")->Box()); }},
    {"width of a wire", Test::MakeWireSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Width:")->spin, false); }},
    {"name of a net tie", Test::MakeNetTieSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Name:"), "X"); }},
    {"font of a text", Test::MakeTextSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Font name:")->Box()); }},
    {"line width of a text, written at once", Test::MakeTextSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Line width:")->spin, false); }},
    {"line width of a drawing", Test::MakeDrawingSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Line width:")->spin, false); }},
    {"width of a milling path", Test::MakeMillingSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Line width:")->spin, false); }},
    {"side of a package", Test::MakePackageSet,
     [](TPropertySet* set) { OpenPopup(qobject_cast<QComboBox*>(Test::FindRow(set, "Side:")->Editor())); }},
    {"level of a net", Test::MakeNetSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Level:")->Box()); }},
    {"name of a bus, written at once", Test::MakeBusSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Name"), "X"); }},
    {"name of a pin", Test::MakePinSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Name:"), "X"); }},
    {"type of a pin", Test::MakePinSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Type:")->Box()); }},
    {"name of a port", Test::MakePortSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Name:"), "X"); }},
    {"name of a tag", Test::MakeTagSet,
     [](TPropertySet* set) { Test::TypeHalfText(Test::FindRow(set, "Name:"), "X"); }},
    {"line width of a tag, written at once", Test::MakeTagSet,
     [](TPropertySet* set) { TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Line width:")->spin, false); }},
    {"symbol of a net tie", Test::MakeNetTieSymbolSet,
     [](TPropertySet* set) { OpenPopup(Test::RowOf<TPropertyEnum>(set, "Symbol:")->Box()); }},
};

/** What takes the editor away. */
struct Removal
{
    const char* name;
    bool keepsItems;
    void (*remove)(Test::PanelWindow& place, Test::KindsBoard& board);
};

const Removal removals[] = {
    {"another set", true,
     [](Test::PanelWindow& place, Test::KindsBoard& board) { place.panel->SetPropertySet(Test::MakeHoleSet(board)); }},
    {"no set", true, [](Test::PanelWindow& place, Test::KindsBoard&) { place.panel->SetPropertySet(nullptr); }},
    {"set deleted", true, [](Test::PanelWindow& place, Test::KindsBoard&) { delete place.panel->PropertySet(); }},
    {"panel deleted", true, [](Test::PanelWindow& place, Test::KindsBoard&) { delete place.panel; }},
    {"tree deleted", true, [](Test::PanelWindow& place, Test::KindsBoard&) { delete place.Tree(); }},
    {"items gone, then no set", false,
     [](Test::PanelWindow& place, Test::KindsBoard& board) {
         board.DeleteItems();
         place.panel->SetPropertySet(nullptr);
     }},
    {"items gone, then panel deleted", false,
     [](Test::PanelWindow& place, Test::KindsBoard& board) {
         board.DeleteItems();
         delete place.panel;
     }},
};

} // namespace

Q_DECLARE_METATYPE(const HalfEdit*)
Q_DECLARE_METATYPE(const Removal*)

/** An editor that goes away with the focus and an unfinished edit commits nothing and reads no item. */
class TestFocusLoss : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsCommitted_data()
    {
        QTest::addColumn<const HalfEdit*>("halfEdit");
        QTest::addColumn<const Removal*>("removal");
        QTest::addColumn<bool>("bypass");
        for (const HalfEdit& halfEdit : halfEdits) {
            for (const Removal& removal : removals) {
                for (const bool bypass : {false, true}) {
                    QTest::addRow("%s: %s%s", halfEdit.name, removal.name, bypass ? ", undo bypassed" : "")
                        << &halfEdit << &removal << bypass;
                }
            }
        }
    }

    void nothingIsCommitted()
    {
        QFETCH(const HalfEdit*, halfEdit);
        QFETCH(const Removal*, removal);
        QFETCH(bool, bypass);
        Test::KindsBoard board;
        for (TGraphicsItem* item : board.AllItems()) {
            item->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        }
        Test::PanelWindow place;
        const QPointer<TPropertySet> set(halfEdit->makeSet(board));
        place.Show(set);
        const Test::CommandLog log(*set);
        halfEdit->edit(set);
        QVERIFY(QApplication::focusWidget() && QApplication::focusWidget() != place.elsewhere);

        const QString dump = board.DumpAll();
        const int commands = log.Count();
        removal->remove(place, board);
        Test::Settle();
        if (set) { // Only its tree is gone: the set may still take the edit, and has no row left.
            QVERIFY(set->Properties().isEmpty());
            return;
        }
        QCOMPARE(log.Count(), commands);
        if (removal->keepsItems) {
            QCOMPARE(board.DumpAll(), dump);
        }
    }

    void anUnfinishedEditIsReallyPending()
    {
        Test::KindsBoard board;
        Test::PanelWindow place;
        TPropertySet* set = Test::MakeViaSet(board);
        place.Show(set);
        const Test::CommandLog log(*set);
        TypeNumber(Test::RowOf<TPropertyFloatSpin>(set, "Diameter:")->spin, false);
        QCOMPARE(log.Count(), 0);
        place.elsewhere->setFocus();
        QCOMPARE(log.Names(), QStringList{"TCmdViaDiam"});
    }
};

PROPERTIES_TEST(TestFocusLoss)
#include "tst_focusloss.moc"
