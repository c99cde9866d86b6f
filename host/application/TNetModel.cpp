#include <application/TNetModel.h>

#include <graphics/TStateText.h>

void TNetModel::AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                       int priority)
{
    AddNet({net, netClass, colorSch, colorPcb, QString::number(priority)});
}

void TNetModel::AddNet(const QVector<QVariant>& row)
{
    const QString net = row.value(Name).toString();
    if (!net.isEmpty() && !HasNet(net)) {
        rowOf.insert(net, rows.size());
        rows.append(row);
        rows.last().resize(columnCount);
    }
}

QVector<QVariant> TNetModel::DeleteNet(const QString& net)
{
    const int deleted = NetRow(net);
    if (deleted < 0) {
        return {};
    }
    const QVector<QVariant> row = rows.takeAt(deleted);
    rowOf.remove(net);
    for (int& other : rowOf) {
        if (other > deleted) {
            --other;
        }
    }
    return row;
}

QVariant TNetModel::At(int row, Column column) const
{
    return row >= 0 && row < rows.size() ? rows[row][column] : QVariant();
}

void TNetModel::Set(const QString& net, Column column, const QVariant& value)
{
    const int row = NetRow(net);
    if (row >= 0) {
        rows[row][column] = value;
    }
}

QString TNetModel::Dump() const
{
    QString dump;
    for (int row = 0; row < RowCount(); ++row) {
        TStateText state(QStringLiteral("net"));
        state.Add("name", NetName(row))
            .Add("class", Text(row, Class))
            .Add("colorSch", ColorSch(row))
            .Add("colorPcb", ColorPcb(row))
            .Add("priority", Text(row, PriorityLevel));
        dump += state.Line() + QLatin1Char('\n');
    }
    return dump;
}
