#pragma once

#include "properties/TPropertySet.h"

class TGraphicsNetTiePcbItem;
class TProject;
class TPropertyFloatSpin;
class TPropertyLayer;
class TPropertyText;

/** Edits net ties of the board. The rows show the first tie's values. */
class PROPERTIES_EXPORT TPropertySetForNetTiePcb : public TPropertySet
{
    Q_OBJECT

public:
    TPropertySetForNetTiePcb(const QList<TGraphicsItem*>& selection, TProject* project);

public Q_SLOTS:
    void SetName(QString newName);
    void SetNameVis(bool visible);
    void SetLayer(Osmirel::Layer newLayer);
    /** In millimetres. */
    void SetPadSz(double size);
    /** In millimetres. Intended: the command that it makes changes the pad size. */
    void SetWireWidth(double width);

private:
    void MakeRows(const TGraphicsNetTiePcbItem& shown);

    QList<TGraphicsNetTiePcbItem*> ties;
    TProject* project;
    QPointer<TPropertyText> name;
    QPointer<TPropertyFloatSpin> padSize;
    QPointer<TPropertyFloatSpin> wireWidth;
    QPointer<TPropertyLayer> layer;
    QPointer<TPropertyText> id;
};
