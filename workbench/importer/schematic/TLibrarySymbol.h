#pragma once

#include "workbench/importer/format/TSexpression.h"
#include "workbench/importer/schematic/TSymbolFrame.h"

#include <QHash>
#include <QString>

#include <vector>

/** A pin as the symbol has it; places are the symbol's, with y upwards. */
struct TLibraryPin
{
    /** What a pin may be used as instead, by name. */
    struct TUse
    {
        QString electrical;
        QString style;
    };

    TSexpression element;
    int unit = 0;      ///< 0 for a pin that every unit has.
    int bodyStyle = 0; ///< 0 for a pin that every body style has.
    TUse use;          ///< The words of the file, such as "power_in" and "inverted".
    TGridPoint place;  ///< Where it is connected,
    int quarters = 0;  ///< from where it points this way towards the body,
    qint64 length = 0; ///< over this many nanometres.
    bool isHidden = false;
    QString name; ///< Empty for none.
    QString number;
    QHash<QString, TUse> alternates;
};

/** A drawing or a text of a symbol's body. */
struct TLibraryShape
{
    TLibraryShape(const TSexpression& ofElement, int ofUnit, int ofBodyStyle)
        : element(ofElement), unit(ofUnit), bodyStyle(ofBodyStyle)
    {}

    TSexpression element;
    int unit = 0;
    int bodyStyle = 0;
};

/** A symbol as the sheet keeps a copy of it. */
struct TLibrarySymbol
{
    bool isPower = false; ///< Names the net of its pin for the whole design.
    bool showsPinNames = true;
    bool showsPinNumbers = true;
    qint64 nameOffset = 0; ///< Of the pins' names from the body; 0 has them outside.
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
