#pragma once

#include <QList>
#include <QString>

class TAbstractProperty;

/** An edit of a row on a command line: `Label=value` or `Label.part=value`. */
struct TAssignment
{
    TAbstractProperty* row = nullptr;
    QString part; ///< Empty for the row's value itself.
    QString value;

    /**
     * Finds the row that a text refers to: of those whose label, with or without its final colon, begins the text and
     * is followed by a part or the equals sign, the one of the longest label. Throws `TSessionError` if there is none.
     */
    static TAssignment Resolve(const QString& text, const QList<TAbstractProperty*>& rows);
};
