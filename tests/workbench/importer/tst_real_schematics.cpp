#include "tests/support/TestProgram.h"
#include "tests/workbench/support/RealDesigns.h"
#include "tests/workbench/support/SheetFiles.h"

#include "properties/commands/TCmdPort.h"
#include "workbench/importer/ImportFiles.h"

#include <application/TProject.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>

#include <QSet>
#include <QtTest>

#include <algorithm>
#include <cmath>

using SheetFiles::All;

namespace {

bool IsPowerSymbol(const TPageSymbol& symbol)
{
    const std::vector<TPagePin>& pins = symbol.pins;
    return symbol.IsPower() && !pins.empty() && std::all_of(pins.begin(), pins.end(), [](const TPagePin& pin) {
               return pin.use.electrical == QLatin1String("power_in");
           });
}

/** By floating point, as nothing of the importer does it. */
bool IsOver(const TGridPoint& place, const TSheetLine& line)
{
    const auto distance = [](const TGridPoint& one, const TGridPoint& other) {
        return std::hypot(static_cast<double>(one.x - other.x), static_cast<double>(one.y - other.y));
    };
    return distance(line.start, place) + distance(place, line.end) - distance(line.start, line.end) < 0.01;
}

/** How often something that can be linked with a pin lies on each place of a page. */
QHash<TGridPoint, int> LinkablePlaces(const TSheetPage& page)
{
    QHash<TGridPoint, int> places;
    for (const TPageSymbol& symbol : page.symbols) {
        for (const TPagePin& pin : symbol.pins) {
            ++places[pin.place];
        }
    }
    for (const TSheetLabel& label : page.file->labels) {
        places[label.place] += label.kind == LabelKind::Local ? 0 : 1;
    }
    for (const TSheetBox& box : page.file->boxes) {
        for (const TSheetLabel& pin : box.pins) {
            ++places[pin.place];
        }
    }
    for (const TSheetPoint& junction : page.file->junctions) {
        ++places[junction.place];
    }
    return places;
}

/** How many pins of parts and net ties lie on something of their page that they must be linked with. */
int PinsToLink(const TSheetHierarchy& hierarchy)
{
    int count = 0;
    for (const TSheetPage& page : hierarchy.pages) {
        const QHash<TGridPoint, int> places = LinkablePlaces(page);
        const std::vector<TSheetLine>& wires = page.file->wires;
        for (const TPageSymbol& symbol : page.symbols) {
            for (const TPagePin& pin : symbol.pins) {
                const bool isOnWire = std::any_of(wires.begin(), wires.end(),
                                                  [&pin](const TSheetLine& wire) { return IsOver(pin.place, wire); });
                count += !IsPowerSymbol(symbol) && (isOnWire || places.value(pin.place) > 1) ? 1 : 0;
            }
        }
    }
    return count;
}

} // namespace

