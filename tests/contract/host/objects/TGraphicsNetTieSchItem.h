#pragma once

#include <graphics/TGraphicsItem.h>

/** The symbol of a net tie on a page. */
class TGraphicsNetTieSchItem : public TGraphicsItem
{
public:
    int type() const override;

    quint16 Number() const;
    QString Name() const;
    void SetName(const QString& text);
    bool NameVisible() const;
    void SetNameVisible(bool on);
    int Symbol() const;
    void SetSymbol(int variant);

protected:
    quint16 number = 0;
    QString name;
    bool nameVisible = true;
    int symbol = 0;
};
