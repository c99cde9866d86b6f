#include "workbench/importer/format/TNotShown.h"

#include <algorithm>

void TNotShown::Count(const char* kind, int count)
{
    const QLatin1String name(kind);
    const auto known =
        std::find_if(kinds.begin(), kinds.end(), [name](const auto& entry) { return entry.first == name; });
    if (known == kinds.end()) {
        kinds.append({name, count});
    } else {
        known->second += count;
    }
}
