#include "workbench/importer/schematic/TSheetPage.h"

#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/TImportError.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr std::size_t mostPages = 255; // The limit of a schematic.

class THierarchyReader
{
public:
    THierarchyReader(const QString& rootFile, const TFileReader& fileReader) : readFile(fileReader)
    {
        projectName = QFileInfo(rootFile).completeBaseName();
        TSheetPage root;
        root.file = &File(rootFile);
        root.name = projectName;
        root.path = QStringLiteral("/");
        root.uuids = QStringList{root.file->uuid};
        root.number = root.file->pageNumbers.value(QStringLiteral("/"));
        hierarchy.pages.push_back(std::move(root));
        for (std::size_t page = 0; page < hierarchy.pages.size(); ++page) {
            AddPagesBelow(page);
        }
        SortPages();
        for (TSheetPage& page : hierarchy.pages) {
            InFile(page.file->fileName, [&] { ResolveSymbols(page); });
        }
    }

    TSheetHierarchy Take() { return std::move(hierarchy); }

private:
    const TSheetFile& File(const QString& fileName)
    {
        const QString path = QDir::cleanPath(fileName);
        const auto known = std::find_if(hierarchy.files.begin(), hierarchy.files.end(),
                                        [&path](const auto& file) { return file->fileName == path; });
        if (known != hierarchy.files.end()) {
            return **known;
        }
        const QByteArray text = readFile(path);
        hierarchy.files.push_back(InFile(path, [&] { return std::make_unique<TSheetFile>(text, path); }));
        return *hierarchy.files.back();
    }

    void AddPagesBelow(std::size_t above)
    {
        const TSheetFile& file = *hierarchy.pages[above].file;
        for (std::size_t i = 0; i < file.boxes.size(); ++i) {
            InFile(file.fileName, [&] { AddPage(above, i); });
        }
    }

    void AddPage(std::size_t above, std::size_t boxIndex)
    {
        const TSheetFile& file = *hierarchy.pages[above].file;
        const TSheetBox& box = file.boxes[boxIndex];
        if (box.fileName.isEmpty()) {
            box.element.Fail(QStringLiteral("sheet '%1' names no file").arg(box.name));
        }
        const QString fileName = QDir::cleanPath(QFileInfo(file.fileName).dir().filePath(box.fileName));
        for (int page = static_cast<int>(above); page >= 0; page = hierarchy.pages[Index(page)].parent) {
            if (hierarchy.pages[Index(page)].file->fileName == fileName) {
                box.element.Fail(QStringLiteral("sheet '%1' contains itself").arg(box.name));
            }
        }
        if (hierarchy.pages.size() == mostPages) {
            box.element.Fail(QStringLiteral("more than %1 sheets").arg(mostPages));
        }
        TSheetPage page;
        try {
            page.file = &File(fileName);
        } catch (const TImportError& error) {
            if (error.File().isEmpty()) {
                box.element.Fail(QStringLiteral("sheet '%1': %2").arg(box.name, error.Cause()));
            }
            throw;
        }
        page.name = box.name;
        page.path = hierarchy.pages[above].path + box.name + QLatin1Char('/');
        page.uuids = hierarchy.pages[above].uuids;
        page.uuids.append(box.uuid);
        page.parent = static_cast<int>(above);
        page.boxInParent = static_cast<int>(boxIndex);
        page.number = PageNumber(box, page);
        hierarchy.pages.push_back(std::move(page));
    }

    /** The page number, which newer files have in the box, by its path, and older ones in the root sheet. */
    QString PageNumber(const TSheetBox& box, const TSheetPage& page) const
    {
        if (const std::optional<TSexpression> path =
                InstancePath(box.element, page.uuids.mid(0, page.uuids.size() - 1))) {
            const std::optional<TSexpression> number = path->Find("page");
            return number ? number->Value(0).Text() : QString();
        }
        return hierarchy.files.front()->pageNumbers.value(PathBelowRoot(page));
    }

    static QString PathBelowRoot(const TSheetPage& page)
    {
        QString path;
        for (const QString& uuid : page.uuids.mid(1)) {
            path += QLatin1Char('/') + uuid;
        }
        return path;
    }

    /** The instance data of an element for the sheet with this path of uuids. A file may be in several projects. */
    std::optional<TSexpression> InstancePath(const TSexpression& element, const QStringList& uuids) const
    {
        const std::optional<TSexpression> instances = element.Find("instances");
        if (!instances) {
            return std::nullopt;
        }
        const QString wanted = QLatin1Char('/') + uuids.join(QLatin1Char('/'));
        std::optional<TSexpression> found;
        for (const TSexpression project : *instances) {
            for (const TSexpression path : project) {
                const bool isThere = path.Name() == "path" && path.Value(0).Text() == wanted;
                if (isThere && (!found || project.Value(0).Text() == projectName)) {
                    found = path;
                }
            }
        }
        return found;
    }

