#include "tests/commands/WholeProject.h"

#include "tests/host/StateFields.h"

namespace Test {

namespace {

constexpr double apart = 1000;

quint16 NumberOf(std::size_t index)
{
    return static_cast<quint16>(index + 1);
}

void AddItems(const QList<TGraphicsItem*>& items, ProjectState& state)
{
    for (const TGraphicsItem* item : items) {
        if (item->type() != ItemType::RatLine) {
            const QString own = QStringLiteral(" own=%1").arg(item->OwnNet());
            state.insert(QString::number(reinterpret_cast<quintptr>(item)), item->StateLine() + own);
        }
    }
}

/** All rat lines as one line, since they come and go. */
QString RatLines(const TBoard& board)
{
    QString lines;
    for (const TGraphicsItem* item : board.Items()) {
        lines += item->type() == ItemType::RatLine ? item->StateLine() : QString();
    }
    return TStateText(QStringLiteral("rats")).Add("lines", lines).Line();
}

/** Rows of a model, by their names or numbers, which stand first. */
void AddRows(const QString& dump, ProjectState& state)
{
    const QStringList lines = dump.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        state.insert(line.section(QLatin1Char(' '), 0, 1), line);
    }
}

} // namespace

WholeProject::WholeProject()
{
    sheet.AddPage();
    sheet.AddNetClass(QStringLiteral("fast"));
    sheet.AddNetClass(QStringLiteral("strong"));
    AddNets({"A", "B", "D0", "D1", "other"});
    tree.AddPage(1, "first");
    tree.AddPage(2, "second");
    for (const std::size_t index : {std::size_t(0), std::size_t(1)}) {
        sheet.GoToPage(sheet.Page(NumberOf(index)));
        AddPort(index, index == 0 ? "A" : "B");
        AddPart(index);
        AddEntry(index);
        AddTie(index);
        AddPackage(index);
        AddWires(index);
    }
    loosePackages[0]->setSelected(true);
    sheet.CmpModel()->UpdateCount();
    board.UpdatePadNets({1, 2});
}

/** A port at one end of a wire. */
void WholeProject::AddPort(std::size_t index, const QString& name)
{
    ports[index] = sheet.Port({0, 0}, name);
    WireFrom(ports[index]->Pin(), name, {0, 100});
}

/** A part between the port's wire and a free one. */
void WholeProject::AddPart(std::size_t index)
{
    const quint16 number = NumberOf(index);
    TGraphicsPartItem* part = sheet.Part({0, 100}, number, {{0, 0}, {100, 0}});
    parts[index] = part;
    TGraphicsNetItem* after = sheet.Wire({100, 100}, {200, 100}, "other");
    if (index == 0) {
        static_cast<TGraphicsNetItem*>(ports[index]->Pin()->Links().first())->LinkToLast(PinOf(part, 1));
        after->LinkToFirst(PinOf(part, 2));
    }
    sheet.CmpModel()->Add(number, {QStringLiteral("R%1").arg(number), "1k", "0603", 0});
    part->SetValue("1k");
    tree.AddPart(number, QStringLiteral("R%1").arg(number), "resistor");
}

/** An entry between a bus and a wire, which starts there on the first page and ends there on the second. */
void WholeProject::AddEntry(std::size_t index)
{
    TGraphicsBusItem* bus = sheet.Bus({0, 300}, {300, 300}, "D[0..1]");
    entries[index] = sheet.Entry({0, 300});
    entries[index]->LinkToBus(bus);
    if (index == 0) {
        sheet.Wire({10, 310}, {10, 390}, "D0")->LinkToFirst(entries[index]);
    } else {
        sheet.Wire({10, 390}, {10, 310}, "D1")->LinkToLast(entries[index]);
    }
}

void WholeProject::AddTie(std::size_t index)
{
    sheetTies[index] = sheet.NetTie({0, 500}, NumberOf(index));
    boardTies[index] = board.NetTie({apart * static_cast<double>(index), 500});
    boardTies[index]->SetNumber(NumberOf(index));
    const QString name = QStringLiteral("N%1").arg(NumberOf(index));
    sheetTies[index]->SetName(name);
    boardTies[index]->SetName(name);
    boardTies[index]->Pen().setWidthF(3 + static_cast<double>(index));
}

/** A package of the component, its first pad at the end of a wire; and one of no component. */
void WholeProject::AddPackage(std::size_t index)
{
    const QPointF at(apart * static_cast<double>(index), 0);
    TGraphicsPackageItem* package = Package(NumberOf(index));
    packages[index] = package;
    package->setPos(at);
    package->SetValue("1k");
    double x = 0;
    const QVector<TGraphicsItem*> pads = package->Pads();
    for (TGraphicsItem* pad : pads) {
        pad->setPos(std::exchange(x, x + 100), 0);
    }
    TGraphicsWireItem* wire = board.Wire(at, at - QPointF(0, 100), index == 0 ? "A" : "B");
    if (index == 0) {
        wire->LinkToFirst(pads.first());
    }
    loosePackages[index] = board.AddPackage(QStringLiteral("X%1").arg(index));
}

/** Two wires head to tail. */
void WholeProject::AddWires(std::size_t index)
{
    const QPointF at(apart * static_cast<double>(index), 800);
    wires[index] = board.Wire(at, at + QPointF(100, 0), "A");
    nextWires[index] = board.Wire(at + QPointF(100, 0), at + QPointF(200, 0), "A");
    wires[index]->LinkToLast(nextWires[index]);
    outlines[index] = board.Add<TGraphicsOutlineItem>(at);
    outlines[index]->SetPoints({{0, 0, 0}, {50, 0, 0}, {50, 50, 0}});
}

ProjectState WholeProject::State() const
{
    ProjectState state{{QStringLiteral("rats"), RatLines(board)}};
    AddItems(board.Items(), state);
    AddItems(sheet.AllItems(), state);
    AddRows(sheet.NetModel()->Dump() + sheet.CmpModel()->Dump() + tree.Dump(), state);
    return state;
}

QSet<QString> Touched(const ProjectState& before, const ProjectState& after)
{
    QSet<QString> touched;
    for (auto line = after.cbegin(); line != after.cend(); ++line) {
        if (!before.contains(line.key())) {
            touched.insert('+' + StateFields(*line).Kind());
            continue;
        }
        const StateFields was(before[line.key()]);
        const QStringList differences = was.Differences(StateFields(*line));
        for (const QString& name : differences) {
            touched.insert(was.Kind() + '.' + name);
        }
    }
    for (auto line = before.cbegin(); line != before.cend(); ++line) {
        if (!after.contains(line.key())) {
            touched.insert('-' + StateFields(*line).Kind());
        }
    }
    return touched;
}

} // namespace Test
