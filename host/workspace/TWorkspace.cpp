#include <workspace/TWorkspace.h>

namespace {

struct UnitFacts
{
    const char* name;
    double perInch;
};

UnitFacts Facts(TWorkspace::Unit unit)
{
    switch (unit) {
    case TWorkspace::Unit::Mil: return {"mil", 1000.0};
    case TWorkspace::Unit::Inch: return {"in", 1.0};
    case TWorkspace::Unit::Millimetre: break;
    }
    return {"mm", TWorkspace::millimetresPerInch};
}

} // namespace

QString TWorkspace::CurrentUnitStr() const
{
    return QString::fromLatin1(Facts(unit).name);
}

double TWorkspace::ValueFromScene(double sceneLength) const
{
    return sceneLength / (sceneUnitsPerInch / Facts(unit).perInch);
}
