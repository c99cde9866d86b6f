#include "properties/sets/TextRows.h"

#include <application/TApplication.h>
#include <graphics/TGraphicsTextItem.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr int fontSizes[] = {2,  3,  4,  5,  6,  7,  8,  9,  10, 12, 14, 16, 18,
                             20, 22, 24, 26, 28, 32, 36, 40, 48, 56, 64, 72};

} // namespace

void TextRows::AddFontSizes(TPropertyEnum& row)
{
    for (const int points : fontSizes) {
        row.AddItem(QString::number(points), points);
    }
}

int TextRows::OfferedFontSize(int points)
{
    const auto* next = std::lower_bound(std::begin(fontSizes), std::end(fontSizes), points);
    return next == std::end(fontSizes) ? *std::prev(next) : *next;
}

void TextRows::AddAlignments(TPropertyEnum& row, const QString& left, const QString& center, const QString& right)
{
    row.AddItem(left, Qt::AlignLeft);
    row.AddItem(center, Qt::AlignCenter);
    row.AddItem(right, Qt::AlignRight);
}

void TextRows::WriteLineWidth(TGraphicsTextItem& text, double width)
{
    text.SetLineWidth(static_cast<float>(width));
    text.UpdatePath(false);
}

void TextRows::AddFontNames(TPropertyEnum& row)
{
    constexpr int noValue = 0; // The texts themselves are the values.
    for (const QString& name : TApplication::CharSetNames()) {
        row.AddItem(name, noValue);
    }
}