/** Schematics that nobody here drew: what was imported is held against the files, and against the boards. */
class TestRealSchematics : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { designs = Test::RealProjects(); }

    void holdsAllItems_data() { AddDesigns(); }

    void holdsAllItems()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        QCOMPARE(result.error, QString());
        const TSheetHierarchy hierarchy = Hierarchy(file);
        QCOMPARE(result.schematic->Pages().size(), hierarchy.pages.size());
        int parts = 0;
        int ports = 0;
        int entries = 0;
        std::size_t junctions = 0;
        for (const TSheetPage& page : hierarchy.pages) {
            for (const TPageSymbol& symbol : page.symbols) {
                parts += IsPowerSymbol(symbol) ? 0 : 1;
                ports += IsPowerSymbol(symbol) ? static_cast<int>(symbol.pins.size()) : 0;
            }
            for (const TSheetLabel& label : page.file->labels) {
                ports += label.kind == LabelKind::Local ? 0 : 1;
            }
            for (const TSheetBox& box : page.file->boxes) {
                ports += static_cast<int>(box.pins.size());
            }
            entries += static_cast<int>(page.file->entries.size());
            junctions += page.file->junctions.size();
        }
        QCOMPARE(All<TGraphicsPartItem>(result).size() + All<TGraphicsNetTieSchItem>(result).size(), parts);
        QCOMPARE(All<TGraphicsPortItem>(result).size(), ports);
        QCOMPARE(All<TGraphicsBusEntryItem>(result).size(), entries);
        QVERIFY(All<TGraphicsJunctionItem>(result).size() >= static_cast<int>(junctions));
        QVERIFY(parts > 0 || !Test::IsAtHand(file));
    }

    void linksEveryPinThatMeetsSomething_data() { AddDesigns(); }

    void linksEveryPinThatMeetsSomething()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        const QList<TGraphicsPinItem*> pins = All<TGraphicsPinItem>(result);
        const auto linked = std::count_if(pins.begin(), pins.end(), [](const TGraphicsPinItem* pin) {
            return pin->parentItem()->type() != ItemType::Port && !pin->Links().isEmpty();
        });
        const int toLink = PinsToLink(Hierarchy(file));
        QCOMPARE(static_cast<int>(linked), toLink);
        QVERIFY(toLink > 0 || !Test::IsAtHand(file));
    }

    void linksOnlyWhatMeets_data() { AddDesigns(); }

    void linksOnlyWhatMeets()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        const QList<TGraphicsNetItem*> wires = All<TGraphicsNetItem>(result);
        for (const TGraphicsNetItem* wire : wires) {
            for (const auto end : {TGraphicsItem::LinkEnd::First, TGraphicsItem::LinkEnd::Last}) {
                const TGraphicsItem* link = wire->Link(end);
                const QPointF place = wire->ScenePoint(end);
                const bool isPoint = link && (link->type() == ItemType::Pin || link->type() == ItemType::Junction);
                if (isPoint) {
                    QVERIFY((link->scenePos() - place).manhattanLength() < 1e-6);
                } else if (const auto* other = dynamic_cast<const TGraphicsNetItem*>(link)) {
                    QCOMPARE(end == TGraphicsItem::LinkEnd::First ? other->SceneLine().p2() : other->SceneLine().p1(),
                             place);
                }
            }
            QCOMPARE(wire->Net(), wire->OwnNet()); // What links make of it is what was traced.
            QVERIFY(wire->Net().isEmpty() || result.schematic->NetModel()->HasNet(wire->Net()));
        }
        const QList<TGraphicsPortItem*> ports = All<TGraphicsPortItem>(result);
        for (const TGraphicsPortItem* port : ports) {
            QCOMPARE(port->Net(), port->Name());
        }
    }

    void leavesPartsNothingToConnect_data() { AddDesigns(); }

    void leavesPartsNothingToConnect()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        const QString before = result.schematic->Dump();
        const QList<TGraphicsPartItem*> parts = All<TGraphicsPartItem>(result);
        for (TGraphicsPartItem* part : parts) {
            QVERIFY2(part->Connect({}).isEmpty(), qPrintable(part->StateLine()));
        }
        QCOMPARE(result.schematic->Dump(), before);
        for (TGraphicsPartItem* part : parts) {
            const QVector<TGraphicsItem*> cut = part->Disconnect({});
            if (!cut.isEmpty()) {
                QCOMPARE(part->Connect(cut).size(), cut.size());
            }
        }
        QCOMPARE(result.schematic->Dump(), before);
    }

    void takesBackTheRenamingOfPorts_data() { AddDesigns(); }

    void takesBackTheRenamingOfPorts()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        TProject project;
        project.SetSchematic(result.schematic.get());
        const QString before = result.schematic->Dump();
        const QList<TGraphicsPortItem*> ports = All<TGraphicsPortItem>(result);
        constexpr int step = 29; // Not all, for the sake of time.
        for (int i = 0; i < ports.size(); i += step) {
            TCmdPortName command({ports[i]}, QStringLiteral("renamed"), result.schematic.get());
            command.redo();
            QCOMPARE(ports[i]->Net(), QStringLiteral("renamed"));
            QVERIFY(result.schematic->Dump() != before);
            command.undo();
            QCOMPARE(result.schematic->Dump(), before);
        }
        project.SetSchematic(nullptr);
    }

    void hangsEveryEntryOnItsBus_data() { AddDesigns(); }

    void hangsEveryEntryOnItsBus()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        const QList<TGraphicsBusEntryItem*> entries = All<TGraphicsBusEntryItem>(result);
        for (const TGraphicsBusEntryItem* entry : entries) {
            QVERIFY2(entry->BusLink() && entry->NetLink(), qPrintable(entry->StateLine()));
        }
    }

    void hasOneNetForAPinAndItsPad_data() { AddDesigns(); }

    void hasOneNetForAPinAndItsPad()
    {
        QFETCH(QString, file);
        const TImportResult result = ImportDesign(file);
        if (!result.board) {
            QSKIP("no board");
        }
        QList<unsigned short> numbers;
        QList<const TGraphicsPackageItem*> packages;
        const QList<TGraphicsItem*> items = result.board->Items();
        for (const TGraphicsItem* item : items) {
            const auto* package = dynamic_cast<const TGraphicsPackageItem*>(item);
            if (package && package->ComponentNumber() != 0) {
                numbers.append(package->ComponentNumber());
                packages.append(package);
            }
        }
        const auto pinNets = result.schematic->PinNets(numbers);
        int compared = 0;
        for (const TGraphicsPackageItem* package : packages) {
            const TCmpModelItem* entry = result.schematic->CmpModel()->CmpModelItem(package->ComponentNumber());
            QVERIFY(entry);
            QCOMPARE(entry->refDes, package->RefDes());
            const QVector<TGraphicsItem*> pads = package->Pads();
            for (const TGraphicsItem* item : pads) {
                const auto* pad = static_cast<const TGraphicsPadItem*>(item);
                const auto pin = pinNets.constFind({package->ComponentNumber(), pad->Number()});
                if (pin != pinNets.constEnd()) {
                    QVERIFY2(*pin == pad->Net(), qPrintable(package->RefDes() + '.' + pad->Number() + ": " + *pin
                                                            + " instead of " + pad->Net()));
                    ++compared;
                }
            }
        }
        QVERIFY(compared > 0 || !Test::IsAtHand(file));
    }

private:
    static TSheetHierarchy Hierarchy(QString file)
    {
        return ReadHierarchy(file.replace(QLatin1String(".kicad_pro"), QLatin1String(".kicad_sch")), ImportFiles::Read);
    }

    void AddDesigns() const
    {
        QTest::addColumn<QString>("file");
        if (designs.isEmpty()) {
            QSKIP("no designs at hand");
        }
        for (const QString& file : designs) {
            QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
        }
    }

    QStringList designs;
};

PROPERTIES_TEST(TestRealSchematics)

#include "tst_real_schematics.moc"
