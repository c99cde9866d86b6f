#pragma once

#include "properties/TPropertySet.h"

class TGraphicsTextItem;
class TPropertyCheck;
class TPropertyCheck2;
class TPropertyColor;
class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyLayer;

/**
 * Edits texts. The font kind is the first text's and the line width the last one's; a row for any other value shows it
 * if all texts share it.
 */
class PROPERTIES_EXPORT TPropertySetForText : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the texts and tags of @p selection; @p layers are those that the "Layer:" row offers. */
    TPropertySetForText(const QList<TGraphicsItem*>& selection, QList<Osmirel::Layer> layers);

public Q_SLOTS:
    void SetColor(const QColor& newColor);
    /** In points. */
    void SetFontSize(int points);
    void SetLayer(Osmirel::Layer newLayer);
    void SetBold(bool on);
    void SetItalic(bool on);
    /** A `Qt::AlignmentFlag`. */
    void SetAlign(int newAlignment);
    /** In degrees. */
    void SetAngle(int degrees);
    /** 0 for strokes, 1 for outlines. */
    void SetTrueTrue(int outlines);
    void SetFontName(QString family);
    void SetMirrorV(bool on);
    void SetMirrorH(bool on);
    /** The stroke width in scene units. Intended: always written at once, so that it cannot be undone. */
    void SetLine(double width);

private:
    struct Values;
    void MakeFontRows(const Values& values);
    void MakePlacementRows(const Values& values, const QList<Osmirel::Layer>& layers);
    void AddRows(bool onlyAngleAndLine, bool hasLayers);

    QList<TGraphicsTextItem*> texts;
    QPointer<TPropertyEnum> type;
    QPointer<TPropertyEnum> fontName;
    QPointer<TPropertyEnum> fontSize;
    QPointer<TPropertyEnum> alignment;
    QPointer<TPropertyEnum> angle;
    QPointer<TPropertyCheck2> mirror;
    QPointer<TPropertyCheck> bold;
    QPointer<TPropertyCheck> italic;
    QPointer<TPropertyLayer> layer;
    QPointer<TPropertyColor> color;
    QPointer<TPropertyFloatSpin> lineWidth;
};
