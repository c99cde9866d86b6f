#include <application/TNetModel.h>

#include <graphics/TStateText.h>

#include <algorithm>

void TNetModel::AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                       int priority)
{
    AddNet({net, netClass, colorSch, colorPcb, QString::number(priority)});
}

void TNetModel::AddNet(const QVector<QVariant>& row)
{
    const QString net = row.value(Name).toString();
    if (!net.isEmpty() && !HasNet(net)) {
        const int place = row.size() > columnCount ? row[columnCount].toInt() : rows.size();
        const int index = std::clamp(place, 0, rows.size());
        ShiftRows(index, 1);
        rowOf.insert(net, index);
        rows.insert(index, row);
        rows[index].resize(columnCount);
    }
}

void TNetModel::ShiftRows(int from, int by)
{
    if (from >= rows.size()) {
        return;
    }
    for (int& row : rowOf) {
        row += row >= from ? by : 0;
    }
}

QVector<QVariant> TNetModel::DeleteNet(const QString& net)
{
    const int deleted = NetRow(net);
    if (deleted < 0) {
        return {};
    }
    rowOf.remove(net);
    ShiftRows(deleted, -1);
    return rows.takeAt(deleted) << deleted;
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
