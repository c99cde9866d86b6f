#include <contract/TDesign.h>

namespace {

constexpr double millimetre = 300 / 25.4;
constexpr auto copperBottom = static_cast<Osmirel::Layer>(Osmirel::CopperTop + Osmirel::maxCopperLayers - 1);

} // namespace

ContractHost::TDesign::TDesign()
{
    layers.table = {{Osmirel::CopperTop, {"Top", Qt::red, "Bottom", false}},
                    {copperBottom, {"Bottom", Qt::blue, "Top", false}},
                    {Osmirel::PackagesTop, {"Top side", Qt::red, "Bottom side", false}},
                    {Osmirel::PackagesBottom, {"Bottom side", Qt::blue, "Top side", false}},
                    {Osmirel::Milling, {"Milling", Qt::gray, "", false}}};
    boardDocument.layers = pageDocument.layers = &layers;
    boardDocument.mode = TWorkspace::SchematicMode + 1;
    boardScene.workspace = &boardDocument;
    page.workspace = &pageDocument;
    view.setScene(&boardScene);

    board.view = &view;
    board.scene = &boardScene;
    schematic.project = &project;
    schematic.netModel = &nets;
    schematic.cmpModel = &components;
    schematic.netClasses = QStringList{"Default", "Power"};
    schematic.pages = {&page};
    project.board = &board;
    project.schematic = &schematic;
    project.tagValues = {{"title", "Amplifier"}, {"date", "today"}};
    nets.AddNet("N1", "Default", {}, {}, 0);
    components.items[1].value = "10k";

    via->SetSize(millimetre, millimetre);
    hole->SetSize(float(millimetre), float(millimetre));
    pad->SetNumber("1");
    for (TGraphicsWireItem* section : {wire, nextWire}) {
        section->SetLayer(Osmirel::CopperTop);
        section->SetPenWidth(float(millimetre));
        Opened::TItem::StateOf(section).net = "N1";
    }
    wire->SetPoint2({100, 0});
    nextWire->SetPoint1({100, 0});
    nextWire->SetPoint2({200, 0});
    wire->LinkToLast(nextWire);
    package->SetLayer(Osmirel::PackagesTop);
    package->componentNumber = part->componentNumber = 1;
    milling->SetLayer(Osmirel::Milling);
    milling->SetPenWidth(float(millimetre));
    outline->path.addRect(0, 0, 100 * millimetre, 50 * millimetre);
    netTie->SetName("NT1");
    netTie->number = 7;

    netTieSymbol->number = 7;
    netTieSymbol->SetName("NT1");
    Opened::TItem::StateOf(netWire).net = "N1";
    netWire->LinkTo(TGraphicsItem::LinkEnd::First, port->Pin());
    bus->SetLayer(Osmirel::SchematicBuses);
    bus->SetName("D[0..7]");
    pin->SetName("A0");
    port->SetName("N1", {});
    tag->SetName("title", true);
    tag->Font().setPixelSize(40);
    text->Font().setPixelSize(40);
}
