#pragma once

#include <workspace/TLayerManager.h>

#include <QString>

/**
 * What all items of one document share: the display unit and the layer table. Owned by its document, which must
 * outlive the items that point to it.
 */
class TWorkspace
{
public:
    enum class Unit { Millimetre, Mil, Inch };

    /** Scene units are 1/300 inch. */
    static constexpr double sceneUnitsPerInch = 300.0;
    static constexpr double millimetresPerInch = 25.4;

    Unit CurrentUnit() const { return unit; }
    void SetCurrentUnit(Unit newUnit) { unit = newUnit; }

    /** The unit's name after a number, "mm" in a new workspace. */
    QString CurrentUnitStr() const;

    /** A length in scene units, converted to the current unit. */
    double ValueFromScene(double sceneLength) const;

    /** The kind of document that the workspace belongs to. */
    enum DocumentMode : int { SchematicMode = 0, BoardMode = 1 };
    int Mode() const { return mode; }
    void SetMode(int newMode) { mode = newMode; }

    TLayerManager& Layers() { return layers; }
    const TLayerManager& Layers() const { return layers; }

private:
    Unit unit = Unit::Millimetre;
    int mode = BoardMode;
    TLayerManager layers;
};
