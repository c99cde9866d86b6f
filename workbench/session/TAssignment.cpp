#include "workbench/session/TAssignment.h"

#include "properties/rows/TAbstractProperty.h"
#include "workbench/session/TSessionError.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace {

QString LabelOf(const TAbstractProperty& row)
{
    return row.text(TAbstractProperty::labelColumn);
}

/** What follows the label: an optional part, and the value. */
std::optional<TAssignment> AfterLabel(const QString& text, const QString& label)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\A(?:\.([A-Za-z0-9]+))?=(.*)\z)"),
                                            QRegularExpression::DotMatchesEverythingOption);
    if (!text.startsWith(label)) {
        return {};
    }
    const QRegularExpressionMatch match = pattern.match(text.mid(label.size()));
    if (!match.hasMatch()) {
        return {};
    }
    TAssignment assignment;
    assignment.part = match.captured(1);
    assignment.value = match.captured(2);
    return assignment;
}

QString Known(const QList<TAbstractProperty*>& rows)
{
    QStringList labels;
    for (const TAbstractProperty* row : rows) {
        if (row->Editor() && !row->isHidden()) {
            labels.append(QLatin1Char('"') + LabelOf(*row) + QLatin1Char('"'));
        }
    }
    return labels.isEmpty() ? QStringLiteral("none") : labels.join(QStringLiteral(", "));
}

} // namespace

TAssignment TAssignment::Resolve(const QString& text, const QList<TAbstractProperty*>& rows)
{
    TAssignment best;
    int longest = 0;
    for (TAbstractProperty* row : rows) {
        const QString label = LabelOf(*row);
        const QString bare = label.endsWith(QLatin1Char(':')) ? label.chopped(1) : label;
        for (const QString& name : {label, bare}) {
            const std::optional<TAssignment> found = AfterLabel(text, name);
            if (found && name.size() > longest) {
                longest = name.size();
                best = *found;
                best.row = row;
            }
        }
    }
    if (!best.row) {
        throw TSessionError(QStringLiteral("there is no row \"%1\"; the panel has %2")
                                .arg(text.section(QLatin1Char('='), 0, 0), Known(rows)));
    }
    return best;
}
