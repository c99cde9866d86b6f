#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <graphics/TGraphicsTextItem.h>

/** Font sizes: points in the editor, pixels, which are scene units, in the item. */
namespace FontSize {

/** A point is 0.3528 mm: 4.166929133858268 scene units. */
constexpr double sceneUnitsPerPoint = 4.166929133858268;

/** Rounded towards zero. */
PROPERTIES_EXPORT int PixelsFromPoints(int points);
/** Rounded to the nearest, halves away from zero. */
PROPERTIES_EXPORT int PointsFromPixels(int pixels);

/** Writes a size of at least one pixel; a smaller one does not change the font. */
PROPERTIES_EXPORT void Write(QFont& font, int points);

} // namespace FontSize

namespace Attributes PROPERTIES_EXPORT {

/** An attribute of every text given, whose path is updated after the write. */
template <class ValueType>
struct OfText : Plain<TGraphicsTextItem, ValueType>
{
    static bool Accepts(const TGraphicsTextItem&) { return true; }
};

/** Whether a text is drawn in outlines instead of strokes. */
struct TextTrueType : OfText<bool>
{
    static bool Read(const TGraphicsTextItem& text) { return !text.IsVector(); }
    static void Write(TGraphicsTextItem& text, bool outlines)
    {
        text.SetVector(!outlines);
        text.UpdatePath(false);
    }
};

struct TextFontName : OfText<QString>
{
    static QString Read(const TGraphicsTextItem& text) { return text.Font().family(); }
    static void Write(TGraphicsTextItem& text, const QString& family)
    {
        text.Font().setFamily(family);
        text.UpdatePath(false);
    }
};

/** The font size in points. Undo restores whole points: other sizes are rounded. */
struct TextFontSize : OfText<int>
{
    static int Read(const TGraphicsTextItem& text) { return FontSize::PointsFromPixels(text.Font().pixelSize()); }
    static void Write(TGraphicsTextItem& text, int points)
    {
        FontSize::Write(text.Font(), points);
        text.UpdatePath(false);
    }
};

struct TextAlign : OfText<Qt::AlignmentFlag>
{
    /** Only the free texts among items of all kinds. */
    static bool Accepts(const TGraphicsItem& item) { return item.type() == ItemType::Text; }
    using OfText::Accepts;
    static Qt::AlignmentFlag FromEditor(int alignment) { return static_cast<Qt::AlignmentFlag>(alignment); }
    static Qt::AlignmentFlag Read(const TGraphicsTextItem& text) { return FromEditor(text.Alignment()); }
    static void Write(TGraphicsTextItem& text, Qt::AlignmentFlag alignment)
    {
        text.SetAlignment(alignment);
        text.UpdatePath(false);
    }
};

/** The angle in whole degrees. Undo does not restore a fraction of a degree. */
struct TextAngle : OfText<int>
{
    static int Read(const TGraphicsTextItem& text) { return Units::WholeFrom(text.rotation()); }
    static void Write(TGraphicsTextItem& text, int degrees) { text.setRotation(degrees); }
};

/** Whether a text is bold. Undo restores only the weights normal and bold. */
struct TextBold : OfText<bool>
{
    static bool Read(const TGraphicsTextItem& text);
    static void Write(TGraphicsTextItem& text, bool bold)
    {
        text.Font().setWeight(bold ? QFont::Bold : QFont::Normal);
        text.UpdatePath(false);
    }
};

/** Whether a text is slanted. Undo turns an oblique style into italic. */
struct TextItalic : OfText<bool>
{
    static bool Read(const TGraphicsTextItem& text) { return text.Font().style() != QFont::StyleNormal; }
    static void Write(TGraphicsTextItem& text, bool italic)
    {
        text.Font().setStyle(italic ? QFont::StyleItalic : QFont::StyleNormal);
        text.UpdatePath(false);
    }
};

struct TextLayer : OfText<Osmirel::Layer>
{
    static Osmirel::Layer Read(const TGraphicsTextItem& text) { return text.Layer(); }
    static void Write(TGraphicsTextItem& text, Osmirel::Layer layer) { text.SetLayer(layer); }
};

struct TextMirrH : OfText<bool>
{
    static bool Read(const TGraphicsTextItem& text) { return text.HasTFlag(TGraphicsItem::MirrorHorizontal); }
    static void Write(TGraphicsTextItem& text, bool on) { text.SetMirrorH(on); }
};

struct TextMirrV : OfText<bool>
{
    static bool Read(const TGraphicsTextItem& text) { return text.HasTFlag(TGraphicsItem::MirrorVertical); }
    static void Write(TGraphicsTextItem& text, bool on) { text.SetMirrorV(on); }
};

} // namespace Attributes

