#include "tests/commands/RandomNetwork.h"
#include "tests/support/TestMain.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <rapidcheck.h>

namespace {

using Test::PlannedStep;
using Test::PlannedTrack;

constexpr int fullRange = 100; // the size at which numbers are drawn from their whole range

template <class Part>
rc::Gen<std::vector<Part>> UpTo(int most, const rc::Gen<Part>& part)
{
    return rc::gen::resize(most, rc::gen::container<std::vector<Part>>(rc::gen::resize(fullRange, part)));
}

rc::Gen<PlannedTrack> Track()
{
    return rc::gen::build<PlannedTrack>(rc::gen::set(&PlannedTrack::from, rc::gen::inRange(0, 36)),
                                        rc::gen::set(&PlannedTrack::to, rc::gen::inRange(0, 36)),
                                        rc::gen::set(&PlannedTrack::layer, rc::gen::inRange(0, 6)),
                                        rc::gen::set(&PlannedTrack::shape, rc::gen::inRange(0, 420)));
}

rc::Gen<PlannedStep> Step()
{
    return rc::gen::build<PlannedStep>(rc::gen::set(&PlannedStep::action, rc::gen::inRange(0, 80)),
                                       rc::gen::set(&PlannedStep::what, rc::gen::inRange(0, 1024)),
                                       rc::gen::set(&PlannedStep::value, rc::gen::inRange(0, 1000)));
}

} // namespace

class TestRandomNetworks : public QObject
{
    Q_OBJECT

private slots:
    // `RC_PARAMS` repeats a failed case or tries others: "seed=1", "max_success=10000".
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        QCoreApplication::setOrganizationName("Properties tests");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
        triesAll = qEnvironmentVariableIsEmpty("RC_PARAMS");
        if (triesAll) {
            qputenv("RC_PARAMS", "seed=20240108 max_success=300");
        }
    }

    void undoneAndRedoneStepsEndInTheSameStates()
    {
        QMap<QString, int> made;
        const auto everyStateComesBack = [&made] {
            const auto places = *UpTo(12, rc::gen::inRange(0, 24));
            const auto tracks = *UpTo(14, Track());
            const auto steps = *UpTo(40, Step());
            Test::RandomNetwork network(places, tracks);
            const auto check = [](const QString& fault) {
                if (!fault.isEmpty()) {
                    RC_LOG() << fault.toStdString();
                    RC_FAIL("a state did not come back, or links or nets are wrong");
                }
            };
            for (const PlannedStep& step : steps) {
                check(network.Do(step));
            }
            check(network.UndoAllAndRedoAll());
            check(network.ClearAt(*rc::gen::inRange(0, 40)));
            for (auto command = network.Made().cbegin(); command != network.Made().cend(); ++command) {
                made[command.key()] += command.value();
            }
        };
        QVERIFY(rc::check("every state comes back, with two-sided links and nets that follow", everyStateComesBack));
        if (triesAll) {
            for (const char* name : {"width", "layer", "add node", "delete node", "net color"}) {
                QVERIFY2(made.value(name) > 100, name);
            }
        }
    }

private:
    QTemporaryDir folder;
    bool triesAll = true;
};

PROPERTIES_TEST_MAIN(TestRandomNetworks)
#include "tst_random_networks.moc"
