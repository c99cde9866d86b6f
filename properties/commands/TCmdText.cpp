#include "properties/commands/TCmdText.h"

#include "properties/commands/AttributeCommandEngine.h"

#include <cmath>

namespace {

constexpr double millimetresPerPoint = 0.3528;

/** The heaviest weight that does not count as bold. */
constexpr int heaviestNotBold = 57;

} // namespace

int FontSize::PixelsFromPoints(int points)
{
    return Units::WholeFrom(points * millimetresPerPoint * Units::sceneUnitsPerMillimetre);
}

int FontSize::PointsFromPixels(int pixels)
{
    return static_cast<int>(std::lround(static_cast<double>(static_cast<float>(pixels)) / sceneUnitsPerPoint));
}

void FontSize::Write(QFont& font, int points)
{
    const int pixels = PixelsFromPoints(points);
    if (pixels > 0) {
        font.setPixelSize(pixels);
    }
}

bool Attributes::TextBold::Read(const TGraphicsTextItem& text)
{
    return text.Font().weight() > heaviestNotBold;
}

template class TAttributeCommand<Attributes::TextTrueType>;

TCmdTextTrueType::TCmdTextTrueType(QList<TGraphicsTextItem*> texts, bool outlines) : TAttributeCommand(texts, outlines)
{}

TCommandKind TCmdTextTrueType::Kind() const
{
    return {"TextTrueType", QT_TRANSLATE_NOOP("TCommandKind", "Change font kind of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextFontName>;

TCmdTextFontName::TCmdTextFontName(QList<TGraphicsTextItem*> texts, const QString& family)
    : TAttributeCommand(texts, family)
{}

TCommandKind TCmdTextFontName::Kind() const
{
    return {"TextFontName", QT_TRANSLATE_NOOP("TCommandKind", "Change font of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TMergingCommand<Attributes::TextFontSize, CommandId::TextFontSize, MergeRule::EqualValue>;

TCmdTextFontSize::TCmdTextFontSize(QList<TGraphicsTextItem*> texts, int points) : TMergingCommand(texts, points) {}

TCommandKind TCmdTextFontSize::Kind() const
{
    return {"TextFontSize", QT_TRANSLATE_NOOP("TCommandKind", "Change font size of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextAlign>;

TCmdTextAlign::TCmdTextAlign(QList<TGraphicsTextItem*> texts, int alignment)
    : TAttributeCommand(texts, Attribute::FromEditor(alignment))
{}

TCmdTextAlign::TCmdTextAlign(const QList<TGraphicsItem*>& selection, int alignment)
    : TAttributeCommand(selection, Attribute::FromEditor(alignment))
{}

TCommandKind TCmdTextAlign::Kind() const
{
    return {"TextAlign", QT_TRANSLATE_NOOP("TCommandKind", "Change alignment of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextAngle>;

TCmdTextAngle::TCmdTextAngle(QList<TGraphicsTextItem*> texts, int degrees) : TAttributeCommand(texts, degrees) {}

TCommandKind TCmdTextAngle::Kind() const
{
    return {"TextAngle", QT_TRANSLATE_NOOP("TCommandKind", "Change angle of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextBold>;

TCmdTextBold::TCmdTextBold(QList<TGraphicsTextItem*> texts, bool bold) : TAttributeCommand(texts, bold) {}

TCommandKind TCmdTextBold::Kind() const
{
    return {"TextBold", QT_TRANSLATE_NOOP("TCommandKind", "Switch bold of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextItalic>;

TCmdTextItalic::TCmdTextItalic(QList<TGraphicsTextItem*> texts, bool italic) : TAttributeCommand(texts, italic) {}

TCommandKind TCmdTextItalic::Kind() const
{
    return {"TextItalic", QT_TRANSLATE_NOOP("TCommandKind", "Switch italic of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextLayer>;

TCmdTextLayer::TCmdTextLayer(QList<TGraphicsTextItem*> texts, Osmirel::Layer layer) : TAttributeCommand(texts, layer) {}

TCommandKind TCmdTextLayer::Kind() const
{
    return {"TextLayer", QT_TRANSLATE_NOOP("TCommandKind", "Change layer of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextMirrH>;

TCmdTextMirrH::TCmdTextMirrH(QList<TGraphicsTextItem*> texts, bool on) : TAttributeCommand(texts, on) {}

TCommandKind TCmdTextMirrH::Kind() const
{
    return {"TextMirrH", QT_TRANSLATE_NOOP("TCommandKind", "Mirror %1 horizontally"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}

template class TAttributeCommand<Attributes::TextMirrV>;

TCmdTextMirrV::TCmdTextMirrV(QList<TGraphicsTextItem*> texts, bool on) : TAttributeCommand(texts, on) {}

TCommandKind TCmdTextMirrV::Kind() const
{
    return {"TextMirrV", QT_TRANSLATE_NOOP("TCommandKind", "Mirror %1 vertically"),
            QT_TRANSLATE_NOOP("TCommandKind", "texts")};
}
