#pragma once

#include "properties/rows/TPropertyEnum.h"

/** The painter's composition modes by name, which are not translated: the value of each is its position. */
namespace CompositionModes {

inline void AddTo(TPropertyEnum& row)
{
    static constexpr const char* names[] = {"SourceOver",
                                            "DestinationOver",
                                            "Clear",
                                            "Source",
                                            "Destination",
                                            "SourceIn",
                                            "DestinationIn",
                                            "SourceOut",
                                            "DestinationOut",
                                            "SourceAtop",
                                            "DestinationAtop",
                                            "Xor",
                                            "_Plus",
                                            "_Multiply",
                                            "_Screen",
                                            "_Overlay",
                                            "_Darken",
                                            "_Lighten",
                                            "_ColorDodge",
                                            "_ColorBurn",
                                            "_HardLight",
                                            "_SoftLight",
                                            "_Difference",
                                            "_Exclusion",
                                            "Op_SourceOrDestination",
                                            "Op_SourceAndDestination",
                                            "Op_SourceXorDestination",
                                            "Op_NotSourceAndNotDestination",
                                            "Op_NotSourceOrNotDestination",
                                            "Op_NotSourceXorDestination",
                                            "Op_NotSource",
                                            "Op_NotSourceAndDestination",
                                            "Op_SourceAndNotDestination",
                                            "Op_NotSourceOrDestination",
                                            "Op_SourceOrNotDestination",
                                            "Op_ClearDestination",
                                            "Op_SetDestination",
                                            "Op_NotDestination"};
    int value = 0;
    for (const char* name : names) {
        row.AddItem(QString::fromLatin1(name), value++);
    }
}

} // namespace CompositionModes
