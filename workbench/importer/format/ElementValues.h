#pragma once

#include <QPointF>
#include <QString>

class TSexpression;
struct TGridPoint;

/** Values shared by elements of many kinds. */
namespace ElementValues {

/** The position in a list such as `(at x y ...)`. */
TGridPoint GridPoint(const TSexpression& list);

/** The same in scene units. */
QPointF Position(const TSexpression& list);

/** The angle that ends `(at x y [angle])`, counterclockwise, in millionths of a degree; 0 if there is none. */
qint64 Angle(const TSexpression& at);

/** A user-defined name, with escapes such as `{slash}` resolved; a lone `~` is empty. */
QString UserName(const TSexpression& atom);

/** The same for a name that is not from the board file. */
QString WithoutWrittenOutCharacters(QString name);

/** A footprint's name with its library after an at sign; the file has it before a colon. */
QString PackageName(const QString& libraryName);

/** Whether a list such as `(tenting front back)` or `(tenting (front yes) (back no))` names both sides. */
bool CoversBothSides(const TSexpression& tenting);

} // namespace ElementValues
