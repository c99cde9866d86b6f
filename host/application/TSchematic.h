#pragma once

#include <application/TNetModel.h>
#include <graphics/TItemScene.h>
#include <workspace/TWorkspace.h>

#include <QHash>
#include <QStringList>

#include <memory>
#include <optional>

class TGraphicsItem;
class TProject;

/** A project's schematic: its net model, its net classes, and the items of its page. */
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

    /** All net classes, "Default" first. */
    QStringList NetClassNames() const { return netClasses; }
    /** Whether a net can be given this class; the empty name stands for the default one. */
    bool IsExistNetClass(const QString& name) const { return name.isEmpty() || netClasses.contains(name); }
    void AddNetClass(const QString& name);
    /** The name of the net's class, which may be empty for the default one; null when the model has no such net. */
    std::optional<QString> NetClass(const QString& net) const;

    /** Sets the net's colour in the model and on the page's items of that net, and repaints them. */
    void SetNetColor(const QString& net, const QColor& color);

    /** What the page's items are attached to. */
    TItemScene* Scene() { return &scene; }
    /** Places an item, with its children, on the page, which owns it from then on. */
    void Attach(std::unique_ptr<TGraphicsItem> item);

    /** Takes over the items that stand on the page now, for `Items`. */
    void SaveTopItemsFromWorkspace();
    /** The items without parent as they were last taken over. An item that was deleted since must not be read. */
    const QList<TGraphicsItem*>& Items() const { return items; }

    /** The net of a component's pin, empty for a pin that is on none; null when the schematic says nothing of it. */
    std::optional<QString> PinNet(unsigned short component, const QString& pin) const;
    void SetPinNet(unsigned short component, const QString& pin, const QString& net);

private:
    friend class TProject;

    TProject* project = nullptr;
    TWorkspace workspace; // Outlives the scene with its items, which point to it.
    TNetModel netModel;
    QStringList netClasses{QStringLiteral("Default")};
    QHash<QPair<unsigned short, QString>, QString> pinNets;
    TItemScene scene;
    QList<TGraphicsItem*> items;
};
