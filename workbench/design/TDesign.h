#pragma once

#include "workbench/importer/BoardImporter.h"

#include <application/TProject.h>
#include <application/TProjectTree.h>
#include <application/TSchematic.h>

/** The document of one tab: the board, or a page of the schematic. A plain value that points into the design. */
struct TDocument
{
    int page = 0; ///< The page's number, 0 for the board.
    TItemScene* scene = nullptr;
    TWorkspace* workspace = nullptr;

    bool IsBoard() const { return page == 0; }
};

/** The design that is edited: a board, a schematic, or both, their project, and the tree that shows it. */
class TDesign
{
public:
    /** Takes ownership of what was read: a board, a schematic with pages, or both. Without a schematic the nets are
     *  empty. */
    explicit TDesign(TImportResult result);
    ~TDesign();
    TDesign(const TDesign&) = delete;
    TDesign& operator=(const TDesign&) = delete;

    /** Null if only a schematic was read. */
    TBoard* Board() const { return board.get(); }
    TSchematic& Schematic() { return *schematic; }
    TProject& Project() { return project; }
    /** Owned by the design, whichever widget shows it. */
    TProjectTree& Tree() const { return *tree; }

    /** The board, if there is one, then the pages in the order of their numbers. */
    QVector<TDocument> Documents() const;
    /** The document's name for the user: that of a page as in the tree. */
    QString NameOf(const TDocument& document) const;
    /** All items that are in a document now. */
    QList<TGraphicsItem*> ItemsOf(const TDocument& document) const;

    /** Opens the symbol of a component for editing, instead of the open one; null closes it. */
    void OpenSymbol(TPart* part);
    /** The part whose symbol is open, null if none is. */
    TPart* OpenPart() const { return openPart; }

    /** The state of every item of the board, of the pages, of every net and component, of the tree and of the values
     *  that tags show, one line each. */
    QString Dump() const;

    /** Shows or hides the designators, or the values, of all packages. */
    void ShowDesignators(bool on);
    void ShowValues(bool on);

private:
    void FillTree(const QStringList& pageNames);

    std::unique_ptr<TSchematic> schematic;
    std::unique_ptr<TBoard> board;
    TProject project; // Points to both.
    std::unique_ptr<TProjectTree> tree;
    TPart* openPart = nullptr;
};
