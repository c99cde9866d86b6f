#pragma once

#include <QHash>
#include <QString>

class TSexpression;

/** Variables in texts: `${REFERENCE}`, and in the oldest files `%R`. */
namespace TextVariables {

using TValues = QHash<QString, QString>;

/** The variables of a board's title block. */
TValues OfTitleBlock(const TSexpression& titleBlock);

/** The variables of a project file; none if it cannot be read. */
TValues OfProject(const QByteArray& json);

/** The variables of a footprint: its fields and its name. */
TValues OfFootprint(const TSexpression& footprint);

/** The text with all known variables replaced; unknown ones are kept. */
QString Resolved(const QString& text, const TValues& values);

} // namespace TextVariables
