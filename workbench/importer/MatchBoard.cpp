#include "workbench/importer/MatchBoard.h"

#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/schematic/PageItems.h"

#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>

#include <QMap>
#include <QSet>

namespace {

/** Finds the symbols that belong to packages and net ties. */
class TSymbolFinder
{
public:
    TSymbolFinder(const TSheetHierarchy& hierarchy, const TBoardDraft& board)
    {
        for (const TSheetPage& page : hierarchy.pages) {
            for (const TPageSymbol& symbol : page.symbols) {
                const QString key = PageItems::ComponentKey(symbol);
                if (!key.isEmpty()) {
                    keyOfPath.insert(symbol.path, key);
                    keys.insert(key);
                    QStringList& alike = keysOfUuid[symbol.symbol->uuid];
                    if (!alike.contains(key)) {
                        alike.append(key);
                    }
                }
            }
        }
        for (const QString& path : board.paths) {
            found.insert(keyOfPath.value(path));
        }
    }

    /** The component key; empty if there is none. A designator counts only if no other item's path leads to that
     * component. */
    QString Key(const QString& path, const QString& designator) const
    {
        const auto byPath = keyOfPath.constFind(path);
        if (byPath != keyOfPath.constEnd()) {
            return *byPath;
        }
        // The sheets may have moved within the hierarchy; a symbol that is used only once still matches.
        const QStringList byUuid = keysOfUuid.value(path.section(QLatin1Char('/'), -1));
        if (byUuid.size() == 1) {
            return byUuid.first();
        }
        return keys.contains(designator) && !found.contains(designator) ? designator : QString();
    }

private:
    QHash<QString, QString> keyOfPath;
    QHash<QString, QStringList> keysOfUuid;
    QSet<QString> keys;
    QSet<QString> found; ///< The components that paths of the board lead to.
};

/** Drops names that would merge two nets; the former names of renamed nets are free for others. */
void KeepApart(const TSheetHierarchy& hierarchy, QMap<int, QString>& wanted)
{
    for (bool isDone = false; !isDone;) {
        QSet<QString> taken;
        for (std::size_t i = 0; i < hierarchy.nets.size(); ++i) {
            if (!wanted.contains(static_cast<int>(i))) {
                taken.insert(hierarchy.nets[i].name);
            }
        }
        isDone = true;
        for (auto name = wanted.begin(); name != wanted.end();) {
            if (!name->isEmpty() && taken.contains(*name)) {
                name = wanted.erase(name);
                isDone = false;
            } else {
                taken.insert(*name);
                ++name;
            }
        }
    }
}

struct TPinsOfNets
{
    explicit TPinsOfNets(const TSheetHierarchy& hierarchy)
    {
        for (const TSheetPage& page : hierarchy.pages) {
            for (const TPageSymbol& symbol : page.symbols) {
                const QString key = PageItems::ComponentKey(symbol);
                for (const TPagePin& pin : symbol.pins) {
                    netOf.insert({key, pin.pin->number}, pin.net);
                    ++count[pin.net];
                }
            }
        }
    }

    QHash<QPair<QString, QString>, int> netOf; ///< By the component's key and the pin's number.
    QHash<int, int> count;                     ///< By the net.
};

/** For each net, the net names of the pads of its pins; the empty name for pads without net. */
QHash<int, QSet<QString>> NamesOnBoard(const TPinsOfNets& pins, const TSheetHierarchy& hierarchy,
                                       const TBoardDraft& board)
{
    const TSymbolFinder finder(hierarchy, board);
    QHash<int, QSet<QString>> names;
    const QList<TGraphicsItem*> items = board.board->Scene()->DesignItems();
    for (TGraphicsItem* item : items) {
        const auto* package = dynamic_cast<const TGraphicsPackageItem*>(item);
        if (!package) {
            continue;
        }
        const QString key = finder.Key(board.paths.value(item), package->RefDes());
        const QVector<TGraphicsItem*> pads = key.isEmpty() ? QVector<TGraphicsItem*>() : package->Pads();
        for (const TGraphicsItem* pad : pads) {
            const int net = pins.netOf.value({key, static_cast<const TGraphicsPadItem*>(pad)->Number()}, -1);
            if (net >= 0) {
                names[net].insert(pad->Net());
            }
        }
    }
    return names;
}

} // namespace

void MatchNumbers(TBoardDraft& board, const TSheetHierarchy& hierarchy, const QHash<QString, quint16>& numbers)
{
    const TSymbolFinder finder(hierarchy, board);
    const QList<TGraphicsItem*> items = board.board->Scene()->DesignItems();
    // Ties without a symbol avoid the numbers of those that have one.
    int nextFree = numbers.size() + 1;
    for (TGraphicsItem* item : items) {
        if (auto* package = dynamic_cast<TGraphicsPackageItem*>(item)) {
            package->SetComponentNumber(numbers.value(finder.Key(board.paths.value(item), package->RefDes())));
        } else if (auto* tie = dynamic_cast<TGraphicsNetTiePcbItem*>(item)) {
            const quint16 number = numbers.value(finder.Key(board.paths.value(item), tie->Name()));
            tie->SetNumber(number != 0 ? number : static_cast<quint16>(nextFree++));
        }
    }
}

void TakeBoardNames(TSheetHierarchy& hierarchy, const TBoardDraft& board)
{
    const TPinsOfNets pins(hierarchy);
    QHash<int, QSet<QString>> boardNames = NamesOnBoard(pins, hierarchy, board);
    QMap<int, QString> wanted;
    for (auto names = boardNames.begin(); names != boardNames.end(); ++names) {
        const TDesignNet& net = hierarchy.nets[static_cast<std::size_t>(names.key())];
        if (pins.count.value(names.key()) > 1) {
            names->remove(QString()); // The pads are not updated yet. Only a lone pin may have no net there.
        }
        const QString name = names->size() == 1 ? *names->begin() : net.name;
        if (name != net.name && (!net.isNamed || net.otherNames.contains(name))) {
            wanted.insert(names.key(), name);
        }
    }
    KeepApart(hierarchy, wanted);
    for (auto name = wanted.begin(); name != wanted.end(); ++name) {
        hierarchy.nets[static_cast<std::size_t>(name.key())].name = *name;
    }
}
