#include "properties/sets/TPropertySetForNetTieSch.h"

#include "properties/commands/TCmdNetTie.h"
#include "properties/sets/NetTieRows.h"
#include "properties/sets/Selection.h"

TPropertySetForNetTieSch::TPropertySetForNetTieSch(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TPropertySet(tr("Net Tie")),
      ties(Selection::Pick<Attributes::OfKind<ItemType::NetTieSch>, TGraphicsNetTieSchItem>(selection)),
      project(ofProject)
{
    if (!ties.isEmpty()) {
        MakeRows(*ties.first());
    }
}

void TPropertySetForNetTieSch::MakeRows(const TGraphicsNetTieSchItem& shown)
{
    name = NewRow<TPropertyText>(tr("Name:"), QString(), false);
    NetTieRows::ShowName(*name, shown);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));
    connect(name, SIGNAL(sigVisibleChanged(bool)), this, SLOT(SetNameVis(bool)));

    symbol = NewRow<TPropertyEnum>(tr("Symbol:"), QStringList{tr("Symbol 1"), tr("Symbol 2"), tr("Symbol 3")});
    symbol->SetCurrentEnum(shown.Symbol());
    connect(symbol, SIGNAL(sigEnumChanged(int)), this, SLOT(SetSymbol(int)));

    id = NewRow<TPropertyText>(tr("Id:"), QString(), false);
    NetTieRows::ShowNumber(*id, shown);

    AddProperties({name, symbol, id});
}

void TPropertySetForNetTieSch::SetName(QString newName)
{
    EditBy(
        ties, [&] { return new TCmdNetTieName(ties, newName, project); },
        [&newName](TGraphicsNetTieSchItem& tie) { tie.SetName(newName); });
}

void TPropertySetForNetTieSch::SetNameVis(bool visible)
{
    EditBy(
        ties, [&] { return new TCmdNetTieNameVis(ties, visible, project); },
        [visible](TGraphicsNetTieSchItem& tie) { tie.SetNameVisible(visible); });
}

void TPropertySetForNetTieSch::SetSymbol(int newSymbol)
{
    EditBy(
        ties, [&] { return new TCmdNetTieSchSymbol(ties, newSymbol, project); },
        [newSymbol](TGraphicsNetTieSchItem& tie) {
            if (Attributes::NetTieSymbol::Has(newSymbol)) {
                Attributes::NetTieSymbol::Write(tie, newSymbol);
            }
        });
}
