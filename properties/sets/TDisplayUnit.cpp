#include "properties/sets/TDisplayUnit.h"

#include "properties/commands/Units.h"

#include <graphics/TGraphicsItem.h>
#include <workspace/TWorkspace.h>

TDisplayUnit::TDisplayUnit(const TGraphicsItem& item) : workspace(item.Workspace()) {}

double TDisplayUnit::FromScene(double sceneLength) const
{
    return workspace ? workspace->ValueFromScene(sceneLength) : Units::MillimetresFromScene(sceneLength);
}

QString TDisplayUnit::Name() const
{
    return workspace ? workspace->CurrentUnitStr() : QStringLiteral("mm");
}
