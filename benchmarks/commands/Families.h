#pragma once

namespace Bench {

class Shelf;

// Each registers the commands of one family. Commands over the same items are together, since the shelf keeps only one
// family of designs.
void AddViasAndPads(Shelf& shelf);
void AddDrawings(Shelf& shelf);
void AddPours(Shelf& shelf);
void AddWires(Shelf& shelf);
void AddWireLayer(Shelf& shelf);
void AddPackages(Shelf& shelf);
void AddNets(Shelf& shelf);
void AddNetTies(Shelf& shelf);
void AddSheetNets(Shelf& shelf);
void AddPins(Shelf& shelf);
void AddPorts(Shelf& shelf);
void AddParts(Shelf& shelf);
void AddProjectTree(Shelf& shelf);
void AddTags(Shelf& shelf);

} // namespace Bench
