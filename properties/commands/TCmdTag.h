#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QList>
#include <QStringList>

class TGraphicsTagItem;
class TProject;

/** Renames tags, which then show what the project holds under the name. */
class PROPERTIES_EXPORT TCmdTagName : public TReversibleCommand
{
public:
    /** Without a project tags have no values. */
    TCmdTagName(QList<TGraphicsTagItem*> tags, const QString& name, TProject* project);

    /** Gives a tag the value of a name, empty for one that the project does not know, and then the name. */
    void SetName(TGraphicsTagItem* tag, const QString& name);

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    QList<TGraphicsTagItem*> tags;
    QStringList oldNames; ///< Parallel to `tags`.
    QString newName;
    TProject* project;
};
