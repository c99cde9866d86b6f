#pragma once

#include <QColor>
#include <QString>
#include <QVariant>
#include <QVector>

/** The table of a project's nets. */
class TNetModel
{
public:
    bool HasNet(const QString& net) const;
    int NetRow(const QString& net) const;
    void AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                int priority);
    void AddNet(const QVector<QVariant>& row);
    QVector<QVariant> DeleteNet(const QString& net);
    QColor ColorSch(int row) const;
    QColor ColorPcb(int row) const;
    void SetColorPcb(const QString& net, const QColor& color);
    QString NetClass(const QString& net) const;
    void SetNetClass(const QString& net, const QString& netClass);
    QString Priority(const QString& net) const;
    void SetPriority(const QString& net, const QString& level);

protected:
    enum Column : int { Name, Class, ColorOfSchematic, ColorOfBoard, PriorityLevel, Place };

    QVariant At(int row, Column column) const;
    void Set(const QString& net, Column column, const QVariant& value);

    friend class TSchematic;
    QVector<QVector<QVariant>> rows;
};
