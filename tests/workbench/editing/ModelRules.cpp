#include "tests/workbench/editing/ModelRules.h"

#include <QSizeF>

#include <algorithm>

namespace Test {

namespace {

double SmallerMeasure(const StateFields& item)
{
    return std::min(item.Number("width"), item.Number("height"));
}

void SetLayers(StateFields& item, int start, int end)
{
    item.Set("start", start);
    item.Set("end", end);
}

void SetSurface(StateFields& pad, bool surface)
{
    const int start = pad.Integer("start");
    const int through = start == Osmirel::CopperBottom ? Osmirel::CopperTop : Osmirel::CopperBottom;
    SetLayers(pad, start, surface ? start : through);
}

// Attributes that are read and written as they are, by the type of their field.

ModelAttribute Double(const char* field)
{
    return {[field](const StateFields& item) { return item.Number(field); },
            [field](StateFields& item, const QVariant& value) { item.Set(field, value.toDouble()); }};
}

ModelAttribute Float(const char* field)
{
    return {[field](const StateFields& item) { return item.Number(field); },
            [field](StateFields& item, const QVariant& value) { item.Set(field, ModelSingle(value.toDouble())); }};
}

ModelAttribute Choice(const char* field)
{
    return {[field](const StateFields& item) { return item.Integer(field); },
            [field](StateFields& item, const QVariant& value) { item.Set(field, value.toInt()); }};
}

ModelAttribute Flag(const char* field)
{
    return {[field](const StateFields& item) { return item.Text(field) == QLatin1String("yes"); },
            [field](StateFields& item, const QVariant& value) { item.Set(field, value.toBool()); }};
}

ModelAttribute Text(const char* field)
{
    return {[field](const StateFields& item) { return Unquoted(item.Text(field)); },
            [field](StateFields& item, const QVariant& value) { item.Set(field, value.toString()); }};
}

// Attributes with rules of their own.

/** Vias become round, and their diameter is kept in single precision. */
ModelAttribute Diameter()
{
    return {[](const StateFields& via) { return ModelSingle(SmallerMeasure(via)); },
            [](StateFields& via, const QVariant& value) {
                via.Set("width", ModelSingle(value.toDouble()));
                via.Set("height", ModelSingle(value.toDouble()));
            }};
}

/** Surface pads have no drill, and yet get one when there is no undo step. */
ModelAttribute Drill()
{
    ModelAttribute drill = Float("drill");
    drill.accepts = [](const StateFields& item) { return item.Kind() == QLatin1String("via") || !IsSurface(item); };
    return drill;
}

/** A via has the layers of its drill pair; an unknown one goes through the whole board. */
ModelAttribute DrillPair(const QList<TDrillPair>& pairs)
{
    ModelAttribute drillPair = Text("drillPair");
    drillPair.write = [pairs, writeName = drillPair.write](StateFields& via, const QVariant& value) {
        writeName(via, value);
        const auto known = std::find_if(pairs.cbegin(), pairs.cend(),
                                        [&value](const TDrillPair& pair) { return pair.name == value.toString(); });
        const TDrillPair pair = known == pairs.cend() ? TDrillPair() : *known;
        SetLayers(via, pair.first, pair.last);
    };
    return drillPair;
}

/** Without an undo step pads use their own setter, which stops where the opening is closed. */
ModelAttribute PadMaskClearance()
{
    ModelAttribute clearance = Float("maskClearance");
    clearance.writeDirectly = [](StateFields& pad, const QVariant& value) {
        const double closed = ModelSingle(-SmallerMeasure(pad) / 2);
        pad.Set("maskClearance", std::max(ModelSingle(value.toDouble()), closed));
    };
    return clearance;
}

/** Undoing a height sets it to the width that the pad had. */
ModelAttribute PadHeight()
{
    ModelAttribute height = Double("height");
    height.read = Double("width").read;
    return height;
}

/** Only surface pads have a side, of which the end layer is the old value. */
ModelAttribute PadSide()
{
    return {Choice("end").read, [](StateFields& pad, const QVariant& value) {
                if (IsSurface(pad)) {
                    pad.Set("layer", value.toInt());
                    SetLayers(pad, value.toInt(), value.toInt());
                }
            }};
}

/** Without an undo step pads become surface pads whatever type was chosen. */
ModelAttribute PadType()
{
    return {IsSurface, [](StateFields& pad, const QVariant& value) { SetSurface(pad, value.toInt() != 0); },
            [](StateFields& pad, const QVariant&) { SetSurface(pad, true); }};
}

ModelAttribute HoleSize()
{
    return {HoleWidth, [](StateFields& hole, const QVariant& value) {
                hole.Set("size", QSizeF(1, 1) * ModelSingle(value.toDouble()));
            }};
}

} // namespace

double ModelScene(double millimetres)
{
    return millimetres * 11.811023622047244;
}

double ModelSingle(double value)
{
    // Through memory, since g++ 12 at -O2 drops the narrowing of two neighbours that it handles as one vector.
    const volatile auto single = static_cast<float>(value);
    return static_cast<double>(single);
}

QString Unquoted(const QString& written)
{
    QString text("");
    for (int i = 1; i + 1 < written.size(); ++i) {
        const bool escaped = written.at(i) == QLatin1Char('\\');
        i += escaped ? 1 : 0;
        text += escaped && written.at(i) == QLatin1Char('n') ? QChar('\n') : written.at(i);
    }
    return text;
}

bool IsSurface(const StateFields& pad)
{
    return pad.Text("start") == pad.Text("end");
}

double HoleWidth(const StateFields& hole)
{
    const QString size = hole.Text("size"); // "(width,height)"
    return size.mid(1, size.indexOf(QLatin1Char(',')) - 1).toDouble();
}

ModelRules::ModelRules(const QList<TDrillPair>& drillPairs)
    : diameter(Diameter()),
      drill(Drill()),
      thermal(Choice("thermal")),
      drillPair(DrillPair(drillPairs)),
      viaMaskClearance(Float("maskClearance")),
      padMaskClearance(PadMaskClearance()),
      mask(Flag("mask")),
      pasteClearance(Float("pasteClearance")),
      paste(Flag("paste")),
      number(Text("number")),
      width(Double("width")),
      height(PadHeight()),
      shape(Choice("shape")),
      side(PadSide()),
      type(PadType()),
      holeSize(HoleSize())
{}

} // namespace Test
