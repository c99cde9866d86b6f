#pragma once

#include "properties/TPropertySet.h"

#include <QStringList>

class TPropertyEnum;
class TPropertyFloatSpin;

/** Edits vias. The rows show the first via's values; only the drill pair and the mask enable are compared. */
class PROPERTIES_EXPORT TPropertySetForVia : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the vias of @p selection; @p viaGroups are the names of the drill pairs that the board defines. */
    TPropertySetForVia(QList<TGraphicsItem*> selection, QStringList viaGroups);

public Q_SLOTS:
    /** @{ In millimetres. */
    void SetDiam(qreal diameter);
    void SetDrill(qreal diameter);
    /** @} */
    /** A `TGraphicsViaItem::TypeThermal`. */
    void SetThermal(int newThermal);
    /** The name of a drill pair. */
    void SetGroup(QString newGroup);
    void SetMaskEnable(bool on);
    /** In millimetres. */
    void SetMaskClearance(qreal clearance);

private:
    struct Values;
    void MakeRows(const Values& values, const QStringList& viaGroups);

    QList<TGraphicsItem*> items;
    QPointer<TPropertyFloatSpin> diam;
    QPointer<TPropertyFloatSpin> drill;
    QPointer<TPropertyEnum> thermal;
    QPointer<TPropertyEnum> group;
    QPointer<TPropertyFloatSpin> mask;
};
