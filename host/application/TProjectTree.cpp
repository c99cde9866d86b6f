#include <application/TProjectTree.h>

#include <graphics/engine/TStateText.h>

#include <QHeaderView>

#include <algorithm>

TSchPage::TSchPage(unsigned char ofNumber, const QString& name) : QTreeWidgetItem(UserType), number(ofNumber)
{
    setText(nameColumn, name);
}

TPart::TPart(unsigned short componentNumber, const QString& refDes, const QString& name)
    : QTreeWidgetItem(UserType + 1), number(componentNumber)
{
    setText(0, refDes);
    setText(nameColumn, name);
}

TProjectTree::TProjectTree(QWidget* parent)
    : QTreeWidget(parent), pageGroup(new QTreeWidgetItem(this)), partGroup(new QTreeWidgetItem(this))
{
    setColumnCount(2);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    pageGroup->setText(0, tr("Pages"));
    partGroup->setText(0, tr("Parts"));
    pageGroup->setExpanded(true);
}

TSchPage* TProjectTree::AddPage(unsigned char number, const QString& name)
{
    pages.append(new TSchPage(number, name));
    pageGroup->addChild(pages.last());
    return pages.last();
}

TPart* TProjectTree::AddPart(unsigned short componentNumber, const QString& refDes, const QString& name)
{
    parts.append(new TPart(componentNumber, refDes, name));
    partGroup->addChild(parts.last());
    return parts.last();
}

TSchPage* TProjectTree::Page(int number) const
{
    const auto found =
        std::find_if(pages.cbegin(), pages.cend(), [number](const TSchPage* page) { return page->Number() == number; });
    return found == pages.cend() ? nullptr : *found;
}

TPart* TProjectTree::Part(unsigned short componentNumber) const
{
    const auto found = std::find_if(parts.cbegin(), parts.cend(), [componentNumber](const TPart* part) {
        return part->ComponentNumber() == componentNumber;
    });
    return found == parts.cend() ? nullptr : *found;
}

QString TProjectTree::Dump() const
{
    QString dump;
    for (const TSchPage* page : pages) {
        dump += TStateText(QStringLiteral("treepage"))
                    .Add("number", static_cast<int>(page->Number()))
                    .Add("name", page->Name())
                    .Line()
                + QLatin1Char('\n');
    }
    for (const TPart* part : parts) {
        dump += TStateText(QStringLiteral("treepart"))
                    .Add("number", static_cast<int>(part->ComponentNumber()))
                    .Add("refDes", part->text(0))
                    .Add("name", part->Name())
                    .Line()
                + QLatin1Char('\n');
    }
    return dump;
}
