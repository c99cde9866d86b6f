#pragma once

#include <QString>

#include <stdexcept>

/** Why a file cannot be imported, and where. Thrown by the readers; it never leaves the importer. */
class TImportError : public std::runtime_error
{
public:
    TImportError(int atLine, const QString& cause, const QString& inFile = {})
        : std::runtime_error(cause.toStdString()), line(atLine), file(inFile)
    {}

    /** The line of the file, from 1; 0 if the cause is not in a line. */
    int Line() const { return line; }
    QString Cause() const { return QString::fromUtf8(what()); }
    /** The file, if several are read; else empty. */
    const QString& File() const { return file; }

private:
    int line;
    QString file;
};

/** Performs a step of reading a file; its errors then name that file unless they already name one. */
template <class Step>
auto InFile(const QString& file, const Step& step)
{
    try {
        return step();
    } catch (const TImportError& error) {
        if (!error.File().isEmpty()) {
            throw;
        }
        throw TImportError(error.Line(), error.Cause(), file);
    }
}
