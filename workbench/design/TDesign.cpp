#include "workbench/design/TDesign.h"

#include "workbench/design/Picking.h"

#include <graphics/engine/TStateText.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPartItem.h>

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace {

void ShowTexts(const TBoard& board, TGraphicsItem* (TGraphicsPackageItem::*text)() const, bool on)
{
    for (const TGraphicsItem* item : board.Items()) {
        if (item->type() == ItemType::Package) {
            if (TGraphicsItem* child = (static_cast<const TGraphicsPackageItem*>(item)->*text)()) {
                child->setVisible(on);
            }
        }
    }
}

/** Adds the layers of a schematic, in colours that are distinguishable on the canvas's dark background. */
void AddSchematicLayers(TLayerManager& layers)
{
    const auto add = [&layers](Osmirel::Layer id, const char* name, const char* color) {
        layers.AddLayer({id, QCoreApplication::translate("TDesign", name), QColor(color), {}});
    };
    add(Osmirel::SchematicNets, QT_TRANSLATE_NOOP("TDesign", "Nets"), "#4fc777");
    add(Osmirel::SchematicBuses, QT_TRANSLATE_NOOP("TDesign", "Buses"), "#6aa2ff");
    add(Osmirel::SchematicSymbols, QT_TRANSLATE_NOOP("TDesign", "Symbols"), "#e58f6c");
    add(Osmirel::SchematicTexts, QT_TRANSLATE_NOOP("TDesign", "Texts"), "#c9d2dc");
}

/** Natural order: R9 before R10. */
std::tuple<QString, int, QString> NaturalOrder(const QString& designator)
{
    static const QRegularExpression parts(QStringLiteral(R"(\A(\D*)(\d{0,9})(.*)\z)"));
    const QRegularExpressionMatch match = parts.match(designator);
    return {match.captured(1), match.captured(2).toInt(), match.captured(3)};
}

QList<const TGraphicsPartItem*> OnePartOfEachComponent(const TSchematic& schematic)
{
    QHash<quint16, const TGraphicsPartItem*> firsts;
    const QList<TGraphicsPartItem*> parts = schematic.PartItems(0);
    for (const TGraphicsPartItem* part : parts) {
        if (part->ComponentNumber() != 0 && !firsts.contains(part->ComponentNumber())) {
            firsts.insert(part->ComponentNumber(), part);
        }
    }
    QList<const TGraphicsPartItem*> sorted = firsts.values();
    std::sort(sorted.begin(), sorted.end(), [](const TGraphicsPartItem* left, const TGraphicsPartItem* right) {
        return std::make_tuple(NaturalOrder(left->RefDes()), left->ComponentNumber())
               < std::make_tuple(NaturalOrder(right->RefDes()), right->ComponentNumber());
    });
    return sorted;
}

} // namespace

TDesign::TDesign(TImportResult result)
    : schematic(result.schematic ? std::move(result.schematic) : std::make_unique<TSchematic>()),
      board(std::move(result.board)),
      tree(std::make_unique<TProjectTree>())
{
    const bool hasPages = !schematic->Pages().empty();
    // A board without schematic is also in sync mode: its nets are shown and its rat lines recomputed.
    project.SetKind(board ? TProject::InStep : TProject::Separate);
    project.SetSchematic(schematic.get());
    project.SetBoard(board.get());
    project.SetTagValues(result.tagValues);
    if (board) {
        board->SetConnectivityEnabled(hasPages);
    }
    if (schematic->Workspace()->Layers().Layers().isEmpty()) {
        AddSchematicLayers(schematic->Workspace()->Layers());
    }
    for (const auto& page : schematic->Pages()) {
        Picking::PickSymbolsWhole(*page->Scene());
    }
    FillTree(result.pageNames);
}

TDesign::~TDesign() = default;

void TDesign::FillTree(const QStringList& pageNames)
{
    for (const auto& page : schematic->Pages()) {
        const QString name = pageNames.value(page->Number() - 1);
        tree->AddPage(page->Number(),
                      name.isEmpty() ? QCoreApplication::translate("TDesign", "Page %1").arg(page->Number()) : name);
    }
    for (const TGraphicsPartItem* part : OnePartOfEachComponent(*schematic)) {
        tree->AddPart(part->ComponentNumber(), part->RefDes(), part->Name());
    }
}

QVector<TDocument> TDesign::Documents() const
{
    QVector<TDocument> documents;
    if (board) {
        documents.append({0, board->Scene(), board->Workspace()});
    }
    for (const auto& page : schematic->Pages()) {
        documents.append({page->Number(), page->Scene(), schematic->Workspace()});
    }
    return documents;
}

QString TDesign::NameOf(const TDocument& document) const
{
    const TSchPage* row = tree->Page(document.page);
    return row ? row->Name() : QCoreApplication::translate("TDesign", "Board");
}

QList<TGraphicsItem*> TDesign::ItemsOf(const TDocument& document) const
{
    return document.IsBoard() && board ? board->Items() : document.scene->DesignItems();
}

void TDesign::OpenSymbol(TPart* part)
{
    openPart = part;
    const QList<TGraphicsPartItem*> all = schematic->PartItems(0);
    for (TGraphicsPartItem* item : all) {
        const bool isOpen = part && item->ComponentNumber() == part->ComponentNumber();
        if (item->IsSymbolOpen() != isOpen) {
            item->SetSymbolOpen(isOpen);
            Picking::PickDrawings(*item, isOpen);
        }
    }
}

QString TDesign::Dump() const
{
    QString dump = (board ? board->Dump() : QString()) + schematic->Dump() + tree->Dump();
    const QMap<QString, QString>& values = project.TagValues();
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        dump += TStateText(QStringLiteral("tagvalue")).Add("name", value.key()).Add("value", value.value()).Line()
                + QLatin1Char('\n');
    }
    return dump;
}

void TDesign::ShowDesignators(bool on)
{
    if (board) {
        board->SetRefDesVisible(on);
        ShowTexts(*board, &TGraphicsPackageItem::RefDesText, on);
    }
}

void TDesign::ShowValues(bool on)
{
    if (board) {
        board->SetValuesVisible(on);
        ShowTexts(*board, &TGraphicsPackageItem::ValueText, on);
    }
}
