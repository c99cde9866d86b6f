#include "workbench/importer/schematic/TSheetFile.h"

#include "workbench/importer/format/ElementValues.h"

#include <algorithm>
#include <iterator>

namespace {

/** The straight pieces of a polyline. */
void AddLines(const TSexpression& element, std::vector<TSheetLine>& lines)
{
    std::optional<TGridPoint> last;
    for (const TSexpression point : element.Get("pts")) {
        const TGridPoint place = ElementValues::GridPoint(point);
        if (last && *last != place) {
            lines.emplace_back(element, *last, place);
        }
        last = place;
    }
}

TSheetLabel Label(const TSexpression& element, LabelKind kind)
{
    const TSexpression at = element.Get("at");
    return {element, kind, ElementValues::UserName(element.Value(0)), ElementValues::GridPoint(at), Quarters(at)};
}

LabelKind KindOf(const TSexpression& label)
{
    return label.Name() == "global_label"         ? LabelKind::Global
           : label.Name() == "hierarchical_label" ? LabelKind::Hierarchical
                                                  : LabelKind::Local;
}

/** The elements that describe the sheet itself. */
constexpr std::string_view properties[] = {
    "version", "generator",   "generator_version", "uuid",           "paper",
    "page",    "title_block", "embedded_fonts",    "embedded_files",
};

} // namespace

QString Uuid(const TSexpression& element)
{
    const std::optional<TSexpression> uuid = element.Find("uuid");
    return uuid ? uuid->Value(0).Text() : QString();
}

QString TPlacedSymbol::Field(const QString& key) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&key](const TSymbolField& field) { return field.key == key; });
    return found == fields.end() ? QString() : found->value;
}

TSheetFile::TSheetFile(const QByteArray& text, const QString& name) : fileName(name), tree(text)
{
    static constexpr struct
    {
        std::string_view token;
        TReader read;
    } readers[] = {
        {"lib_symbols", nullptr}, // Read before all others.
        {"symbol", &TSheetFile::ReadSymbol},
        {"wire", &TSheetFile::ReadWire},
        {"bus", &TSheetFile::ReadBus},
        {"bus_entry", &TSheetFile::ReadEntry},
        {"junction", &TSheetFile::ReadJunction},
        {"no_connect", &TSheetFile::ReadNoConnect},
        {"label", &TSheetFile::ReadLabel},
        {"global_label", &TSheetFile::ReadLabel},
        {"hierarchical_label", &TSheetFile::ReadLabel},
        {"sheet", &TSheetFile::ReadBox},
        {"bus_alias", &TSheetFile::ReadAlias},
        {"symbol_instances", &TSheetFile::ReadSymbolPaths},
        {"sheet_instances", &TSheetFile::ReadPageNumbers},
        {"polyline", &TSheetFile::ReadGraphic},
        {"rectangle", &TSheetFile::ReadGraphic},
        {"circle", &TSheetFile::ReadGraphic},
        {"arc", &TSheetFile::ReadGraphic},
        {"bezier", &TSheetFile::ReadGraphic},
        {"text", &TSheetFile::ReadGraphic},
        {"text_box", &TSheetFile::ReadGraphic},
    };
    CheckHeader();
    uuid = Uuid(Root());
    if (const std::optional<TSexpression> symbolCopies = Root().Find("lib_symbols")) {
        ReadLibrary(*symbolCopies);
    }
    for (const TSexpression element : Root()) {
        const auto reader = std::find_if(std::begin(readers), std::end(readers),
                                         [&element](const auto& each) { return each.token == element.Name(); });
        if (reader == std::end(readers)) {
            if (std::count(std::begin(properties), std::end(properties), element.Name()) == 0) {
                others.push_back(element);
            }
        } else if (reader->read) {
            (this->*reader->read)(element);
        }
    }
}

void TSheetFile::CheckHeader()
{
    constexpr int oldest = 20211123;
    constexpr int newest = 20250114;
    if (Root().Name() != "kicad_sch") {
        Root().Fail(QStringLiteral("not a schematic file: it does not begin with 'kicad_sch'"));
    }
    const TSexpression format = Root().Get("version").Value(0);
    version = format.Integer();
    if (version < oldest || version > newest) {
        format.Fail(
            QStringLiteral("unsupported file format %1; supported are %2 to %3").arg(version).arg(oldest).arg(newest));
    }
}

