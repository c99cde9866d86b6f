#pragma once

#include "workbench/importer/schematic/TSheetPage.h"

#include <QByteArray>
#include <QMap>
#include <QString>

/** Sheets of schematics for tests. Lengths are millimetres. */
namespace SheetTexts {

/** Formats of the sheets of versions 6 to 9. */
int Format(int version);

/**
 * A sheet with these elements and a library of its own: "L:R" with pins 1 and 2 at 5 above and below its middle; "L:Q"
 * with pins A, B and C at 5 to the left, above and to the right; "L:U" of two units, each with one pin, 1 or 2, at 5 to
 * the left and an invisible supply pin VCC, 9, at 5 above; "P:GND" and "P:3V3", which are power symbols with the pin at
 * their middle; and "L:N" with the pins 1 NAME, 2 NAME and 3 OTHER at -5, 0 and 5, above its middle by 5.
 */
QByteArray Sheet(const QByteArray& elements, int version = 7, const QByteArray& uuid = "root");

/** A symbol with its reference for the path "/root". */
QByteArray Symbol(const QByteArray& reference, const QByteArray& libraryName, const QByteArray& at,
                  const QByteArray& extra = {});
/** The same, as it is called on several pages: pairs of a path and a reference. */
QByteArray SharedSymbol(const QByteArray& libraryName, const QByteArray& at,
                        const QList<QPair<QByteArray, QByteArray>>& references);

QByteArray Wire(const QByteArray& from, const QByteArray& to);
QByteArray Bus(const QByteArray& from, const QByteArray& to);
QByteArray Entry(const QByteArray& at, const QByteArray& size);
QByteArray Junction(const QByteArray& at);
/** A label, of the kinds "label", "global_label" and "hierarchical_label". */
QByteArray Label(const QByteArray& kind, const QByteArray& text, const QByteArray& at);
/** A box for a file, at (100 100) and 20 wide and high, with pins: pairs of a name and a place. */
QByteArray Box(const QByteArray& name, const QByteArray& file, const QByteArray& uuid,
               const QList<QPair<QByteArray, QByteArray>>& pins = {});

/** Reads sheets by their names, the root "root.kicad_sch" and those that it refers to, and traces the nets. */
TSheetHierarchy Read(const QMap<QString, QByteArray>& sheets);
/** The same for one sheet. */
TSheetHierarchy Read(const QByteArray& root);

/** What the pins are connected to: "R1.1=/A R1.2=GND", in the order of their names. */
QString PinNets(const TSheetHierarchy& hierarchy);

} // namespace SheetTexts
