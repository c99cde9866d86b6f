#include "tests/commands/RandomEditing.h"
#include "tests/commands/RandomNetwork.h"
#include "tests/support/TestProgram.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Test::PlannedTrack;

rc::Gen<PlannedTrack> Track()
{
    return rc::gen::build<PlannedTrack>(rc::gen::set(&PlannedTrack::from, rc::gen::inRange(0, 36)),
                                        rc::gen::set(&PlannedTrack::to, rc::gen::inRange(0, 36)),
                                        rc::gen::set(&PlannedTrack::layer, rc::gen::inRange(0, 6)),
                                        rc::gen::set(&PlannedTrack::shape, rc::gen::inRange(0, 420)));
}

} // namespace

class TestRandomNetworks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        QCoreApplication::setOrganizationName("Properties tests");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    }

    void undoneAndRedoneStepsEndInTheSameStates()
    {
        const bool isUsual = Test::TriesUsualCases(300);
        QMap<QString, int> made;
        const auto everyStateComesBack = [&made] {
            const auto places = *Test::UpTo(12, rc::gen::inRange(0, 60));
            const auto tracks = *Test::UpTo(14, Track());
            Test::RandomNetwork network(places, tracks);
            Test::CheckThatEveryStateComesBack(network, made);
        };
        QVERIFY(rc::check("every state comes back, with two-sided links and nets that follow", everyStateComesBack));
        if (isUsual) {
            for (const char* name :
                 {"width", "layer", "add node", "delete node", "net color", "side", "connect", "disconnect"}) {
                QVERIFY2(made.value(name) > 100, name);
            }
        }
    }

private:
    QTemporaryDir folder;
};

PROPERTIES_TEST(TestRandomNetworks)
#include "tst_random_networks.moc"
