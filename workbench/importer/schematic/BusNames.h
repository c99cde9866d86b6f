#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/** The names of buses, which say what nets are in them: `D[0..7]`, `USB{DP DM}`, `{ADDR CTRL}`. */
namespace BusNames {

struct TMember
{
    QString net; ///< As it is called on the sheet,
    QString key; ///< and what the same member of the same bus has in common wherever the bus has another name.
};

/** The members of a bus; none for the name of a single net. @p aliases has members of buses by further names. */
QVector<TMember> Members(const QString& name, const QHash<QString, QStringList>& aliases);

} // namespace BusNames
