#include "properties/commands/TCmdNetTie.h"

#include "properties/commands/ItemsOfView.h"

#include <application/TSchematic.h>

TCmdNetTieBase::TCmdNetTieBase(TProject* ofProject) : project(ofProject) {}

void TCmdNetTieBase::Do() {}

void TCmdNetTieBase::Undo() {}

QList<TGraphicsNetTieSchItem*> TCmdNetTieBase::GetNetTiesOnSch() const
{
    QList<TGraphicsNetTieSchItem*> ties;
    if (TSchematic* schematic = ProjectParts::Schematic(project)) {
        schematic->SaveTopItemsFromWorkspace();
        for (TGraphicsItem* item : schematic->Items()) {
            if (item->type() == ItemType::NetTieSch) {
                ties.append(static_cast<TGraphicsNetTieSchItem*>(item));
            }
        }
    }
    return ties;
}

QList<TGraphicsNetTiePcbItem*> TCmdNetTieBase::GetNetTiesOnPcb() const
{
    QList<TGraphicsNetTiePcbItem*> ties;
    for (TGraphicsItem* item : ItemsOfView(ProjectParts::BoardView(project), {ItemType::NetTiePcb})) {
        ties.append(static_cast<TGraphicsNetTiePcbItem*>(item));
    }
    return ties;
}

TCmdNetTieName::TCmdNetTieName(const QList<TGraphicsNetTiePcbItem*>& ties, const QString& name, TProject* ofProject)
    : TNetTieCommand(ties, name, ofProject)
{}

TCmdNetTieName::TCmdNetTieName(const QList<TGraphicsNetTieSchItem*>& ties, const QString& name, TProject* ofProject)
    : TNetTieCommand(ties, name, ofProject)
{}

TCmdNetTieNameVis::TCmdNetTieNameVis(const QList<TGraphicsNetTiePcbItem*>& ties, bool visible, TProject* ofProject)
    : TNetTieCommand(ties, visible, ofProject)
{}

TCmdNetTieNameVis::TCmdNetTieNameVis(const QList<TGraphicsNetTieSchItem*>& ties, bool visible, TProject* ofProject)
    : TNetTieCommand(ties, visible, ofProject)
{}

TCmdNetTiePcbLayer::TCmdNetTiePcbLayer(const QList<TGraphicsNetTiePcbItem*>& ties, Osmirel::Layer layer,
                                       TProject* ofProject)
    : TNetTieCommand(ties, layer, ofProject)
{}

TCmdNetTiePadSz::TCmdNetTiePadSz(const QList<TGraphicsNetTiePcbItem*>& ties, double size, TProject* ofProject)
    : TNetTieCommand(ties, size, ofProject)
{}

TCmdNetTieWireWidth::TCmdNetTieWireWidth(const QList<TGraphicsNetTiePcbItem*>& ties, double width, TProject* ofProject)
    : TNetTieCommand(ties, width, ofProject)
{}

TCmdNetTieSchSymbol::TCmdNetTieSchSymbol(const QList<TGraphicsNetTieSchItem*>& ties, int symbol, TProject* ofProject)
    : TNetTieCommand(ties, symbol, ofProject)
{}
