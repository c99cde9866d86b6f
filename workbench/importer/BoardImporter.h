#pragma once

#include <application/TBoard.h>
#include <application/TSchematic.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/** A design that was read from files, or the reason why there is none. */
struct TImportResult
{
    /** Null if there is none, if a file could not be read, and if reading was cancelled. A board is never partial.
     */
    std::unique_ptr<TBoard> board;

    /** Holds the classes and colours of the nets. Without pages if only a board was read; null if a file could not be
     *  read, and if reading was cancelled. */
    std::unique_ptr<TSchematic> schematic;

    /** The names of the schematic's pages, in order. */
    QStringList pageNames;

    /** The values of the schematic's tags, by name. */
    QMap<QString, QString> tagValues;

    /** Elements of the files that the design lacks, with counts: ("track segments", 17921). */
    QList<QPair<QString, int>> notShown;

    /** Problems that do not affect the design's completeness, "file: cause" or "file:line: cause". */
    QStringList warnings;

    /** "file:line: cause"; empty on success, and if reading was cancelled. */
    QString error;

    bool cancelled = false;
};

/** Called with the progress, 1 to 100 percent, whenever it has grown. Returning false cancels. */
using TImportProgress = std::function<bool(int percent)>;

/**
 * Reads a board file (`.kicad_pcb`, formats 20171130 to 20241229), and the project file (`.kicad_pro`) beside it for
 * the net classes and colours. Resource paths work like file names.
 */
TImportResult ImportBoard(const QString& fileName, const TImportProgress& progress = {});

/** Contents of files, with their names for messages. */
struct TImportSource
{
    QByteArray text;
    QString name;
    QByteArray projectText; ///< Empty for none.
    QString projectName;
    QString projectProblem; ///< Why there is none, for a message if the board needs one.
};

/** Reads the texts of a board file and its project file. */
TImportResult ImportBoardText(const TImportSource& source, const TImportProgress& progress = {});
/** Reads the text of a board file that has no project file. */
TImportResult ImportBoardText(const QByteArray& text, const QString& name, const TImportProgress& progress = {});
