#include <graphics/engine/TStateText.h>

#include <QColor>
#include <QLocale>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <QStringList>

namespace {

QString Number(double value)
{
    constexpr double zero = 0.0; // Negative zero is written as zero: the two are equal.
    return QString::number(value == zero ? zero : value, 'g', QLocale::FloatingPointShortest);
}

void AddPair(QString& text, double first, double second)
{
    text += QLatin1Char('(');
    text += Number(first);
    text += QLatin1Char(',');
    text += Number(second);
    text += QLatin1Char(')');
}

QString Pair(double first, double second)
{
    QString pair;
    AddPair(pair, first, second);
    return pair;
}

} // namespace

// Whole designs are described repeatedly: append to the line in place.
TStateText::TStateText(const QString& kind)
{
    constexpr int usualLength = 400;
    line.reserve(usualLength);
    line += kind;
}

void TStateText::Append(const char* name, const QString& value)
{
    line += QLatin1Char(' ');
    line += QLatin1String(name);
    line += QLatin1Char('=');
    line += value;
}

TStateText& TStateText::Add(const char* name, const QString& text)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    quoted.replace(QLatin1Char('"'), QLatin1String("\\\""));
    quoted.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    quoted.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    Append(name, QLatin1Char('"') + quoted + QLatin1Char('"'));
    return *this;
}

TStateText& TStateText::Add(const char* name, const char* text)
{
    return Add(name, QString::fromUtf8(text));
}

TStateText& TStateText::Add(const char* name, bool value)
{
    Append(name, value ? QStringLiteral("yes") : QStringLiteral("no"));
    return *this;
}

TStateText& TStateText::Add(const char* name, int value)
{
    Append(name, QString::number(value));
    return *this;
}

TStateText& TStateText::Add(const char* name, double value)
{
    Append(name, Number(value));
    return *this;
}

TStateText& TStateText::Add(const char* name, float value)
{
    return Add(name, static_cast<double>(value));
}

TStateText& TStateText::Add(const char* name, const QPointF& point)
{
    Append(name, Pair(point.x(), point.y()));
    return *this;
}

TStateText& TStateText::Add(const char* name, const QSizeF& size)
{
    Append(name, Pair(size.width(), size.height()));
    return *this;
}

TStateText& TStateText::Add(const char* name, const QColor& color)
{
    Append(name, color.isValid() ? color.name(QColor::HexArgb) : QStringLiteral("default"));
    return *this;
}

TStateText& TStateText::Add(const char* name, const QPainterPath& path)
{
    QString points;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        points += QString::number(element.type);
        AddPair(points, element.x, element.y);
    }
    Append(name, points);
    return *this;
}

TStateText& TStateText::Add(const char* name, const QPolygonF& polygon)
{
    QString points;
    for (const QPointF& point : polygon) {
        AddPair(points, point.x(), point.y());
    }
    Append(name, points);
    return *this;
}

TStateText& TStateText::Add(const char* name, const QStringList& words)
{
    Append(name, QLatin1Char('[') + words.join(QLatin1Char(',')) + QLatin1Char(']'));
    return *this;
}

TStateText& TStateText::AddPlace(int layer, const QVector<QPointF>& points)
{
    line += QLatin1Char('@') + QString::number(layer);
    for (const QPointF& point : points) {
        AddPair(line, point.x(), point.y());
    }
    return *this;
}
