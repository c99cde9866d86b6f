#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QVector>

#include <memory>

class TDesign;
class TPropertySet;

/** A kind of items for the workbench: its name for users, and the factory of the set that edits it, or null. */
struct TKind
{
    ItemType::Number type = ItemType::Line;
    const char* one = ""; ///< The words are translated in the context "Kinds".
    const char* many = "";
    std::unique_ptr<TPropertySet> (*makeSet)(const QList<TGraphicsItem*>& selection, TDesign& design) = nullptr;
    Osmirel::Layer only = Osmirel::NoLayer; ///< The layer that defines the kind, if any.
    bool isOfPages = false;                 ///< Found on pages only, and not on a board.

    bool Holds(const TGraphicsItem& item) const;
    /** The kind's plural, translated. */
    QString Plural() const;
};

namespace Kinds {

/** The kinds that can be selected, in the order of menus and counts. */
const QVector<TKind>& All();

/** The kind of an item; null for an item that is not selected by kind. */
const TKind* Of(const TGraphicsItem& item);

/** The name of an item's kind on a command line, in one word. */
QString Word(const TGraphicsItem& item);

/** Such as "784 vias"; items of several kinds are just "items". */
QString Counted(int count, const TKind* kind);

/** The kind of the first item, null if there is none. */
const TKind* OfFirst(const QList<TGraphicsItem*>& selection);

/** The set for the kind of the first item, made with the whole selection; null if there is none. */
std::unique_ptr<TPropertySet> MakePropertySet(const QList<TGraphicsItem*>& selection, TDesign& design);

/** Such as "784 vias, 12 pads"; items of other kinds are not mentioned. Empty without any. */
QString Summary(const QList<TGraphicsItem*>& items);

} // namespace Kinds
