#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QVector>

#include <memory>

class TBoard;
class TPropertySet;

/** What the workbench knows of a kind of items: what users call it, and the set that edits it. */
struct TKind
{
    ItemType::Number type;
    const char* one; ///< The words are translated in the context "Kinds".
    const char* many;
    std::unique_ptr<TPropertySet> (*makeSet)(const QList<TGraphicsItem*>& selection, TBoard& board);

    /** The kind's word for more than one, translated. */
    QString Plural() const;
};

namespace Kinds {

/** The kinds that can be edited, in the order of menus and counts. */
const QVector<TKind>& All();

/** Such as "784 vias"; items of several kinds are just "items". */
QString Counted(int count, const TKind* kind);

/** The kind of the first item, null if there is no item or its kind has no set. */
const TKind* OfFirst(const QList<TGraphicsItem*>& selection);

/** The set for the kind of the first item, made with the whole selection; null if there is none. */
std::unique_ptr<TPropertySet> MakePropertySet(const QList<TGraphicsItem*>& selection, TBoard& board);

/** Such as "784 vias, 12 pads"; items of other kinds are not mentioned. Empty without any. */
QString Summary(const QList<TGraphicsItem*>& items);

} // namespace Kinds
