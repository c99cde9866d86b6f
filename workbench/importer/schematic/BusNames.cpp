#include "workbench/importer/schematic/BusNames.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int widestBus = 10'000;

/** The nets of `NAME[first..last]`; none for any other name. */
QStringList VectorNets(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^([^\s\[\]]*)\[(\d+)\.\.(\d+)\](.*)$)"));
    const QRegularExpressionMatch match = pattern.match(name);
    const int first = match.captured(2).toInt();
    const int last = match.captured(3).toInt();
    if (!match.hasMatch() || std::abs(last - first) >= widestBus) {
        return {};
    }
    QStringList nets;
    for (int number = std::min(first, last); number <= std::max(first, last); ++number) {
        nets.append(match.captured(1) + QString::number(number) + match.captured(4));
    }
    return nets;
}

/** The prefix and the content of `PREFIX{...}`. Braces after some characters mark up text instead. */
bool SplitGroup(const QString& name, QString& prefix, QString& content)
{
    const int open = name.indexOf(QLatin1Char('{'));
    const bool marksUp = open > 0 && QLatin1String("~$^_").contains(name[open - 1]);
    if (open < 0 || marksUp || !name.endsWith(QLatin1Char('}'))) {
        return false;
    }
    prefix = name.left(open);
    content = name.mid(open + 1, name.size() - open - 2);
    return true;
}

void AddNets(const QString& member, const QHash<QString, QStringList>& aliases, int depth, QStringList& nets)
{
    constexpr int deepest = 8; // Aliases may name each other.
    if (nets.size() >= widestBus) {
        return;
    }
    const auto alias = aliases.constFind(member);
    if (alias != aliases.constEnd() && depth < deepest) {
        for (const QString& each : *alias) {
            AddNets(each, aliases, depth + 1, nets);
        }
        return;
    }
    const QStringList vector = VectorNets(member);
    nets.append(vector.isEmpty() ? QStringList(member) : vector);
}

} // namespace

QVector<BusNames::TMember> BusNames::Members(const QString& name, const QHash<QString, QStringList>& aliases)
{
    QVector<TMember> members;
    QString prefix;
    QString content;
    if (!SplitGroup(name, prefix, content)) {
        const QStringList vector = VectorNets(name);
        for (int i = 0; i < vector.size(); ++i) {
            members.append({vector[i], QStringLiteral("#%1").arg(i)});
        }
        return members;
    }
    QStringList nets;
    const QStringList words = content.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        AddNets(word, aliases, 0, nets);
    }
    for (const QString& net : nets) {
        members.append({prefix.isEmpty() ? net : prefix + QLatin1Char('.') + net, net});
    }
    return members;
}
