#pragma once

#include "workbench/importer/schematic/TSheetPage.h"

#include <QVector>

/** Net names that come from pins. */
namespace PinNames {

/** The global net that a pin names; empty for a pin that names none. */
QString PowerNet(const TPageSymbol& symbol, const TPagePin& pin, int version);

struct TPinOnNet
{
    const TPageSymbol* symbol;
    const TPagePin* pin;
    int version; ///< Of the sheet's format.
};

/** The names of power pins on a net that has another name: boards from older versions have these names. */
QStringList OtherNames(const QVector<TPinOnNet>& pins, const QString& name);

/** The name of an unlabelled net, made of one of its pins; empty if no pin can name it. */
QString UnnamedNet(const QVector<TPinOnNet>& pins);

} // namespace PinNames
