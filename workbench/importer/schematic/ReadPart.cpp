#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/TextEffects.h"
#include "workbench/importer/schematic/PageItems.h"

#include <graphics/TGraphicsPenItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>

namespace {

using Pin = TGraphicsPinItem;

constexpr struct
{
    const char* word;
    Pin::TypePinType type;
} pinTypes[] = {
    {"input", Pin::TypeInput},
    {"output", Pin::TypeOutput},
    {"bidirectional", Pin::TypeBidirectional},
    {"tri_state", Pin::TypeHighImpedance},
    {"open_collector", Pin::TypeOpenCollector},
    {"open_emitter", Pin::TypeOpenCollector},
    {"power_in", Pin::TypePower},
    {"power_out", Pin::TypePower},
    {"no_connect", Pin::TypeNoConnect},
};

Pin::TypePinType PinType(const QString& word)
{
    const auto found = std::find_if(std::begin(pinTypes), std::end(pinTypes),
                                    [&word](const auto& each) { return word == QLatin1String(each.word); });
    return found == std::end(pinTypes) ? Pin::TypePassive : found->type;
}

Pin::TypePinStyle PinStyle(const QString& word, TNotShown& notShown)
{
    if (word.startsWith(QLatin1String("inverted"))) {
        return Pin::StyleInverse;
    }
    if (word != QLatin1String("line")) {
        notShown.Count("pin styles (drawn plain)");
    }
    return Pin::StyleNormal;
}

Pin::TypePinLength LengthClass(qint64 nanometres)
{
    constexpr qint64 step = 1'270'000;
    return static_cast<Pin::TypePinLength>(
        std::clamp<qint64>((nanometres + step / 2) / step, Pin::LengthZero, Pin::LengthLong));
}

/** Reads a pin except its position, which depends on its parent. */
TGraphicsPinItem* AddPin(const TPagePin& pin, const TLibrarySymbol& library, TGraphicsItem& parent,
                         TSchematicDraft& draft)
{
    auto* item = new TGraphicsPinItem(&parent);
    const qint64 length = pin.pin->isHidden ? 0 : pin.pin->length;
    item->SetName(pin.pin->name);
    item->SetNameVisible(library.showsPinNames && !pin.pin->isHidden);
    item->NumberText()->SetText(pin.pin->number);
    item->NumberText()->UpdatePath(false);
    item->SetNumberVisible(library.showsPinNumbers && !pin.pin->isHidden);
    item->SetPinType(PinType(pin.use.electrical));
    item->SetPinStyle(PinStyle(pin.use.style, draft.notShown));
    item->SetPinLength(LengthClass(length));
    item->SetSymbolLength(Measures::SceneLength(length));
    return item;
}

void NotePin(const TPagePin& pin, TGraphicsPinItem& item, TPageDraft& page, const TSchematicDraft& draft)
{
    page.connectionPoints.At(pin.place).pins.append({&item, draft.NetName(pin.net), false});
}

TextVariables::TValues VariablesOf(const TPageSymbol& symbol, const TPageDraft& page)
{
    TextVariables::TValues values = page.variables;
    for (const TSymbolField& field : symbol.symbol->fields) {
        values.insert(field.key, field.value);
        values.insert(field.key.toUpper(), field.value);
    }
    const std::pair<const char*, QString> said[] = {
        {"REFERENCE", symbol.reference}, {"Reference", symbol.reference}, {"VALUE", symbol.value},
        {"Value", symbol.value},         {"FOOTPRINT", symbol.footprint}, {"Footprint", symbol.footprint},
    };
    for (const auto& [name, value] : said) {
        values.insert(QString::fromLatin1(name), value);
    }
    return values;
}

class TPartBuilder
{
public:
    TPartBuilder(const TPageSymbol& ofSymbol, TPageDraft& onPage, TSchematicDraft& inDraft)
        : symbol(ofSymbol), placed(*ofSymbol.symbol), page(onPage), draft(inDraft), variables(VariablesOf(symbol, page))
    {}

    void Build()
    {
        part = std::make_unique<TGraphicsPartItem>();
        part->setPos(Measures::ScenePoint(placed.frame.origin));
        part->SetComponentNumber(draft.numbers.value(PageItems::ComponentKey(symbol)));
        part->SetName(placed.libraryName.section(QLatin1Char(':'), -1));
        part->SetPackageName(ElementValues::PackageName(symbol.footprint));
        if (placed.element.HasFlag("dnp")) {
            draft.notShown.Count("marks of parts that are not to be placed");
        }
        AddBody();
        AddFields();
        AddPins();
        page.target.Attach(std::move(part));
    }

private:
    void AddBody()
    {
        if (!placed.library) {
            draft.notShown.Count("symbols that the sheet has no copy of");
            return;
        }
        const TMap inPart = [this](const TGridPoint& place) { return placed.frame.Turned(place); };
        for (const TLibraryShape& shape : placed.library->shapes) {
            if (!BelongsTo(shape, symbol.unit, placed.bodyStyle)) {
                continue;
            }
            if (shape.element.Name() == "text") {
                AddBodyText(shape.element);
            } else if (std::unique_ptr<TGraphicsPenItem> item = PageItems::Shape(shape.element, inPart)) {
                item.release()->setParentItem(part.get());
            } else {
                draft.notShown.Count("other elements");
            }
        }
    }

