#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/** The names of buses, which list their nets: `D[0..7]`, `USB{DP DM}`, `{ADDR CTRL}`. */
namespace BusNames {

struct TMember
{
    QString net; ///< Its name on the sheet,
    QString key; ///< and the key of the member, the same wherever the bus has another name.
};

/** The members of a bus; none for the name of a single net. @p aliases has the members of buses by alias. */
QVector<TMember> Members(const QString& name, const QHash<QString, QStringList>& aliases);

} // namespace BusNames
