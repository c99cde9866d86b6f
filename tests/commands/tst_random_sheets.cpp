#include "tests/commands/RandomEditing.h"
#include "tests/commands/RandomSheet.h"
#include "tests/support/TestProgram.h"

namespace {

using Test::PlannedThing;
using Test::PlannedWire;

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

} // namespace

class TestRandomSheets : public QObject
{
    Q_OBJECT

private slots:
    void undoneAndRedoneStepsEndInTheSameStates()
    {
        const bool isUsual = Test::TriesUsualCases(300);
        QMap<QString, int> made;
        const auto everyStateComesBack = [&made] {
            const auto things = *Test::UpTo(20, Thing());
            const auto wires = *Test::UpTo(16, Wire());
            Test::RandomSheet sheet(things, wires);
            Test::CheckThatEveryStateComesBack(sheet, made);
        };
        QVERIFY(rc::check("every state comes back, with two-sided links and nets that follow", everyStateComesBack));
        if (isUsual) {
            for (const char* name :
                 {"port name", "connect", "disconnect", "entries", "value", "colour", "pin", "tag", "tree", "link"}) {
                QVERIFY2(made.value(name) > 100, name);
            }
        }
    }
};

PROPERTIES_TEST(TestRandomSheets)
#include "tst_random_sheets.moc"
