#include <application/TSchematic.h>

#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <QSet>

namespace {

constexpr std::size_t largestPageNumber = 255;

/** Whether an item is drawn in the colour of a net: that of its own name, or else that of its links. */
bool BearsColorOf(const TGraphicsItem& item, const QString& net)
{
    return !item.parentItem() && (item.OwnNet().isEmpty() ? item.Net() : item.OwnNet()) == net;
}

} // namespace

TSchematic::TSchematic()
{
    workspace.SetMode(TWorkspace::SchematicMode);
}

TSchematic::~TSchematic() = default;

void TSchematic::AddNetClass(const QString& name)
{
    if (!IsExistNetClass(name)) {
        netClasses.append(name);
    }
}

std::optional<QString> TSchematic::NetClass(const QString& net) const
{
    if (!netModel.HasNet(net)) {
        return {};
    }
    return netModel.NetClass(net);
}

void TSchematic::SetNetColor(const QString& net, const QColor& color)
{
    if (net.isEmpty()) {
        return;
    }
    netModel.SetColorSch(net, color);
    for (const auto& page : pages) {
        const QList<TGraphicsItem*> onPage = page->Scene()->DesignItems();
        for (TGraphicsItem* item : onPage) {
            if (BearsColorOf(*item, net)) {
                item->SetAltColor(color);
            }
        }
    }
}

TSchematicPage* TSchematic::AddPage()
{
    if (pages.size() >= largestPageNumber) {
        return nullptr;
    }
    pages.push_back(std::make_unique<TSchematicPage>(static_cast<unsigned char>(pages.size() + 1), &workspace));
    return pages.back().get();
}

TSchematicPage* TSchematic::Page(int number) const
{
    const auto index = static_cast<std::size_t>(number - 1);
    return number >= 1 && index < pages.size() ? pages[index].get() : nullptr;
}

void TSchematic::SaveTopItemsFromWorkspace()
{
    for (const auto& page : pages) {
        page->SaveTopItems();
    }
}

QList<TGraphicsItem*> TSchematic::Items() const
{
    QList<TGraphicsItem*> items;
    for (const auto& page : pages) {
        items += page->Items();
    }
    return items;
}

QList<TGraphicsPartItem*> TSchematic::PartItems(unsigned short number) const
{
    QList<TGraphicsPartItem*> parts;
    for (const auto& page : pages) {
        const QList<TGraphicsItem*> onPage = page->Scene()->DesignItems();
        for (TGraphicsItem* item : onPage) {
            auto* part = item->type() == ItemType::Part ? static_cast<TGraphicsPartItem*>(item) : nullptr;
            if (part && (number == 0 || part->ComponentNumber() == number)) {
                parts.append(part);
            }
        }
    }
    return parts;
}

QHash<TSchematic::TPinKey, QString> TSchematic::PinNets(const QList<unsigned short>& numbers) const
{
    const QSet<unsigned short> wanted(numbers.cbegin(), numbers.cend());
    QHash<TPinKey, QString> nets;
    const QList<TGraphicsPartItem*> parts = PartItems(0);
    for (const TGraphicsPartItem* part : parts) {
        if (part->ComponentNumber() == 0 || !wanted.contains(part->ComponentNumber())) {
            continue;
        }
        const QVector<TGraphicsItem*> pins = part->Pins();
        for (const TGraphicsItem* pin : pins) {
            // Units of a component may share a pin, wired in one unit and unconnected in another.
            QString& net = nets[{part->ComponentNumber(), static_cast<const TGraphicsPinItem*>(pin)->Number()}];
            net = net.isEmpty() ? pin->Net() : net;
        }
    }
    return nets;
}

QString TSchematic::Dump() const
{
    QString dump;
    for (const auto& page : pages) {
        dump += QStringLiteral("page %1\n").arg(page->Number());
        const QList<TGraphicsItem*> onPage = page->Scene()->DesignItems();
        for (const TGraphicsItem* item : onPage) {
            dump += item->StateLine() + QLatin1Char('\n');
        }
    }
    return dump + netModel.Dump() + cmpModel.Dump();
}
