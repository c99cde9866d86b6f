#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

namespace Attributes PROPERTIES_EXPORT {

/** Whether a part or package is locked. */
struct Lock : Plain<TGraphicsItem, bool>, OfKind<ItemType::Part, ItemType::Package>
{
    static bool Read(const TGraphicsItem& item) { return item.HasTFlag(TGraphicsItem::Lock); }
    static void Write(TGraphicsItem& item, bool lock) { item.SetTFlag(TGraphicsItem::Lock, lock); }
};

} // namespace Attributes

/** Locks or unlocks parts and packages. */
class PROPERTIES_EXPORT TCmdLock : public TMergingCommand<Attributes::Lock, CommandId::Lock, MergeRule::EqualValue>
{
public:
    TCmdLock(const QList<TGraphicsItem*>& selection, bool lock);
    TCommandKind Kind() const override;
};
