#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>

namespace Bench {

using Items = QList<TGraphicsItem*>;

// The minimum that a set must read: attributes, compared until they differ, and nothing else.

void ScanVias(const Items& items);
void ScanPads(const Items& items);
void ScanHoles(const Items& items);
void ScanWires(const Items& items);
void ScanPackages(const Items& items);
void ScanNetTies(const Items& items);
void ScanNetTieSymbols(const Items& items);
void ScanTexts(const Items& items);
void ScanDrawings(const Items& items);
void ScanMillings(const Items& items);
void ScanKeepouts(const Items& items);
void ScanOutlines(const Items& items);
void ScanPours(const Items& items);
void ScanNetWires(const Items& items);
void ScanBuses(const Items& items);
void ScanPins(const Items& items);
void ScanPorts(const Items& items);
void ScanParts(const Items& items);
void ScanTags(const Items& items);

} // namespace Bench
