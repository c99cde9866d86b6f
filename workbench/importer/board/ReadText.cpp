#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TFootprintFrame.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"
#include "workbench/importer/format/TextEffects.h"

#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPackageItem.h>

namespace {

QString Content(const TSexpression& atom, const TextVariables::TValues& values)
{
    const QString text = atom.Text();
    return text == QLatin1String("~") ? QString() : TextVariables::Resolved(text, values);
}

/** Reads all attributes of a text except its position and angle. */
std::unique_ptr<TGraphicsTextItem> Text(const TSexpression& element, const QString& content, Osmirel::Layer layer,
                                        TBoardDraft& draft)
{
    auto text = std::make_unique<TGraphicsTextItem>();
    text->SetText(content);
    text->SetLayer(layer);
    TextEffects::Apply(element, *text);
    if (const std::optional<TSexpression> on = element.Find("layer"); on && on->HasFlag("knockout", 1)) {
        draft.notShown.Count("knockouts of texts (drawn plain)");
    }
    return text;
}

QPolygonF BoxCorners(const TSexpression& textBox)
{
    if (const std::optional<TSexpression> points = textBox.Find("pts")) {
        return ShapeValues::CornersOfPoints(*points);
    }
    const QRectF box = QRectF(ShapeValues::Point(textBox, "start"), ShapeValues::Point(textBox, "end")).normalized();
    return QVector<QPointF>{box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
}

/** The text and the border of a text box, in the coordinates of its parent. */
QVector<TGraphicsItem*> TextBox(const TSexpression& textBox, const QString& content, qint64 angleOfParent,
                                Osmirel::Layer layer, TBoardDraft& draft)
{
    const QPolygonF corners = BoxCorners(textBox);
    const std::optional<TSexpression> angle = textBox.Find("angle");
    std::unique_ptr<TGraphicsTextItem> text = Text(textBox, content, layer, draft);
    text->setPos(TextEffects::AnchorIn(corners.boundingRect(), text->Alignment()));
    text->setRotation(Measures::SceneRotation((angle ? angle->Value(0).Millionths() : 0) - angleOfParent));
    QVector<TGraphicsItem*> items{text.release()};
    const std::optional<TSexpression> border = textBox.Find("border");
    if (!border || !border->Value(0).IsWord("no")) {
        auto polygon = std::make_unique<TGraphicsPolygonItem>();
        polygon->SetLayer(layer);
        polygon->SetPoints(corners);
        polygon->SetPenWidth(static_cast<float>(ShapeValues::StrokeWidth(textBox)));
        polygon->Pen().setStyle(ShapeValues::StrokeStyle(textBox));
        items.append(polygon.release());
    }
    return items;
}

Osmirel::Layer KnownLayer(const TSexpression& element, TBoardDraft& draft)
{
    const Osmirel::Layer layer = draft.LayerOf(element);
    if (layer == Osmirel::NoLayer) {
        draft.notShown.Count("texts on unknown layers");
    }
    return layer;
}

TextVariables::TValues WithLayer(TextVariables::TValues values, const TSexpression& element)
{
    values.insert(QStringLiteral("LAYER"), element.Get("layer").Value(0).Text());
    return values;
}

/** Reads the texts that are the component's reference designator and value; others become plain texts. */
void Place(std::unique_ptr<TGraphicsTextItem> text, const QString& kind, bool isLocked, TGraphicsPackageItem& package)
{
    TGraphicsTextItem* item = text.release();
    item->setParentItem(&package);
    item->SetTFlag(TGraphicsItem::Lock, isLocked);
    if (kind == QLatin1String("reference") && !package.RefDesText()) {
        package.SetRefDesText(item);
        package.SetLockRefDes(isLocked);
    } else if (kind == QLatin1String("value") && !package.ValueText()) {
        package.SetValueText(item);
        package.SetLockValue(isLocked);
    }
}

} // namespace

void ElementReaders::ReadText(const TSexpression& element, TBoardDraft& draft)
{
    const QString content = Content(element.Value(0), WithLayer(draft.textVariables, element));
    const TSexpression at = element.Get("at");
    const Osmirel::Layer layer = KnownLayer(element, draft);
    if (layer == Osmirel::NoLayer) {
        return;
    }
    std::unique_ptr<TGraphicsTextItem> text = Text(element, content, layer, draft);
    text->setPos(ElementValues::Position(at));
    text->setRotation(Measures::SceneRotation(ElementValues::Angle(at)));
    text->setVisible(!TextEffects::IsHidden(element, 1));
    text->SetTFlag(TGraphicsItem::Lock, element.HasFlag("locked", 1));
    draft.board->Attach(std::move(text));
}

void ElementReaders::ReadFootprintText(const TSexpression& element, const TFootprintFrame& footprint,
                                       TBoardDraft& draft)
{
    const std::optional<TSexpression> at = element.Find("at");
    const bool isField = element.Name() == "property";
    if (isField && !at) {
        return; // A property without a position is not drawn.
    }
    const Osmirel::Layer layer = KnownLayer(element, draft);
    if (layer == Osmirel::NoLayer) {
        return;
    }
    const QString content = Content(element.Value(1), WithLayer(footprint.textVariables, element));
    std::unique_ptr<TGraphicsTextItem> text = Text(element, content, layer, draft);
    text->setPos(ElementValues::Position(element.Get("at")));
    text->setRotation(Measures::SceneRotation(ElementValues::Angle(*at) - footprint.angle));
    text->setVisible(!TextEffects::IsHidden(element, 2));
    const QString kind = element.Value(0).Text();
    const bool isNamed = isField && (kind == QLatin1String("Reference") || kind == QLatin1String("Value"));
    Place(std::move(text), isField && !isNamed ? QString() : kind.toLower(), element.HasFlag("locked", 2),
          footprint.package);
}

void ElementReaders::ReadTextBox(const TSexpression& element, TBoardDraft& draft)
{
    const Osmirel::Layer layer = KnownLayer(element, draft);
    if (layer == Osmirel::NoLayer) {
        return;
    }
    const QString content = Content(element.Value(0), WithLayer(draft.textVariables, element));
    const QVector<TGraphicsItem*> items = TextBox(element, content, 0, layer, draft);
    for (TGraphicsItem* item : items) {
        item->SetTFlag(TGraphicsItem::Lock, element.HasFlag("locked", 1));
        draft.board->Attach(std::unique_ptr<TGraphicsItem>(item));
    }
}

void ElementReaders::ReadFootprintTextBox(const TSexpression& element, const TFootprintFrame& footprint,
                                          TBoardDraft& draft)
{
    const Osmirel::Layer layer = KnownLayer(element, draft);
    if (layer == Osmirel::NoLayer) {
        return;
    }
    const QString content = Content(element.Value(0), WithLayer(footprint.textVariables, element));
    const QVector<TGraphicsItem*> items = TextBox(element, content, footprint.angle, layer, draft);
    for (TGraphicsItem* item : items) {
        item->setParentItem(&footprint.package);
    }
}
