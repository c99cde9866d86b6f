#pragma once

#include "properties/rows/TAbstractProperty.h"

/** A row without an editor: the bold heading of a group of rows, or only a separator if its title is empty. */
class PROPERTIES_EXPORT TPropertySeparator : public TAbstractProperty
{
    Q_OBJECT

public:
    explicit TPropertySeparator(const QString& label);
};
