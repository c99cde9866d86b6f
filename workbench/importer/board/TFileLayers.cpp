#include "workbench/importer/board/TFileLayers.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

/** The fixed names of layers other than copper. A wildcard matches the layers of both sides. */
constexpr std::pair<const char*, Osmirel::Layer> fixedNames[] = {
    {"F.Mask", Osmirel::MaskTop},          {"B.Mask", Osmirel::MaskBottom},      {"F.Paste", Osmirel::PasteTop},
    {"B.Paste", Osmirel::PasteBottom},     {"F.SilkS", Osmirel::SilkTop},        {"B.SilkS", Osmirel::SilkBottom},
    {"F.Fab", Osmirel::DrawingsTop},       {"B.Fab", Osmirel::DrawingsBottom},   {"F.CrtYd", Osmirel::CourtyardTop},
    {"B.CrtYd", Osmirel::CourtyardBottom}, {"F.Adhes", Osmirel::AdhesiveTop},    {"B.Adhes", Osmirel::AdhesiveBottom},
    {"Dwgs.User", Osmirel::UserDrawings},  {"Cmts.User", Osmirel::UserComments}, {"Eco1.User", Osmirel::UserEco1},
    {"Eco2.User", Osmirel::UserEco2},      {"Margin", Osmirel::Margin},          {"Edge.Cuts", Osmirel::BoardOutline},
};

struct TLayerStyle
{
    Osmirel::Layer layer = Osmirel::NoLayer;
    const char* name = nullptr;
    QRgb color = 0;
    bool visible = true;
};

/** The layers that every board has besides its copper, with colours for a dark canvas. */
constexpr TLayerStyle plainLayers[] = {
    {Osmirel::DrawingsTop, "F.Fab", 0x9aa5b8},
    {Osmirel::PackagesTop, "Packages top", 0xe0a080},
    {Osmirel::SilkTop, "F.SilkS", 0xf0ead2},
    {Osmirel::PasteTop, "F.Paste", 0xb8bcc8, false},
    {Osmirel::MaskTop, "F.Mask", 0xc678dd, false},
    {Osmirel::MaskBottom, "B.Mask", 0x4db6a6, false},
    {Osmirel::PasteBottom, "B.Paste", 0x7f92a8, false},
    {Osmirel::SilkBottom, "B.SilkS", 0xa8b4e6},
    {Osmirel::PackagesBottom, "Packages bottom", 0x80b0e0},
    {Osmirel::DrawingsBottom, "B.Fab", 0x6f7a8e},
    {Osmirel::BoardOutline, "Edge.Cuts", 0xe6d35a},
    {Osmirel::Milling, "Milling", 0xb08a5a},
};

/** The layers that a board has only if its file lists them. */
constexpr TLayerStyle optionalLayers[] = {
    {Osmirel::CourtyardTop, "F.CrtYd", 0xc86ec8},   {Osmirel::CourtyardBottom, "B.CrtYd", 0x6ec8c8},
    {Osmirel::AdhesiveTop, "F.Adhes", 0xa06e8c},    {Osmirel::AdhesiveBottom, "B.Adhes", 0x6e6ea0},
    {Osmirel::UserDrawings, "Dwgs.User", 0xd2d2d2}, {Osmirel::UserComments, "Cmts.User", 0x7896dc},
    {Osmirel::UserEco1, "Eco1.User", 0x78b478},     {Osmirel::UserEco2, "Eco2.User", 0xc8c85a},
    {Osmirel::Margin, "Margin", 0xdc64dc},
};
constexpr QRgb userColor = 0xaab4be;
constexpr int userLayers = Osmirel::User9 - Osmirel::User1 + 1;

/** Colours of the copper layers from CopperTop to CopperBottom. */
constexpr QRgb copperColors[Osmirel::maxCopperLayers] = {0xd9504c, 0x7cb855, 0xe39a3f, 0x45b9b4,
                                                         0xdb6fae, 0x9d7fe6, 0xbcc24e, 0x4c84dd};

/** Whether a row of the layer table is a copper layer, by its type. */
bool IsCopperRow(const TSexpression& row)
{
    constexpr std::string_view copperTypes[] = {"signal", "power", "mixed", "jumper"};
    const TSexpression type = row.Value(1);
    return std::any_of(std::begin(copperTypes), std::end(copperTypes),
                       [&type](std::string_view copperType) { return type.IsWord(copperType); });
}

/**
 * The position of a copper layer in the board, counted from the top: by its standard name, or by the row's number in
 * the oldest files, where a user-defined name replaces the standard one.
 */
