#pragma once

namespace Bench {

class Shelf;

// Each registers the commands of one family. Commands over the same items come together, since the shelf keeps only one
// family of designs.
void AddViasAndPads(Shelf& shelf);
void AddDrawings(Shelf& shelf);
void AddPours(Shelf& shelf);
void AddWires(Shelf& shelf);
void AddWireLayer(Shelf& shelf);
void AddPackages(Shelf& shelf);
void AddNets(Shelf& shelf);
void AddNetTies(Shelf& shelf);

} // namespace Bench
