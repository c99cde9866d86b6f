#pragma once

#include <application/TCmpModel.h>
#include <application/TNetModel.h>
#include <application/TSchematicPage.h>
#include <workspace/TWorkspace.h>

#include <QHash>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class TGraphicsItem;
class TGraphicsPartItem;
class TProject;

/** A project's schematic: its pages with their items, its net model with the net classes, and its component model. */
class TSchematic
{
public:
    TSchematic();
    ~TSchematic();
    TSchematic(const TSchematic&) = delete;
    TSchematic& operator=(const TSchematic&) = delete;

    /** The project that the schematic was given to; null before. */
    TProject* Project() const { return project; }

    TWorkspace* Workspace() { return &workspace; }
    TNetModel* NetModel() { return &netModel; }
    const TNetModel* NetModel() const { return &netModel; }
    TCmpModel* CmpModel() { return &cmpModel; }
    const TCmpModel* CmpModel() const { return &cmpModel; }

    /** All net classes, "Default" first. */
    QStringList NetClassNames() const { return netClasses; }
    /** Whether a net can be given this class; the empty name stands for the default one. */
    bool IsExistNetClass(const QString& name) const { return name.isEmpty() || netClasses.contains(name); }
    void AddNetClass(const QString& name);
    /** The name of the net's class, which may be empty for the default one; null when the model has no such net. */
    std::optional<QString> NetClass(const QString& net) const;

    /** Sets the net's colour in the model and on all items of the net on all pages, and repaints them. Pins are drawn
     *  with their symbols. */
    void SetNetColor(const QString& net, const QColor& color);

    /** Adds an empty page after the last one; null when there are 255. Owned by the schematic. */
    TSchematicPage* AddPage();
    /** The page of a number, counted from 1; null if there is none. */
    TSchematicPage* Page(int number) const;
    const std::vector<std::unique_ptr<TSchematicPage>>& Pages() const { return pages; }

    /** Snapshots the items of every page, for the `Items` of the pages and the schematic. */
    void SaveTopItemsFromWorkspace();
    /** The top-level items of all pages in the last snapshot. Items deleted since must not be dereferenced. */
    QList<TGraphicsItem*> Items() const;

    /** The parts on the pages that belong to the component of that number, or all parts for 0. */
    QList<TGraphicsPartItem*> PartItems(unsigned short number) const;

    /** A component's number and the number of one of its pins. */
    using TPinKey = QPair<unsigned short, QString>;
    /** The nets of all pins of the parts of these components; empty for an unconnected pin. */
    QHash<TPinKey, QString> PinNets(const QList<unsigned short>& numbers) const;

    /** The state of every item, page by page, then of the nets and the components, one line each. */
    QString Dump() const;

private:
    friend class TProject;

    TProject* project = nullptr;
    TWorkspace workspace; // Outlives the pages and their items, which point to it.
    TNetModel netModel;
    TCmpModel cmpModel;
    QStringList netClasses{QStringLiteral("Default")};
    std::vector<std::unique_ptr<TSchematicPage>> pages;
};
