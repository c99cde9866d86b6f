#include "workbench/importer/format/TNetSettings.h"

#include "workbench/importer/format/ElementValues.h"

#include <application/TSchematic.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

/** Such as "rgba(0, 132, 0, 1.000)" or "rgb(0, 132, 0)"; invalid for other texts and full transparency. */
QColor Color(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^rgba?\(\s*(\d+)\s*,\s*(\d+)\s*,\s*(\d+)\s*(?:,\s*([\d.]+)\s*)?\)$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    const bool isTransparent = !match.captured(4).isEmpty() && match.captured(4).toDouble() <= 0;
    if (!match.hasMatch() || isTransparent) {
        return {};
    }
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
}

void InsertColor(QHash<QString, QColor>& colors, const QString& name, const QJsonValue& value)
{
    const QColor color = Color(value.toString());
    if (color.isValid()) {
        colors.insert(name, color);
    }
}

} // namespace

void TNetSettings::AddClass(const QString& name)
{
    if (!name.isEmpty() && !classes.contains(name)) {
        classes.append(name);
    }
}

void TNetSettings::Assign(const QString& net, const QString& netClass)
{
    if (!classOfNet.contains(net)) {
        classOfNet.insert(net, netClass);
    }
}

void TNetSettings::AssignPattern(const QString& pattern, const QString& netClass)
{
    const bool hasWildcard = std::any_of(pattern.begin(), pattern.end(),
                                         [](QChar c) { return c == QLatin1Char('*') || c == QLatin1Char('?'); });
    if (!hasWildcard) {
        Assign(ElementValues::WithoutWrittenOutCharacters(pattern), netClass);
        return;
    }
    // Net names contain slashes, which the toolkit's wildcards do not match.
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QStringLiteral("\\*"), QStringLiteral(".*")).replace(QStringLiteral("\\?"), QStringLiteral("."));
    patterns.append({QRegularExpression(QRegularExpression::anchoredPattern(expression)), netClass});
}

QString TNetSettings::ReadProject(const QByteArray& json)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        const auto line = json.left(error.offset).count('\n') + 1;
        return QStringLiteral("%1: %2").arg(line).arg(error.errorString());
    }
    const QJsonObject settings = document.object().value(QLatin1String("net_settings")).toObject();
    const QJsonArray classList = settings.value(QLatin1String("classes")).toArray();
    for (const QJsonValue& value : classList) {
        const QJsonObject netClass = value.toObject();
        const QString name = netClass.value(QLatin1String("name")).toString();
        AddClass(name);
        InsertColor(boardColorOfClass, name, netClass.value(QLatin1String("pcb_color")));
        InsertColor(schematicColorOfClass, name, netClass.value(QLatin1String("schematic_color")));
        const QJsonArray members = netClass.value(QLatin1String("nets")).toArray();
        for (const QJsonValue& net : members) {
            Assign(ElementValues::WithoutWrittenOutCharacters(net.toString()), name);
        }
    }
    const QJsonArray patternList = settings.value(QLatin1String("netclass_patterns")).toArray();
    for (const QJsonValue& value : patternList) {
        const QJsonObject each = value.toObject();
        AssignPattern(each.value(QLatin1String("pattern")).toString(),
                      each.value(QLatin1String("netclass")).toString());
    }
    const QJsonObject assignments = settings.value(QLatin1String("netclass_assignments")).toObject();
    for (auto each = assignments.begin(); each != assignments.end(); ++each) {
        const QJsonValue first = each->isArray() ? each->toArray().first() : *each;
        Assign(ElementValues::WithoutWrittenOutCharacters(each.key()), first.toString());
    }
    const QJsonObject colors = settings.value(QLatin1String("net_colors")).toObject();
    for (auto each = colors.begin(); each != colors.end(); ++each) {
        InsertColor(colorOfNet, ElementValues::WithoutWrittenOutCharacters(each.key()), *each);
    }
    const QJsonValue clearance = document.object()
                                     .value(QLatin1String("board"))
                                     .toObject()
                                     .value(QLatin1String("design_settings"))
                                     .toObject()
                                     .value(QLatin1String("rules"))
                                     .toObject()
                                     .value(QLatin1String("min_copper_edge_clearance"));
    constexpr double largest = 1000;
    if (clearance.toDouble(-1) >= 0 && clearance.toDouble() < largest) {
        edgeClearance = std::llround(clearance.toDouble() * 1e6);
    }
    return {};
}

QString TNetSettings::ClassOf(const QString& net) const
{
    const auto assigned = classOfNet.constFind(net);
    if (assigned != classOfNet.constEnd()) {
        return *assigned;
    }
    const auto matching = std::find_if(patterns.begin(), patterns.end(),
                                       [&net](const auto& pattern) { return pattern.first.match(net).hasMatch(); });
    return matching == patterns.end() ? QStringLiteral("Default") : matching->second;
}

void TNetSettings::Fill(TSchematic& schematic, const QStringList& nets) const
{
    for (const QString& name : classes) {
        schematic.AddNetClass(name);
    }
    for (const QString& net : nets) {
        const QString netClass = ClassOf(net);
        schematic.AddNetClass(netClass);
        const QColor own = colorOfNet.value(net);
        const QColor onPage = own.isValid() ? own : schematicColorOfClass.value(netClass);
        const QColor onBoard = own.isValid() ? own : boardColorOfClass.value(netClass);
        schematic.NetModel()->AddNet({net, netClass, onPage, onBoard, QStringLiteral("Default")});
    }
}
