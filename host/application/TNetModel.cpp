#include <application/TNetModel.h>

#include <graphics/engine/TStateText.h>

void TNetModel::AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                       int priority)
{
    AddNet({net, netClass, colorSch, colorPcb, QString::number(priority)});
}

void TNetModel::AddNet(const QVector<QVariant>& row)
{
    const QString net = row.value(Name).toString();
    if (net.isEmpty() || HasNet(net)) {
        return;
    }
    const int formerPlace = row.value(columnCount, nextPlace).toInt();
    const bool isFree = formerPlace >= 0 && formerPlace < nextPlace && rows.count(formerPlace) == 0;
    const int place = isFree ? formerPlace : nextPlace++;
    const auto added = rows.insert({place, Row{row}}).first;
    added->second.values.resize(columnCount);
    rowOf.insert(net, added);
    inOrder.clear();
}

QVector<QVariant> TNetModel::DeleteNet(const QString& net)
{
    if (!HasNet(net)) {
        return {};
    }
    const auto deleted = rowOf.take(net);
    QVector<QVariant> row = deleted->second.values;
    row.append(deleted->first);
    rows.erase(deleted);
    inOrder.clear();
    return row;
}

const QVector<const TNetModel::Row*>& TNetModel::InOrder() const
{
    if (inOrder.isEmpty()) {
        for (const auto& [place, row] : rows) {
            row.number = inOrder.size();
            inOrder.append(&row);
        }
    }
    return inOrder;
}

int TNetModel::NetRow(const QString& net) const
{
    const auto found = rowOf.constFind(net);
    if (found == rowOf.cend()) {
        return -1;
    }
    InOrder();
    return (*found)->second.number;
}

QVariant TNetModel::At(int row, Column column) const
{
    const QVector<const Row*>& all = InOrder();
    return row >= 0 && row < all.size() ? all[row]->values[column] : QVariant();
}

QString TNetModel::Text(const QString& net, Column column) const
{
    const auto found = rowOf.constFind(net);
    return found == rowOf.cend() ? QString() : (*found)->second.values[column].toString();
}

void TNetModel::Set(const QString& net, Column column, const QVariant& value)
{
    const auto found = rowOf.find(net);
    if (found != rowOf.end()) {
        (*found)->second.values[column] = value;
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
