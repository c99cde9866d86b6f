#pragma once

#include <QString>

class QUndoCommand;

namespace CommandNames {

/**
 * What the undo history calls a command, such as "Change diameter of 784 vias" with @p what as "784 vias"; the name
 * of its class for a command that has no entry in the table of names.
 */
QString Text(const QUndoCommand& command, const QString& what);

} // namespace CommandNames
