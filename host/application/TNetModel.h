#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QVariant>
#include <QVector>

/**
 * The table of a project's nets: a row for each, in the order in which they were added, found by name. Owned by its
 * schematic. A row read for a net that is not there is -1, and every value of it empty; writing to it does nothing.
 */
class TNetModel
{
public:
    /** A row's values in their order. The type of each: `QString`, `QString`, `QColor`, `QColor`, `QString`. */
    enum Column : int { Name, Class, ColorOfSchematic, ColorOfBoard, PriorityLevel, columnCount };

    int RowCount() const { return rows.size(); }
    bool HasNet(const QString& net) const { return rowOf.contains(net); }
    int NetRow(const QString& net) const { return rowOf.value(net, -1); }
    QString NetName(int row) const { return Text(row, Name); }

    /** Adds a net. A net that is there already, or has no name, is left alone. */
    void AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                int priority);
    /** Adds a net with the values of a whole row. A row that `DeleteNet` returned goes back to its place, so that rows
     *  that are given back in reverse order restore the table. */
    void AddNet(const QVector<QVariant>& row);
    /** Removes a net and returns its row, and behind its values the place of it; empty if there was none. The rows
     * after it move up. */
    QVector<QVariant> DeleteNet(const QString& net);

    /** Colours by row; invalid for none. */
    QColor ColorSch(int row) const { return At(row, ColorOfSchematic).value<QColor>(); }
    QColor ColorPcb(int row) const { return At(row, ColorOfBoard).value<QColor>(); }
    void SetColorSch(const QString& net, const QColor& color) { Set(net, ColorOfSchematic, color); }
    void SetColorPcb(const QString& net, const QColor& color) { Set(net, ColorOfBoard, color); }

    /** The net's class; empty stands for the default class. */
    QString NetClass(const QString& net) const { return Text(NetRow(net), Class); }
    void SetNetClass(const QString& net, const QString& netClass) { Set(net, Class, netClass); }

    /** The net's routing priority as text: a digit, or "Default". */
    QString Priority(const QString& net) const { return Text(NetRow(net), PriorityLevel); }
    void SetPriority(const QString& net, const QString& level) { Set(net, PriorityLevel, level); }

    /** The state of every net, one line each, in the order of their rows. */
    QString Dump() const;

private:
    QVariant At(int row, Column column) const;
    QString Text(int row, Column column) const { return At(row, column).toString(); }
    void Set(const QString& net, Column column, const QVariant& value);
    /** Moves what is known of the rows' numbers, from a row on, by one up or down. */
    void ShiftRows(int from, int by);

    QVector<QVector<QVariant>> rows;
    QHash<QString, int> rowOf;
};
