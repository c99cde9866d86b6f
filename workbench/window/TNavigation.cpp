#include "workbench/window/TNavigation.h"

#include "properties/commands/TCmdProjectTree.h"
#include "workbench/design/TDesign.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TDocumentTabs.h"

#include <objects/TGraphicsPartItem.h>

#include <QUndoStack>

namespace {

void SetBold(QTreeWidgetItem& row, bool on)
{
    QFont font = row.font(0);
    if (font.bold() != on) {
        font.setBold(on);
        row.setFont(0, font);
    }
}

/** Whether a command edits items on the canvas, and does not just rename an entry of the tree. False for null, which
 * the stack returns for a discarded command. */
bool IsSeenOnCanvas(const QUndoCommand* command)
{
    return command && !dynamic_cast<const TTreeEntryCommand*>(command);
}

} // namespace

TNavigation::TNavigation(TDocumentTabs& documentTabs, QUndoStack& stack) : tabs(documentTabs), undoStack(stack)
{
    connect(&undoStack, &QUndoStack::indexChanged, this, &TNavigation::slotIndexChanged);
    connect(&tabs, &TDocumentTabs::sigShown, this, &TNavigation::MarkOpenRows);
}

void TNavigation::SetDesign(TDesign* newDesign)
{
    design = newDesign;
    steps.clear();
    lastIndex = undoStack.index();
    MarkOpenRows();
}

void TNavigation::OpenPage(TSchPage& page)
{
    // The command is pushed once the page is open; its first answer relies on that.
    const auto previous = static_cast<unsigned char>(tabs.LastPage());
    tabs.ShowPage(page.Number());
    if (previous != page.Number()) {
        Push(std::make_unique<TCmdPageOpen>(previous, page.Number()), page.Name());
    }
}

void TNavigation::OpenPart(TPart& part)
{
    if (design->OpenPart() == &part) {
        Reveal(part);
    } else {
        Push(std::make_unique<TCmdPartOpen>(design->OpenPart(), &part), part.text(0));
    }
}

void TNavigation::CloseSymbol()
{
    if (TPart* part = design ? design->OpenPart() : nullptr) {
        auto command = std::make_unique<TCmdPartOpen>(part, nullptr);
        command->setText(tr("Close symbol of %1").arg(part->text(0)));
        undoStack.push(command.release());
    }
}

void TNavigation::RenamePage(TSchPage& page, const QString& name)
{
    if (!name.isEmpty() && name != page.Name()) {
        Push(std::make_unique<TCmdPageRename>(&page, name), page.Name());
    }
}

void TNavigation::RenamePart(TPart& part, const QString& name)
{
    if (!name.isEmpty() && name != part.Name()) {
        Push(std::make_unique<TCmdPartRename>(&part, name), part.text(0));
    }
}

void TNavigation::Push(std::unique_ptr<TUndoCommand> command, const QString& what)
{
    command->setText(CommandKind::Phrase(*command, what));
    undoStack.push(command.release());
}

void TNavigation::NotePushed(int index)
{
    // A new command was created while those that it discards existed, so that its address differs from theirs.
    const bool isPushed =
        index > 0 && (steps.size() < index || steps[index - 1].command != undoStack.command(index - 1));
    if (isPushed) {
        steps.resize(index - 1);
        steps.append({undoStack.command(index - 1), design ? tabs.Document().page : 0});
    }
}

void TNavigation::slotIndexChanged(int index)
{
    NotePushed(index);
    const int step = index > lastIndex ? 1 : -1;
    const TUndoCommand* opensPart = nullptr;
    int page = -1;
    bool isPartLast = false;
    for (int i = lastIndex; i != index; i += step) {
        const int position = step > 0 ? i : i - 1;
        // Asking for the page changes the next answer, and the stack returns only const pointers.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
        auto* command = const_cast<QUndoCommand*>(undoStack.command(position));
        if (auto* opensPage = dynamic_cast<TCmdPageOpen*>(command)) {
            if (const int asked = opensPage->OpeningPageId()) {
                page = asked;
                isPartLast = false;
            }
        } else if (const auto* opens = dynamic_cast<const TCmdPartOpen*>(command)) {
            opensPart = opens;
            isPartLast = true;
        } else if (IsSeenOnCanvas(command)) {
            page = steps[position].page;
            isPartLast = false;
        }
    }
    lastIndex = index;
    if (!design) {
        return;
    }
    if (opensPart) {
        design->OpenSymbol(opensPart->PartToOpen());
    }
    if (TPart* open = design->OpenPart(); opensPart && open) {
        design->Tree().scrollToItem(open);
    }
    if (isPartLast && opensPart->PartToOpen()) {
        Reveal(*opensPart->PartToOpen());
    } else if (page >= 0) {
        tabs.ShowPage(page);
    }
    MarkOpenRows();
}

void TNavigation::Reveal(const TPart& part)
{
    for (const TDocument& document : design->Documents()) {
        if (document.IsBoard()) {
            continue;
        }
        const QList<TGraphicsItem*> items = design->ItemsOf(document);
        for (const TGraphicsItem* item : items) {
            if (item->type() == ItemType::Part
                && static_cast<const TGraphicsPartItem*>(item)->ComponentNumber() == part.ComponentNumber()) {
                tabs.ShowPage(document.page);
                tabs.Canvas().Reveal(*item);
                return;
            }
        }
    }
}

void TNavigation::MarkOpenRows()
{
    if (!design) {
        return;
    }
    for (TSchPage* page : design->Tree().Pages()) {
        SetBold(*page, page->Number() == tabs.LastPage());
    }
    for (TPart* part : design->Tree().Parts()) {
        SetBold(*part, part == design->OpenPart());
    }
}
