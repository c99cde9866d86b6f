#pragma once

#include <objects/TGraphicsViaItem.h>

/** A pad. */
class TGraphicsPadItem : public TGraphicsViaItem
{
public:
    enum TypePadShape : int {
        ShapeRound = 1,
        ShapeSquare = 2,
        ShapeOctagon = 3,
        ShapeObround = 4,
        ShapeRectangle = 5,
        ShapeLongOctagon = 6,
    };

    int type() const override;

    QString Number() const;
    void SetNumber(const QString& text);
    QString Name() const;
    void SetName(const QString& text);
    void UpdateTextPaths();
    void SetWidth(double width);
    void SetHeight(double height);
    TypePadShape PadShape() const;
    void SetPadShape(TypePadShape shape);
    bool IsSMD() const;
    void SetTypeSMD(bool smd);
    void SetPadSide(Osmirel::Layer side);
    void SetMaskClearance(float clearance);
    bool PasteEnabled() const;
    void SetPasteEnabled(bool on);
    float PasteClearance() const;
    void SetPasteClearance(float clearance);

protected:
    QString number;
    QString name;
    TypePadShape padShape = ShapeRound;
    bool pasteEnabled = false;
    float pasteClearance = 0;
    Osmirel::Layer farLayer = copper.end; ///< Of a pad that goes through the board, while it is a surface pad.
};
