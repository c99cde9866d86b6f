#include "properties/commands/TCmdLock.h"

#include "properties/commands/AttributeCommandEngine.h"

template class TMergingCommand<Attributes::Lock, CommandId::Lock, MergeRule::EqualValue>;

TCmdLock::TCmdLock(const QList<TGraphicsItem*>& selection, bool lock) : TMergingCommand(selection, lock) {}

TCommandKind TCmdLock::Kind() const
{
    return {"Lock", QT_TRANSLATE_NOOP("TCommandKind", "Change lock of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "parts and packages")};
}
