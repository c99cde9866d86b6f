#include <objects/TGraphicsPinItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/engine/TPinContacts.h>
#include <objects/TGraphicsComponentItem.h>
#include <objects/TGraphicsSectionItem.h>

#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/** In scene units, by `TypePinLength`: multiples of a twentieth of an inch. */
constexpr std::array<double, 4> standardLengths = {0, 15, 30, 45};
constexpr double pinLineWidth = 2;
constexpr double pinNameHeight = 10;
constexpr int numberHeight = 9;
constexpr double gapBeforeName = 4;
constexpr double inversionRadius = 4;
constexpr double numberAboveLine = 2;

double StandardLength(TGraphicsPinItem::TypePinLength length)
{
    const auto index = std::clamp<int>(length, 0, static_cast<int>(standardLengths.size()) - 1);
    return standardLengths[static_cast<std::size_t>(index)];
}

} // namespace

TGraphicsPinItem::TGraphicsPinItem(QGraphicsItem* parent)
    : TGraphicsItem(parent), numberText(new TGraphicsTextItem(this)), symbolLength(StandardLength(LengthMiddle))
{
    setFlag(ItemSendsGeometryChanges); // Keeps name and number readable.
    SetLayer(Osmirel::SchematicSymbols);
    numberText->SetLayer(Osmirel::SchematicSymbols);
    numberText->SetVector(false);
    numberText->SetAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    numberText->Font().setPixelSize(numberHeight);
    UpdateNumberPos();
}

void TGraphicsPinItem::SetName(const QString& text)
{
    name = text;
    ExtentChanges();
}

void TGraphicsPinItem::SetNameVisible(bool on)
{
    nameVisible = on;
    ExtentChanges();
}

QString TGraphicsPinItem::Number() const
{
    return numberText ? numberText->Text() : QString();
}

void TGraphicsPinItem::SetNumberVisible(bool on)
{
    numberVisible = on;
    if (numberText) {
        numberText->setVisible(on);
    }
    Refresh();
}

double TGraphicsPinItem::LineLength() const
{
    return pinLength == symbolLengthClass ? symbolLength : StandardLength(pinLength);
}

void TGraphicsPinItem::SetSymbolLength(double length)
{
    symbolLengthClass = pinLength;
    symbolLength = length;
    UpdatePath();
}

void TGraphicsPinItem::UpdatePath()
{
    ExtentChanges();
    UpdateNumberPos();
}

void TGraphicsPinItem::UpdateNumberPos()
{
    if (!numberText) {
        return;
    }
    const bool turned = Shapes::IsOnItsHead(rotation());
    numberText->setPos(LineLength() / 2, turned ? numberAboveLine : -numberAboveLine);
}

void TGraphicsPinItem::KeepNumberUpright()
{
    if (numberText) {
        numberText->setRotation(Shapes::IsOnItsHead(rotation()) ? 180 : 0);
    }
}

void TGraphicsPinItem::ExtentChanges()
{
    prepareGeometryChange();
    namePath = QPainterPath();
    if (auto* component = dynamic_cast<TGraphicsComponentItem*>(parentItem())) {
        component->ForgetBody();
    }
    Refresh();
}

void TGraphicsPinItem::LinkToPin(TGraphicsPinItem* pin)
{
    if (pin && pin != this && !pins.List().contains(pin)) {
        pins.Add(pin);
        pin->pins.Add(this);
    }
}

void TGraphicsPinItem::UnlinkFromPin(TGraphicsPinItem* pin)
{
    if (pin && pins.List().contains(pin)) {
        pins.Remove(pin);
        pin->pins.Remove(this);
    }
}

void TGraphicsPinItem::NameNet(const QString& net)
{
    if (LinkNode().OwnNet() != net) {
        LinkNode().SetOwnNet(net);
        Refresh();
    }
}

bool TGraphicsPinItem::ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to)
{
    return sections.Replace(from, to) || pins.Replace(from, to);
}

bool TGraphicsPinItem::TakesEnd(const QPointF& point, Osmirel::Layer ofLayer) const
{
    return ofLayer == Osmirel::SchematicNets && point.manhattanLength() < PinContacts::tolerance;
}

const QPainterPath& TGraphicsPinItem::NamePath() const
{
    if (namePath.isEmpty() && nameVisible && !name.isEmpty()) {
        const QPointF start(LineLength() + gapBeforeName, 0);
        namePath = Shapes::LabelFrom(start, pinNameHeight, name, Shapes::IsOnItsHead(rotation()));
    }
    return namePath;
}

QRectF TGraphicsPinItem::boundingRect() const
{
    const double margin = inversionRadius + pinLineWidth;
    const QRectF line = QRectF(0, 0, LineLength(), 0).adjusted(-margin, -margin, margin, margin);
    return line | NamePath().boundingRect();
}

QPainterPath TGraphicsPinItem::Outline() const
{
    return Shapes::Capsule({0, 0}, {LineLength(), 0}, 2 * inversionRadius);
}

void TGraphicsPinItem::Draw(QPainter& painter, double) const
{
    painter.setPen(QPen(Color(), pinLineWidth, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    const bool inverse = pinStyle == StyleInverse;
    const double end = LineLength() - (inverse ? 2 * inversionRadius : 0);
    if (end > 0) {
        painter.drawLine(QPointF(), QPointF(end, 0));
    }
    if (inverse) {
        painter.drawEllipse(QPointF(LineLength() - inversionRadius, 0), inversionRadius, inversionRadius);
    }
    painter.fillPath(NamePath(), Color());
}

QVariant TGraphicsPinItem::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemRotationHasChanged) {
        KeepNumberUpright();
        UpdatePath();
    } else if (change == ItemChildRemovedChange && value.value<QGraphicsItem*>() == numberText) {
        numberText = nullptr;
    }
    return TGraphicsItem::itemChange(change, value);
}

void TGraphicsPinItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("name", name)
        .Add("nameVisible", nameVisible)
        .Add("number", Number())
        .Add("numberVisible", numberVisible)
        .Add("type", static_cast<int>(pinType))
        .Add("style", static_cast<int>(pinStyle))
        .Add("length", static_cast<int>(pinLength))
        .Add("line", LineLength())
        .Add("swap", static_cast<int>(swap));
    DescribeLinks(state, "links", Links());
}

std::unique_ptr<TGraphicsItem> TGraphicsPinItem::CreateEmpty() const
{
    auto empty = std::make_unique<TGraphicsPinItem>();
    delete std::exchange(empty->numberText, nullptr); // Replaced by the copy of this one's child.
    return empty;
}

void TGraphicsPinItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPinItem&>(source);
    name = other.name;
    nameVisible = other.nameVisible;
    numberVisible = other.numberVisible;
    pinType = other.pinType;
    pinStyle = other.pinStyle;
    pinLength = other.pinLength;
    symbolLengthClass = other.symbolLengthClass;
    symbolLength = other.symbolLength;
    swap = other.swap;
    const QList<QGraphicsItem*> children = childItems();
    const auto text = std::find_if(children.cbegin(), children.cend(),
                                   [](const QGraphicsItem* child) { return child->type() == ItemType::Text; });
    numberText = text == children.cend() ? nullptr : static_cast<TGraphicsTextItem*>(*text);
}
