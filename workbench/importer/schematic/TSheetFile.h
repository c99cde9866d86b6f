#pragma once

#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/schematic/TLibrarySymbol.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/** A wire, a bus, or an entry from one into the other. */
struct TSheetLine
{
    TSheetLine(const TSexpression& ofElement, const TGridPoint& from, const TGridPoint& to)
        : element(ofElement), start(from), end(to)
    {}

    TSexpression element;
    TGridPoint start;
    TGridPoint end;
};

/** A junction, or a no-connect mark. */
struct TSheetPoint
{
    explicit TSheetPoint(const TSexpression& ofElement)
        : element(ofElement), place(ElementValues::GridPoint(element.Get("at")))
    {}

    TSexpression element;
    TGridPoint place;
};

/** The sources of a net's name, the weakest first. */
enum class LabelKind {
    SheetPin,
    Hierarchical,
    Local,
    Power, ///< A power pin, not a label.
    Global,
};

struct TSheetLabel
{
    TSexpression element;
    LabelKind kind = LabelKind::Local;
    QString text;
    TGridPoint place;
    int quarters = 0;
};

/** The box of another sheet. */
struct TSheetBox
{
    TSexpression element;
    QString uuid;
    QString name;
    QString fileName;
    std::vector<TSheetLabel> pins;
};

struct TSymbolField
{
    TSexpression element;
    QString key;
    QString value;
};

/** A symbol on a sheet. */
struct TPlacedSymbol
{
    TSexpression element;
    QString uuid;
    QString libraryName;                     ///< With the library before a colon.
    const TLibrarySymbol* library = nullptr; ///< Null if the sheet has no copy of it.
    TSymbolFrame frame;
    int unit = 1;
    int bodyStyle = 1;
    std::vector<TSymbolField> fields;
    QHash<QString, QString> alternates; ///< Alternate functions of pins, by pin number.

    /** The value of a field; empty if there is none. */
    QString Field(const QString& key) const;
};

/** The contents of a sheet file, independent of its uses. All positions are in sheet coordinates, in nanometres. */
class TSheetFile
{
public:
    /** Reads a sheet of a format from 20211123 to 20250114. Throws `TImportError`. */
    TSheetFile(const QByteArray& text, const QString& name);
    TSheetFile(const TSheetFile&) = delete;
    TSheetFile& operator=(const TSheetFile&) = delete;
    ~TSheetFile() = default;

    TSexpression Root() const { return tree.Root(); }

    const QString fileName;
    int version = 0;
    QString uuid;
    std::vector<TPlacedSymbol> symbols;
    std::vector<TSheetLine> wires;
    std::vector<TSheetLine> buses;
    std::vector<TSheetLine> entries; ///< From buses to wires, in either direction.
    std::vector<TSheetPoint> junctions;
    std::vector<TSheetPoint> noConnects;
    std::vector<TSheetLabel> labels;
    std::vector<TSheetBox> boxes;
    std::vector<TSexpression> graphics;         ///< Primitives and texts.
    std::vector<TSexpression> others;           ///< Unsupported elements.
    QHash<QString, QStringList> aliases;        ///< Members of buses by alias.
    QHash<QString, TSexpression> symbolsByPath; ///< Instance data of all symbols in the oldest root sheets,
    QHash<QString, QString> pageNumbers;        ///< and of all pages in root sheets.

private:
    using TReader = void (TSheetFile::*)(const TSexpression& element);

    void CheckHeader();
    void ReadLibrary(const TSexpression& element);
    void ReadSymbol(const TSexpression& element);
    void ReadWire(const TSexpression& element);
    void ReadBus(const TSexpression& element);
    void ReadEntry(const TSexpression& element);
    void ReadJunction(const TSexpression& element);
    void ReadNoConnect(const TSexpression& element);
    void ReadLabel(const TSexpression& element);
    void ReadBox(const TSexpression& element);
    void ReadAlias(const TSexpression& element);
    void ReadSymbolPaths(const TSexpression& element);
    void ReadPageNumbers(const TSexpression& element);
    void ReadGraphic(const TSexpression& element);

    TSexpressionTree tree;
    QHash<QString, std::shared_ptr<const TLibrarySymbol>> library;
};

/** The uuid of an element; empty if it has none. */
QString Uuid(const TSexpression& element);
