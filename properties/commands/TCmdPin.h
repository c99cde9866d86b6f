#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPinItem.h>

namespace Attributes PROPERTIES_EXPORT {

using Pins = OfKind<ItemType::Pin>;

struct PinName : Plain<TGraphicsPinItem, QString>, Pins
{
    static QString Read(const TGraphicsPinItem& pin) { return pin.Name(); }
    static void Write(TGraphicsPinItem& pin, const QString& name) { pin.SetName(name); }
};

struct PinNameVisible : Plain<TGraphicsPinItem, bool>, Pins
{
    static bool Read(const TGraphicsPinItem& pin) { return pin.NameVisible(); }
    static void Write(TGraphicsPinItem& pin, bool visible) { pin.SetNameVisible(visible); }
};

struct PinNumber : Plain<TGraphicsPinItem, QString>, Pins
{
    static QString Read(const TGraphicsPinItem& pin) { return pin.Number(); }
    static void Write(TGraphicsPinItem& pin, const QString& number)
    {
        if (TGraphicsTextItem* text = pin.NumberText()) {
            text->SetText(number);
            text->UpdatePath(false);
        }
        pin.UpdateNumberPos();
    }
};

struct PinNumberVisible : Plain<TGraphicsPinItem, bool>, Pins
{
    static bool Read(const TGraphicsPinItem& pin) { return pin.NumberVisible(); }
    static void Write(TGraphicsPinItem& pin, bool visible) { pin.SetNumberVisible(visible); }
};

struct PinType : Choice<TGraphicsPinItem, TGraphicsPinItem::TypePinType, 0, 7>, Pins
{
    static Value Read(const TGraphicsPinItem& pin) { return pin.PinType(); }
    static void Write(TGraphicsPinItem& pin, Value type)
    {
        pin.SetPinType(type);
        pin.update();
    }
};

struct PinStyle : Choice<TGraphicsPinItem, TGraphicsPinItem::TypePinStyle, 0, 1>, Pins
{
    static Value Read(const TGraphicsPinItem& pin) { return pin.PinStyle(); }
    static void Write(TGraphicsPinItem& pin, Value style)
    {
        pin.SetPinStyle(style);
        pin.UpdatePath();
    }
};

struct PinLength : Choice<TGraphicsPinItem, TGraphicsPinItem::TypePinLength, 0, 3>, Pins
{
    static Value Read(const TGraphicsPinItem& pin) { return pin.PinLength(); }
    static void Write(TGraphicsPinItem& pin, Value length)
    {
        pin.SetPinLength(length);
        pin.UpdatePath();
    }
};

/** The swap group, 0 to 255. Intended: no repaint. */
struct PinSwap : Choice<TGraphicsPinItem, quint8, 0, 255>, Pins
{
    static Value Read(const TGraphicsPinItem& pin) { return pin.Swap(); }
    static void Write(TGraphicsPinItem& pin, Value group) { pin.SetSwap(group); }
};

} // namespace Attributes

/** Renames pins. */
class PROPERTIES_EXPORT TCmdPinName : public TAttributeCommand<Attributes::PinName>
{
public:
    TCmdPinName(const QList<TGraphicsItem*>& selection, const QString& name);
    TCommandKind Kind() const override;
};

/** Shows or hides the names of pins. */
class PROPERTIES_EXPORT TCmdPinNameVis : public TAttributeCommand<Attributes::PinNameVisible>
{
public:
    TCmdPinNameVis(const QList<TGraphicsItem*>& selection, bool visible);
    TCommandKind Kind() const override;
};

/** Sets the numbers of pins. */
class PROPERTIES_EXPORT TCmdPinNumber : public TAttributeCommand<Attributes::PinNumber>
{
public:
    TCmdPinNumber(const QList<TGraphicsItem*>& selection, const QString& number);
    TCommandKind Kind() const override;
};

/** Shows or hides the numbers of pins. */
class PROPERTIES_EXPORT TCmdPinNumberVis : public TAttributeCommand<Attributes::PinNumberVisible>
{
public:
    TCmdPinNumberVis(const QList<TGraphicsItem*>& selection, bool visible);
    TCommandKind Kind() const override;
};

/** Sets the electrical type of pins: a value of `TGraphicsPinItem::TypePinType`. */
class PROPERTIES_EXPORT TCmdPinType
    : public TMergingCommand<Attributes::PinType, CommandId::PinType, MergeRule::EqualValue>
{
public:
    TCmdPinType(const QList<TGraphicsItem*>& selection, int type);
    TCommandKind Kind() const override;
};

/** Sets how pins are drawn: a value of `TGraphicsPinItem::TypePinStyle`. */
class PROPERTIES_EXPORT TCmdPinStyle
    : public TMergingCommand<Attributes::PinStyle, CommandId::PinStyle, MergeRule::EqualValue>
{
public:
    TCmdPinStyle(const QList<TGraphicsItem*>& selection, int style);
    TCommandKind Kind() const override;
};

/** Sets the length of pins: a value of `TGraphicsPinItem::TypePinLength`. */
class PROPERTIES_EXPORT TCmdPinLength
    : public TMergingCommand<Attributes::PinLength, CommandId::PinLength, MergeRule::EqualValue>
{
public:
    TCmdPinLength(const QList<TGraphicsItem*>& selection, int length);
    TCommandKind Kind() const override;
};

/** Sets the swap group of pins, 0 to 255. */
class PROPERTIES_EXPORT TCmdPinSwap
    : public TMergingCommand<Attributes::PinSwap, CommandId::PinSwap, MergeRule::EqualValue>
{
public:
    TCmdPinSwap(const QList<TGraphicsItem*>& selection, int group);
    TCommandKind Kind() const override;
};
