#include "workbench/importer/schematic/PinNames.h"

#include <algorithm>

namespace {

/** The first format in which the value of a power symbol, not its pin, names the net. */
constexpr int valueNamesNet = 20230121;

bool HasNameAlone(const PinNames::TPinOnNet& on)
{
    const auto& all = on.symbol->pins;
    return std::count_if(all.begin(), all.end(),
                         [&on](const TPagePin& pin) { return pin.pin->name == on.pin->pin->name; })
           == 1;
}

/** The pin in the name of a net. */
QString ShownPin(const PinNames::TPinOnNet& on, bool isAlone)
{
    QString pad = QStringLiteral("Pad") + on.pin->pin->number;
    QString name = on.pin->pin->name;
    if (on.version < valueNamesNet || name.isEmpty() || name == on.pin->pin->number) {
        return pad;
    }
    return isAlone || !HasNameAlone(on) ? name + QLatin1Char('-') + pad : name;
}

} // namespace

QString PinNames::PowerNet(const TPageSymbol& symbol, const TPagePin& pin, int version)
{
    if (pin.use.electrical != QLatin1String("power_in") || (!symbol.IsPower() && !pin.pin->isHidden)) {
        return {};
    }
    return symbol.IsPower() && version >= valueNamesNet ? symbol.value : pin.pin->name;
}

QStringList PinNames::OtherNames(const QVector<TPinOnNet>& pins, const QString& name)
{
    QStringList others;
    for (const TPinOnNet& on : pins) {
        const bool isOther = on.pin->pin->name != name && !others.contains(on.pin->pin->name);
        if (isOther && !PowerNet(*on.symbol, *on.pin, on.version).isEmpty()) {
            others.append(on.pin->pin->name);
        }
    }
    return others;
}

QString PinNames::UnnamedNet(const QVector<TPinOnNet>& pins)
{
    QVector<TPinOnNet> real;
    std::copy_if(pins.begin(), pins.end(), std::back_inserter(real),
                 [](const TPinOnNet& on) { return !on.symbol->reference.startsWith(QLatin1Char('#')); });
    const bool isAlone = real.size() == 1;
    QString best;
    for (const TPinOnNet& on : real) {
        const QString name = (isAlone ? QStringLiteral("unconnected-(%1-%2)") : QStringLiteral("Net-(%1-%2)"))
                                 .arg(on.symbol->reference, ShownPin(on, isAlone));
        if (best.isEmpty() || name < best) {
            best = name;
        }
    }
    return best;
}
