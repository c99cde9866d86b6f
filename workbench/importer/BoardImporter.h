#pragma once

#include <application/TBoard.h>
#include <application/TSchematic.h>

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <functional>
#include <memory>

/** A board that was read from a file, or else why there is none. */
struct TImportResult
{
    /** Null if the file could not be read, or reading was cancelled. A board is never half of what is in its file. */
    std::unique_ptr<TBoard> board;

    /** The nets of the board, their classes and colours; null if there is no board. */
    std::unique_ptr<TSchematic> schematic;

    /** What the file holds and the board does not, with counts: ("track segments", 17921). */
    QList<QPair<QString, int>> notShown;

    /** "file:line: cause"; empty if there is a board, and if reading was cancelled. */
    QString error;

    bool cancelled = false;
};

/** Called with the part that is done, 1 to 100 percent, each time that it has grown. False cancels. */
using TImportProgress = std::function<bool(int percent)>;

/** Reads a board file (`.kicad_pcb`, formats 20171130 to 20241229). Resources can be read like files. */
TImportResult ImportBoard(const QString& fileName, const TImportProgress& progress = {});

/** Reads the text of a board file; @p name stands for the file in the error. */
TImportResult ImportBoardText(const QByteArray& text, const QString& name, const TImportProgress& progress = {});
