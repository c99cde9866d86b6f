#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsPadItem.h>

namespace Attributes PROPERTIES_EXPORT {

using Pads = OfKind<ItemType::Pad>;

struct PadWidth : Length<TGraphicsPadItem>, Pads
{
    static double Read(const TGraphicsPadItem& pad) { return pad.Width(); }
    static void Write(TGraphicsPadItem& pad, double width) { pad.SetWidth(width); }
};

/** The height of a pad. Intended: its old value is the pad's width, so that undo makes the pad as high as it was wide.
 */
struct PadHeight : Length<TGraphicsPadItem>, Pads
{
    static double Read(const TGraphicsPadItem& pad) { return pad.Width(); }
    static void Write(TGraphicsPadItem& pad, double height) { pad.SetHeight(height); }
};

/** Pads of any type number. Intended for the texts, which are set on every pad given. */
struct EveryPad
{
    static bool Accepts(const TGraphicsItem& item) { return dynamic_cast<const TGraphicsPadItem*>(&item) != nullptr; }
};

struct PadNumber : Plain<TGraphicsPadItem, QString>, EveryPad
{
    static QString Read(const TGraphicsPadItem& pad) { return pad.Number(); }
    static void Write(TGraphicsPadItem& pad, const QString& number)
    {
        pad.SetNumber(number);
        pad.UpdateTextPaths();
    }
};

struct PadName : Plain<TGraphicsPadItem, QString>, EveryPad
{
    static QString Read(const TGraphicsPadItem& pad) { return pad.Name(); }
    static void Write(TGraphicsPadItem& pad, const QString& name)
    {
        pad.SetName(name);
        pad.UpdateTextPaths();
    }
};

struct PadShape : Choice<TGraphicsPadItem, TGraphicsPadItem::TypePadShape, 1, 6>, Pads
{
    static Value Read(const TGraphicsPadItem& pad) { return pad.PadShape(); }
    static void Write(TGraphicsPadItem& pad, Value shape) { pad.SetPadShape(shape); }
};

/** The layer of a surface pad; the old value is the end layer, which equals the start layer. */
struct PadSide : Plain<TGraphicsPadItem, Osmirel::Layer>, Pads
{
    static Osmirel::Layer Read(const TGraphicsPadItem& pad) { return pad.EndLayer(); }
    static void Write(TGraphicsPadItem& pad, Osmirel::Layer side) { pad.SetPadSide(side); }
};

/** Whether a pad is a surface pad. */
struct PadType : Plain<TGraphicsPadItem, bool>, Pads
{
    static bool Read(const TGraphicsPadItem& pad) { return pad.IsSMD(); }
    static void Write(TGraphicsPadItem& pad, bool smd) { pad.SetTypeSMD(smd); }
};

} // namespace Attributes

/** Sets the width of pads in millimetres. */
class PROPERTIES_EXPORT TCmdPadWidth
    : public TMergingCommand<Attributes::PadWidth, CommandId::PadWidth, MergeRule::TakeOver>
{
public:
    TCmdPadWidth(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the height of pads in millimetres. Intended: undo sets it to the width that each pad had before. */
class PROPERTIES_EXPORT TCmdPadHeight
    : public TMergingCommand<Attributes::PadHeight, CommandId::PadHeight, MergeRule::TakeOver>
{
public:
    TCmdPadHeight(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the number of every pad given, regardless of its type number. */
class PROPERTIES_EXPORT TCmdPadNumber : public TAttributeCommand<Attributes::PadNumber>
{
public:
    TCmdPadNumber(const QList<TGraphicsItem*>& selection, const QString& number);
    TCommandKind Kind() const override;
};

/** Sets the name of every pad given, regardless of its type number. */
class PROPERTIES_EXPORT TCmdPadName : public TAttributeCommand<Attributes::PadName>
{
public:
    TCmdPadName(const QList<TGraphicsItem*>& selection, const QString& name);
    TCommandKind Kind() const override;
};

/** Sets the shape of pads: a value of `TGraphicsPadItem::TypePadShape`. */
class PROPERTIES_EXPORT TCmdPadShape : public TAttributeCommand<Attributes::PadShape>
{
public:
    TCmdPadShape(const QList<TGraphicsItem*>& selection, int shape);
    TCommandKind Kind() const override;
};

/** Moves surface pads to a layer. */
class PROPERTIES_EXPORT TCmdPadSide : public TAttributeCommand<Attributes::PadSide>
{
public:
    TCmdPadSide(const QList<TGraphicsItem*>& selection, Osmirel::Layer side);
    TCommandKind Kind() const override;
};

/** Makes pads surface pads or through-hole pads. */
class PROPERTIES_EXPORT TCmdPadType : public TAttributeCommand<Attributes::PadType>
{
public:
    TCmdPadType(const QList<TGraphicsItem*>& selection, bool smd);
    TCommandKind Kind() const override;
};
