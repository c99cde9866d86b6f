#include "properties/commands/TCmdPackage.h"
#include "tests/commands/PackageDesign.h"
#include "tests/commands/StackedPads.h"
#include "tests/support/TestProgram.h"

#include <QUndoStack>

using Test::StackedPads;
using Items = QVector<TGraphicsItem*>;

namespace {

constexpr Osmirel::Layer topSide = Osmirel::PackagesTop;
constexpr Osmirel::Layer bottomSide = Osmirel::PackagesBottom;

/** A package whose wires of three layers end within its exposed pad, not always at the pad that is nearest. */
struct Design : Test::PackageDesign
{
    Design()
    {
        onExposed->SetNet("E");
        between->LinkToFirst(pads.exposed);
        between->LinkToLast(pads.beside);
        withBothEnds->LinkToFirst(pads.drilled[1]);
        withBothEnds->LinkToLast(pads.exposed);
    }

    QString Faults() const { return Test::LinkFault(board); }

    StackedPads pads{board, {0, 0}};
    QList<TGraphicsPackageItem*> packages{pads.package};
    TGraphicsWireItem* onExposed = pads.WireTo(board, pads.exposed, {-20, 0}, Osmirel::CopperTop);
    TGraphicsWireItem* onDrilled = pads.WireTo(board, pads.drilled[0], {-18, 0}, Osmirel::CopperTop);
    TGraphicsWireItem* inside = pads.WireTo(board, pads.drilled[1], {20, 0}, Osmirel::Copper2);
    TGraphicsWireItem* below = pads.WireTo(board, pads.drilled[1], {22, 0}, Osmirel::CopperBottom);
    TGraphicsWireItem* loose = board.Wire({0, 0}, {300, 300}, {}, Osmirel::CopperBottom); // Free to be linked.
    TGraphicsWireItem* between = board.Wire({-20, 5}, {-100, 0});
    TGraphicsWireItem* withBothEnds = board.Wire({20, 0}, {-20, 0});
};

std::unique_ptr<TUndoCommand> Made(const QByteArray& kind, Design& design)
{
    const auto [package, board] = std::make_pair(design.pads.package, &design.board);
    const auto otherSide = package->Layer() == topSide ? bottomSide : topSide;
    if (kind == "flip") {
        return std::make_unique<TCmdPkgSide>(QList<TGraphicsPackageItem*>{package}, otherSide, board);
    }
    if (kind == "cut") {
        return std::make_unique<TCmdPkgDisconnect>(QList<TGraphicsItem*>{package}, board);
    }
    return std::make_unique<TCmdPkgConnect>(QList<TGraphicsItem*>{package}, board);
}

} // namespace

/** Pads that lie on each other: every end of a wire comes back to the very pad that it was linked with. */
class TestStackedPads : public QObject
{
    Q_OBJECT

private slots:
    void comesBackToItsPad_data()
    {
        QTest::addColumn<QByteArrayList>("kinds");
        for (const char* kinds : {"flip", "cut", "link", "flip flip", "flip flip flip", "cut link flip",
                                  "flip cut link", "cut flip link flip", "cut link cut link flip flip",
                                  "link flip cut flip link", "flip link flip link flip cut flip link"}) {
            QTest::newRow(kinds) << QByteArray(kinds).split(' ');
        }
    }
    void comesBackToItsPad()
    {
        QFETCH(QByteArrayList, kinds);
        Design design;
        QUndoStack stack;
        QStringList states{design.board.Dump()};
        for (const QByteArray& kind : kinds) {
            stack.push(Made(kind, design).release());
            states.append(design.board.Dump());
        }
        const int all = kinds.size();
        for (const int index : {0, all, 0, all / 2, all, all / 2, 0, all}) {
            while (stack.index() != index) {
                stack.index() < index ? stack.redo() : stack.undo();
                QCOMPARE(design.board.Dump(), states[stack.index()]);
                QCOMPARE(design.Faults(), QString());
            }
        }
        stack.setIndex(0);
        QCOMPARE(design.onExposed->FirstLink(), design.pads.exposed);
        QCOMPARE(design.onDrilled->FirstLink(), design.pads.drilled[0]);
        QCOMPARE(design.withBothEnds->LastLink(), design.pads.exposed);
    }

    // Nothing was linked there before the second move, and the first one's undo comes to what it has cut.
    void aMoveThatCutNothingLeavesTheOthersTheirs()
    {
        Test::PackageDesign design;
        const StackedPads pads(design.board, {0, 0});
        pads.drilled[0]->SetLayers(Osmirel::CopperTop, Osmirel::Copper2); // Not below, where nothing is linked then.
        auto* wire = pads.WireTo(design.board, pads.exposed, {-20, 0}, Osmirel::CopperTop);
        QUndoStack stack;
        QStringList states{design.board.Dump()};
        for (const auto side : {bottomSide, topSide, bottomSide}) {
            stack.push(new TCmdPkgSide({pads.package}, side, &design.board));
            states.append(design.board.Dump());
        }
        for (const int index : {0, 2, 1, 0, 3, 2, 0}) {
            stack.setIndex(index);
            QCOMPARE(design.board.Dump(), states[index]);
        }
        QCOMPARE(wire->FirstLink(), pads.exposed);
    }

    void packagesOnEachOtherKeepTheirOwn()
    {
        Test::PackageDesign design;
        const StackedPads one(design.board, {0, 0});
        const StackedPads other(design.board, {0, 0});
        for (const auto layer : {Osmirel::CopperTop, Osmirel::Copper2, Osmirel::CopperBottom}) {
            one.WireTo(design.board, one.drilled[0], {-20, 0}, layer);
            other.WireTo(design.board, other.drilled[0], {-20, 0}, layer);
            other.WireTo(design.board, other.drilled[1], {-20, 0}, layer); // Without touching.
            design.board.Wire({-20, 0}, {-20, -300}, {}, layer);
        }
        one.WireTo(design.board, one.exposed, {-20, 0}, Osmirel::CopperTop);
        other.WireTo(design.board, other.exposed, {-20, 0}, Osmirel::CopperTop);
        TCmdPkgSide both({one.package, other.package}, bottomSide, &design.board);
        Test::CheckBothWays(both, design.board);
        TCmdPkgSide second({other.package}, bottomSide, &design.board);
        Test::CheckBothWays(second, design.board);
        TCmdPkgConnect connect({other.package, one.package}, &design.board);
        Test::CheckBothWays(connect, design.board);
        TCmdPkgDisconnect disconnect({one.package, other.package}, &design.board);
        Test::CheckBothWays(disconnect, design.board);
    }

    // The list that the command gives back is not the one that it was given any more.
    void othersComeBackToTheirPadsWhereAWireWasDeleted()
    {
        Design design;
        TCmdPkgSide command(design.packages, bottomSide, &design.board);
        command.redo();
        delete design.inside;
        command.undo();
        QCOMPARE(design.onExposed->FirstLink(), design.pads.exposed);
        QCOMPARE(design.onDrilled->FirstLink(), design.pads.drilled[0]);
        QCOMPARE(design.between->LastLink(), design.pads.beside);
        QCOMPARE(design.Faults(), QString());
    }
};

PROPERTIES_TEST(TestStackedPads)
#include "tst_stackedpads.moc"
