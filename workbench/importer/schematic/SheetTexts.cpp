#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"
#include "workbench/importer/format/TextEffects.h"
#include "workbench/importer/schematic/PageItems.h"

#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsRectItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsTagItem.h>

#include <QRegularExpression>

namespace {

/** The alignment with the same effect for a text that is rotated by 180 degrees. */
int Swapped(int alignment, int one, int other)
{
    const int sides = one | other;
    const int side = alignment & sides;
    return side == one ? (alignment & ~sides) | other : side == other ? (alignment & ~sides) | one : alignment;
}

bool HasVariable(const QString& text)
{
    return text.contains(QLatin1String("${"));
}

/** A text of the sheet: a tag, if it shows a project variable. */
std::unique_ptr<TGraphicsTextItem> TextOrTag(const TSexpression& element, const TPageDraft& page,
                                             TSchematicDraft& draft)
{
    static const QRegularExpression oneVariable(QStringLiteral(R"(^\$\{([^{}]+)\}$)"));
    const QString content = element.Value(0).Text();
    const QString onPage = TextVariables::Resolved(content, page.variables);
    const QString inProject = TextVariables::Resolved(content, draft.variables);
    // A variable with page-specific values is not a tag, as tags of one name are equal on all pages.
    if (!HasVariable(content) || onPage != inProject) {
        auto text = std::make_unique<TGraphicsTextItem>();
        text->SetText(onPage);
        return text;
    }
    const QRegularExpressionMatch match = oneVariable.match(content);
    const QString name = match.hasMatch() ? match.captured(1) : content;
    if (inProject != content) {
        draft.tagValues.insert(name, inProject);
    }
    auto tag = std::make_unique<TGraphicsTagItem>();
    tag->SetValue(draft.tagValues.value(name), false);
    tag->SetName(name, true);
    return tag;
}

/** A text on the sheet: upright, or to be read from the right, at every angle. */
void Place(std::unique_ptr<TGraphicsTextItem> text, const TSexpression& element, TPageDraft& page)
{
    constexpr qint64 half = 180'000'000;
    const TSexpression at = element.Get("at");
    text->SetLayer(Osmirel::SchematicTexts);
    TextEffects::Apply(element, *text);
    text->setPos(ElementValues::Position(at));
    text->setRotation(Measures::SceneRotation((ElementValues::Angle(at) % half + half) % half));
    page.target.Attach(std::move(text));
}

void PlaceText(const QString& content, const TSexpression& element, TPageDraft& page)
{
    auto text = std::make_unique<TGraphicsTextItem>();
    text->SetText(content);
    Place(std::move(text), element, page);
}

std::unique_ptr<TGraphicsRectItem> Box(const TSexpression& element)
{
    constexpr qint64 usualWidth = 152'400; // Nanometres.
    const QPointF corner = ElementValues::Position(element.Get("at"));
    const QPointF size = ElementValues::Position(element.Get("size"));
    const double width = ShapeValues::StrokeWidth(element);
    auto item = std::make_unique<TGraphicsRectItem>();
    item->SetLayer(Osmirel::SchematicSymbols);
    item->setPos(corner + size / 2);
    item->SetSize(static_cast<float>(size.x()), static_cast<float>(size.y()));
    item->SetPenWidth(static_cast<float>(width > 0 ? width : Measures::SceneLength(usualWidth)));
    item->Pen().setStyle(ShapeValues::StrokeStyle(element));
    return item;
}

/** The frame of a text box, and its text at the side to which it is aligned. */
void AddTextBox(const TSexpression& element, TPageDraft& page, TSchematicDraft& draft)
{
    constexpr qint64 half = 180'000'000;
    std::unique_ptr<TGraphicsRectItem> box = Box(element);
    std::unique_ptr<TGraphicsTextItem> text = TextOrTag(element, page, draft);
    text->SetLayer(Osmirel::SchematicTexts);
    TextEffects::Apply(element, *text);
    const QPointF corner = ElementValues::Position(element.Get("at"));
    const QPointF size = ElementValues::Position(element.Get("size"));
    text->setPos(TextEffects::AnchorIn(QRectF(corner, corner + size).normalized(), text->Alignment()));
    text->setRotation(Measures::SceneRotation((ElementValues::Angle(element.Get("at")) % half + half) % half));
    page.target.Attach(std::move(box));
    page.target.Attach(std::move(text));
}

} // namespace

