#pragma once

#include <properties/Export.h>

#include <QString>

class QUndoCommand;

/** What sort of edit a command is. The texts are English, and are translated in the context "TCommandKind". */
struct TCommandKind
{
    const char* key;    ///< Never translated, and the same in every release: the class's name without "TCmd".
    const char* phrase; ///< With "%1" for what is edited.
    const char* what;   ///< What is edited, for "%1"; empty if the phrase says it.
};

/** What an application names its undo steps by, since commands carry no text. */
namespace CommandKind {

/** The key of a command of this library, such as "ViaDiam"; empty for any other command. */
PROPERTIES_EXPORT QString Key(const QUndoCommand& command);

/**
 * What a command of this library does, in the application's language: "Change diameter of vias", or with @p what, which
 * the application translates, "Change diameter of 3 vias". Empty for any other command.
 */
PROPERTIES_EXPORT QString Phrase(const QUndoCommand& command, const QString& what = QString());

} // namespace CommandKind
