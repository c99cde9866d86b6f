#include <contract/Store.h>
#include <contract/Touching.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

using ContractHost::CallOut;
using ContractHost::Store;

QString TGraphicsComponentItem::RefDes() const { return refDes; }
void TGraphicsComponentItem::SetRefDes(const QString& text) { Store(refDes, text); }
QString TGraphicsComponentItem::Value() const { return value; }
void TGraphicsComponentItem::SetValue(const QString& text) { Store(value, text); }
QString TGraphicsComponentItem::PackageName() const { return packageName; }
void TGraphicsComponentItem::SetPackageName(const QString& text) { Store(packageName, text); }
quint16 TGraphicsComponentItem::ComponentNumber() const { return componentNumber; }
TGraphicsItem* TGraphicsComponentItem::RefDesText() const { return refDesText; }
TGraphicsItem* TGraphicsComponentItem::ValueText() const { return valueText; }
bool TGraphicsComponentItem::LockRefDes() const { return lockRefDes; }
void TGraphicsComponentItem::SetLockRefDes(bool on) { Store(lockRefDes, on); }
bool TGraphicsComponentItem::LockValue() const { return lockValue; }
void TGraphicsComponentItem::SetLockValue(bool on) { Store(lockValue, on); }

int TGraphicsPackageItem::type() const { return ItemType::Package; }

QVector<TGraphicsItem*> TGraphicsPackageItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return Touching::Link(Touching::ChildrenOf(*this, ItemType::Pad), items);
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return Touching::Cut(Touching::ChildrenOf(*this, ItemType::Pad), items);
}

int TGraphicsPartItem::type() const { return ItemType::Part; }
QString TGraphicsPartItem::Name() const { return name; }
quint8 TGraphicsPartItem::SwapNumber() const { return swapNumber; }
bool TGraphicsPartItem::IsSymbolOpen() const { return symbolOpen; }

QVector<TGraphicsItem*> TGraphicsPartItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return Touching::Link(Touching::ChildrenOf(*this, ItemType::Pin), items);
}

QVector<TGraphicsItem*> TGraphicsPartItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return Touching::Cut(Touching::ChildrenOf(*this, ItemType::Pin), items);
}

TGraphicsPinItem::TGraphicsPinItem() : numberText(new TGraphicsTextItem) { numberText->setParentItem(this); }
int TGraphicsPinItem::type() const { return ItemType::Pin; }
QString TGraphicsPinItem::Name() const { return name; }
void TGraphicsPinItem::SetName(const QString& text) { Store(name, text); }
bool TGraphicsPinItem::NameVisible() const { return nameVisible; }
void TGraphicsPinItem::SetNameVisible(bool on) { Store(nameVisible, on); }
QString TGraphicsPinItem::Number() const { return numberText->text; }
TGraphicsTextItem* TGraphicsPinItem::NumberText() const { return numberText; }
void TGraphicsPinItem::UpdateNumberPos() { CallOut(); }
bool TGraphicsPinItem::NumberVisible() const { return numberVisible; }
void TGraphicsPinItem::SetNumberVisible(bool on) { Store(numberVisible, on); }
TGraphicsPinItem::TypePinType TGraphicsPinItem::PinType() const { return pinType; }
void TGraphicsPinItem::SetPinType(TypePinType newType) { Store(pinType, newType); }
TGraphicsPinItem::TypePinStyle TGraphicsPinItem::PinStyle() const { return pinStyle; }
void TGraphicsPinItem::SetPinStyle(TypePinStyle style) { Store(pinStyle, style); }
TGraphicsPinItem::TypePinLength TGraphicsPinItem::PinLength() const { return pinLength; }
void TGraphicsPinItem::SetPinLength(TypePinLength length) { Store(pinLength, length); }
void TGraphicsPinItem::UpdatePath() { CallOut(); }
quint8 TGraphicsPinItem::Swap() const { return swap; }
void TGraphicsPinItem::SetSwap(quint8 group) { Store(swap, group); }

TGraphicsPortItem::TGraphicsPortItem() : pin(new TGraphicsPinItem) { pin->setParentItem(this); }
int TGraphicsPortItem::type() const { return ItemType::Port; }
QString TGraphicsPortItem::Name() const { return name; }

void TGraphicsPortItem::SetName(const QString& newName, const QColor& color)
{
    name = newName;
    QVector<TGraphicsItem*> renamed = ConnectedItems();
    renamed.append(this);
    for (TGraphicsItem* item : qAsConst(renamed)) {
        StateOf(item).net = newName;
        StateOf(item).altColor = color;
    }
    CallOut();
}

bool TGraphicsPortItem::NameVisible() const { return nameVisible; }
void TGraphicsPortItem::SetNameVisible(bool on) { Store(nameVisible, on); }
TGraphicsPinItem* TGraphicsPortItem::Pin() const { return pin; }
QVector<TGraphicsItem*> TGraphicsPortItem::ConnectedItems() const { return JoinedWith(pin); }

int TGraphicsNetTieSchItem::type() const { return ItemType::NetTieSch; }
quint16 TGraphicsNetTieSchItem::Number() const { return number; }
QString TGraphicsNetTieSchItem::Name() const { return name; }
void TGraphicsNetTieSchItem::SetName(const QString& text) { Store(name, text); }
bool TGraphicsNetTieSchItem::NameVisible() const { return nameVisible; }
void TGraphicsNetTieSchItem::SetNameVisible(bool on) { Store(nameVisible, on); }
int TGraphicsNetTieSchItem::Symbol() const { return symbol; }
void TGraphicsNetTieSchItem::SetSymbol(int variant) { Store(symbol, variant); }

int TGraphicsTagItem::type() const { return ItemType::Tag; }
QString TGraphicsTagItem::Name() const { return name; }
void TGraphicsTagItem::SetName(const QString& newName, bool) { Store(name, newName); }
void TGraphicsTagItem::SetValue(const QString& newValue, bool) { Store(value, newValue); }
