#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsPourItem.h>

namespace Attributes PROPERTIES_EXPORT {

/** An attribute of a pour that is refilled after a write. */
template <class Editing, auto get, auto set>
struct Filled : Editing
{
    static bool Accepts(const TGraphicsPourItem&) { return true; }
    static typename Editing::Value Read(const TGraphicsPourItem& pour) { return (pour.*get)(); }
    static void Write(TGraphicsPourItem& pour, const typename Editing::Value& value)
    {
        (pour.*set)(value);
        pour.Fill();
    }
};

template <auto get, auto set>
using FilledLength = Filled<Length<TGraphicsPourItem>, get, set>;
template <class Value, auto get, auto set>
using FilledValue = Filled<Plain<TGraphicsPourItem, Value>, get, set>;

struct PourClEtch : FilledLength<&TGraphicsPourItem::ClearanceToEtch, &TGraphicsPourItem::SetClearanceToEtch>
{};
struct PourClBorder : FilledLength<&TGraphicsPourItem::ClearanceToBorder, &TGraphicsPourItem::SetClearanceToBorder>
{};
struct PourClPour : FilledLength<&TGraphicsPourItem::ClearanceToPour, &TGraphicsPourItem::SetClearanceToPour>
{};
struct PourLineWidth : FilledLength<&TGraphicsPourItem::LineWidth, &TGraphicsPourItem::SetLineWidth>
{};
struct PourThermLine : FilledLength<&TGraphicsPourItem::ThermalLine, &TGraphicsPourItem::SetThermalLine>
{};
struct PourThermIsol : FilledLength<&TGraphicsPourItem::ThermalIsolation, &TGraphicsPourItem::SetThermalIsolation>
{};
struct PourMinArea : FilledValue<double, &TGraphicsPourItem::MinimumArea, &TGraphicsPourItem::SetMinimumArea>
{};
struct PourPrio : FilledValue<quint8, &TGraphicsPourItem::Priority, &TGraphicsPourItem::SetPriority>
{};
struct PourFillType : FilledValue<int, &TGraphicsPourItem::FillType, &TGraphicsPourItem::SetFillType>
{
    static std::optional<int> FromEditor(int style)
    {
        return IsBrushStyle(style) ? std::make_optional(style) : std::nullopt;
    }
};
struct PourOnlyConn : FilledValue<bool, &TGraphicsPourItem::OnlyConnected, &TGraphicsPourItem::SetOnlyConnected>
{};
struct PourThermEn : FilledValue<bool, &TGraphicsPourItem::ThermalEnable, &TGraphicsPourItem::SetThermalEnable>
{};

/** The net of a pour; its setter refills the pour. */
struct PourNet : Plain<TGraphicsPourItem, QString>
{
    static bool Accepts(const TGraphicsPourItem&) { return true; }
    static QString Read(const TGraphicsPourItem& pour) { return pour.Net(); }
    static void Write(TGraphicsPourItem& pour, const QString& net) { pour.SetNet(net); }
};

/** The layer of a pour. Intended: the pour is not refilled. */
struct PourLayer : Plain<TGraphicsPourItem, Osmirel::Layer>
{
    static bool Accepts(const TGraphicsPourItem&) { return true; }
    static Osmirel::Layer Read(const TGraphicsPourItem& pour) { return pour.Layer(); }
    static void Write(TGraphicsPourItem& pour, Osmirel::Layer layer) { pour.SetLayer(layer); }
};

} // namespace Attributes

/** A command over one attribute of pours that has an id and takes over later values. */
template <class Attribute, CommandId::Id commandId>
using TMergingPourCommand = TMergingCommand<Attribute, commandId, MergeRule::TakeOver>;

