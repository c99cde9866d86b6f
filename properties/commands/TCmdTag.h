#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QList>
#include <QStringList>

class TGraphicsTagItem;
class TProject;

/** Renames tags, which then show the project's value for the name. */
class PROPERTIES_EXPORT TCmdTagName : public TReversibleCommand
{
public:
    /** Without a project tags have no values. */
    TCmdTagName(QList<TGraphicsTagItem*> tags, const QString& name, TProject* project);

    /** Sets a tag's value to that of a name, empty if the project does not know it, and then its name. */
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
