#pragma once

#include "properties/TPropertySet.h"

class TGraphicsNetTieSchItem;
class TProject;
class TPropertyEnum;
class TPropertyText;

/** Edits net ties of the schematic. The rows show the first tie's values. */
class PROPERTIES_EXPORT TPropertySetForNetTieSch : public TPropertySet
{
    Q_OBJECT

public:
    TPropertySetForNetTieSch(const QList<TGraphicsItem*>& selection, TProject* project);

public Q_SLOTS:
    void SetName(QString newName);
    void SetNameVis(bool visible);
    /** 0, 1 or 2. */
    void SetSymbol(int newSymbol);

private:
    void MakeRows(const TGraphicsNetTieSchItem& shown);

    QList<TGraphicsNetTieSchItem*> ties;
    TProject* project;
    QPointer<TPropertyText> name;
    QPointer<TPropertyEnum> symbol;
    QPointer<TPropertyText> id;
};
