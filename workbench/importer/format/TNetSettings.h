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
    /** Assigns a net to a class. If several classes claim a net, the first one wins. */
    void Assign(const QString& net, const QString& netClass);

    /**
     * Reads the nets of a project file, and the clearance of copper to the board's edge. Returns the error in the text,
     * in which case nothing is read; empty on success.
     */
    QString ReadProject(const QByteArray& json);

    QString ClassOf(const QString& net) const;
    const QStringList& Classes() const { return classes; }
    /** In nanometres, if the project has it. */
    std::optional<qint64> EdgeClearance() const { return edgeClearance; }

    /** Adds the classes to a schematic, and the nets of these names to its net model. */
    void Fill(TSchematic& schematic, const QStringList& nets) const;

private:
    void AssignPattern(const QString& pattern, const QString& netClass);

    QStringList classes;
    QHash<QString, QString> classOfNet;
    QVector<QPair<QRegularExpression, QString>> patterns; ///< Patterns of net names, with the class of the nets.
    QHash<QString, QColor> colorOfNet;
    QHash<QString, QColor> boardColorOfClass;
    QHash<QString, QColor> schematicColorOfClass;
    std::optional<qint64> edgeClearance;
};