int CopperPosition(const QString& name, const TSexpression& row)
{
    constexpr int behindAllInnerOnes = 31;
    if (name == QLatin1String("F.Cu")) {
        return 0;
    }
    if (name == QLatin1String("B.Cu")) {
        return behindAllInnerOnes;
    }
    bool isInner = name.startsWith(QLatin1String("In")) && name.endsWith(QLatin1String(".Cu"));
    const int inner = isInner ? name.mid(2, name.size() - 5).toInt(&isInner) : 0;
    if (isInner) {
        return inner;
    }
    bool isNumbered = false;
    const std::string_view number = row.Name();
    const int ordinal = QByteArray(number.data(), static_cast<int>(number.size())).toInt(&isNumbered);
    if (!isNumbered) {
        row.Fail(QStringLiteral("layer '%1' has no number").arg(name));
    }
    return ordinal;
}

/** The user's name for a layer, which its row has besides the fixed one; empty for none. */
QString UserName(const TSexpression& row)
{
    const std::optional<TSexpression> last = row.FindValue(2);
    return last && !last->IsWord("hide") ? last->Text() : QString();
}

/** Sets the counterpart of each layer on the other side. */
void PairSides(TLayerManager& board)
{
    for (const Osmirel::Layer id : board.Layers()) {
        const TLayer* opposite = board.Layer(Osmirel::OppositeLayer(id));
        if (opposite && opposite->id != id) {
            TLayer paired = *board.Layer(id);
            paired.pairedLayer = opposite->name;
            board.AddLayer(paired);
        }
    }
}

} // namespace

TFileLayers::TFileLayers()
{
    for (const auto& [name, layer] : fixedNames) {
        layers.insert(QString::fromLatin1(name), layer);
    }
    for (int i = 0; i < userLayers; ++i) {
        layers.insert(QStringLiteral("User.%1").arg(i + 1), static_cast<Osmirel::Layer>(Osmirel::User1 + i));
    }
}

void TFileLayers::Read(const TSexpression& table, TLayerManager& board)
{
    if (!copper.isEmpty()) {
        table.Fail(QStringLiteral("a second layer table"));
    }
    QMap<int, QString> copperNames;
    for (const TSexpression row : table) {
        if (IsCopperRow(row)) {
            const QString name = row.Value(0).Text();
            const int position = CopperPosition(name, row);
            if (copperNames.contains(position)) {
                row.Fail(QStringLiteral("copper layer '%1' is in the place of '%2'").arg(name, copperNames[position]));
            }
            copperNames.insert(position, name);
        }
    }
    if (copperNames.isEmpty()) {
        table.Fail(QStringLiteral("the board has no copper layer"));
    }
    if (copperNames.size() > Osmirel::maxCopperLayers) {
        table.Fail(QStringLiteral("the board has %1 copper layers; at most %2 are supported")
                       .arg(copperNames.size())
                       .arg(Osmirel::maxCopperLayers));
    }
    AddCopper(copperNames.values(), board);
    for (const TLayerStyle& style : plainLayers) {
        board.AddLayer({style.layer, QString::fromLatin1(style.name), QColor(style.color), {}, style.visible});
    }
    for (const TSexpression row : table) {
        AddOptional(row, board);
    }
    PairSides(board);
}

void TFileLayers::AddOptional(const TSexpression& row, TLayerManager& board)
{
    const QString name = row.Value(0).Text();
    const Osmirel::Layer layer = Find(name);
    if (UserName(row) == QLatin1String("Milling") && !Osmirel::IsCopper(layer)) {
        layers.insert(name, Osmirel::Milling);
        return;
    }
    if (layer >= Osmirel::User1 && layer <= Osmirel::User9) {
        board.AddLayer({layer, name, QColor(userColor), {}});
        return;
    }
    const auto style = std::find_if(std::begin(optionalLayers), std::end(optionalLayers),
                                    [layer](const TLayerStyle& each) { return each.layer == layer; });
    if (style != std::end(optionalLayers)) {
        board.AddLayer({layer, name, QColor(style->color), {}});
    }
}

void TFileLayers::AddCopper(const QStringList& names, TLayerManager& board)
{
    for (int i = 0; i < names.size(); ++i) {
        const bool isLast = i == names.size() - 1;
        const bool isBottom = isLast && (i > 0 || names[i] == QLatin1String("B.Cu"));
        const int index = isBottom ? Osmirel::maxCopperLayers - 1 : i;
        const auto layer = static_cast<Osmirel::Layer>(Osmirel::CopperTop + index);
        board.AddLayer({layer, names[i], QColor(copperColors[index]), {}});
        layers.insert(names[i], layer);
        copper.append(layer);
    }
}

QList<Osmirel::Layer> TFileLayers::Resolve(const TSexpression& list) const
{
    QList<Osmirel::Layer> found;
    for (const TSexpression value : list) {
        const QString name = value.Text();
        if (name == QLatin1String("*.Cu")) {
            found += copper;
        } else if (name == QLatin1String("F&B.Cu")) {
            found << Osmirel::CopperTop << Osmirel::CopperBottom;
        } else if (name.startsWith(QLatin1Char('*'))) {
            found << Find(QLatin1Char('F') + name.mid(1)) << Find(QLatin1Char('B') + name.mid(1));
        } else {
            found << Find(name);
        }
    }
    found.removeAll(Osmirel::NoLayer);
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}
