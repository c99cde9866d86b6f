#include "workbench/importer/format/Measures.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::string_view WithoutSign(std::string_view text)
{
    const bool hasSign = !text.empty() && (text.front() == '-' || text.front() == '+');
    return hasSign ? text.substr(1) : text;
}

/** Whether the text is digits with at most one point among them. */
bool IsUnsignedDecimal(std::string_view text)
{
    const auto points = std::count(text.begin(), text.end(), '.');
    const auto digits = std::count_if(text.begin(), text.end(), IsDigit);
    return points <= 1 && digits >= 1 && static_cast<std::size_t>(points + digits) == text.size();
}

constexpr qint64 AppendDigit(qint64 value, int digit)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    return value > (largest - digit) / 10 ? largest : value * 10 + digit;
}

} // namespace

std::optional<qint64> Measures::ParseMillionths(std::string_view text)
{
    constexpr std::size_t decimals = 6;
    const std::string_view magnitude = WithoutSign(text);
    if (!IsUnsignedDecimal(magnitude)) {
        return std::nullopt;
    }
    const std::size_t point = std::min(magnitude.find('.'), magnitude.size());
    const std::string_view whole = magnitude.substr(0, point);
    const std::string_view fraction = magnitude.substr(std::min(point + 1, magnitude.size()));

    qint64 value = 0;
    for (const char digit : whole) {
        value = AppendDigit(value, digit - '0');
    }
    for (std::size_t i = 0; i < decimals; ++i) {
        value = AppendDigit(value, i < fraction.size() ? fraction[i] - '0' : 0);
    }
    const bool roundsUp = fraction.size() > decimals && fraction[decimals] >= '5';
    if (roundsUp && value < std::numeric_limits<qint64>::max()) {
        ++value;
    }
    return text.front() == '-' ? -value : value;
}

std::optional<double> Measures::ParseDecimal(std::string_view text)
{
    const std::string_view magnitude = WithoutSign(text);
    double value = 0;
    if (!IsUnsignedDecimal(magnitude)
        || std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), value, std::chars_format::fixed).ec
               != std::errc()) {
        return std::nullopt;
    }
    return text.front() == '-' ? -value : value;
}

TGridPoint Measures::OnGrid(const QPointF& scenePoint)
{
    constexpr double nanometres = 254'000.0 / 3;
    return {std::llround(scenePoint.x() * nanometres), std::llround(scenePoint.y() * nanometres)};
}

double Measures::SceneRotation(qint64 counterclockwiseMillionths)
{
    constexpr qint64 degree = 1'000'000;
    qint64 clockwise = -(counterclockwiseMillionths % (360 * degree));
    if (clockwise > 180 * degree) {
        clockwise -= 360 * degree;
    } else if (clockwise < -180 * degree) {
        clockwise += 360 * degree;
    }
    return static_cast<double>(clockwise) / static_cast<double>(degree);
}
