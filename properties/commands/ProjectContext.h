#pragma once

#include <properties/Export.h>

class QGraphicsView;
class TBoard;
class TCmpModel;
class TNetModel;
class TProject;
class TSchematic;

/** The parts of a project that commands use; null if the part, or anything on the way to it, is missing. */
namespace ProjectContext {

TBoard* Board(const TProject* project);
TSchematic* Schematic(const TProject* project);
TNetModel* NetModel(const TProject* project);
TNetModel* NetModel(TSchematic* schematic);
TCmpModel* CmpModel(TSchematic* schematic);
QGraphicsView* BoardView(const TProject* project);

/** Whether schematic and board are kept in sync. */
PROPERTIES_EXPORT bool IsInSync(const TProject* project);

} // namespace ProjectContext
