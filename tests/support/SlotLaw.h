#pragma once

#include "tests/support/Observers.h"

#include <graphics/TGraphicsItem.h>

#include <QMetaType>
#include <QTest>

#include <memory>

namespace Test {

/**
 * One value slot of a set and what it does to the items: as a command, and written at once where undo is bypassed.
 *
 * `Design` is a default-constructible struct with a `board`, the `items` that the set keeps, in order, and `MakeSet()`.
 */
template <class Design>
struct SlotCase
{
    using Set = typename Design::Set;
    using Item = typename Design::Item;

    const char* name;
    void (*callSlot)(Set& set);
    void (*editRow)(Set& set);   ///< The same by the row's editor; null where a user has no way to do it.
    const char* command;         ///< Class of the command; null for none.
    void (*redone)(Item& item);  ///< Null for a value that is refused.
    void (*written)(Item& item); ///< Null where it is what the command does.
    void (*undone)(Item& item);  ///< Null where undo restores all; otherwise what it does to an item after redo.
};

/** How a slot is reached, and which items bypass undo. */
struct SlotCall
{
    bool byRow;
    QList<int> bypassing;
};

template <class Design>
class SlotLaw
{
public:
    SlotLaw(const SlotCase<Design>& slot, const SlotCall& call) : tested(slot)
    {
        for (Design* design : {&actual, &expected}) {
            for (const int index : call.bypassing) {
                design->items[index]->SetTFlag(TGraphicsItem::UndoBypass, true);
            }
        }
        set.reset(actual.MakeSet());
        log = std::make_unique<CommandLog>(*set);
        before = actual.board.Dump();
        (call.byRow ? tested.editRow : tested.callSlot)(*set);
    }

    /** The slot emits one command and leaves the items to it. */
    void CheckCommand()
    {
        QCOMPARE(log->Names(), tested.command ? QStringList{tested.command} : QStringList{});
        QCOMPARE(actual.board.Dump(), before);
        if (!tested.command) {
            return;
        }
        Apply(tested.redone);
        const QString after = expected.board.Dump();
        log->Redo();
        QCOMPARE(actual.board.Dump(), after);
        QCOMPARE(after != before, tested.redone != nullptr);

        log->Undo();
        if (tested.undone) {
            Apply(tested.undone);
            QCOMPARE(actual.board.Dump(), expected.board.Dump());
        } else {
            QCOMPARE(actual.board.Dump(), before);
        }
        log->Redo();
        QCOMPARE(actual.board.Dump(), after);
    }

    /** The slot writes to every item and emits nothing. */
    void CheckDirectWrite()
    {
        QCOMPARE(log->Names(), QStringList{});
        Apply(tested.written ? tested.written : tested.redone);
        QCOMPARE(actual.board.Dump(), expected.board.Dump());
        QCOMPARE(actual.board.Dump() == before, !tested.command || !tested.redone);
    }

private:
    void Apply(void (*write)(typename Design::Item&))
    {
        for (auto* item : expected.items) {
            if (write) {
                write(*item);
            }
        }
    }

    const SlotCase<Design>& tested;
    Design actual;
    Design expected;
    std::unique_ptr<typename Design::Set> set;
    std::unique_ptr<CommandLog> log;
    QString before;
};

/** A row of test data for each slot, by the slot itself and by the row's editor. */
template <class Design, std::size_t count>
void AddSlotRows(const SlotCase<Design> (&cases)[count])
{
    QTest::addColumn<const SlotCase<Design>*>("slot");
    QTest::addColumn<bool>("byRow");
    for (const auto& slot : cases) {
        QTest::addRow("%s, slot called", slot.name) << &slot << false;
        if (slot.editRow) {
            QTest::addRow("%s, row edited", slot.name) << &slot << true;
        }
    }
}

} // namespace Test
