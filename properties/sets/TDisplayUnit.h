#pragma once

#include <QString>

class TGraphicsItem;
class TWorkspace;

/** The unit in which a set shows lengths: that of an item's workspace, millimetres for an item without one. */
class TDisplayUnit
{
public:
    explicit TDisplayUnit(const TGraphicsItem& item);

    /** A length in scene units, converted to the unit. */
    double FromScene(double sceneLength) const;
    /** The unit's name. */
    QString Name() const;
    /** The unit's name after a blank. */
    QString Suffix() const { return QLatin1Char(' ') + Name(); }

private:
    const TWorkspace* workspace;
};
