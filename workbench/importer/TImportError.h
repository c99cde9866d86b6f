#pragma once

#include <QString>

#include <stdexcept>

/** Why a file cannot be imported, and where. Thrown by the readers; it never leaves the importer. */
class TImportError : public std::runtime_error
{
public:
    TImportError(int atLine, const QString& cause) : std::runtime_error(cause.toStdString()), line(atLine) {}

    /** The line of the file, from 1; 0 if the cause lies in no line. */
    int Line() const { return line; }
    QString Cause() const { return QString::fromUtf8(what()); }

private:
    int line;
};
