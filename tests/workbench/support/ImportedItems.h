#pragma once

#include "workbench/importer/BoardImporter.h"

#include <typeinfo>

/** Looks into what an import gave. */
namespace ImportedItems {

constexpr double millimetre = 300 / 25.4; ///< In scene units.

/** A board file that has no project; messages call it "board". */
inline TImportResult Import(const QByteArray& text)
{
    return ImportBoardText(text, QStringLiteral("board"));
}

/** The items of exactly this class, in the order of the file. */
template <class Item>
QList<Item*> All(const TImportResult& imported)
{
    QList<Item*> found;
    for (TGraphicsItem* item : imported.board ? imported.board->Items() : QList<TGraphicsItem*>()) {
        if (typeid(*item) == typeid(Item)) {
            found.append(static_cast<Item*>(item));
        }
    }
    return found;
}

/** The item of that class if there is one and no other; else null. */
template <class Item>
Item* Only(const TImportResult& imported)
{
    const QList<Item*> found = All<Item>(imported);
    return found.size() == 1 ? found.first() : nullptr;
}

inline int NotShown(const TImportResult& imported, const QString& kind)
{
    for (const auto& entry : imported.notShown) {
        if (entry.first == kind) {
            return entry.second;
        }
    }
    return 0;
}

} // namespace ImportedItems
