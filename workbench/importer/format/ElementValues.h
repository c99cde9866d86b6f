#pragma once

#include <QPointF>
#include <QString>

class TSexpression;
struct TGridPoint;

/** What elements of many kinds have in common. */
namespace ElementValues {

/** The place that a list such as `(at x y ...)` names. */
TGridPoint GridPoint(const TSexpression& list);

/** The same in scene units. */
QPointF Position(const TSexpression& list);

/** The angle that ends `(at x y [angle])`, counterclockwise, in millionths of a degree; 0 if there is none. */
qint64 Angle(const TSexpression& at);

/** A name of the user's, with the written-out characters such as `{slash}` as themselves; a lone `~` is empty. */
QString UserName(const TSexpression& atom);

/** The same for a name that stands elsewhere than in the board file. */
QString WithoutWrittenOutCharacters(QString name);

/** A footprint's name with its library behind an at sign, where the file has it in front of a colon. */
QString PackageName(const QString& libraryName);

/** Whether a list such as `(tenting front back)` or `(tenting (front yes) (back no))` names both sides. */
bool CoversBothSides(const TSexpression& tenting);

} // namespace ElementValues
