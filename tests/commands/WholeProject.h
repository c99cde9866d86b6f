#pragma once

#include "tests/commands/SheetDesign.h"

#include <application/TProjectTree.h>
#include <objects/TGraphicsOutlineItem.h>

#include <QMap>
#include <QSet>

#include <array>

namespace Test {

/** The state of everything that belongs to a project, a line each: items by their addresses, rows by
 *  their names or numbers, and all rat lines as one. */
using ProjectState = QMap<QString, QString>;

/**
 * A schematic and a board in step with two of everything that commands over a project act on, the two of a kind not
 * alike and apart from each other. Everything is linked but the second of the parts and the packages, which only touch
 * what they could be linked with.
 */
class WholeProject : public SheetDesign
{
public:
    WholeProject();

    ProjectState State() const;
    QString LinkFaults() const { return Fault() + LinkFault(board.Items()); }

    template <class Item>
    using Two = std::array<Item*, 2>;

    TProjectTree tree;
    Two<TGraphicsPortItem> ports{}; ///< Each alone on its net, of the name "A" and "B".
    Two<TGraphicsPartItem> parts{}; ///< Components 1 and 2.
    Two<TGraphicsBusEntryItem> entries{};
    Two<TGraphicsNetTieSchItem> sheetTies{};   ///< Numbers 1 and 2.
    Two<TGraphicsNetTiePcbItem> boardTies{};   ///< Their copies, parallel to them.
    Two<TGraphicsPackageItem> packages{};      ///< Components 1 and 2, on the upper side.
    Two<TGraphicsPackageItem> loosePackages{}; ///< Of no component, the first one selected.
    Two<TGraphicsWireItem> wires{};            ///< Each goes on in one of `nextWires`, parallel to them.
    Two<TGraphicsWireItem> nextWires{};
    Two<TGraphicsOutlineItem> outlines{};

private:
    void AddPort(std::size_t index, const QString& name);
    void AddPart(std::size_t index);
    void AddEntry(std::size_t index);
    void AddTie(std::size_t index);
    void AddPackage(std::size_t index);
    void AddWires(std::size_t index);
};

/** What differs between two states: "kind.attribute" for what was changed, "+kind" for what has come,
 *  and "-kind" for what is gone. */
QSet<QString> Touched(const ProjectState& before, const ProjectState& after);

} // namespace Test