/** Sets the clearance of pours, in millimetres, to other copper, and refills them. */
class PROPERTIES_EXPORT TCmdPourClEtch : public TMergingPourCommand<Attributes::PourClEtch, CommandId::PourClEtch>
{
public:
    TCmdPourClEtch(QList<TGraphicsPourItem*> pours, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the clearance of pours, in millimetres, to the board's border, and refills them. */
class PROPERTIES_EXPORT TCmdPourClBorder : public TMergingPourCommand<Attributes::PourClBorder, CommandId::PourClBorder>
{
public:
    TCmdPourClBorder(QList<TGraphicsPourItem*> pours, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the clearance of pours, in millimetres, to other pours, and refills them. */
class PROPERTIES_EXPORT TCmdPourClPour : public TMergingPourCommand<Attributes::PourClPour, CommandId::PourClPour>
{
public:
    TCmdPourClPour(QList<TGraphicsPourItem*> pours, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the width, in millimetres, of the lines that pours are filled with, and refills them. */
class PROPERTIES_EXPORT TCmdPourLineWidth
    : public TMergingPourCommand<Attributes::PourLineWidth, CommandId::PourLineWidth>
{
public:
    TCmdPourLineWidth(QList<TGraphicsPourItem*> pours, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the smallest area, in square millimetres, of a piece of pours, and refills them. */
class PROPERTIES_EXPORT TCmdPourMinArea : public TMergingPourCommand<Attributes::PourMinArea, CommandId::PourMinArea>
{
public:
    TCmdPourMinArea(QList<TGraphicsPourItem*> pours, double squareMillimetres);
    TCommandKind Kind() const override;
};

/** Sets the width, in millimetres, of the thermal spokes of pours, and refills them. */
class PROPERTIES_EXPORT TCmdPourThermLine
    : public TMergingPourCommand<Attributes::PourThermLine, CommandId::PourThermLine>
{
public:
    TCmdPourThermLine(QList<TGraphicsPourItem*> pours, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the distance, in millimetres, that the thermal spokes of pours bridge, and refills them. */
class PROPERTIES_EXPORT TCmdPourThermIsol
    : public TMergingPourCommand<Attributes::PourThermIsol, CommandId::PourThermIsol>
{
public:
    TCmdPourThermIsol(QList<TGraphicsPourItem*> pours, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the priority of pours over each other, and refills them. */
class PROPERTIES_EXPORT TCmdPourPrio : public TMergingPourCommand<Attributes::PourPrio, CommandId::PourPrio>
{
public:
    TCmdPourPrio(QList<TGraphicsPourItem*> pours, unsigned char priority);
    TCommandKind Kind() const override;
};

/** Sets the net of pours, which refills them. */
class PROPERTIES_EXPORT TCmdPourNet : public TMergingPourCommand<Attributes::PourNet, CommandId::PourNet>
{
public:
    TCmdPourNet(QList<TGraphicsPourItem*> pours, const QString& net);
    TCommandKind Kind() const override;
};

/** Sets how pours are filled, a `Qt::BrushStyle`, and refills them. */
class PROPERTIES_EXPORT TCmdPourFillType : public TAttributeCommand<Attributes::PourFillType>
{
public:
    TCmdPourFillType(QList<TGraphicsPourItem*> pours, int brushStyle);
    TCommandKind Kind() const override;
};

/** Sets whether pours leave out islands, pieces that touch no copper of their net, and refills them. */
class PROPERTIES_EXPORT TCmdPourOnlyConn : public TAttributeCommand<Attributes::PourOnlyConn>
{
public:
    TCmdPourOnlyConn(QList<TGraphicsPourItem*> pours, bool on);
    TCommandKind Kind() const override;
};

/** Sets whether pours connect to pads and vias by thermal spokes, and refills them. */
class PROPERTIES_EXPORT TCmdPourThermEn : public TAttributeCommand<Attributes::PourThermEn>
{
public:
    TCmdPourThermEn(QList<TGraphicsPourItem*> pours, bool on);
    TCommandKind Kind() const override;
};

/** Moves pours to a layer without refilling them. */
class PROPERTIES_EXPORT TCmdPourLayer : public TAttributeCommand<Attributes::PourLayer>
{
public:
    TCmdPourLayer(QList<TGraphicsPourItem*> pours, Osmirel::Layer layer);
    TCommandKind Kind() const override;
};
