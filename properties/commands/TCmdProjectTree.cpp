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

bool TTreeEntryCommand::Do()
{
    Write(newText);
    return true;
}

bool TTreeEntryCommand::Undo()
{
    Write(oldText);
    return true;
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

TCommandKind TCmdPartRename::Kind() const
{
    return {"PartRename", QT_TRANSLATE_NOOP("TCommandKind", "Rename part %1"), ""};
}

TCmdPageRename::TCmdPageRename(TSchPage* page, const QString& name)
    : TTreeEntryCommand(page, TSchPage::nameColumn, name)
{}

TCommandKind TCmdPageRename::Kind() const
{
    return {"PageRename", QT_TRANSLATE_NOOP("TCommandKind", "Rename page %1"), ""};
}

TCmdPartOpen::TCmdPartOpen(TPart* previous, TPart* next) : nextPart(next), previousPart(previous)
{
    AddCategory(ProjectTreeCategory | PartCategory);
}

TCommandKind TCmdPartOpen::Kind() const
{
    return {"PartOpen", QT_TRANSLATE_NOOP("TCommandKind", "Open symbol of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a part")};
}

bool TCmdPartOpen::Do()
{
    SetPartToOpen(nextPart);
    return true;
}

bool TCmdPartOpen::Undo()
{
    SetPartToOpen(previousPart);
    return true;
}

TCmdPageOpen::TCmdPageOpen(unsigned char previous, unsigned char next) : nextPage(next), previousPage(previous)
{
    AddCategory(PageCategory);
}

TCommandKind TCmdPageOpen::Kind() const
{
    return {"PageOpen", QT_TRANSLATE_NOOP("TCommandKind", "Open page %1"), ""};
}

bool TCmdPageOpen::Do()
{
    SetPageToOpen(nextPage);
    return true;
}

bool TCmdPageOpen::Undo()
{
    SetPageToOpen(previousPage);
    return true;
}

unsigned char TCmdPageOpen::OpeningPageId()
{
    return std::exchange(isFirstQuery, false) ? static_cast<unsigned char>(0) : PageToOpen();
}
