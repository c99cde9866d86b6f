#pragma once

#include <application/TCmpModel.h>
#include <application/TNetModel.h>

#include <QList>
#include <QStringList>

#include <optional>

class TGraphicsItem;
class TGraphicsPartItem;
class TItemScene;
class TProject;

/** A project's schematic. */
class TSchematic
{
public:
    TProject* Project() const;
    TNetModel* NetModel();
    TCmpModel* CmpModel();
    QStringList NetClassNames() const;
    bool IsExistNetClass(const QString& name) const;
    std::optional<QString> NetClass(const QString& net) const;
    void SetNetColor(const QString& net, const QColor& color);
    void SaveTopItemsFromWorkspace();
    QList<TGraphicsItem*> Items() const;
    QList<TGraphicsPartItem*> PartItems(unsigned short number) const;

protected:
    QList<TGraphicsItem*> ItemsOfPages() const;

    TProject* project = nullptr;
    TNetModel* netModel = nullptr;
    TCmpModel* cmpModel = nullptr;
    QStringList netClasses;
    QList<TItemScene*> pages;
    QList<TGraphicsItem*> items;
};