    void AddBodyText(const TSexpression& element)
    {
        const TSexpression at = element.Get("at");
        // Here, and only here, most files have an angle in tenths of degrees.
        constexpr qint64 degree = 1'000'000;
        const qint64 angle = ElementValues::Angle(at);
        const auto quarters = static_cast<int>(angle / (angle < 360 * degree ? 90 * degree : 900 * degree));
        const QString content = TextVariables::Resolved(element.Value(0).Text(), variables);
        std::unique_ptr<TGraphicsTextItem> text = PageItems::Text(element, content, quarters, placed.frame);
        text->setPos(Measures::ScenePoint(placed.frame.Turned(ElementValues::GridPoint(at))));
        text->SetLayer(Osmirel::SchematicSymbols);
        text->setVisible(!TextEffects::IsHidden(element, 1));
        text.release()->setParentItem(part.get());
    }

    void AddFields()
    {
        for (const TSymbolField& field : placed.fields) {
            const bool isReference = field.key == QLatin1String("Reference");
            const bool isValue = field.key == QLatin1String("Value");
            const bool isHidden = TextEffects::IsHidden(field.element, 2);
            const std::optional<TSexpression> at = field.element.Find("at");
            if (at && (!isHidden || isReference || isValue)) {
                const QString content = isReference ? symbol.reference : isValue ? symbol.value : field.value;
                TGraphicsTextItem* text = FieldText(field, *at, TextVariables::Resolved(content, variables));
                text->setVisible(!isHidden);
                if (isReference) {
                    part->SetRefDesText(text);
                } else if (isValue) {
                    part->SetValueText(text);
                }
            }
        }
        part->SetRefDes(symbol.reference);
        part->SetValue(TextVariables::Resolved(symbol.value, variables));
    }

    TGraphicsTextItem* FieldText(const TSymbolField& field, const TSexpression& at, const QString& content)
    {
        std::unique_ptr<TGraphicsTextItem> text = PageItems::Text(field.element, content, Quarters(at), placed.frame);
        const TGridPoint place =
            ElementValues::GridPoint(at); // In sheet coordinates, though the angle is relative to the symbol.
        text->setPos(Measures::ScenePoint({place.x - placed.frame.origin.x, place.y - placed.frame.origin.y}));
        text->setParentItem(part.get());
        return text.release();
    }

    void AddPins()
    {
        for (const TPagePin& pin : symbol.pins) {
            TGraphicsPinItem* item = AddPin(pin, *placed.library, *part, draft);
            item->setPos(Measures::ScenePoint(placed.frame.Turned(pin.pin->place)));
            item->setRotation(PageItems::RotationAlong(placed.frame.Turned(UnitStep(pin.pin->quarters))));
            item->UpdatePath();
            NotePin(pin, *item, page, draft);
        }
    }

    using TMap = PageItems::TMap;

    const TPageSymbol& symbol;
    const TPlacedSymbol& placed;
    TPageDraft& page;
    TSchematicDraft& draft;
    TextVariables::TValues variables;
    std::unique_ptr<TGraphicsPartItem> part;
};

/** A net tie is placed between its pins, along the line from the first to the second. */
void AddNetTie(const TPageSymbol& symbol, TPageDraft& page, TSchematicDraft& draft)
{
    const TPagePin& first = symbol.pins[0];
    const TPagePin& second = symbol.pins[1];
    const QLineF between(Measures::ScenePoint(first.place), Measures::ScenePoint(second.place));
    const auto reference =
        std::find_if(symbol.symbol->fields.begin(), symbol.symbol->fields.end(),
                     [](const TSymbolField& field) { return field.key == QLatin1String("Reference"); });
    auto tie = std::make_unique<TGraphicsNetTieSchItem>();
    tie->SetNumber(draft.numbers.value(PageItems::ComponentKey(symbol)));
    tie->SetName(symbol.reference);
    tie->SetNameVisible(reference != symbol.symbol->fields.end() && !TextEffects::IsHidden(reference->element, 2));
    tie->setPos(between.center());
    tie->setRotation(-between.angle());
    for (const TPagePin& pin : symbol.pins) {
        TGraphicsPinItem* item = AddPin(pin, *symbol.symbol->library, *tie, draft);
        item->setPos(tie->mapFromScene(Measures::ScenePoint(pin.place)));
        item->setRotation(&pin == &first ? 0 : 180);
        item->UpdatePath();
        NotePin(pin, *item, page, draft);
    }
    page.target.Attach(std::move(tie));
}

} // namespace

bool PageItems::IsNetTie(const TPageSymbol& symbol)
{
    return symbol.pins.size() == 2 && symbol.pins[0].place != symbol.pins[1].place
           && symbol.symbol->libraryName.contains(QLatin1String("NetTie"), Qt::CaseInsensitive);
}

bool PageItems::IsPort(const TPageSymbol& symbol)
{
    return symbol.IsPower() && !symbol.pins.empty()
           && std::all_of(symbol.pins.begin(), symbol.pins.end(),
                          [](const TPagePin& pin) { return pin.use.electrical == QLatin1String("power_in"); });
}

QString PageItems::ComponentKey(const TPageSymbol& symbol)
{
    if (symbol.reference.startsWith(QLatin1Char('#')) || IsPort(symbol)) {
        return {};
    }
    // Components without a designator are not all the same one.
    const bool isNamed = !symbol.reference.isEmpty() && !symbol.reference.endsWith(QLatin1Char('?'));
    return isNamed ? symbol.reference : symbol.path;
}

void PageItems::AddParts(TPageDraft& page, TSchematicDraft& draft)
{
    for (const TPageSymbol& symbol : page.page.symbols) {
        if (IsPort(symbol)) {
            AddPowerPorts(symbol, page, draft);
        } else if (IsNetTie(symbol)) {
            AddNetTie(symbol, page, draft);
        } else {
            TPartBuilder(symbol, page, draft).Build();
        }
    }
}
