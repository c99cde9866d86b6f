#pragma once

#include "properties/TPropertySet.h"

class TGraphicsWireItem;
class TProject;
class TPropertyColor;
class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyLayer;
class TPropertyText;

/**
 * Edits wires of the board, and class and colour of their net in a project that keeps schematic and board in sync. The
 * rows show the last wire's width and layer; the net rows are those of the first wire's net.
 */
class PROPERTIES_EXPORT TPropertySetForWire : public TPropertySet
{
    Q_OBJECT

public:
    TPropertySetForWire(const QList<TGraphicsItem*>& selection, TProject* project);

    /** Digits set the width: "1" to "9" tenths of a millimetre, "0" one millimetre; "O" changes the side. */
    void KeyPressEvent(QKeyEvent* event) override;

public Q_SLOTS:
    void SetLayer(Osmirel::Layer newLayer);
    /** In millimetres. */
    void SetWidth(qreal newWidth);
    /** @{ Net attributes are always changed by a command. */
    void SetClass(QString newClass);
    void SetColor(const QColor& newColor);
    /** @} */
    /** A `QPainter::CompositionMode`; written at once, without a command. */
    void SetCompMode(int mode);

private:
    void MakeWireRows();
    void MakeNetRows();
    void MakeNetClassRow(bool onOneNet);
    QList<Osmirel::Layer> OfferedLayers() const;
    bool ShowsNetRows() const;
    bool IsOnOneNet() const;

    QList<TGraphicsWireItem*> wires;
    QPointer<TPropertyText> net;
    QPointer<TPropertyEnum> netClass;
    QPointer<TPropertyFloatSpin> width;
    QPointer<TPropertyLayer> layer;
    QPointer<TPropertyColor> color;
    QPointer<TPropertyEnum> compositionMode;
    TProject* project;
    QString netName; ///< The first wire's.
};
