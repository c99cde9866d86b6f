#include "workbench/importer/format/ElementValues.h"

#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/TSexpression.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::pair<const char*, char> writtenOutCharacters[] = {
    {"slash", '/'}, {"backslash", '\\'}, {"lt", '<'},     {"gt", '>'},       {"colon", ':'},
    {"comma", ','}, {"bar", '|'},        {"quote", '\''}, {"dblquote", '"'}, {"brace", '{'},
    {"space", ' '}, {"dollar", '$'},     {"tab", '\t'},   {"return", '\n'},
};

/** Braces after these characters mark up text: `~{RESET}` has an overbar. */
bool MarksUp(QChar character)
{
    return QLatin1String("~$^_").contains(character);
}

} // namespace

QString ElementValues::WithoutWrittenOutCharacters(QString name)
{
    for (int open = name.indexOf(QLatin1Char('{')); open >= 0; open = name.indexOf(QLatin1Char('{'), open + 1)) {
        const int close = name.indexOf(QLatin1Char('}'), open);
        if (close < 0 || (open > 0 && MarksUp(name[open - 1]))) {
            continue;
        }
        const QStringRef word = name.midRef(open + 1, close - open - 1);
        const auto known = std::find_if(std::begin(writtenOutCharacters), std::end(writtenOutCharacters),
                                        [&word](const auto& entry) { return word == QLatin1String(entry.first); });
        if (known != std::end(writtenOutCharacters)) {
            name.replace(open, close - open + 1, QLatin1Char(known->second));
        }
    }
    return name;
}

TGridPoint ElementValues::GridPoint(const TSexpression& list)
{
    return {list.Value(0).Millionths(), list.Value(1).Millionths()};
}

QPointF ElementValues::Position(const TSexpression& list)
{
    return Measures::ScenePoint(GridPoint(list));
}

qint64 ElementValues::Angle(const TSexpression& at)
{
    const std::optional<TSexpression> angle = at.FindValue(2);
    return angle ? angle->Millionths() : 0;
}

QString ElementValues::UserName(const TSexpression& atom)
{
    const QString name = atom.Text();
    return name == QLatin1String("~") ? QString() : WithoutWrittenOutCharacters(name);
}

QString ElementValues::PackageName(const QString& libraryName)
{
    const int colon = libraryName.indexOf(QLatin1Char(':'));
    return colon < 0 ? libraryName : libraryName.mid(colon + 1) + QLatin1Char('@') + libraryName.left(colon);
}

bool ElementValues::CoversBothSides(const TSexpression& tenting)
{
    return tenting.HasFlag("front") && tenting.HasFlag("back");
}
