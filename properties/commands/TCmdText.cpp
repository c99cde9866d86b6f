#include "properties/commands/TCmdText.h"

#include <cmath>

namespace {

constexpr double millimetresPerPoint = 0.3528;

/** The heaviest weight that does not count as bold. */
constexpr int heaviestNotBold = 57;

} // namespace

int FontSize::PixelsFromPoints(int points)
{
    return static_cast<int>(points * millimetresPerPoint * Units::sceneUnitsPerMillimetre);
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

TCmdTextTrueType::TCmdTextTrueType(QList<TGraphicsTextItem*> texts, bool outlines) : TAttributeCommand(texts, outlines)
{}

TCmdTextFontName::TCmdTextFontName(QList<TGraphicsTextItem*> texts, const QString& family)
    : TAttributeCommand(texts, family)
{}

TCmdTextFontSize::TCmdTextFontSize(QList<TGraphicsTextItem*> texts, int points) : TMergingCommand(texts, points) {}

TCmdTextAlign::TCmdTextAlign(QList<TGraphicsTextItem*> texts, int alignment)
    : TAttributeCommand(texts, Attribute::FromEditor(alignment))
{}

TCmdTextAlign::TCmdTextAlign(const QList<TGraphicsItem*>& selection, int alignment)
    : TAttributeCommand(selection, Attribute::FromEditor(alignment))
{}

TCmdTextAngle::TCmdTextAngle(QList<TGraphicsTextItem*> texts, int degrees) : TAttributeCommand(texts, degrees) {}

TCmdTextBold::TCmdTextBold(QList<TGraphicsTextItem*> texts, bool bold) : TAttributeCommand(texts, bold) {}

TCmdTextItalic::TCmdTextItalic(QList<TGraphicsTextItem*> texts, bool italic) : TAttributeCommand(texts, italic) {}

TCmdTextLayer::TCmdTextLayer(QList<TGraphicsTextItem*> texts, Osmirel::Layer layer) : TAttributeCommand(texts, layer) {}

TCmdTextMirrH::TCmdTextMirrH(QList<TGraphicsTextItem*> texts, bool on) : TAttributeCommand(texts, on) {}

TCmdTextMirrV::TCmdTextMirrV(QList<TGraphicsTextItem*> texts, bool on) : TAttributeCommand(texts, on) {}
