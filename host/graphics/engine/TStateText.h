#pragma once

#include <QString>
#include <QVector>

class QColor;
class QPainterPath;
class QPointF;
class QPolygonF;
class QSizeF;
class QStringList;

/**
 * Builds the canonical line of an item's whole state: the kind, then `name=value` pairs in the order in which
 * they are added. Numbers are written with the fewest digits that read back as the same value, so that two lines are
 * equal exactly when the states are.
 */
class TStateText
{
public:
    explicit TStateText(const QString& kind);

    TStateText& Add(const char* name, const QString& text);
    TStateText& Add(const char* name, const char* text);
    TStateText& Add(const char* name, bool value);
    TStateText& Add(const char* name, int value);
    TStateText& Add(const char* name, double value);
    TStateText& Add(const char* name, float value);
    TStateText& Add(const char* name, const QPointF& point);
    TStateText& Add(const char* name, const QSizeF& size);
    TStateText& Add(const char* name, const QColor& color);
    TStateText& Add(const char* name, const QPainterPath& path);
    TStateText& Add(const char* name, const QPolygonF& polygon);
    /** A list of words that do not need quotes. */
    TStateText& Add(const char* name, const QStringList& words);

    /** Appends a layer and scene points, without blanks. */
    TStateText& AddPlace(int layer, const QVector<QPointF>& points);

    const QString& Line() const { return line; }

private:
    void Append(const char* name, const QString& value);

    QString line;
};
