#pragma once

#include "workbench/importer/format/TSexpression.h"
#include "workbench/importer/schematic/TSymbolFrame.h"

#include <QHash>
#include <QString>

#include <vector>

/** A pin in the symbol's coordinates, with y upwards. */
struct TLibraryPin
{
    /** An alternate function of a pin, by name. */
    struct TUse
    {
        QString electrical;
        QString style;
    };

    TSexpression element;
    int unit = 0;      ///< 0 for a pin of all units.
    int bodyStyle = 0; ///< 0 for a pin of all body styles.
    TUse use;          ///< The words of the file, such as "power_in" and "inverted".
    TGridPoint place;  ///< Where it is connected,
    int quarters = 0;  ///< from where it points this way towards the body,
    qint64 length = 0; ///< over this many nanometres.
    bool isHidden = false;
    QString name; ///< Empty for none.
    QString number;
    QHash<QString, TUse> alternates;
};

/** A primitive or a text of a symbol's body. */
struct TLibraryShape
{
    TLibraryShape(const TSexpression& ofElement, int ofUnit, int ofBodyStyle)
        : element(ofElement), unit(ofUnit), bodyStyle(ofBodyStyle)
    {}

    TSexpression element;
    int unit = 0;
    int bodyStyle = 0;
};

/** The sheet's copy of a symbol. */
struct TLibrarySymbol
{
    bool isPower = false; ///< Names the net of its pin globally.
    bool showsPinNames = true;
    bool showsPinNumbers = true;
    qint64 nameOffset = 0; ///< Distance of pin names from the body; 0 places them outside.
    QString keywords;
    std::vector<TLibraryPin> pins;
    std::vector<TLibraryShape> shapes;

    static TLibrarySymbol Read(const TSexpression& symbol);
};

/** Whether a pin or shape is part of a unit in a body style. */
template <class Piece>
bool BelongsTo(const Piece& piece, int unit, int bodyStyle)
{
    return (piece.unit == 0 || piece.unit == unit) && (piece.bodyStyle == 0 || piece.bodyStyle == bodyStyle);
}
