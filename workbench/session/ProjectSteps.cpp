#include "workbench/session/TSession.h"

#include "workbench/design/TDesign.h"
#include "workbench/session/TSessionError.h"
#include "workbench/window/TDocumentTabs.h"
#include "workbench/window/TMainWindow.h"
#include "workbench/window/TNavigation.h"

#include <QUndoStack>

#include <algorithm>

namespace {

/** Such as `1 "Top", 2 "Power"`. */
QString Described(const QString& number, const QString& name)
{
    return QStringLiteral("%1 \"%2\"").arg(number, name);
}

/**
 * The row that a text refers to: by number if it is all digits, otherwise by name. Throws `TSessionError` if there is
 * none or there are several.
 */
template <class Row, class NumberOf, class NameOf>
Row& FindRow(const QList<Row*>& rows, const QString& text, const QString& kind, NumberOf numberOf, NameOf nameOf)
{
    const bool isNumber =
        !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= '0' && c <= '9'; });
    QList<Row*> found;
    QStringList numbers;
    QStringList known;
    for (Row* row : rows) {
        const QString number = QString::number(numberOf(*row));
        known.append(Described(number, nameOf(*row)));
        if (isNumber ? text.toInt() == numberOf(*row) : nameOf(*row) == text) {
            found.append(row);
            numbers.append(number);
        }
    }
    if (found.size() > 1) {
        throw TSessionError(QStringLiteral("there are %1 %2s \"%3\": give the number, %4")
                                .arg(QString::number(found.size()), kind, text, numbers.join(QStringLiteral(" or "))));
    }
    if (found.isEmpty()) {
        constexpr int mostNamed = 12;
        const QString rest = known.size() > mostNamed ? QStringLiteral(" and others") : QString();
        throw TSessionError(QStringLiteral("there is no %1 \"%2\"; the project has %3")
                                .arg(kind, text,
                                     known.isEmpty() ? QStringLiteral("none")
                                                     : known.mid(0, mostNamed).join(QStringLiteral(", ")) + rest));
    }
    return *found.first();
}

/** Both sides of `Entry=name`. */
QPair<QString, QString> SplitRenaming(const QString& renaming)
{
    const int equals = renaming.indexOf(QLatin1Char('='));
    return {renaming.left(equals), renaming.mid(equals + 1)};
}

} // namespace

TSchPage& TSession::FindPage(const QString& page) const
{
    return FindRow(
        window.Design()->Tree().Pages(), page, QStringLiteral("page"),
        [](const TSchPage& row) -> int { return row.Number(); }, [](const TSchPage& row) { return row.Name(); });
}

TPart& TSession::FindPart(const QString& part) const
{
    return FindRow(
        window.Design()->Tree().Parts(), part, QStringLiteral("part"),
        [](const TPart& row) -> int { return row.ComponentNumber(); }, [](const TPart& row) { return row.text(0); });
}

QString TSession::Place() const
{
    const TDocument& document = window.Tabs().Document();
    return document.IsBoard() ? QStringLiteral("the board") : QStringLiteral("page %1").arg(document.page);
}

QString TSession::ShowPage(const QString& page)
{
    const TSchPage& row = FindPage(page);
    window.Tabs().ShowPage(row.Number());
    return QStringLiteral("shown: page %1").arg(Described(QString::number(row.Number()), row.Name()));
}

QString TSession::ShowBoard()
{
    if (!window.Board()) {
        throw TSessionError(QStringLiteral("there is no board"));
    }
    window.Tabs().ShowPage(0);
    return QStringLiteral("shown: the board");
}

QString TSession::Tree() const
{
    const QString rows = window.Design()->Tree().Dump();
    return rows.isEmpty() ? QStringLiteral("the project has no pages") : rows.chopped(1);
}

QString TSession::OpenPage(const QString& page)
{
    const int index = window.UndoStack().index();
    window.Navigation().OpenPage(FindPage(page));
    return Outcome(index, QStringLiteral("page open already"));
}

QString TSession::OpenPart(const QString& part)
{
    const int index = window.UndoStack().index();
    window.Navigation().OpenPart(FindPart(part));
    return Outcome(index, QStringLiteral("symbol open already"));
}

QString TSession::CloseSymbol()
{
    const int index = window.UndoStack().index();
    window.Navigation().CloseSymbol();
    return Outcome(index, QStringLiteral("no symbol is open"));
}

QString TSession::RenamePage(const QString& renaming)
{
    const auto [page, name] = SplitRenaming(renaming);
    const int index = window.UndoStack().index();
    window.Navigation().RenamePage(FindPage(page), name);
    return Outcome(index, QStringLiteral("unchanged"));
}

QString TSession::RenamePart(const QString& renaming)
{
    const auto [part, name] = SplitRenaming(renaming);
    const int index = window.UndoStack().index();
    window.Navigation().RenamePart(FindPart(part), name);
    return Outcome(index, QStringLiteral("unchanged"));
}

QString TSession::Outcome(int index, const QString& none) const
{
    const QStringList pushed = PushedSince(index);
    return pushed.isEmpty() ? none : pushed.join(QStringLiteral("; "));
}
