#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"
#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsWireItem.h>

#include <memory>

template <class Item>
class TDetachedItem;
template <class Item>
class TRecreatedItems;

namespace Attributes PROPERTIES_EXPORT {

/** The width of a wire in scene units, with the size of the junctions at its ends. */
struct WireWidth : Plain<TGraphicsWireItem, double>
{
    static bool Accepts(const TGraphicsWireItem&) { return true; }
    static double Read(const TGraphicsWireItem& wire) { return static_cast<double>(wire.PenWidth()); }
    static void Write(TGraphicsWireItem& wire, double width);
};

} // namespace Attributes

/** Sets the width, in scene units, of wires; junctions become as large as the widest of their sections. */
class PROPERTIES_EXPORT TCmdWireWidth
    : public TMergingCommand<Attributes::WireWidth, CommandId::WireWidth, MergeRule::TakeOver>
{
public:
    TCmdWireWidth(const QList<TGraphicsWireItem*>& wires, double width);

    /** Sets the width, in scene units, of one wire, and the size of the junctions at its ends. */
    void SetWireWidth(TGraphicsWireItem* wire, double width);

    TCommandKind Kind() const override;
};

/**
 * Splits a wire at a node: the wire ends there, and a copy of it continues from there. The board owns the copy while
 * the command is done, and the command while it is undone.
 */
class PROPERTIES_EXPORT TCmdWireAddNode : public TReversibleCommand
{
public:
    /** The node is the foot of the perpendicular from @p point, in scene coordinates, onto the wire's line. */
    TCmdWireAddNode(TGraphicsWireItem* wire, const QPointF& point);
    ~TCmdWireAddNode() override;

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    TGraphicsWireItem* wire;
    TGraphicsWireItem* newWire = nullptr; ///< Null until redo and after undo.
    std::unique_ptr<TRecreatedItems<TGraphicsWireItem>> made;
    QPointF node;
};

/** Joins two wires at a node: the kept one is extended over the removed one, which the command owns meanwhile. Undo
 * puts the removed one onto the board of the kept one. */
class PROPERTIES_EXPORT TCmdWireDelNode : public TReversibleCommand
{
public:
    /** The last end of @p kept meets the first end of @p removed. A wire is not joined with itself. */
    TCmdWireDelNode(TGraphicsWireItem* kept, TGraphicsWireItem* removed);
    ~TCmdWireDelNode() override;

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    TGraphicsWireItem* kept;
    std::unique_ptr<TDetachedItem<TGraphicsWireItem>> removed;
    QPointF node;
};
