#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QString>

class QTreeWidgetItem;
class TPart;
class TSchPage;

/** Writes a text of an entry of the project tree. */
class PROPERTIES_EXPORT TTreeEntryCommand : public TReversibleCommand
{
protected:
    /** The entry is not owned and must outlive the command; null makes the command a no-op. */
    TTreeEntryCommand(QTreeWidgetItem* entry, int column, const QString& text);

    bool Do() override;
    bool Undo() override;

private:
    void Write(const QString& text);

    QTreeWidgetItem* entry;
    int column;
    QString newText;
    QString oldText;
};

/** Renames a part in the project tree. Created by the application. */
class PROPERTIES_EXPORT TCmdPartRename : public TTreeEntryCommand
{
public:
    TCmdPartRename(TPart* part, const QString& name);
    TCommandKind Kind() const override;
};

/** Renames a page in the project tree. Created by the application. */
class PROPERTIES_EXPORT TCmdPageRename : public TTreeEntryCommand
{
public:
    TCmdPageRename(TSchPage* page, const QString& name);
    TCommandKind Kind() const override;
};

/** Asks the application to open a part: the next one after redo, the previous one after undo; null for none. */
class PROPERTIES_EXPORT TCmdPartOpen : public TReversibleCommand
{
public:
    TCmdPartOpen(TPart* previous, TPart* next);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    TPart* nextPart;
    TPart* previousPart;
};

/** Asks the application to open a page: the next one after redo, the previous one after undo. */
class PROPERTIES_EXPORT TCmdPageOpen : public TReversibleCommand
{
public:
    /** Pages are numbered from 1. */
    TCmdPageOpen(unsigned char previous, unsigned char next);

    /**
     * The page that the application is to open after the last redo or undo, 0 for none. The first call always returns
     * 0: it follows the push of the command, and the page is already open by then.
     */
    unsigned char OpeningPageId();

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    unsigned char nextPage;
    unsigned char previousPage;
    bool isFirstQuery = true;
};
