#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsPortItem.h>

#include <QStringList>
#include <QVariant>

class TNetModel;
class TSchematic;

namespace Attributes PROPERTIES_EXPORT {

struct PortNameVisible : Plain<TGraphicsPortItem, bool>
{
    static bool Accepts(const TGraphicsPortItem&) { return true; }
    static bool Read(const TGraphicsPortItem& port) { return port.NameVisible(); }
    static void Write(TGraphicsPortItem& port, bool visible) { port.SetNameVisible(visible); }
};

} // namespace Attributes

/**
 * Renames ports, and with that moves them and all that is wired to them to another net: adds that net to the net model
 * if it is new, and deletes the nets that have no net wire left on any page. In a project that keeps schematic and
 * board in sync the board's pads follow.
 */
class PROPERTIES_EXPORT TCmdPortName : public TReversibleCommand
{
public:
    TCmdPortName(QList<TGraphicsPortItem*> ports, const QString& name, TSchematic* schematic);

    /** Gives the pads of all components that are connected to the ports the nets of their pins. A no-op without a
     * board, or if its connectivity is switched off. */
    void UpdatePCB();

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    void AddNewNet(TNetModel& model);
    /** Renames the ports, and returns the nets that they were on, each once. */
    QStringList MoveToNewNet(const TNetModel& model);
    void GiveOldNames(const TNetModel& model);
    void DeleteUnused(const QStringList& nets, TNetModel& model);
    void UpdateBoardInStep();
    QList<unsigned short> ConnectedNumbers() const;

    TSchematic* schematic;
    QList<TGraphicsPortItem*> ports;
    QStringList oldNames;      ///< Parallel to `ports`: the names at construction.
    QStringList replacedNames; ///< Parallel to `ports`: the names just before the last redo renamed them.
    QString newName;
    QString addedNet;                     ///< The net that the last redo added to the net model, or empty.
    QList<QVector<QVariant>> deletedNets; ///< The rows that the last redo deleted from it, in that order.
};

/** Shows or hides the names of ports. */
class PROPERTIES_EXPORT TCmdPortNameVis : public TAttributeCommand<Attributes::PortNameVisible>
{
public:
    TCmdPortNameVis(QList<TGraphicsPortItem*> ports, bool visible);
    TCommandKind Kind() const override;
};
