#include "properties/commands/TCmdPour.h"
#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

namespace {

using Pours = QList<TGraphicsPourItem*>;
using Making = std::function<std::unique_ptr<TUndoCommand>(const Pours&)>;

template <class Command, class Value>
Making Makes(const Value& value)
{
    return [value](const Pours& pours) { return std::make_unique<Command>(pours, value); };
}

} // namespace

Q_DECLARE_METATYPE(Making)

class TestPours : public QObject
{
    Q_OBJECT

private slots:
    // The values are those that the pour has: it is the refill that is looked at.
    void refillsOrNot_data()
    {
        QTest::addColumn<Making>("make");
        QTest::addColumn<bool>("refills");
        QTest::newRow("clearance to etch") << Makes<TCmdPourClEtch>(0.1) << true;
        QTest::newRow("clearance to border") << Makes<TCmdPourClBorder>(0.1) << true;
        QTest::newRow("clearance to pour") << Makes<TCmdPourClPour>(0.1) << true;
        QTest::newRow("line width") << Makes<TCmdPourLineWidth>(0.1) << true;
        QTest::newRow("minimum area") << Makes<TCmdPourMinArea>(0.1) << true;
        QTest::newRow("thermal line") << Makes<TCmdPourThermLine>(0.1) << true;
        QTest::newRow("thermal isolation") << Makes<TCmdPourThermIsol>(0.1) << true;
        QTest::newRow("priority") << Makes<TCmdPourPrio>(quint8(3)) << true;
        QTest::newRow("net") << Makes<TCmdPourNet>(QString("N")) << true;
        QTest::newRow("fill type") << Makes<TCmdPourFillType>(1) << true;
        QTest::newRow("only connected") << Makes<TCmdPourOnlyConn>(false) << true;
        QTest::newRow("thermal") << Makes<TCmdPourThermEn>(true) << true;
        QTest::newRow("layer") << Makes<TCmdPourLayer>(Osmirel::CopperTop) << false;
    }
    void refillsOrNot()
    {
        QFETCH(Making, make);
        QFETCH(bool, refills);
        Test::Network board;
        auto* first = board.Pour({0, 0, 200, 200}, "N");
        auto* second = board.Pour({300, 0, 200, 200}, "N");
        const auto filled = [&] {
            return QVector<bool>{first->IsFilledAt({100, 100}), second->IsFilledAt({400, 100})};
        };
        first->Fill();
        second->Fill();
        QCOMPARE(filled(), QVector<bool>({true, true}));
        const auto command = make({first, second});

        auto* across = board.Wire({0, 100}, {500, 100}, "other");
        QCOMPARE(filled(), QVector<bool>({true, true})); // nothing has been refilled yet
        command->redo();
        QCOMPARE(filled(), QVector<bool>({!refills, !refills}));
        delete across;
        QCOMPARE(filled(), QVector<bool>({!refills, !refills}));
        command->undo();
        QCOMPARE(filled(), QVector<bool>({true, true}));
    }

    void lengthsAreKeptInSceneUnits()
    {
        Test::Network board;
        auto* pour = board.Pour({0, 0, 200, 200}, "N");
        TCmdPourClEtch(Pours{pour}, 10).redo();
        QCOMPARE(pour->ClearanceToEtch(), 118.11023622047244);
    }

    void areasAreKeptAsTheyAreGiven()
    {
        Test::Network board;
        auto* pour = board.Pour({0, 0, 200, 200}, "N");
        TCmdPourMinArea(Pours{pour}, 10).redo();
        QCOMPARE(pour->MinimumArea(), 10.0);
    }
};

PROPERTIES_TEST(TestPours)
#include "tst_pours.moc"
