#include <contract/Store.h>
#include <contract/Touching.h>
#include <contract/TypedLinks.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsRatLineItem.h>
#include <objects/TGraphicsSectionItem.h>

using ContractHost::CallOut;
using ContractHost::Store;

TGraphicsViaItem::TGraphicsViaItem() = default;

int TGraphicsViaItem::type() const { return ItemType::Via; }
QRectF TGraphicsViaItem::boundingRect() const { return {-Width() / 2, -Height() / 2, Width(), Height()}; }
double TGraphicsViaItem::Width() const { return copper.size.width(); }
double TGraphicsViaItem::Height() const { return copper.size.height(); }
void TGraphicsViaItem::SetSize(double width, double height) { Store(copper.size, QSizeF(width, height)); }
float TGraphicsViaItem::Drill() const { return copper.drill; }
void TGraphicsViaItem::SetDrill(float diameter) { Store(copper.drill, diameter); }
TGraphicsViaItem::TypeThermal TGraphicsViaItem::Thermal() const { return copper.thermal; }
void TGraphicsViaItem::SetThermal(TypeThermal type) { Store(copper.thermal, type); }
QString TGraphicsViaItem::ViaGroup() const { return copper.viaGroup; }
void TGraphicsViaItem::SetViaGroup(const QString& name) { Store(copper.viaGroup, name); }
bool TGraphicsViaItem::MaskEnabled() const { return copper.maskEnabled; }
void TGraphicsViaItem::SetMaskEnabled(bool on) { Store(copper.maskEnabled, on); }
float TGraphicsViaItem::MaskClearance() const { return copper.maskClearance; }
void TGraphicsViaItem::SetMaskClearance(float clearance) { Store(copper.maskClearance, clearance); }
void TGraphicsViaItem::Refresh() { CallOut(); }
Osmirel::Layer TGraphicsViaItem::StartLayer() const { return copper.start; }
Osmirel::Layer TGraphicsViaItem::EndLayer() const { return copper.end; }

QList<Osmirel::Layer> TGraphicsViaItem::EtchLayers() const
{
    QList<Osmirel::Layer> layers;
    for (int number = qMin(copper.start, copper.end); number <= qMax(copper.start, copper.end); ++number) {
        layers.append(static_cast<Osmirel::Layer>(number));
    }
    return layers;
}

QList<TGraphicsSectionItem*> TGraphicsViaItem::LinkedWires() const { return TypedLinks<TGraphicsSectionItem>(links); }

void TGraphicsViaItem::AddLinkedWire(TGraphicsSectionItem* wire)
{
    Hold(wire);
    CallOut();
}

void TGraphicsViaItem::RemoveLinkedWire(TGraphicsSectionItem* wire)
{
    Drop(wire);
    CallOut();
}

TGraphicsItem* TGraphicsViaItem::CreateCopy() const
{
    auto* copy = new TGraphicsViaItem;
    copy->Assign(*this);
    return copy;
}

void TGraphicsViaItem::Assign(const TGraphicsItem& other)
{
    TakeState(other);
    copper = static_cast<const TGraphicsViaItem&>(other).copper;
    CallOut();
}

int TGraphicsPadItem::type() const { return ItemType::Pad; }
QString TGraphicsPadItem::Number() const { return number; }
void TGraphicsPadItem::SetNumber(const QString& text) { Store(number, text); }
QString TGraphicsPadItem::Name() const { return name; }
void TGraphicsPadItem::SetName(const QString& text) { Store(name, text); }
void TGraphicsPadItem::UpdateTextPaths() { CallOut(); }
void TGraphicsPadItem::SetWidth(double width) { Store(copper.size, QSizeF(width, copper.size.height())); }
void TGraphicsPadItem::SetHeight(double height) { Store(copper.size, QSizeF(copper.size.width(), height)); }
TGraphicsPadItem::TypePadShape TGraphicsPadItem::PadShape() const { return padShape; }
void TGraphicsPadItem::SetPadShape(TypePadShape shape) { Store(padShape, shape); }
bool TGraphicsPadItem::IsSMD() const { return copper.start == copper.end; }

void TGraphicsPadItem::SetTypeSMD(bool smd)
{
    if (smd && !IsSMD()) {
        farLayer = copper.end;
        copper.end = copper.start;
    } else if (!smd && IsSMD()) {
        copper.end = farLayer == copper.start ? Osmirel::CopperTop : farLayer;
    }
    CallOut();
}

void TGraphicsPadItem::SetPadSide(Osmirel::Layer side)
{
    if (IsSMD()) {
        copper.start = copper.end = side;
    }
    CallOut();
}

void TGraphicsPadItem::SetMaskClearance(float clearance) { Store(copper.maskClearance, clearance); }
bool TGraphicsPadItem::PasteEnabled() const { return pasteEnabled; }
void TGraphicsPadItem::SetPasteEnabled(bool on) { Store(pasteEnabled, on); }
float TGraphicsPadItem::PasteClearance() const { return pasteClearance; }
void TGraphicsPadItem::SetPasteClearance(float clearance) { Store(pasteClearance, clearance); }

