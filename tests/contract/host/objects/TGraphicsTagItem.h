#pragma once

#include <graphics/TGraphicsTextItem.h>

/** A text that shows a value of the project. */
class TGraphicsTagItem : public TGraphicsTextItem
{
public:
    int type() const override;

    QString Name() const;
    void SetName(const QString& newName, bool refresh);
    void SetValue(const QString& newValue, bool refresh);

protected:
    QString name;
    QString value;
};
