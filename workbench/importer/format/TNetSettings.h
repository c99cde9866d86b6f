#pragma once

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QPair>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class TSchematic;

/**
 * The net classes and colours of a design, as the board file has them (the oldest ones) or the project file beside it.
 */
class TNetSettings
{
public:
    void AddClass(const QString& name);
    /** Puts a net into a class. Of several classes that claim a net the first one has it. */
    void Assign(const QString& net, const QString& netClass);

    /**
     * Takes over what a project file says of nets, and the clearance that copper keeps from the board's edge. Returns
     * what is wrong with the text, in which case nothing is taken over; empty if all is well.
     */
    QString ReadProject(const QByteArray& json);

    QString ClassOf(const QString& net) const;
    const QStringList& Classes() const { return classes; }
    /** In nanometres, if the project says it. */
    std::optional<qint64> EdgeClearance() const { return edgeClearance; }

    /** Gives a schematic the classes, and its net model the nets of these names. */
    void Fill(TSchematic& schematic, const QStringList& nets) const;

private:
    void AssignPattern(const QString& pattern, const QString& netClass);

    QStringList classes;
    QHash<QString, QString> classOfNet;
    QVector<QPair<QRegularExpression, QString>> patterns; ///< Of nets, with the class that they put them into.
    QHash<QString, QColor> colorOfNet;
    QHash<QString, QColor> boardColorOfClass;
    QHash<QString, QColor> schematicColorOfClass;
    std::optional<qint64> edgeClearance;
};
