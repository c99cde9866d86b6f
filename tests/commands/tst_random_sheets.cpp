#include "tests/commands/RandomSheet.h"
#include "tests/support/TestMain.h"

#include <rapidcheck.h>

namespace {

using Test::PlannedEdit;
using Test::PlannedThing;
using Test::PlannedWire;

constexpr int fullRange = 100; // the size at which numbers are drawn from their whole range

template <class Part>
rc::Gen<std::vector<Part>> UpTo(int most, const rc::Gen<Part>& part)
{
    return rc::gen::resize(most, rc::gen::container<std::vector<Part>>(rc::gen::resize(fullRange, part)));
}

rc::Gen<PlannedThing> Thing()
{
    return rc::gen::build<PlannedThing>(rc::gen::set(&PlannedThing::kind, rc::gen::inRange(0, 8)),
                                        rc::gen::set(&PlannedThing::place, rc::gen::inRange(0, 80)),
                                        rc::gen::set(&PlannedThing::value, rc::gen::inRange(0, 60)));
}

rc::Gen<PlannedWire> Wire()
{
    return rc::gen::build<PlannedWire>(rc::gen::set(&PlannedWire::from, rc::gen::inRange(0, 16)),
                                       rc::gen::set(&PlannedWire::to, rc::gen::inRange(0, 16)),
                                       rc::gen::set(&PlannedWire::linked, rc::gen::inRange(0, 84)));
}

rc::Gen<PlannedEdit> Edit()
{
    return rc::gen::build<PlannedEdit>(rc::gen::set(&PlannedEdit::action, rc::gen::inRange(0, 140)),
                                       rc::gen::set(&PlannedEdit::what, rc::gen::inRange(0, 1024)),
                                       rc::gen::set(&PlannedEdit::value, rc::gen::inRange(0, 1000)));
}

} // namespace

class TestRandomSheets : public QObject
{
    Q_OBJECT

private slots:
    // `RC_PARAMS` repeats a failed case or tries others: "seed=1", "max_success=10000".
    void initTestCase()
    {
        triesAll = qEnvironmentVariableIsEmpty("RC_PARAMS");
        if (triesAll) {
            qputenv("RC_PARAMS", "seed=20240108 max_success=300");
        }
    }

    void undoneAndRedoneStepsEndInTheSameStates()
    {
        QMap<QString, int> made;
        const auto everyStateComesBack = [&made] {
            const auto things = *UpTo(20, Thing());
            const auto wires = *UpTo(16, Wire());
            const auto edits = *UpTo(40, Edit());
            Test::RandomSheet sheet(things, wires);
            const auto check = [](const QString& fault) {
                if (!fault.isEmpty()) {
                    RC_LOG() << fault.toStdString();
                    RC_FAIL("a state did not come back, or links or nets are wrong");
                }
            };
            for (const PlannedEdit& edit : edits) {
                check(sheet.Do(edit));
            }
            check(sheet.UndoAllAndRedoAll());
            check(sheet.ClearAt(*rc::gen::inRange(0, 40)));
            for (auto command = sheet.Made().cbegin(); command != sheet.Made().cend(); ++command) {
                made[command.key()] += command.value();
            }
        };
        QVERIFY(rc::check("every state comes back, with two-sided links and nets that follow", everyStateComesBack));
        if (triesAll) {
            for (const char* name :
                 {"port name", "connect", "disconnect", "entries", "value", "colour", "pin", "tag", "tree", "link"}) {
                QVERIFY2(made.value(name) > 100, name);
            }
        }
    }

private:
    bool triesAll = true;
};

PROPERTIES_TEST_MAIN(TestRandomSheets)
#include "tst_random_sheets.moc"
