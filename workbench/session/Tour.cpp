#include "workbench/session/Tour.h"

#include "workbench/design/Picking.h"
#include "workbench/design/TDesign.h"
#include "workbench/session/TSession.h"
#include "workbench/window/TMainWindow.h"

#include <QSet>

namespace {

struct TStop
{
    const char* words;
    QStringList steps;
    int kind = 0; ///< The kind of item that the stop shows, 0 for none.
};

QVector<TStop> BoardStops()
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
    };
}

QVector<TStop> PageStops()
{
    return {
        {"Go to a page of the schematic. What is selected next is selected there.", {"--page", "1"}},
        {"Select a part, and give its component another value: on the board, too, if there is one.",
         {"--select", "part[0]", "--panel", "--revalue", "new", "--panel", "--undo"},
         ItemType::Part},
        {"Cut a part off its wires, and undo that.", {"--select", "part[0]", "--disconnect", "--undo"}, ItemType::Part},
        {"Select pins. Those of a placed symbol keep their names and numbers.",
         {"--select", "pin", "--panel"},
         ItemType::Pin},
        {"Select net wires: the panel edits their net.",
         {"--select", "netwire[0]", "--panel", "--set", "Level:=3", "--undo"},
         ItemType::NetWire},
        {"Rename a port: all that is wired to it moves to another net.",
         {"--select", "port[0]", "--set", "Name:=TOUR", "--panel"},
         ItemType::Port},
        {"Rename a page in the project tree, and undo that.", {"--rename-page", "1=Front page", "--tree", "--undo"}},
    };
}

QVector<TStop> LastStops()
{
    return {
        {"See what was done.", {"--history"}},
        {"Take a picture.", {"--screenshot", "workbench-tour.png"}},
    };
}

/** The kinds of the selectable items of a document; 0 stands for none. */
QSet<int> KindsIn(const TDesign& design, const TDocument& document)
{
    QSet<int> kinds{0};
    const QList<TGraphicsItem*> items = Picking::Selectable(design.ItemsOf(document));
    for (const TGraphicsItem* item : items) {
        kinds.insert(item->type());
    }
    return kinds;
}

/** Visits the stops for the given kinds. */
int Visit(const QVector<TStop>& stops, const QSet<int>& kinds, TSession& session, const TStreams& streams)
{
    for (const TStop& stop : stops) {
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

} // namespace

int RunTour(TMainWindow& window, const TStreams& streams)
{
    TSession session(window);
    const TDesign& design = *window.Design();
    int code = 0;
    bool hasPages = false;
    const QVector<TDocument> documents = design.Documents();
    for (const TDocument& document : documents) {
        if (code == 0 && (document.IsBoard() || !hasPages)) {
            hasPages = !document.IsBoard();
            code = Visit(document.IsBoard() ? BoardStops() : PageStops(), KindsIn(design, document), session, streams);
        }
    }
    return code ? code : Visit(LastStops(), {0}, session, streams);
}
