#include "tests/workbench/editing/PanelRules.h"

#include <graphics/TGraphicsItem.h>

#include <QHash>
#include <QSet>

namespace Test {

namespace {

bool IsDrawing(const TGraphicsItem& item)
{
    static const QSet<int> types{ItemType::Line, ItemType::Rectangle, ItemType::Ellipse, ItemType::Polygon,
                                 ItemType::Arc};
    return types.contains(item.type());
}

} // namespace

bool PanelRules::Takes(const TGraphicsItem& first, const TGraphicsItem& other)
{
    if (first.type() == ItemType::Text) {
        return other.type() == ItemType::Text || other.type() == ItemType::Tag;
    }
    if (first.type() == ItemType::Polyline) { // Of milling, or nothing of it can be edited.
        return other.type() == ItemType::Polyline && other.Layer() == Osmirel::Milling;
    }
    return first.type() == other.type() || (IsDrawing(first) && IsDrawing(other));
}

bool PanelRules::IsWrittenAtOnce(const QString& cell)
{
    static const QSet<QString> cells{"package Lock:1", "package Lock:2",   "part Lock:1",    "part Lock:2",
                                     "bus Name",       "text Line width:", "tag Line width:"};
    return cells.contains(cell);
}

bool PanelRules::IsAlwaysACommand(const QString& cell)
{
    static const QSet<QString> cells{"wire Net class:", "wire Color:"};
    return cell.startsWith(QLatin1String("pour ")) || cell.startsWith(QLatin1String("netwire "))
           || cells.contains(cell);
}

bool PanelRules::DiffersDirectly(const QString& cell)
{
    static const QSet<QString> cells{
        "nettie Name:",       "nettie Name:show", // The command reaches the other side of a project, too,
        "nettiesymbol Name:", "nettiesymbol Name:show",
        "nettie Wire width:", // and the one of the width sets the pad size.
        "pad Type:",          // Makes surface pads of all,
        "pad Mask:",          // and uses the pad's own setter.
        "wire Layer:",        // Neither vias nor junctions follow.
        "wire Width:",
        "package Side:", // Neither texts nor connections follow.
        "port Name:",    // Nets and board stay.
        "tag Name:",     // The project is not asked.
    };
    return cells.contains(cell);
}

QStringList PanelRules::RowsThatDiffer(const QString& cell)
{
    static const QHash<QString, QStringList> rows{
        {"nettie Wire width:", {"Pad size:", "Wire width:"}}, // The command sets the pad size.
        {"via Drill pair:", {"Thermal:"}},                    // Pairs decide whether a new set shows a choice.
        {"wire Color:", {"Color:"}},                          // A net that the schematic does not know takes no colour.
        {"via Thermal:", {"Thermal:"}},
        {"pad Shape:", {"Size (W x H):"}}, // A locked height reports the width last.
        {"pad Size (W x H):width", {"Size (W x H):"}},
    };
    return rows.value(cell);
}

} // namespace Test
