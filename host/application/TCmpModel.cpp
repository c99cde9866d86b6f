#include <application/TCmpModel.h>

#include <graphics/engine/TStateText.h>

#include <QPair>

void TCmpModel::Add(unsigned short number, const TCmpModelItem& item)
{
    if (number != 0) {
        items[number] = item;
    }
}

TCmpModelItem* TCmpModel::CmpModelItem(unsigned short number)
{
    const auto found = items.find(number);
    return found == items.end() ? nullptr : &found->second;
}

void TCmpModel::UpdateCount()
{
    QHash<QPair<QString, QString>, int> counts;
    for (const auto& [number, item] : items) {
        ++counts[{item.value, item.package}];
    }
    for (auto& [number, item] : items) {
        item.count = counts.value({item.value, item.package});
    }
}

QString TCmpModel::Dump() const
{
    QString dump;
    for (const auto& [number, item] : items) {
        TStateText state(QStringLiteral("component"));
        state.Add("number", static_cast<int>(number))
            .Add("refDes", item.refDes)
            .Add("value", item.value)
            .Add("package", item.package)
            .Add("count", item.count);
        dump += state.Line() + QLatin1Char('\n');
    }
    return dump;
}