double PageItems::RotationAlong(const TGridPoint& step)
{
    return step.x > 0 ? 0 : step.x < 0 ? 180 : step.y > 0 ? 90 : -90;
}

std::unique_ptr<TGraphicsTextItem> PageItems::Text(const TSexpression& element, const QString& content, int quarters,
                                                   const TSymbolFrame& frame)
{
    auto text = std::make_unique<TGraphicsTextItem>();
    text->SetText(content);
    text->SetLayer(Osmirel::SchematicTexts);
    TextEffects::Apply(element, *text);
    // Upright, or to be read from the right; if it were rotated further, the alignment is mirrored instead.
    const TGridPoint along = frame.Turned(UnitStep(quarters));
    const TGridPoint up = frame.Turned(UnitStep(quarters + 1));
    const bool isVertical = along.x == 0;
    int alignment = text->Alignment();
    if (isVertical ? along.y > 0 : along.x < 0) {
        alignment = Swapped(alignment, Qt::AlignLeft, Qt::AlignRight);
    }
    if (isVertical ? up.x > 0 : up.y > 0) {
        alignment = Swapped(alignment, Qt::AlignTop, Qt::AlignBottom);
    }
    text->SetAlignment(alignment);
    text->SetTFlag(TGraphicsItem::MirrorHorizontal, false);
    text->setRotation(isVertical ? -90 : 0);
    text->UpdatePath(false);
    return text;
}

void PageItems::AddLabels(TPageDraft& page)
{
    constexpr double gapAboveWire = 4;
    for (const TSheetLabel& label : page.page.file->labels) {
        if (label.kind == LabelKind::Local) {
            auto text = std::make_unique<TGraphicsTextItem>();
            TGraphicsTextItem* placed = text.get();
            text->SetText(label.text);
            Place(std::move(text), label.element, page);
            const bool isVertical = label.quarters % 2 != 0;
            placed->moveBy(isVertical ? -gapAboveWire : 0, isVertical ? 0 : -gapAboveWire);
        }
    }
}

void PageItems::AddGraphics(TPageDraft& page, TSchematicDraft& draft)
{
    for (const TSexpression& element : page.page.file->graphics) {
        if (element.Name() == "text") {
            Place(TextOrTag(element, page, draft), element, page);
        } else if (element.Name() == "text_box") {
            AddTextBox(element, page, draft);
        } else {
            page.target.Attach(Shape(element, [](const TGridPoint& place) { return place; }));
        }
    }
}

void PageItems::AddBoxes(TPageDraft& page)
{
    for (const TSheetBox& box : page.page.file->boxes) {
        page.target.Attach(Box(box.element));
        for (const TSexpression field : box.element) {
            if (field.Name() == "property" && field.Find("at") && !TextEffects::IsHidden(field, 2)) {
                PlaceText(TextVariables::Resolved(ElementValues::UserName(field.Value(1)), page.variables), field,
                          page);
            }
        }
    }
}

void PageItems::AddNoConnects(TPageDraft& page)
{
    constexpr double halfSize = 7.5;
    for (const TSheetPoint& mark : page.page.file->noConnects) {
        auto cross = std::make_unique<TGraphicsPolylineItem>();
        cross->SetPoints(QVector<QPointF>{
            {-halfSize, -halfSize}, {halfSize, halfSize}, {0, 0}, {-halfSize, halfSize}, {halfSize, -halfSize}});
        cross->setPos(Measures::ScenePoint(mark.place));
        cross->SetLayer(Osmirel::SchematicSymbols);
        cross->SetPenWidth(2);
        page.target.Attach(std::move(cross));
    }
}
