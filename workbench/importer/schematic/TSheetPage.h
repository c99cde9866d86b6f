#pragma once

#include "workbench/importer/schematic/TSheetFile.h"

#include <functional>

/** Pages, nets, wires and lines refer to each other by index in lists of these. */
constexpr std::size_t Index(int number)
{
    return static_cast<std::size_t>(number);
}

/** A pin of a symbol on a page. */
struct TPagePin
{
    const TLibraryPin* pin = nullptr;
    TGridPoint place;
    TLibraryPin::TUse use; ///< The pin's own, or the alternate chosen for this symbol.
    int net = -1;          ///< Index into the design's nets.
};

/** A symbol with its instance data for the page's path. */
struct TPageSymbol
{
    const TPlacedSymbol* symbol = nullptr;
    QString reference; ///< Such as "R12"; a leading '#' marks symbols that are not components.
    int unit = 1;
    QString value;
    QString footprint;
    QString path; ///< The uuids of the sheets below the root and of the symbol, each after a slash.
    std::vector<TPagePin> pins;

    /** Whether one of its pins names a global net. */
    bool IsPower() const { return symbol->library && symbol->library->isPower; }
};

/** One use of a sheet file in the hierarchy. */
struct TSheetPage
{
    const TSheetFile* file = nullptr;
    QString name;         ///< The name of its box; for the root, that of its file.
    QString path;         ///< The names from the root's down, each followed by a slash: "/", "/Power/".
    QString number;       ///< As in the file; may be empty.
    QStringList uuids;    ///< Of the boxes from the root's sheet down, the root's own uuid first.
    int parent = -1;      ///< Index of the page on which its box is; -1 for the root,
    int boxInParent = -1; ///< and the index of that box.

    std::vector<TPageSymbol> symbols;

    // Indices into the design's nets, parallel to the file's lists; -1 for none.
    std::vector<int> wireNets;
    std::vector<int> labelNets;
    std::vector<int> junctionNets;
    std::vector<int> entryNets;
    std::vector<std::vector<int>> boxPinNets;

    QStringList busNames; ///< Parallel to the file's buses; empty for a bus without label.
};

/** A net of the whole hierarchy. */
struct TDesignNet
{
    QString name;           ///< Empty only for a lone pin that has no net on the board.
    bool isNamed = false;   ///< By a label or a power symbol; else the name is generated from one of its pins.
    QStringList otherNames; ///< The names of power pins whose symbol has another one.
};

/** A root sheet and the hierarchy below it, page by page. */
struct TSheetHierarchy
{
    std::vector<std::unique_ptr<TSheetFile>> files; ///< The root's first, each once.
    std::vector<TSheetPage> pages;                  ///< The root first, then in the order of their numbers.
    std::vector<TDesignNet> nets;                   ///< In the order of their names.
};

/** The contents of a file. Throws a `TImportError` without line if it cannot be read. */
using TFileReader = std::function<QByteArray(const QString& fileName)>;

/** Reads a root sheet and all sheets below it, without nets. Throws `TImportError`, with the file. */
TSheetHierarchy ReadHierarchy(const QString& rootFile, const TFileReader& readFile);

/** Traces the connections, and names the nets. */
void TraceNets(TSheetHierarchy& hierarchy);
