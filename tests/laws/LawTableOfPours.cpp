#include "properties/commands/TCmdKeepout.h"
#include "properties/commands/TCmdPour.h"
#include "tests/laws/LawMaking.h"

#include <objects/TGraphicsKeepoutItem.h>

namespace Test {

namespace {

template <class Command, class Value>
CommandLaw PourLaw(const Value& first, const Value& second, const char* field)
{
    return LawOver<Command, TGraphicsPourItem>(first, second, Sets<Value>(field));
}

/** The law of a length, in millimetres, that a pour holds in double precision. */
template <class Command>
CommandLaw LengthLaw(double first, double second, const char* field)
{
    const auto redone = [field](StateFields& pour, double mm) { pour.Set(field, Scene(mm)); };
    return LawOver<Command, TGraphicsPourItem>(first, second, redone);
}

void EnableLayer(StateFields& keepout, Osmirel::Layer layer, bool enable)
{
    const QString written = keepout.Text("layers");
    QStringList layers = written.mid(1, written.size() - 2).split(',', Qt::SkipEmptyParts);
    const QString number = QString::number(layer);
    layers.removeAll(number);
    if (enable) {
        layers.append(number);
        layers.sort(); // all have two digits
    }
    keepout.Set("layers", layers);
}

constexpr Osmirel::Layer keepoutLayer = Osmirel::Copper3;

CommandLaw KeepoutLaw()
{
    const auto make = [](const Items& items, bool enable) {
        return std::make_unique<TCmdKeepoutLayEn>(OfClass<TGraphicsKeepoutItem>(items), keepoutLayer, enable);
    };
    const auto redone = [](StateFields& keepout, bool enable) { EnableLayer(keepout, keepoutLayer, enable); };
    return MadeLaw<TCmdKeepoutLayEn>(IsOfClass<TGraphicsKeepoutItem>, true, false, make, redone);
}

} // namespace

std::vector<CommandLaw> LawsOfPours()
{
    constexpr auto takeOver = Merging::TakeOver;
    return {
        LengthLaw<TCmdPourThermIsol>(0.23, 0.37, "thermalIsolation").WithId(1267, takeOver),
        LengthLaw<TCmdPourThermLine>(0.41, 0.29, "thermalLine").WithId(1268, takeOver),
        PourLaw<TCmdPourPrio, quint8>(15, 200, "priority").WithId(1269, takeOver),
        PourLaw<TCmdPourNet, QString>("VCC", "", "net").WithId(1271, takeOver),
        LengthLaw<TCmdPourClEtch>(10, 0.21, "clearanceToEtch").WithId(1272, takeOver),
        LengthLaw<TCmdPourClPour>(0.33, 0.47, "clearanceToPour").WithId(1273, takeOver),
        LengthLaw<TCmdPourClBorder>(0.51, 0.27, "clearanceToBorder").WithId(1274, takeOver),
        LengthLaw<TCmdPourLineWidth>(0.19, 0.31, "lineWidth").WithId(1275, takeOver),
        PourLaw<TCmdPourMinArea, double>(7.3, 0.1, "minimumArea").WithId(1276, takeOver),
        PourLaw<TCmdPourFillType, int>(Qt::CrossPattern, Qt::NoBrush, "fillType"),
        PourLaw<TCmdPourOnlyConn, bool>(true, false, "onlyConnected"),
        PourLaw<TCmdPourThermEn, bool>(true, false, "thermal"),
        LawOver<TCmdPourLayer, TGraphicsPourItem>(
            Osmirel::Copper3, Osmirel::CopperBottom,
            [](StateFields& pour, Osmirel::Layer layer) { pour.Set("layer", static_cast<int>(layer)); }),
        KeepoutLaw(),
    };
}

} // namespace Test
