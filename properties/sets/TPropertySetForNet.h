#pragma once

#include "properties/TPropertySet.h"

#include <QStringList>

class TPropertyColor;
class TPropertyEnum;
class TPropertyText;
class TSchematic;

/**
 * Edits the nets of net wires of the schematic. The rows show the first wire's net. Class and colour are changed for
 * that net only, the level for all nets of the selection. Every edit is a command.
 */
class PROPERTIES_EXPORT TPropertySetForNet : public TPropertySet
{
    Q_OBJECT

public:
    /** Intended: the name of the set counts all items that are given. Reads the net wires of @p selection, all of
     * them on pages of @p schematic. */
    TPropertySetForNet(QList<TGraphicsItem*> selection, TSchematic* schematic);

public Q_SLOTS:
    void slotSetClass(QString newClass);
    /** "Default" or a digit. */
    void slotSetPrio(QString newLevel);
    void slotSetColor(const QColor& newColor);

private:
    bool HasNet() const;
    void MakeRows(bool onOneNet);

    TSchematic* schematic;
    QPointer<TPropertyText> net;
    QPointer<TPropertyEnum> netClass;
    QPointer<TPropertyEnum> level;
    QPointer<TPropertyColor> color;
    QString netName;  ///< The first wire's.
    QStringList nets; ///< Of all wires, each once, without the empty name; in order of appearance.
};
