#include <objects/TGraphicsTagItem.h>

#include <graphics/engine/TStateText.h>

TGraphicsTagItem::TGraphicsTagItem(QGraphicsItem* parent) : TGraphicsTextItem(parent)
{
    SetLayer(Osmirel::SchematicTexts);
}

void TGraphicsTagItem::SetName(const QString& newName, bool refresh)
{
    name = newName;
    if (refresh) {
        ShowValue();
    }
}

void TGraphicsTagItem::SetValue(const QString& newValue, bool refresh)
{
    value = newValue;
    if (refresh) {
        ShowValue();
    }
}

void TGraphicsTagItem::ShowValue()
{
    SetText(value.isEmpty() ? QStringLiteral("{%1}").arg(name) : value);
    UpdatePath(false);
}

void TGraphicsTagItem::Describe(TStateText& state) const
{
    TGraphicsTextItem::Describe(state);
    state.Add("name", name).Add("value", value);
}

std::unique_ptr<TGraphicsItem> TGraphicsTagItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsTagItem>();
}

void TGraphicsTagItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsTextItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsTagItem&>(source);
    name = other.name;
    value = other.value;
}
