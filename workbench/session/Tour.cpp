#include "workbench/session/Tour.h"

#include "workbench/session/TSession.h"
#include "workbench/TMainWindow.h"

#include <application/TBoard.h>

#include <QSet>

namespace {

struct TStop
{
    const char* words;
    QStringList steps;
    int kind = 0; ///< The kind of item that the stop is about, 0 for none.
};

QVector<TStop> Stops()
{
    return {
        {"Select every via. The panel shows the first one's values; a choice on which they differ is mixed.",
         {"--select", "via", "--panel"},
         ItemType::Via},
        {"Make them all 0.9 mm wide: one edit of one row, one undo step.",
         {"--set", "Diameter:=0.9", "--set", "Thermal:=No", "--history"},
         ItemType::Via},
        {"Undo both. Each via gets its own old values back.", {"--undo", "2", "--panel"}, ItemType::Via},
        {"Let edits of one via bypass the undo history: the value is written at once.",
         {"--select", "via[0]", "--bypass", "on", "--set", "Diameter:=1.2", "--history", "--bypass", "off"},
         ItemType::Via},
        {"Select a pad. What belongs to its package is read-only or disabled.",
         {"--select", "pad[0]", "--panel"},
         ItemType::Pad},
        {"Give it another shape: the size row follows.", {"--set", "Shape:=Obround", "--panel"}, ItemType::Pad},
        {"Change a hole.", {"--select", "hole[0]", "--panel", "--set", "Diameter:=3.5"}, ItemType::Hole},
        {"Select wires: width and layer, and the attributes of their net. Widen them; junctions grow along.",
         {"--select", "wire[0]", "--panel", "--set", "Width:=0.4", "--undo"},
         ItemType::Wire},
        {"Split a wire at a node, and join it again.",
         {"--select", "wire[0]", "--add-node", "0,0", "--undo"},
         ItemType::Wire},
        {"Lock a package, which no row does.", {"--select", "package[0]", "--panel", "--lock"}, ItemType::Package},
        {"Select a pour. Every edit but that of its layer refills it.",
         {"--select", "pour[0]", "--panel", "--set", "Clearance to etch:=0.5", "--undo"},
         ItemType::Pour},
        {"Select vias, then pads: the panel edits the kind that was selected first.",
         {"--select", "via,pad", "--panel"},
         ItemType::Via},
        {"See what was done.", {"--history"}},
        {"Take a picture.", {"--screenshot", "workbench-tour.png"}},
    };
}

} // namespace

int RunTour(TMainWindow& window, const TStreams& streams)
{
    QSet<int> kinds{0};
    for (const TGraphicsItem* item : window.Board()->Items()) {
        kinds.insert(item->type());
    }
    TSession session(window);
    for (const TStop& stop : Stops()) {
        if (!kinds.contains(stop.kind)) {
            continue;
        }
        streams.results << "\n* " << stop.words << "\n  workbench";
        const QVector<TStep> steps = TCommandLine::Parse(stop.steps).steps;
        for (const TStep& step : steps) {
            streams.results << ' ' << step.text;
        }
        streams.results << '\n';
        if (const int code = RunSteps(steps, false, session, streams)) {
            return code;
        }
    }
    return 0;
}
