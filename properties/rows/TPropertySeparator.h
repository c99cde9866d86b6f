#pragma once

#include "properties/rows/TAbstractProperty.h"

/** A row without an editor that heads a group of rows with a bold title, or just parts them when it is empty. */
class PROPERTIES_EXPORT TPropertySeparator : public TAbstractProperty
{
    Q_OBJECT

public:
    explicit TPropertySeparator(const QString& label);
};
