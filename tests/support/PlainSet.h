#pragma once

#include "properties/rows/TAbstractProperty.h"
#include "properties/TPropertySet.h"

#include <QPointer>

namespace Test {

/** A set of whatever rows a test puts into it. */
class PlainSet : public TPropertySet
{
public:
    explicit PlainSet(const QString& setName = "Things") : TPropertySet(setName) {}

    /** Makes a row and adds it to those shown. */
    template <class Row, class... Arguments>
    Row* Add(Arguments&&... arguments)
    {
        auto* row = NewRow<Row>(std::forward<Arguments>(arguments)...);
        AddProperty(row);
        return row;
    }

    /** Makes a row that is never shown. */
    template <class Row, class... Arguments>
    Row* Keep(Arguments&&... arguments)
    {
        return NewRow<Row>(std::forward<Arguments>(arguments)...);
    }
};

/** Tells what is still alive of a row and its editor. */
struct RowWatch
{
    explicit RowWatch(TAbstractProperty* watched) : row(watched), editor(watched->Editor()) {}

    QPointer<TAbstractProperty> row;
    QPointer<QWidget> editor;
};

} // namespace Test
