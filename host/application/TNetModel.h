#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QVariant>
#include <QVector>

#include <map>

/**
 * The table of a project's nets: a row for each, in the order in which they were added, found by name. Owned by its
 * schematic. The row of an unknown net is -1, and all its values are empty; writing to it is a no-op.
 */
class TNetModel
{
public:
    /** A row's values in their order. The type of each: `QString`, `QString`, `QColor`, `QColor`, `QString`. */
    enum Column : int { Name, Class, ColorOfSchematic, ColorOfBoard, PriorityLevel, columnCount };

    TNetModel() = default;
    TNetModel(const TNetModel&) = delete;
    TNetModel& operator=(const TNetModel&) = delete;

    int RowCount() const { return rowOf.size(); }
    bool HasNet(const QString& net) const { return rowOf.contains(net); }
    int NetRow(const QString& net) const;
    QString NetName(int row) const { return Text(row, Name); }

    /** Adds a net; a no-op if the net exists or the name is empty. */
    void AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                int priority);
    /** Adds a net with the values of a whole row. A row that `DeleteNet` returned goes back to its place among the
     *  others, so that adding deleted rows, in any order, restores the table. */
    void AddNet(const QVector<QVariant>& row);
    /** Removes a net and returns its row, its values followed by its place; empty if there was none. The rows after it
     *  move up: they are renumbered when a row is next read by number. */
    QVector<QVariant> DeleteNet(const QString& net);

    /** Colours by row; invalid for none. */
    QColor ColorSch(int row) const { return At(row, ColorOfSchematic).value<QColor>(); }
    QColor ColorPcb(int row) const { return At(row, ColorOfBoard).value<QColor>(); }
    void SetColorSch(const QString& net, const QColor& color) { Set(net, ColorOfSchematic, color); }
    void SetColorPcb(const QString& net, const QColor& color) { Set(net, ColorOfBoard, color); }

    /** The net's class; empty stands for the default class. */
    QString NetClass(const QString& net) const { return Text(net, Class); }
    void SetNetClass(const QString& net, const QString& netClass) { Set(net, Class, netClass); }

    /** The net's routing priority as text: a digit, or "Default". */
    QString Priority(const QString& net) const { return Text(net, PriorityLevel); }
    void SetPriority(const QString& net, const QString& level) { Set(net, PriorityLevel, level); }

    /** The state of every net, one line each, in the order of their rows. */
    QString Dump() const;

private:
    struct Row
    {
        QVector<QVariant> values;
        mutable int number = 0; ///< Valid while `inOrder` is.
    };
    /** By place. Places only grow and are never reused. */
    using Rows = std::map<int, Row>;

    QVariant At(int row, Column column) const;
    QString Text(int row, Column column) const { return At(row, column).toString(); }
    QString Text(const QString& net, Column column) const;
    void Set(const QString& net, Column column, const QVariant& value);
    /** The rows in order. Renumbers them if nets were added or removed since. */
    const QVector<const Row*>& InOrder() const;

    Rows rows;
    QHash<QString, Rows::iterator> rowOf;
    int nextPlace = 0;
    mutable QVector<const Row*> inOrder; ///< Empty when it is out of date.
};
