#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <graphics/TGraphicsItem.h>
#include <objects/TGraphicsViaItem.h>

#include <QList>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

template <class Item>
class TRecreatedItems;
class QSettings;
class TGraphicsJunctionItem;
class TGraphicsSectionItem;
class TGraphicsWireItem;
class TProject;

/**
 * Moves wires to another layer and keeps the copper connected: where a moved wire meets copper that stays, a via
 * replaces the joint; junctions move along if all their sections move; wires are cut from vias and pads that do not
 * reach the new layer, and their nets get new rat lines.
 *
 * Undo mirrors redo: redo records its steps, and undo reverts them in reverse order.
 */
class PROPERTIES_EXPORT TCmdWireLayer : public TReversibleCommand
{
public:
    /** Keeps the wires that are not yet on the new layer; none without a project with a board. */
    TCmdWireLayer(TProject* ofProject, const QList<TGraphicsWireItem*>& given, Osmirel::Layer layer);
    ~TCmdWireLayer() override;
    Q_DISABLE_COPY(TCmdWireLayer)

    /** Adapts what one end of a moved wire is linked to. A no-op for an end without a link. */
    void LinkRedo(TGraphicsWireItem* wire, bool atFirst);

    /** Places a via on the board, which owns it: a copy of the first one of this redo, or else one of the default size
     *  in the application's settings. Null without a board. */
    TGraphicsViaItem* AddVia(const QPointF& scenePoint);

    /** A length in scene units from a setting in millimetres; the default if that is not a number within the range. */
    double FromRegDouble(QSettings* settings, const QString& key, double min, double max, double def);

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    void AdaptLink(TGraphicsWireItem* wire, bool atFirst);
    void PutViaBetween(TGraphicsWireItem& wire, bool atFirst, TGraphicsWireItem& staying);
    void MoveOrReplaceJunction(TGraphicsWireItem& wire, bool atFirst, TGraphicsJunctionItem& junction);
    void MoveJunction(TGraphicsJunctionItem& junction);
    void ReplaceJunction(TGraphicsJunctionItem& junction, const QPointF& scenePoint);
    void TakeOffReplacedJunctions();
    void CutFromCopperWithoutLayer(TGraphicsWireItem& wire, bool atFirst, TGraphicsViaItem& copper);
    void NoteNet(TGraphicsSectionItem& section);
    void UpdateRats();

    void RejoinWires();
    void MoveJunctionsBack();
    void RelinkCutWires();
    void PutJunctionsBack();

    bool Moves(const TGraphicsItem* section) const { return moving.contains(section); }

    struct MovedJunction
    {
        TGraphicsJunctionItem* junction;
        Osmirel::Layer oldLayer;
    };
    struct ReplacedJunction;
    struct CutWire
    {
        TGraphicsWireItem* wire;
        bool atFirst;
        TGraphicsItem* endItem;
    };

    TProject* project;
    TItemScene* owner = nullptr; ///< What items on the board are attached to.
    QList<TGraphicsWireItem*> wires;
    QVector<Osmirel::Layer> oldLayers; ///< Parallel to `wires`.
    QSet<const TGraphicsItem*> moving; ///< The wires, for lookup.
    Osmirel::Layer newLayer;

    std::unique_ptr<TRecreatedItems<TGraphicsViaItem>> madeVias;

    // What redo did; empty before redo and after undo.
    QList<TGraphicsViaItem*> insertedVias;
    QVector<MovedJunction> movedJunctions;
    QSet<const TGraphicsJunctionItem*> alreadyMoved; ///< Those of `movedJunctions`, for lookup.
    std::vector<ReplacedJunction> replacedJunctions;
    QVector<CutWire> cutWires;

    QStringList netsToRefresh; ///< Without duplicates; never shrinks.
    QSet<QString> notedNets;   ///< The same, for lookup.
};
