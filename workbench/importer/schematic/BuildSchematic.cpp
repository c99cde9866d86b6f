#include "workbench/importer/schematic/BuildSchematic.h"

#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/TImportError.h"
#include "workbench/importer/schematic/PageItems.h"

#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace {

/** The names of unsupported elements for users. */
const char* KindName(const TSexpression& element)
{
    constexpr std::pair<std::string_view, const char*> kinds[] = {
        {"image", "images"},
        {"table", "tables"},
        {"rule_area", "rule areas"},
        {"netclass_flag", "net class flags"},
        {"directive_label", "net class flags"},
        {"group", "groups"},
    };
    const auto known = std::find_if(std::begin(kinds), std::end(kinds),
                                    [&element](const auto& kind) { return kind.first == element.Name(); });
    return known == std::end(kinds) ? "other elements" : known->second;
}

/** The variables in the texts of one page. */
TextVariables::TValues PageVariables(const TSheetPage& page, const TSchematicDraft& draft)
{
    TextVariables::TValues values = draft.variables;
    if (const std::optional<TSexpression> titleBlock = page.file->Root().Find("title_block")) {
        const TextVariables::TValues own = TextVariables::OfTitleBlock(*titleBlock);
        for (auto value = own.begin(); value != own.end(); ++value) {
            values.insert(value.key(), value.value());
        }
    }
    values.insert(QStringLiteral("SHEETNAME"), page.name);
    values.insert(QStringLiteral("SHEETPATH"), page.path);
    values.insert(QStringLiteral("FILENAME"), QFileInfo(page.file->fileName).fileName());
    values.insert(QStringLiteral("#"), page.number);
    values.insert(QStringLiteral("##"), QString::number(draft.hierarchy.pages.size()));
    return values;
}

void BuildPage(const TSheetPage& page, TSchematicDraft& draft)
{
    TSchematicPage* target = draft.schematic.AddPage();
    if (!target) {
        throw TImportError(0, QStringLiteral("more than %1 pages").arg(draft.schematic.Pages().size()));
    }
    TPageDraft made{page, *target, PageVariables(page, draft), {}, {}};
    PageItems::AddBoxes(made);
    PageItems::AddGraphics(made, draft);
    PageItems::AddLabels(made);
    PageItems::AddParts(made, draft);
    PageItems::AddPorts(made, draft);
    PageItems::AddNoConnects(made);
    PageItems::LinkPage(made, draft);
    for (const TSexpression& element : page.file->others) {
        draft.notShown.Count(KindName(element));
    }
}

/** Designators by their letters, then by their numbers: R2 before R10. */
bool IsInFrontOf(const QString& one, const QString& other)
{
    const auto parts = [](const QString& designator) {
        const auto end = std::find_if(designator.rbegin(), designator.rend(), [](QChar c) { return !c.isDigit(); });
        const auto letters = static_cast<int>(std::distance(end, designator.rend()));
        return std::make_tuple(designator.left(letters), designator.mid(letters).toLongLong(), designator);
    };
    return parts(one) < parts(other);
}

void AddComponents(TSchematicDraft& draft)
{
    for (const TSheetPage& page : draft.hierarchy.pages) {
        for (const TPageSymbol& symbol : page.symbols) {
            const quint16 number = draft.numbers.value(PageItems::ComponentKey(symbol));
            if (number != 0 && !PageItems::IsNetTie(symbol) && !draft.schematic.CmpModel()->CmpModelItem(number)) {
                draft.schematic.CmpModel()->Add(
                    number, {symbol.reference, symbol.value, ElementValues::PackageName(symbol.footprint), 0});
            }
        }
    }
    draft.schematic.CmpModel()->UpdateCount();
}

} // namespace

QHash<QString, quint16> NumberComponents(const TSheetHierarchy& hierarchy)
{
    constexpr int mostComponents = 0xffff;
    QStringList keys;
    for (const TSheetPage& page : hierarchy.pages) {
        for (const TPageSymbol& symbol : page.symbols) {
            keys.append(PageItems::ComponentKey(symbol));
        }
    }
    keys.removeAll(QString());
    keys.removeDuplicates();
    std::sort(keys.begin(), keys.end(), IsInFrontOf);
    if (keys.size() > mostComponents) {
        throw TImportError(0, QStringLiteral("more than %1 components").arg(mostComponents));
    }
    QHash<QString, quint16> numbers;
    for (const QString& key : keys) {
        numbers.insert(key, static_cast<quint16>(numbers.size() + 1));
    }
    return numbers;
}

QStringList NetNames(const TSheetHierarchy& hierarchy)
{
    QStringList names;
    for (const TDesignNet& net : hierarchy.nets) {
        names.append(net.name);
    }
    names.removeAll(QString());
    names.sort();
    names.removeDuplicates();
    return names;
}

void BuildSchematic(TSchematicDraft& draft)
{
    for (auto variable = draft.variables.begin(); variable != draft.variables.end(); ++variable) {
        draft.tagValues.insert(variable.key(), variable.value());
    }
    for (const TSheetPage& page : draft.hierarchy.pages) {
        InFile(page.file->fileName, [&] { BuildPage(page, draft); });
    }
    AddComponents(draft);
    draft.schematic.SaveTopItemsFromWorkspace();
}
