#pragma once

#include "properties/commands/TCmdComponent.h"
#include "properties/commands/TCmdPackage.h"

/** One undo step that changes the value of components and that of packages without one. */
class TValueCommands : public TUndoCommand
{
public:
    TValueCommands(const QList<unsigned short>& components, const QString& value, TProject* project)
        : ofComponents(components, value, project), ofPackages(value, project)
    {}

    void redo() override
    {
        ofComponents.redo();
        ofPackages.redo();
    }

    void undo() override
    {
        ofPackages.undo();
        ofComponents.undo();
    }

private:
    TCmdCmpValue ofComponents;
    TCmdPackageValue ofPackages;
};
