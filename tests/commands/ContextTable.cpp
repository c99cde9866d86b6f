#include "tests/commands/ContextTable.h"

#include <algorithm>

namespace Test {

namespace {

constexpr Without acts = Without::Acts;
constexpr Without onTheRest = Without::ActsOnTheRest;
constexpr Without nothing = Without::DoesNothing;

} // namespace

const std::vector<ContextLaw>& ContextTable()
{
    using From = QVector<Context>;
    static const std::vector<ContextLaw> table{
        // name, without the board, its view, the schematic, any of them when it is made; made from
        {"TCmdNetClass", acts, acts, nothing, nothing},
        {"TCmdNetColorSch", acts, acts, acts, nothing},
        {"TCmdNetColorPcb", onTheRest, onTheRest, nothing, nothing},
        {"TCmdNetPrio", acts, acts, nothing, nothing},
        {"TCmdPortName", onTheRest, acts, onTheRest, nothing},
        {"TCmdNetTieName", onTheRest, onTheRest, onTheRest, nothing},
        {"TCmdNetTieNameVis", onTheRest, onTheRest, onTheRest, nothing},
        {"TCmdNetTiePcbLayer", nothing, nothing, acts, nothing},
        {"TCmdNetTiePadSz", nothing, nothing, acts, nothing},
        {"TCmdNetTieWireWidth", nothing, nothing, acts, nothing},
        {"TCmdNetTieSchSymbol", acts, acts, nothing, nothing},
        {"TCmdPackageRefDes", nothing, nothing, acts, nothing, From{Context::Board, Context::View}},
        {"TCmdPackageValue", nothing, nothing, acts, nothing, From{Context::Board, Context::View}},
        {"TCmdPkgConnect", acts, nothing, acts, nothing},
        {"TCmdPkgDisconnect", acts, nothing, acts, nothing},
        {"TCmdPkgSide", acts, nothing, acts, nothing},
        {"TCmdWireLayer", nothing, acts, acts, nothing, From{Context::Board}},
        {"TCmdPartConnect", onTheRest, acts, onTheRest, onTheRest},
        {"TCmdPartDisconnect", onTheRest, acts, onTheRest, onTheRest},
        {"TCmdCmpValue", onTheRest, onTheRest, nothing, nothing},
    };
    return table;
}

ContextLaw ContextLawOf(const QString& command)
{
    const std::vector<ContextLaw>& table = ContextTable();
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const ContextLaw& law) { return law.name == command; });
    return found == table.end() ? ContextLaw{command} : *found;
}

} // namespace Test
