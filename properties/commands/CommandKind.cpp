#include "properties/commands/CommandKind.h"

#include "properties/commands/TReversibleCommand.h"

#include <QCoreApplication>

QString CommandKind::Key(const QUndoCommand& command)
{
    const auto* own = dynamic_cast<const TReversibleCommand*>(&command);
    return own ? QString::fromLatin1(own->Kind().key) : QString();
}

QString CommandKind::Phrase(const QUndoCommand& command, const QString& what)
{
    const auto* own = dynamic_cast<const TReversibleCommand*>(&command);
    if (!own) {
        return {};
    }
    const auto translated = [](const char* text) { return QCoreApplication::translate("TCommandKind", text); };
    const TCommandKind kind = own->Kind();
    return translated(kind.phrase).arg(what.isEmpty() && *kind.what != 0 ? translated(kind.what) : what).trimmed();
}
