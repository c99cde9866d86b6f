#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QList>
#include <QStringList>

class TProject;

/**
 * Changes the value of components: in the schematic's component model, on all of their parts, and on their packages
 * where schematic and board are kept in sync and the board's connectivity is switched on. Created by the application.
 */
class PROPERTIES_EXPORT TCmdCmpValue : public TReversibleCommand
{
public:
    /**
     * Intended: a number that is given twice is kept twice. The second one's old value is then the new value, and undo
     * leaves the new value in place.
     */
    TCmdCmpValue(const QList<unsigned short>& numbers, const QString& value, TProject* project);

    /** Writes values, parallel to the components' numbers; trailing ones may be left out. The first call keeps the
     * former values for undo. */
    void SetValue(const QStringList& values);

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    /** False without a schematic. */
    bool SetValueOfAll(const QStringList& values);

    TProject* project;
    QList<unsigned short> numbers;
    QStringList oldValues; ///< Parallel to `numbers` from the first redo on; empty where the model has no component.
    QStringList newValues; ///< Parallel to `numbers`: the new value, once for each.
};