    void SortPages()
    {
        std::vector<TSheetPage>& pages = hierarchy.pages;
        const bool allNumbered = std::all_of(pages.begin(), pages.end(), [](const TSheetPage& page) {
            bool isNumber = false;
            page.number.toInt(&isNumber);
            return isNumber;
        });
        std::vector<int> order(pages.size());
        std::vector<int> placeOf(pages.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            order[i] = static_cast<int>(i);
        }
        // The root is first, whatever its number.
        std::stable_sort(order.begin() + 1, order.end(), [&](int one, int other) {
            return allNumbered ? pages[Index(one)].number.toInt() < pages[Index(other)].number.toInt()
                               : IsInFrontOf(Index(one), Index(other));
        });
        std::vector<TSheetPage> sorted;
        for (std::size_t i = 0; i < order.size(); ++i) {
            placeOf[Index(order[i])] = static_cast<int>(i);
            sorted.push_back(std::move(pages[Index(order[i])]));
        }
        for (TSheetPage& page : sorted) {
            page.parent = page.parent < 0 ? -1 : placeOf[Index(page.parent)];
        }
        pages = std::move(sorted);
    }

    /** Without page numbers, each page is followed by those below it. */
    bool IsInFrontOf(std::size_t one, std::size_t other) const
    {
        const std::vector<int> wayToOne = Way(one);
        const std::vector<int> wayToOther = Way(other);
        return std::lexicographical_compare(wayToOne.begin(), wayToOne.end(), wayToOther.begin(), wayToOther.end());
    }

    std::vector<int> Way(std::size_t page) const
    {
        std::vector<int> way;
        for (int at = static_cast<int>(page); at >= 0; at = hierarchy.pages[Index(at)].parent) {
            way.insert(way.begin(), hierarchy.pages[Index(at)].boxInParent);
        }
        return way;
    }

    void ResolveSymbols(TSheetPage& page) const
    {
        for (const TPlacedSymbol& placed : page.file->symbols) {
            TPageSymbol symbol;
            symbol.symbol = &placed;
            symbol.path = PathBelowRoot(page) + QLatin1Char('/') + placed.uuid;
            symbol.reference = placed.Field(QStringLiteral("Reference"));
            symbol.unit = placed.unit;
            symbol.value = placed.Field(QStringLiteral("Value"));
            symbol.footprint = placed.Field(QStringLiteral("Footprint"));
            if (const std::optional<TSexpression> said = Instance(placed, page, symbol.path)) {
                TakeOver(*said, symbol);
            }
            AddPins(symbol);
            page.symbols.push_back(std::move(symbol));
        }
    }

    std::optional<TSexpression> Instance(const TPlacedSymbol& placed, const TSheetPage& page, const QString& path) const
    {
        const QHash<QString, TSexpression>& byPath = hierarchy.files.front()->symbolsByPath;
        const auto oldest = byPath.constFind(path);
        return oldest == byPath.constEnd() ? InstancePath(placed.element, page.uuids) : *oldest;
    }

    static void TakeOver(const TSexpression& said, TPageSymbol& symbol)
    {
        const auto text = [&said](std::string_view name, QString& target) {
            if (const std::optional<TSexpression> value = said.Find(name)) {
                target = ElementValues::UserName(value->Value(0));
            }
        };
        text("reference", symbol.reference);
        text("value", symbol.value);
        text("footprint", symbol.footprint);
        if (const std::optional<TSexpression> unit = said.Find("unit")) {
            symbol.unit = unit->Value(0).Integer();
        }
    }

    static void AddPins(TPageSymbol& symbol)
    {
        const TPlacedSymbol& placed = *symbol.symbol;
        if (!placed.library) {
            return;
        }
        for (const TLibraryPin& pin : placed.library->pins) {
            if (BelongsTo(pin, symbol.unit, placed.bodyStyle)) {
                const QString alternate = placed.alternates.value(pin.number);
                symbol.pins.push_back(
                    {&pin, placed.frame.ToSheet(pin.place), pin.alternates.value(alternate, pin.use), -1});
            }
        }
    }

    const TFileReader& readFile;
    QString projectName;
    TSheetHierarchy hierarchy;
};

} // namespace

TSheetHierarchy ReadHierarchy(const QString& rootFile, const TFileReader& readFile)
{
    return THierarchyReader(rootFile, readFile).Take();
}
