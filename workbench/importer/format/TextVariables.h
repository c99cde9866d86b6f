#pragma once

#include <QHash>
#include <QString>

class TSexpression;

/** Names in texts that stand for other texts: `${REFERENCE}`, and in the oldest files `%R`. */
namespace TextVariables {

using TValues = QHash<QString, QString>;

/** Those that a board's title block gives. */
TValues OfTitleBlock(const TSexpression& titleBlock);

/** Those that a project file gives; none if it cannot be read. */
TValues OfProject(const QByteArray& json);

/** Those that a footprint gives: its fields and its name. */
TValues OfFootprint(const TSexpression& footprint);

/** The text with all known names replaced; unknown ones stay as they are. */
QString Resolved(const QString& text, const TValues& values);

} // namespace TextVariables
