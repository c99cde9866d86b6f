#include "properties/commands/TCmdProjectTree.h"

#include <application/TProjectTree.h>

#include <utility>

TTreeEntryCommand::TTreeEntryCommand(QTreeWidgetItem* ofEntry, int ofColumn, const QString& text)
    : entry(ofEntry), column(ofColumn), newText(text)
{
    if (entry) {
        oldText = entry->data(column, Qt::DisplayRole).toString();
    }
}

void TTreeEntryCommand::Do()
{
    Write(newText);
}

void TTreeEntryCommand::Undo()
{
    Write(oldText);
}

void TTreeEntryCommand::Write(const QString& text)
{
    if (entry) {
        entry->setData(column, Qt::DisplayRole, text);
    }
}

TCmdPartRename::TCmdPartRename(TPart* part, const QString& name) : TTreeEntryCommand(part, TPart::nameColumn, name)
{
    AddCategory(ProjectTreeCategory);
}

TCmdPageRename::TCmdPageRename(TSchPage* page, const QString& name)
    : TTreeEntryCommand(page, TSchPage::nameColumn, name)
{}

TCmdPartOpen::TCmdPartOpen(TPart* previous, TPart* next) : nextPart(next), previousPart(previous)
{
    AddCategory(ProjectTreeCategory | PartCategory);
}

void TCmdPartOpen::Do()
{
    SetPartToOpen(nextPart);
}

void TCmdPartOpen::Undo()
{
    SetPartToOpen(previousPart);
}

TCmdPageOpen::TCmdPageOpen(unsigned char previous, unsigned char next) : nextPage(next), previousPage(previous)
{
    AddCategory(PageCategory);
}

void TCmdPageOpen::Do()
{
    SetPageToOpen(nextPage);
}

void TCmdPageOpen::Undo()
{
    SetPageToOpen(previousPage);
}

unsigned char TCmdPageOpen::OpeningPageId()
{
    return std::exchange(isFirstQuery, false) ? static_cast<unsigned char>(0) : PageToOpen();
}
