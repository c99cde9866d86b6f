#include <application/TApplication.h>
#include <application/TBoard.h>
#include <application/TProject.h>
#include <application/TProjectTree.h>
#include <application/TSchematic.h>
#include <application/TUndoCommand.h>
#include <contract/Store.h>
#include <graphics/TItemScene.h>
#include <objects/TGraphicsPartItem.h>

using ContractHost::CallOut;
using ContractHost::Store;

QStringList TApplication::CharSetNames() { return {QStringLiteral("Sans"), QStringLiteral("Serif")}; }

TUndoCommand::TUndoCommand() = default;
TUndoCommand::~TUndoCommand() = default;
unsigned char TUndoCommand::PageToOpen() const { return pageToOpen; }
void TUndoCommand::AddCategory(unsigned bits) { categories |= bits; }
void TUndoCommand::SetPartToOpen(TPart* part) { Store(partToOpen, part); }
void TUndoCommand::SetPageToOpen(unsigned char page) { Store(pageToOpen, page); }

int TProject::Kind() const { return kind; }
TBoard* TProject::Board() const { return board; }
TSchematic* TProject::Schematic() const { return schematic; }
QMap<QString, QString> TProject::TagValues() const { return tagValues; }

QGraphicsView* TBoard::View() const { return view; }
TItemScene* TBoard::Scene() const { return scene; }
bool TBoard::RefDesVisible() const { return refDesVisible; }
bool TBoard::ValuesVisible() const { return valuesVisible; }
bool TBoard::ConnectivityEnabled() const { return connectivityEnabled; }
void TBoard::UpdateRats(const QStringList&) { CallOut(); }
void TBoard::UpdateRats(const QList<unsigned short>&) { CallOut(); }
void TBoard::UpdatePadNets(const QList<unsigned short>&) { CallOut(); }
void TBoard::RatPriority(int) { CallOut(); }

bool TNetModel::HasNet(const QString& net) const { return NetRow(net) >= 0; }

int TNetModel::NetRow(const QString& net) const
{
    for (int row = 0; row < rows.size(); ++row) {
        if (At(row, Name).toString() == net) {
            return row;
        }
    }
    return -1;
}

void TNetModel::AddNet(const QString& net, const QString& netClass, const QColor& colorSch, const QColor& colorPcb,
                       int priority)
{
    if (!net.isEmpty() && !HasNet(net)) {
        rows.append({net, netClass, colorSch, colorPcb, QString::number(priority)});
    }
    CallOut();
}

void TNetModel::AddNet(const QVector<QVariant>& row)
{
    rows.insert(row.value(Place, rows.size()).toInt(), row.mid(0, Place));
    CallOut();
}

QVector<QVariant> TNetModel::DeleteNet(const QString& net)
{
    const int row = NetRow(net);
    const QVector<QVariant> deleted = row < 0 ? QVector<QVariant>() : rows.takeAt(row) << row;
    CallOut();
    return deleted;
}

QVariant TNetModel::At(int row, Column column) const { return rows.value(row).value(column); }

void TNetModel::Set(const QString& net, Column column, const QVariant& value)
{
    if (HasNet(net)) {
        rows[NetRow(net)][column] = value;
    }
    CallOut();
}

QColor TNetModel::ColorSch(int row) const { return At(row, ColorOfSchematic).value<QColor>(); }
QColor TNetModel::ColorPcb(int row) const { return At(row, ColorOfBoard).value<QColor>(); }
void TNetModel::SetColorPcb(const QString& net, const QColor& color) { Set(net, ColorOfBoard, color); }
QString TNetModel::NetClass(const QString& net) const { return At(NetRow(net), Class).toString(); }
void TNetModel::SetNetClass(const QString& net, const QString& netClass) { Set(net, Class, netClass); }
QString TNetModel::Priority(const QString& net) const { return At(NetRow(net), PriorityLevel).toString(); }
void TNetModel::SetPriority(const QString& net, const QString& level) { Set(net, PriorityLevel, level); }

TCmpModelItem* TCmpModel::CmpModelItem(unsigned short number)
{
    const auto found = items.find(number);
    return found == items.end() ? nullptr : &found->second;
}

void TCmpModel::UpdateCount() { CallOut(); }

TProject* TSchematic::Project() const { return project; }
TNetModel* TSchematic::NetModel() { return netModel; }
TCmpModel* TSchematic::CmpModel() { return cmpModel; }
QStringList TSchematic::NetClassNames() const { return netClasses; }
bool TSchematic::IsExistNetClass(const QString& name) const { return name.isEmpty() || netClasses.contains(name); }

std::optional<QString> TSchematic::NetClass(const QString& net) const
{
    return netModel && netModel->HasNet(net) ? std::optional<QString>(netModel->NetClass(net)) : std::nullopt;
}

QList<TGraphicsItem*> TSchematic::ItemsOfPages() const
{
    QList<TGraphicsItem*> found;
    for (const TItemScene* page : pages) {
        for (QGraphicsItem* item : page->items()) {
            if (!item->parentItem()) {
                found.append(static_cast<TGraphicsItem*>(item));
            }
        }
    }
    return found;
}

void TSchematic::SetNetColor(const QString& net, const QColor& color)
{
    netModel->Set(net, TNetModel::ColorOfSchematic, color);
    for (TGraphicsItem* item : ItemsOfPages()) {
        if (item->Net() == net) {
            item->SetAltColor(color);
        }
    }
}

void TSchematic::SaveTopItemsFromWorkspace() { Store(items, ItemsOfPages()); }
QList<TGraphicsItem*> TSchematic::Items() const { return items; }

QList<TGraphicsPartItem*> TSchematic::PartItems(unsigned short number) const
{
    QList<TGraphicsPartItem*> parts;
    for (TGraphicsItem* item : ItemsOfPages()) {
        auto* part = dynamic_cast<TGraphicsPartItem*>(item);
        if (part && (number == 0 || part->ComponentNumber() == number)) {
            parts.append(part);
        }
    }
    return parts;
}
