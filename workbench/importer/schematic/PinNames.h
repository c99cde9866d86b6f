#pragma once

#include "workbench/importer/schematic/TSheetPage.h"

#include <QVector>

/** Names of nets that come from pins. */
namespace PinNames {

/** The net that a pin names for the whole design; empty for a pin that names none. */
QString PowerNet(const TPageSymbol& symbol, const TPagePin& pin, int version);

struct TPinOnNet
{
    const TPageSymbol* symbol;
    const TPagePin* pin;
    int version; ///< Of the sheet's format.
};

/** The names of power pins on a net that has another name: boards that were made with an older version have these. */
QStringList OtherNames(const QVector<TPinOnNet>& pins, const QString& name);

/** The name of a net that only its pins can give one; empty if there is none that can. */
QString UnnamedNet(const QVector<TPinOnNet>& pins);

} // namespace PinNames
