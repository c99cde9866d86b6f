#pragma once

#include "properties/TPropertySet.h"

#include <array>

class TGraphicsKeepoutItem;
class TPropertyCheck;

/** Edits on which copper layers keepouts act: a box for each layer that exists, showing the first keepout's state. */
class PROPERTIES_EXPORT TPropertySetForKeepout : public TPropertySet
{
    Q_OBJECT

public:
    explicit TPropertySetForKeepout(const QList<TGraphicsItem*>& selection);

public Q_SLOTS:
    /** Acts on the layer of the row that sends the signal; a no-op if called otherwise. */
    void SetEn(bool on);

private:
    QList<TGraphicsKeepoutItem*> keepouts;
    std::array<QPointer<TPropertyCheck>, Osmirel::maxCopperLayers> rows; ///< By layer, from the top copper down.
};
