#pragma once

#include "properties/rows/TAbstractProperty.h"

/**
 * The editor of a row, as a person sees and uses it: the number, text or choice itself, and the parts that have a name
 * of their own, such as the enable box of a number (`check`) or the `width` of a size.
 */
class TRowEditor
{
public:
    /** The row must be in the panel's tree and outlive this object. */
    explicit TRowEditor(TAbstractProperty& propertyRow);

    QString Label() const;
    /** The value as shown, with nothing said about what cannot be edited. */
    QString ShownValue() const;
    /** Label, shown value, and what there is to say about them. */
    QString Line() const;

    /**
     * Does with a part what a person would do to give it a value. Throws `TSessionError` for what a person could not
     * do. The row may be gone afterwards.
     */
    void Set(const QString& partName, const QString& value) const;

private:
    using TPart = TAbstractProperty::Part;

    const TPart& Part(const QString& name) const;
    bool IsEnabled() const;

    TAbstractProperty& row;
    QVector<TPart> parts;
};
