#include "workbench/session/TItemQuery.h"

#include "workbench/design/Picking.h"
#include "workbench/editing/Kinds.h"
#include "workbench/session/TSessionError.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

namespace {

QString KindsOf(const QList<TGraphicsItem*>& items)
{
    QStringList kinds;
    QSet<QString> seen;
    for (const TGraphicsItem* item : items) {
        const QString word = Kinds::Word(*item);
        if (!seen.contains(word)) {
            seen.insert(word);
            kinds.append(word);
        }
    }
    return kinds.isEmpty() ? QStringLiteral("nothing") : kinds.join(QStringLiteral(", "));
}

QList<TGraphicsItem*> OfKind(const QString& kind, const QList<TGraphicsItem*>& items, const QString& place)
{
    QList<TGraphicsItem*> found;
    for (TGraphicsItem* item : items) {
        if (kind.isEmpty() || Kinds::Word(*item) == kind) {
            found.append(item);
        }
    }
    if (found.isEmpty()) {
        throw TSessionError(kind.isEmpty()
                                ? QStringLiteral("%1 has nothing that can be selected").arg(place)
                                : QStringLiteral("%1 has no %2; it has %3").arg(place, kind, KindsOf(items)));
    }
    return found;
}

} // namespace

TItemQuery TItemQuery::Parse(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A([A-Za-z][A-Za-z0-9_-]*)(?:\[(\d{1,9})(?:\.\.(\d{1,9}))?\])?\z)"));
    TItemQuery query;
    for (const QString& partText : text.split(QLatin1Char(','))) {
        const QRegularExpressionMatch match = pattern.match(partText.trimmed());
        if (!match.hasMatch()) {
            throw TSessionError(
                QStringLiteral("\"%1\" is not a valid selection: a kind such as via, or all, with [i] or [i..j]")
                    .arg(partText));
        }
        TTerm part;
        part.kind = match.captured(1) == QLatin1String("all") ? QString() : match.captured(1);
        if (match.capturedLength(2) > 0) {
            part.first = match.captured(2).toInt();
            part.last = match.capturedLength(3) > 0 ? match.captured(3).toInt() : part.first;
            if (part.last < part.first) {
                throw TSessionError(QStringLiteral("\"%1\" ends before it begins").arg(partText));
            }
        }
        query.terms.append(part);
    }
    return query;
}

QList<TGraphicsItem*> TItemQuery::Find(const QList<TGraphicsItem*>& items, const QString& place) const
{
    const QList<TGraphicsItem*> all = Picking::Selectable(items);
    QList<TGraphicsItem*> found;
    QSet<TGraphicsItem*> seen;
    for (const TTerm& part : terms) {
        const QList<TGraphicsItem*> ofKind = OfKind(part.kind, all, place);
        const int last = part.last < 0 ? ofKind.size() - 1 : part.last;
        if (last >= ofKind.size()) {
            throw TSessionError(QStringLiteral("there is no %1[%2]: positions go from 0 to %3")
                                    .arg(part.kind.isEmpty() ? QStringLiteral("all") : part.kind)
                                    .arg(last)
                                    .arg(ofKind.size() - 1));
        }
        for (TGraphicsItem* item : ofKind.mid(part.first, last - part.first + 1)) {
            if (!seen.contains(item)) {
                seen.insert(item);
                found.append(item);
            }
        }
    }
    return found;
}
