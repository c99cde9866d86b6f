#include "workbench/importer/schematic/TLibrarySymbol.h"

#include "workbench/importer/format/ElementValues.h"

namespace {

constexpr qint64 usualNameOffset = 508'000; // Nanometres.

TLibraryPin ReadPin(const TSexpression& element, int unit, int bodyStyle)
{
    constexpr int firstFlag = 2; // After the two words for the pin's type and style.
    const TSexpression at = element.Get("at");
    const std::optional<TSexpression> length = element.Find("length");
    TLibraryPin pin{element,
                    unit,
                    bodyStyle,
                    {element.Value(0).Text(), element.Value(1).Text()},
                    ElementValues::GridPoint(at),
                    Quarters(at),
                    length ? length->Value(0).Extent() : 0,
                    element.HasFlag("hide", firstFlag),
                    ElementValues::UserName(element.Get("name").Value(0)),
                    ElementValues::UserName(element.Get("number").Value(0)),
                    {}};
    for (const TSexpression part : element) {
        if (part.Name() == "alternate") {
            pin.alternates.insert(ElementValues::UserName(part.Value(0)), {part.Value(1).Text(), part.Value(2).Text()});
        }
    }
    return pin;
}

/** Reads the unit and the body style at the end of a name such as "TL072_2_1". */
void ReadUnit(const TSexpression& nameAtom, int& unit, int& bodyStyle)
{
    const QString name = nameAtom.Text();
    bool isUnit = false;
    bool isStyle = false;
    unit = name.section(QLatin1Char('_'), -2, -2).toInt(&isUnit);
    bodyStyle = name.section(QLatin1Char('_'), -1).toInt(&isStyle);
    if (!isUnit || !isStyle || unit < 0 || bodyStyle < 0) {
        nameAtom.Fail(QStringLiteral("'%1' does not end with the numbers of a unit and a body style").arg(name));
    }
}

void ReadBody(const TSexpression& body, TLibrarySymbol& symbol)
{
    int unit = 0;
    int bodyStyle = 0;
    ReadUnit(body.Value(0), unit, bodyStyle);
    for (const TSexpression piece : body) {
        if (piece.Name() == "pin") {
            symbol.pins.push_back(ReadPin(piece, unit, bodyStyle));
        } else if (piece.IsList() && piece.Name() != "unit_name") {
            symbol.shapes.emplace_back(piece, unit, bodyStyle);
        }
    }
}

} // namespace

TLibrarySymbol TLibrarySymbol::Read(const TSexpression& symbol)
{
    TLibrarySymbol read;
    read.isPower = symbol.Find("power").has_value();
    const std::optional<TSexpression> names = symbol.Find("pin_names");
    const std::optional<TSexpression> numbers = symbol.Find("pin_numbers");
    const std::optional<TSexpression> offset = names ? names->Find("offset") : std::nullopt;
    read.showsPinNames = !names || !names->HasFlag("hide");
    read.showsPinNumbers = !numbers || !numbers->HasFlag("hide");
    read.nameOffset = offset ? offset->Value(0).Extent() : usualNameOffset;
    for (const TSexpression element : symbol) {
        if (element.Name() == "symbol") {
            ReadBody(element, read);
        } else if (element.Name() == "property" && element.Value(0).Text() == QLatin1String("ki_keywords")) {
            read.keywords = element.Value(1).Text();
        }
    }
    return read;
}