int TGraphicsNetTiePcbItem::type() const { return ItemType::NetTiePcb; }
QRectF TGraphicsNetTiePcbItem::boundingRect() const { return {-padSize / 2, -padSize / 2, padSize, padSize}; }
quint16 TGraphicsNetTiePcbItem::Number() const { return number; }
QString TGraphicsNetTiePcbItem::Name() const { return name; }
void TGraphicsNetTiePcbItem::SetName(const QString& text) { Store(name, text); }
bool TGraphicsNetTiePcbItem::NameVisible() const { return nameVisible; }
void TGraphicsNetTiePcbItem::SetNameVisible(bool on) { Store(nameVisible, on); }
double TGraphicsNetTiePcbItem::PadSize() const { return padSize; }
void TGraphicsNetTiePcbItem::SetPadSize(double diameter) { Store(padSize, diameter); }
QPen& TGraphicsNetTiePcbItem::Pen() { return pen; }
const QPen& TGraphicsNetTiePcbItem::Pen() const { return pen; }

QVector<TGraphicsItem*> TGraphicsNetTiePcbItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return Touching::Link({this}, items);
}

QVector<TGraphicsItem*> TGraphicsNetTiePcbItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return Touching::Cut({this}, items);
}

int TGraphicsRatLineItem::type() const { return ItemType::RatLine; }
void TGraphicsRatLineItem::SetPriority(const QString& level) { Store(priority, level); }

int TGraphicsPourItem::type() const { return ItemType::Pour; }
double TGraphicsPourItem::ClearanceToEtch() const { return clearanceToEtch; }
void TGraphicsPourItem::SetClearanceToEtch(double clearance) { Store(clearanceToEtch, clearance); }
double TGraphicsPourItem::ClearanceToBorder() const { return clearanceToBorder; }
void TGraphicsPourItem::SetClearanceToBorder(double clearance) { Store(clearanceToBorder, clearance); }
double TGraphicsPourItem::ClearanceToPour() const { return clearanceToPour; }
void TGraphicsPourItem::SetClearanceToPour(double clearance) { Store(clearanceToPour, clearance); }
int TGraphicsPourItem::FillType() const { return fillType; }
void TGraphicsPourItem::SetFillType(int brushStyle) { Store(fillType, brushStyle); }
double TGraphicsPourItem::LineWidth() const { return lineWidth; }
void TGraphicsPourItem::SetLineWidth(double width) { Store(lineWidth, width); }
double TGraphicsPourItem::MinimumArea() const { return minimumArea; }
void TGraphicsPourItem::SetMinimumArea(double squareMillimetres) { Store(minimumArea, squareMillimetres); }
bool TGraphicsPourItem::OnlyConnected() const { return onlyConnected; }
void TGraphicsPourItem::SetOnlyConnected(bool on) { Store(onlyConnected, on); }
quint8 TGraphicsPourItem::Priority() const { return priority; }
void TGraphicsPourItem::SetPriority(quint8 level) { Store(priority, level); }
bool TGraphicsPourItem::ThermalEnable() const { return thermalEnable; }
void TGraphicsPourItem::SetThermalEnable(bool on) { Store(thermalEnable, on); }
double TGraphicsPourItem::ThermalLine() const { return thermalLine; }
void TGraphicsPourItem::SetThermalLine(double width) { Store(thermalLine, width); }
double TGraphicsPourItem::ThermalIsolation() const { return thermalIsolation; }
void TGraphicsPourItem::SetThermalIsolation(double distance) { Store(thermalIsolation, distance); }
int TGraphicsPourItem::CompositionMode() const { return compositionMode; }
void TGraphicsPourItem::SetCompositionMode(int mode) { Store(compositionMode, mode); }
void TGraphicsPourItem::SetAlpha(int newAlpha) { Store(alpha, newAlpha); }
void TGraphicsPourItem::SetNet(const QString& net) { Store(state.net, net); }
void TGraphicsPourItem::Fill() { CallOut(); }

int TGraphicsKeepoutItem::type() const { return ItemType::Keepout; }
bool TGraphicsKeepoutItem::IsLayerEnable(Osmirel::Layer layer) const { return enabled.contains(layer); }

void TGraphicsKeepoutItem::SetLayerEnable(Osmirel::Layer layer, bool on)
{
    if (on) {
        enabled.insert(layer);
    } else {
        enabled.remove(layer);
    }
    CallOut();
}

int TGraphicsOutlineItem::type() const { return ItemType::Outline; }
QPainterPath TGraphicsOutlineItem::Path() const { return path; }
QVector<OutlinePointStruct> TGraphicsOutlineItem::Points() const { return points; }
