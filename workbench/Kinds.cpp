#include "workbench/Kinds.h"

#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForVia.h"

#include <application/TBoard.h>

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>

namespace {

using TItems = QList<TGraphicsItem*>;

std::unique_ptr<TPropertySet> MakeSetForVia(const TItems& selection, TBoard& board)
{
    return std::make_unique<TPropertySetForVia>(selection, board.ViaGroups());
}

std::unique_ptr<TPropertySet> MakeSetForPad(const TItems& selection, TBoard& board)
{
    // A surface pad lies on one of the outer sides.
    QList<Osmirel::Layer> sides;
    for (const Osmirel::Layer side : {Osmirel::CopperTop, Osmirel::CopperBottom}) {
        if (board.LayerManager()->HasLayer(side)) {
            sides.append(side);
        }
    }
    return std::make_unique<TPropertySetForPad>(selection, sides);
}

std::unique_ptr<TPropertySet> MakeSetForHole(const TItems& selection, TBoard&)
{
    return std::make_unique<TPropertySetForHole>(selection);
}

QString Translated(const char* word)
{
    return QCoreApplication::translate("Kinds", word);
}

const TKind* Find(int type)
{
    const QVector<TKind>& kinds = Kinds::All();
    const auto found =
        std::find_if(kinds.cbegin(), kinds.cend(), [type](const TKind& kind) { return kind.type == type; });
    return found == kinds.cend() ? nullptr : found;
}

} // namespace

QString TKind::Plural() const
{
    return Translated(many);
}

const QVector<TKind>& Kinds::All()
{
    static const QVector<TKind> kinds{
        {ItemType::Via, QT_TRANSLATE_NOOP("Kinds", "via"), QT_TRANSLATE_NOOP("Kinds", "vias"), MakeSetForVia},
        {ItemType::Pad, QT_TRANSLATE_NOOP("Kinds", "pad"), QT_TRANSLATE_NOOP("Kinds", "pads"), MakeSetForPad},
        {ItemType::Hole, QT_TRANSLATE_NOOP("Kinds", "hole"), QT_TRANSLATE_NOOP("Kinds", "holes"), MakeSetForHole},
    };
    return kinds;
}

QString Kinds::Counted(int count, const TKind* kind)
{
    const char* one = kind ? kind->one : QT_TRANSLATE_NOOP("Kinds", "item");
    const char* many = kind ? kind->many : QT_TRANSLATE_NOOP("Kinds", "items");
    return QStringLiteral("%1 %2").arg(QString::number(count), Translated(count == 1 ? one : many));
}

const TKind* Kinds::OfFirst(const QList<TGraphicsItem*>& selection)
{
    return selection.isEmpty() ? nullptr : Find(selection.first()->type());
}

std::unique_ptr<TPropertySet> Kinds::MakePropertySet(const QList<TGraphicsItem*>& selection, TBoard& board)
{
    const TKind* kind = OfFirst(selection);
    return kind ? kind->makeSet(selection, board) : nullptr;
}

QString Kinds::Summary(const QList<TGraphicsItem*>& items)
{
    QHash<int, int> counts;
    for (const TGraphicsItem* item : items) {
        ++counts[item->type()];
    }
    QStringList parts;
    for (const TKind& kind : All()) {
        if (const int count = counts.value(kind.type)) {
            parts.append(Counted(count, &kind));
        }
    }
    return parts.join(QStringLiteral(", "));
}
