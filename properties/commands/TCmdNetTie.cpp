#include "properties/commands/TCmdNetTie.h"

#include "properties/commands/ItemsOfView.h"
#include "properties/commands/ProjectContext.h"

#include <application/TSchematic.h>

TCmdNetTieBase::TCmdNetTieBase(TProject* ofProject) : project(ofProject) {}

TCommandKind TCmdNetTieBase::Kind() const
{
    return {"NetTieBase", QT_TRANSLATE_NOOP("TCommandKind", "Change %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}

bool TCmdNetTieBase::Do()
{
    return true;
}

bool TCmdNetTieBase::Undo()
{
    return true;
}

bool TCmdNetTieBase::HasSchematic() const
{
    return ProjectContext::Schematic(project) != nullptr;
}

bool TCmdNetTieBase::HasBoardView() const
{
    return ProjectContext::BoardView(project) != nullptr;
}

QList<TGraphicsNetTieSchItem*> TCmdNetTieBase::GetNetTiesOnSch() const
{
    QList<TGraphicsNetTieSchItem*> ties;
    if (TSchematic* schematic = ProjectContext::Schematic(project)) {
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
    for (TGraphicsItem* item : ItemsOfView(ProjectContext::BoardView(project), {ItemType::NetTiePcb})) {
        ties.append(static_cast<TGraphicsNetTiePcbItem*>(item));
    }
    return ties;
}

template <class Attribute>
template <class Tie>
TNetTieCommand<Attribute>::TNetTieCommand(const QList<Tie*>& ties, const Value& value, TProject* ofProject)
    : TCmdNetTieBase(ofProject), newValue(value), madeOnSchematic(std::is_same_v<Tie, TGraphicsNetTieSchItem>)
{
    for (const Tie* tie : ties) {
        if (tie && !indexOfNumber.contains(tie->Number())) {
            indexOfNumber.insert(tie->Number(), oldValues.size());
            oldValues.append(Attribute::Read(*tie));
        }
    }
}

template <class Attribute>
TNetTieCommand<Attribute>::~TNetTieCommand() = default;

template <class Attribute>
bool TNetTieCommand<Attribute>::Do()
{
    return WriteAll([this](int) { return newValue; });
}

template <class Attribute>
bool TNetTieCommand<Attribute>::Undo()
{
    return WriteAll([this](int index) { return oldValues.at(index); });
}

template <class Attribute>
template <class ValueAt>
bool TNetTieCommand<Attribute>::WriteAll(ValueAt valueAt)
{
    if (oldValues.isEmpty()) { // Listing all ties would make the schematic save its pages.
        return false;
    }
    const bool inSync = ProjectContext::IsInSync(project);
    bool isThere = false;
    if constexpr (Attribute::sides != TieSides::Board) {
        if ((madeOnSchematic || inSync) && HasSchematic()) {
            Write(GetNetTiesOnSch(), valueAt);
            isThere = true;
        }
    }
    if constexpr (Attribute::sides != TieSides::Schematic) {
        if ((!madeOnSchematic || inSync) && HasBoardView()) {
            Write(GetNetTiesOnPcb(), valueAt);
            isThere = true;
        }
    }
    return isThere;
}

template <class Attribute>
template <class Tie, class ValueAt>
void TNetTieCommand<Attribute>::Write(const QList<Tie*>& ties, ValueAt valueAt)
{
    for (Tie* tie : ties) {
        const auto index = indexOfNumber.constFind(tie->Number());
        if (index != indexOfNumber.constEnd()) {
            Attribute::Write(*tie, valueAt(*index));
        }
    }
}

template class TNetTieCommand<Attributes::NetTieName>;

TCmdNetTieName::TCmdNetTieName(const QList<TGraphicsNetTiePcbItem*>& ties, const QString& name, TProject* ofProject)
    : TNetTieCommand(ties, name, ofProject)
{}

TCmdNetTieName::TCmdNetTieName(const QList<TGraphicsNetTieSchItem*>& ties, const QString& name, TProject* ofProject)
    : TNetTieCommand(ties, name, ofProject)
{}

TCommandKind TCmdNetTieName::Kind() const
{
    return {"NetTieName", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}

template class TNetTieCommand<Attributes::NetTieNameVisible>;

TCmdNetTieNameVis::TCmdNetTieNameVis(const QList<TGraphicsNetTiePcbItem*>& ties, bool visible, TProject* ofProject)
    : TNetTieCommand(ties, visible, ofProject)
{}

TCmdNetTieNameVis::TCmdNetTieNameVis(const QList<TGraphicsNetTieSchItem*>& ties, bool visible, TProject* ofProject)
    : TNetTieCommand(ties, visible, ofProject)
{}

TCommandKind TCmdNetTieNameVis::Kind() const
{
    return {"NetTieNameVis", QT_TRANSLATE_NOOP("TCommandKind", "Switch name of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}

template class TNetTieCommand<Attributes::NetTieLayer>;

TCmdNetTiePcbLayer::TCmdNetTiePcbLayer(const QList<TGraphicsNetTiePcbItem*>& ties, Osmirel::Layer layer,
                                       TProject* ofProject)
    : TNetTieCommand(ties, layer, ofProject)
{}

TCommandKind TCmdNetTiePcbLayer::Kind() const
{
    return {"NetTiePcbLayer", QT_TRANSLATE_NOOP("TCommandKind", "Change layer of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}

template class TNetTieCommand<Attributes::NetTiePadSize>;

TCmdNetTiePadSz::TCmdNetTiePadSz(const QList<TGraphicsNetTiePcbItem*>& ties, double size, TProject* ofProject)
    : TNetTieCommand(ties, size, ofProject)
{}

TCommandKind TCmdNetTiePadSz::Kind() const
{
    return {"NetTiePadSz", QT_TRANSLATE_NOOP("TCommandKind", "Change pad size of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}

template class TNetTieCommand<Attributes::NetTieWireWidth>;

TCmdNetTieWireWidth::TCmdNetTieWireWidth(const QList<TGraphicsNetTiePcbItem*>& ties, double width, TProject* ofProject)
    : TNetTieCommand(ties, width, ofProject)
{}

TCommandKind TCmdNetTieWireWidth::Kind() const
{
    return {"NetTieWireWidth", QT_TRANSLATE_NOOP("TCommandKind", "Change wire width of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}

template class TNetTieCommand<Attributes::NetTieSymbol>;

TCmdNetTieSchSymbol::TCmdNetTieSchSymbol(const QList<TGraphicsNetTieSchItem*>& ties, int symbol, TProject* ofProject)
    : TNetTieCommand(Attributes::NetTieSymbol::Has(symbol) ? ties : QList<TGraphicsNetTieSchItem*>(), symbol, ofProject)
{}

TCommandKind TCmdNetTieSchSymbol::Kind() const
{
    return {"NetTieSchSymbol", QT_TRANSLATE_NOOP("TCommandKind", "Change symbol of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "net ties")};
}
