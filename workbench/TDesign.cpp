#include "workbench/TDesign.h"

#include <objects/TGraphicsPackageItem.h>

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

} // namespace

TDesign::TDesign(TImportResult result)
    : schematic(result.schematic ? std::move(result.schematic) : std::make_unique<TSchematic>()),
      board(std::move(result.board))
{
    project.SetKind(TProject::InStep); // Its nets are shown, and its rat lines kept.
    project.SetSchematic(schematic.get());
    project.SetBoard(board.get());
}

TDesign::~TDesign() = default;

QString TDesign::Dump() const
{
    return board->Dump() + schematic->Dump();
}

void TDesign::ShowDesignators(bool on)
{
    board->SetRefDesVisible(on);
    ShowTexts(*board, &TGraphicsPackageItem::RefDesText, on);
}

void TDesign::ShowValues(bool on)
{
    board->SetValuesVisible(on);
    ShowTexts(*board, &TGraphicsPackageItem::ValueText, on);
}
