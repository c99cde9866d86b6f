#pragma once

#include <graphics/TGraphicsItem.h>

/** A copper area that fills itself. */
class TGraphicsPourItem : public TGraphicsItem
{
public:
    int type() const override;

    double ClearanceToEtch() const;
    void SetClearanceToEtch(double clearance);
    double ClearanceToBorder() const;
    void SetClearanceToBorder(double clearance);
    double ClearanceToPour() const;
    void SetClearanceToPour(double clearance);
    int FillType() const;
    void SetFillType(int brushStyle);
    double LineWidth() const;
    void SetLineWidth(double width);
    double MinimumArea() const;
    void SetMinimumArea(double squareMillimetres);
    bool OnlyConnected() const;
    void SetOnlyConnected(bool on);
    quint8 Priority() const;
    void SetPriority(quint8 level);
    bool ThermalEnable() const;
    void SetThermalEnable(bool on);
    double ThermalLine() const;
    void SetThermalLine(double width);
    double ThermalIsolation() const;
    void SetThermalIsolation(double distance);
    int CompositionMode() const;
    void SetCompositionMode(int mode);
    void SetAlpha(int newAlpha);
    void SetNet(const QString& net);
    void Fill();

protected:
    double clearanceToEtch = 0;
    double clearanceToBorder = 0;
    double clearanceToPour = 0;
    int fillType = Qt::SolidPattern;
    double lineWidth = 0;
    double minimumArea = 0;
    bool onlyConnected = false;
    quint8 priority = 0;
    bool thermalEnable = false;
    double thermalLine = 0;
    double thermalIsolation = 0;
    int compositionMode = 0;
    int alpha = 0;
};
