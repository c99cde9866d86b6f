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
    /** The unit's name, and the same with a blank before it. */
    QString Name() const;
    QString Suffix() const { return QLatin1Char(' ') + Name(); }

private:
    const TWorkspace* workspace;
};
