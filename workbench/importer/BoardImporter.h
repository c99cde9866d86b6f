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

/** A design that was read from files, or else why there is none. */
struct TImportResult
{
    /** Null if there is none, if a file could not be read, and if reading was cancelled. A board is never half of what
     *  is in its file. */
    std::unique_ptr<TBoard> board;

    /** Where the nets have their classes and colours. It has no pages where only a board was read; null if a file could
     *  not be read, and if reading was cancelled. */
    std::unique_ptr<TSchematic> schematic;

    /** What the schematic's pages are called, in their order. */
    QStringList pageNames;

    /** What the tags of the schematic show, by their names. */
    QMap<QString, QString> tagValues;

    /** What the files hold and the design does not, with counts: ("track segments", 17921). */
    QList<QPair<QString, int>> notShown;

    /** What could not be read besides the design, "file: cause" or "file:line: cause". It is whole all the same.
     */
    QStringList warnings;

    /** "file:line: cause"; empty if all is well, and if reading was cancelled. */
    QString error;

    bool cancelled = false;
};

/** Called with the part that is done, 1 to 100 percent, each time that it has grown. False cancels. */
using TImportProgress = std::function<bool(int percent)>;

/**
 * Reads a board file (`.kicad_pcb`, formats 20171130 to 20241229), and the project file (`.kicad_pro`) beside it for
 * the net classes and colours. Resources can be read like files.
 */
TImportResult ImportBoard(const QString& fileName, const TImportProgress& progress = {});

/** Texts of files, with the names that stand for them in messages. */
struct TImportSource
{
    QByteArray text;
    QString name;
    QByteArray projectText; ///< Empty for none.
    QString projectName;
    QString projectProblem; ///< Why there is none, to be told if the board needs one.
};

/** Reads the texts of a board file and its project file. */
TImportResult ImportBoardText(const TImportSource& source, const TImportProgress& progress = {});
/** Reads the text of a board file that has no project file. */
TImportResult ImportBoardText(const QByteArray& text, const QString& name, const TImportProgress& progress = {});
