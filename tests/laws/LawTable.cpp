#include "tests/laws/LawTable.h"

#include "tests/laws/LawMaking.h"

namespace Test {

CommandLaw& CommandLaw::WithId(int number, Merging rule)
{
    id = number;
    merging = rule;
    return *this;
}

CommandLaw& CommandLaw::WithCategories(unsigned bits)
{
    categories = bits;
    return *this;
}

CommandLaw& CommandLaw::WithoutRepaint()
{
    repaints = false;
    return *this;
}

CommandLaw& CommandLaw::WithRepaintOf(std::function<const QGraphicsItem*(const TGraphicsItem&)> child)
{
    repainted = std::move(child);
    return *this;
}

CommandLaw& CommandLaw::Undone(std::function<void(StateFields&)> quirk)
{
    undone = std::move(quirk);
    return *this;
}

const std::vector<CommandLaw>& LawTable()
{
    static const std::vector<CommandLaw> table = [] {
        std::vector<CommandLaw> all;
        for (const auto& part : {LawsOfPadsAndVias(), LawsOfPours(), LawsOfTexts(), LawsOfDrawings(), LawsOfSheets()}) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }();
    return table;
}

} // namespace Test
