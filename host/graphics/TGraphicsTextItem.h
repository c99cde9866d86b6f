#pragma once

#include <graphics/TGraphicsItem.h>

#include <QFont>

/**
 * A free text: on a layer, at an angle, of one or more lines, with its anchor at the item's position.
 *
 * The font's pixel size is a whole number of scene units. The plain setters only store; `UpdatePath` updates the
 * drawing. The mirror bits are in the flag word.
 */
class TGraphicsTextItem : public TGraphicsItem
{
public:
    explicit TGraphicsTextItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Text; }
    QString KindName() const override { return QStringLiteral("text"); }

    const QString& Text() const { return text; }
    void SetText(const QString& newText) { text = newText; }

    /** Family, pixel size in scene units, weight and style. */
    QFont& Font() { return font; }
    const QFont& Font() const { return font; }

    /** Whether the glyphs are stroked lines of the line width (vector font) or filled outlines. */
    bool IsVector() const { return vector; }
    void SetVector(bool on) { vector = on; }

    /** Which point of the text is at the position: a combination of `Qt::AlignmentFlag`. Without a vertical flag the
     * text is centred vertically. */
    int Alignment() const { return alignment; }
    void SetAlignment(int alignmentFlags) { alignment = alignmentFlags; }

    /** Stroke width of vector glyphs in scene units. Below the stem width of the font, glyphs are drawn unchanged. */
    float LineWidth() const { return lineWidth; }
    void SetLineWidth(float width) { lineWidth = width; }

    /** Mirror bits of the flag word. The setters update the drawing. */
    bool IsMirroredH() const { return HasTFlag(MirrorHorizontal); }
    bool IsMirroredV() const { return HasTFlag(MirrorVertical); }
    virtual void SetMirrorH(bool on);
    virtual void SetMirrorV(bool on);

    /** Lays the text out again and repaints. With @p keepPlace the position moves so that the text's centre does not.
     */
    void UpdatePath(bool keepPlace);

    void Flip() override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    const QPainterPath& Path() const;
    QPainterPath LaidOut() const;

    QString text;
    QFont font;
    bool vector = true;
    int alignment = Qt::AlignCenter;
    float lineWidth = 0;
    mutable QPainterPath path; ///< Computed lazily; empty until then.
    mutable QRectF extent;
};
