#include "properties/commands/TCmdLock.h"

TCmdLock::TCmdLock(const QList<TGraphicsItem*>& selection, bool lock) : TMergingCommand(selection, lock) {}
