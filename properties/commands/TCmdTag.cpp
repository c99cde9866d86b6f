#include "properties/commands/TCmdTag.h"

#include <application/TProject.h>
#include <objects/TGraphicsTagItem.h>

#include <utility>

TCmdTagName::TCmdTagName(QList<TGraphicsTagItem*> ofTags, const QString& name, TProject* ofProject)
    : tags(std::move(ofTags)), newName(name), project(ofProject)
{
    tags.removeAll(nullptr);
    for (const TGraphicsTagItem* tag : qAsConst(tags)) {
        oldNames.append(tag->Name());
    }
}

TCommandKind TCmdTagName::Kind() const
{
    return {"TagName", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"), QT_TRANSLATE_NOOP("TCommandKind", "tags")};
}

void TCmdTagName::SetName(TGraphicsTagItem* tag, const QString& name)
{
    tag->SetValue(project ? project->TagValues().value(name) : QString(), false);
    tag->SetName(name, true);
}

bool TCmdTagName::Do()
{
    for (TGraphicsTagItem* tag : qAsConst(tags)) {
        SetName(tag, newName);
    }
    return true;
}

bool TCmdTagName::Undo()
{
    for (int i = 0; i < tags.size(); ++i) {
        SetName(tags.at(i), oldNames.at(i));
    }
    return true;
}
