#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <graphics/TGraphicsRectItem.h>

namespace Attributes {

/** Width and height of a rectangle, which holds them in single precision. */
struct RectSize : Plain<TGraphicsRectItem, QSizeF>
{
    static bool Accepts(const TGraphicsRectItem&) { return true; }
    static QSizeF Read(const TGraphicsRectItem& rect) { return rect.Size(); }
    static void Write(TGraphicsRectItem& rect, const QSizeF& size)
    {
        rect.SetSize(static_cast<float>(size.width()), static_cast<float>(size.height()));
    }
};

} // namespace Attributes

/** Sets width and height, in scene units, of rectangles. It has an id and yet is never merged. */
class PROPERTIES_EXPORT TCmdRectSize : public TAttributeCommandWithId<Attributes::RectSize, CommandId::RectSize>
{
public:
    TCmdRectSize(const QList<TGraphicsRectItem*>& selection, double width, double height);
};
