#pragma once

#include "properties/commands/TCmdComponent.h"
#include "properties/commands/TCmdPackage.h"

/** One undo step that changes the value of components and that of packages without one. */
class TValueCommands : public TReversibleCommand
{
public:
    TValueCommands(const QList<unsigned short>& components, const QString& value, TProject* project)
        : ofComponents(components, value, project), ofPackages(value, project)
    {}

    TCommandKind Kind() const override { return ofComponents.Kind(); }

protected:
    bool Do() override
    {
        ofComponents.redo();
        ofPackages.redo();
        return true;
    }

    bool Undo() override
    {
        ofPackages.undo();
        ofComponents.undo();
        return true;
    }

private:
    TCmdCmpValue ofComponents;
    TCmdPackageValue ofPackages;
};