void TSheetFile::ReadLibrary(const TSexpression& element)
{
    for (const TSexpression symbol : element) {
        if (symbol.Name() == "symbol") {
            library.insert(symbol.Value(0).Text(),
                           std::make_shared<const TLibrarySymbol>(TLibrarySymbol::Read(symbol)));
        }
    }
}

void TSheetFile::ReadSymbol(const TSexpression& element)
{
    TPlacedSymbol symbol{
        element, Uuid(element), element.Get("lib_id").Value(0).Text(), nullptr, TSymbolFrame::Read(element), 1, 1, {},
        {}};
    // A copy that was modified for this sheet has its own name.
    const std::optional<TSexpression> ownName = element.Find("lib_name");
    symbol.library = library.value(ownName ? ownName->Value(0).Text() : symbol.libraryName).get();
    for (const TSexpression part : element) {
        if (part.Name() == "unit") {
            symbol.unit = part.Value(0).Integer();
        } else if (part.Name() == "convert" || part.Name() == "body_style") {
            symbol.bodyStyle = part.Value(0).Integer();
        } else if (part.Name() == "property") {
            symbol.fields.push_back({part, part.Value(0).Text(), ElementValues::UserName(part.Value(1))});
        } else if (part.Name() == "pin") {
            if (const std::optional<TSexpression> use = part.Find("alternate")) {
                symbol.alternates.insert(ElementValues::UserName(part.Value(0)),
                                         ElementValues::UserName(use->Value(0)));
            }
        }
    }
    symbols.push_back(std::move(symbol));
}

void TSheetFile::ReadWire(const TSexpression& element)
{
    AddLines(element, wires);
}

void TSheetFile::ReadBus(const TSexpression& element)
{
    AddLines(element, buses);
}

void TSheetFile::ReadEntry(const TSexpression& element)
{
    const TGridPoint start = ElementValues::GridPoint(element.Get("at"));
    const TGridPoint size = ElementValues::GridPoint(element.Get("size"));
    entries.emplace_back(element, start, TGridPoint{start.x + size.x, start.y + size.y});
}

void TSheetFile::ReadJunction(const TSexpression& element)
{
    junctions.emplace_back(element);
}

void TSheetFile::ReadNoConnect(const TSexpression& element)
{
    noConnects.emplace_back(element);
}

void TSheetFile::ReadLabel(const TSexpression& element)
{
    labels.push_back(Label(element, KindOf(element)));
}

void TSheetFile::ReadBox(const TSexpression& element)
{
    TSheetBox box{element, Uuid(element), {}, {}, {}};
    for (const TSexpression part : element) {
        if (part.Name() == "pin") {
            box.pins.push_back(Label(part, LabelKind::SheetPin));
        } else if (part.Name() == "property") {
            const QString key = part.Value(0).Text();
            if (key == QLatin1String("Sheetname") || key == QLatin1String("Sheet name")) {
                box.name = ElementValues::UserName(part.Value(1));
            } else if (key == QLatin1String("Sheetfile") || key == QLatin1String("Sheet file")) {
                box.fileName = part.Value(1).Text().replace(QLatin1Char('\\'), QLatin1Char('/'));
            }
        }
    }
    boxes.push_back(std::move(box));
}

void TSheetFile::ReadAlias(const TSexpression& element)
{
    QStringList members;
    for (const TSexpression member : element.Get("members")) {
        members.append(ElementValues::UserName(member));
    }
    aliases.insert(ElementValues::UserName(element.Value(0)), members);
}

void TSheetFile::ReadSymbolPaths(const TSexpression& element)
{
    for (const TSexpression path : element) {
        symbolsByPath.insert(path.Value(0).Text(), path);
    }
}

void TSheetFile::ReadPageNumbers(const TSexpression& element)
{
    for (const TSexpression path : element) {
        pageNumbers.insert(path.Value(0).Text(), path.Get("page").Value(0).Text());
    }
}

void TSheetFile::ReadGraphic(const TSexpression& element)
{
    graphics.push_back(element);
}
