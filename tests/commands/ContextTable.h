#pragma once

#include <QString>
#include <QVector>

#include <vector>

namespace Test {

/** What a command may find missing. */
enum class Context { Board, View, Schematic };

/** What a command does while something is missing. */
enum class Without {
    Acts,          ///< All that it does otherwise.
    ActsOnTheRest, ///< What it does elsewhere.
    DoesNothing,
};

/** What one command that acts on a whole project does while a part of the project is missing. */
struct ContextLaw
{
    QString name;
    /** While the project has no board, the board no view, the project no schematic. */
    Without board = Without::Acts;
    Without view = Without::Acts;
    Without schematic = Without::Acts;
    /** When the command is made with null for the project, the board or the schematic that it asks for. */
    Without documents = Without::Acts;
    /** What must be there when the command is made: it acts on nothing ever after if that was missing. */
    QVector<Context> isMadeFrom = {};

    Without While(Context missing) const
    {
        return missing == Context::Board ? board : missing == Context::View ? view : schematic;
    }
};

/** One law for each command of `ProjectLawTable` that does not act on items alone. */
const std::vector<ContextLaw>& ContextTable();

/** The law of a command; one of a command that needs nothing if it has none in the table. */
ContextLaw ContextLawOf(const QString& command);

} // namespace Test
