#pragma once

#include "workbench/importer/schematic/TSheetFile.h"

#include <functional>

/** Pages, nets, wires and lines know each other by their numbers in lists of these. */
constexpr std::size_t Index(int number)
{
    return static_cast<std::size_t>(number);
}

/** A pin of a symbol on a page. */
struct TPagePin
{
    const TLibraryPin* pin = nullptr;
    TGridPoint place;
    TLibraryPin::TUse use; ///< That of the pin, or the one chosen for this symbol.
    int net = -1;          ///< Index into the design's nets.
};

/** A symbol with what the page's path says of it. */
struct TPageSymbol
{
    const TPlacedSymbol* symbol = nullptr;
    QString reference; ///< Such as "R12"; '#' in front marks symbols that are no components.
    int unit = 1;
    QString value;
    QString footprint;
    QString path; ///< The uuids of the sheets below the root and of the symbol, each behind a slash.
    std::vector<TPagePin> pins;

    /** Whether a pin of it names a net for the whole design. */
    bool IsPower() const { return symbol->library && symbol->library->isPower; }
};

/** One use of a sheet file in the hierarchy. */
struct TSheetPage
{
    const TSheetFile* file = nullptr;
    QString name;         ///< That of the box which stands for it; the root's is its file's.
    QString path;         ///< The names from the root's down, each followed by a slash: "/", "/Power/".
    QString number;       ///< As the file has it; may be empty.
    QStringList uuids;    ///< Of the boxes from the root's sheet down, the root's own uuid first.
    int parent = -1;      ///< Index of the page on which its box is; -1 for the root,
    int boxInParent = -1; ///< and the index of that box.

    std::vector<TPageSymbol> symbols;

    // Indices into the design's nets, parallel to the file's lists; -1 for what is on none.
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
    QString name;           ///< Empty only for a pin that is alone and, as the board says, on no net.
    bool isNamed = false;   ///< By a label or a power symbol; else the name is made of one of its pins.
    QStringList otherNames; ///< Those of power pins whose symbol says another one.
};

/** A root sheet and all that hangs below it, page by page. */
struct TSheetHierarchy
{
    std::vector<std::unique_ptr<TSheetFile>> files; ///< The root's first, each once.
    std::vector<TSheetPage> pages;                  ///< The root first, then in the order of their numbers.
    std::vector<TDesignNet> nets;                   ///< In the order of their names.
};

/** What stands in a file. Throws a `TImportError` without line for one that cannot be read. */
using TFileReader = std::function<QByteArray(const QString& fileName)>;

/** Reads a root sheet and all sheets below it, without nets. Throws `TImportError`, with the file. */
TSheetHierarchy ReadHierarchy(const QString& rootFile, const TFileReader& readFile);

/** Finds out what is connected, and what the nets are called. */
void TraceNets(TSheetHierarchy& hierarchy);