/** Sets texts in outlines (true) or in strokes. */
class PROPERTIES_EXPORT TCmdTextTrueType : public TAttributeCommand<Attributes::TextTrueType>
{
public:
    TCmdTextTrueType(QList<TGraphicsTextItem*> texts, bool outlines);
    TCommandKind Kind() const override;
};

/** Sets the font family of texts. */
class PROPERTIES_EXPORT TCmdTextFontName : public TAttributeCommand<Attributes::TextFontName>
{
public:
    TCmdTextFontName(QList<TGraphicsTextItem*> texts, const QString& family);
    TCommandKind Kind() const override;
};

/** Sets the font size of texts in points. Merges only with an equal size. */
class PROPERTIES_EXPORT TCmdTextFontSize
    : public TMergingCommand<Attributes::TextFontSize, CommandId::TextFontSize, MergeRule::EqualValue>
{
public:
    TCmdTextFontSize(QList<TGraphicsTextItem*> texts, int points);
    TCommandKind Kind() const override;
};

/** Sets the alignment of texts, a `Qt::AlignmentFlag`. */
class PROPERTIES_EXPORT TCmdTextAlign : public TAttributeCommand<Attributes::TextAlign>
{
public:
    TCmdTextAlign(QList<TGraphicsTextItem*> texts, int alignment);
    /** Keeps the free texts of a selection of any items. */
    TCmdTextAlign(const QList<TGraphicsItem*>& selection, int alignment);

    TCommandKind Kind() const override;
};

/** Sets the angle of texts in degrees. */
class PROPERTIES_EXPORT TCmdTextAngle : public TAttributeCommand<Attributes::TextAngle>
{
public:
    TCmdTextAngle(QList<TGraphicsTextItem*> texts, int degrees);
    TCommandKind Kind() const override;
};

/** Makes texts bold or not. */
class PROPERTIES_EXPORT TCmdTextBold : public TAttributeCommand<Attributes::TextBold>
{
public:
    TCmdTextBold(QList<TGraphicsTextItem*> texts, bool bold);
    TCommandKind Kind() const override;
};

/** Makes texts italic or not. */
class PROPERTIES_EXPORT TCmdTextItalic : public TAttributeCommand<Attributes::TextItalic>
{
public:
    TCmdTextItalic(QList<TGraphicsTextItem*> texts, bool italic);
    TCommandKind Kind() const override;
};

/** Moves texts to a layer. */
class PROPERTIES_EXPORT TCmdTextLayer : public TAttributeCommand<Attributes::TextLayer>
{
public:
    TCmdTextLayer(QList<TGraphicsTextItem*> texts, Osmirel::Layer layer);
    TCommandKind Kind() const override;
};

/** Mirrors texts horizontally or not. */
class PROPERTIES_EXPORT TCmdTextMirrH : public TAttributeCommand<Attributes::TextMirrH>
{
public:
    TCmdTextMirrH(QList<TGraphicsTextItem*> texts, bool on);
    TCommandKind Kind() const override;
};

/** Mirrors texts vertically or not. */
class PROPERTIES_EXPORT TCmdTextMirrV : public TAttributeCommand<Attributes::TextMirrV>
{
public:
    TCmdTextMirrV(QList<TGraphicsTextItem*> texts, bool on);
    TCommandKind Kind() const override;
};
