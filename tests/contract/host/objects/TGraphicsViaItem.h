#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QSizeF>

class TGraphicsSectionItem;

/** A plated hole: a via, and the base of pads. */
class TGraphicsViaItem : public TGraphicsItem
{
public:
    enum TypeThermal : int { ThermalAuto = 0, ThermalYes = 1, ThermalNo = 2 };

    TGraphicsViaItem();
    int type() const override;
    QRectF boundingRect() const override;

    double Width() const;
    double Height() const;
    void SetSize(double width, double height);
    float Drill() const;
    void SetDrill(float diameter);
    TypeThermal Thermal() const;
    void SetThermal(TypeThermal type);
    QString ViaGroup() const;
    void SetViaGroup(const QString& name);
    bool MaskEnabled() const;
    void SetMaskEnabled(bool on);
    float MaskClearance() const;
    void SetMaskClearance(float clearance);
    void Refresh();

    Osmirel::Layer StartLayer() const;
    Osmirel::Layer EndLayer() const;
    QList<Osmirel::Layer> EtchLayers() const;

    QList<TGraphicsSectionItem*> LinkedWires() const;
    void AddLinkedWire(TGraphicsSectionItem* wire);
    void RemoveLinkedWire(TGraphicsSectionItem* wire);
    TGraphicsItem* CreateCopy() const;
    void Assign(const TGraphicsItem& other);

protected:
    struct TCopper
    {
        QSizeF size{0, 0};
        float drill = 0;
        TypeThermal thermal = ThermalAuto;
        QString viaGroup;
        bool maskEnabled = false;
        float maskClearance = 0;
        Osmirel::Layer start = Osmirel::CopperTop;
        Osmirel::Layer end = static_cast<Osmirel::Layer>(Osmirel::CopperTop + Osmirel::maxCopperLayers - 1);
    };
    TCopper copper;
};
