#pragma once

#include "workbench/importer/board/TEdgeShape.h"
#include "workbench/importer/board/TFileLayers.h"
#include "workbench/importer/board/TTrack.h"
#include "workbench/importer/format/TextVariables.h"
#include "workbench/importer/format/TNetSettings.h"
#include "workbench/importer/format/TNotShown.h"

#include <application/TBoard.h>

#include <QHash>

#include <memory>
#include <optional>
#include <vector>

/** What a pad does not say itself it takes over from its footprint, and a footprint from the board. */
struct TPadDefaults
{
    qint64 maskMargin = 0;         ///< How far the mask opening reaches beyond the copper, in nanometres.
    qint64 pasteMargin = 0;        ///< The same for the paste,
    double pasteRatio = 0;         ///< to which this part of the pad's shorter side is added.
    std::optional<int> connection; ///< How zones connect, in the file's numbers.
};

/** Drill diameters, in nanometres, of the vias that do not say theirs. */
struct TViaDrills
{
    std::optional<qint64> via;
    std::optional<qint64> microVia;
};

/** A board in the making, and what its elements refer to while they are read. */
struct TBoardDraft
{
    std::unique_ptr<TBoard> board = std::make_unique<TBoard>();
    TFileLayers layers;
    QHash<int, QString> nets; ///< Names by the numbers that the file uses,
    QStringList netNames;     ///< and in the order of the file.
    TNetSettings netSettings;
    TPadDefaults padDefaults;
    TViaDrills viaDrills;                    ///< Of the whole board,
    QHash<QString, TViaDrills> netViaDrills; ///< and of the nets whose class has its own.
    bool viasTented = true;                  ///< The solder mask covers vias that do not say otherwise.
    TextVariables::TValues textVariables;
    std::vector<TTrack> tracks;    ///< To become wires when all that they can be linked to has been read.
    std::vector<TEdgeShape> edges; ///< What the outline is made of, in the order of the file.
    QHash<const TGraphicsItem*, QStringList> netsOfTies; ///< Which nets each net tie joins.
    QHash<const TGraphicsItem*, QString> paths;          ///< Of the symbols that packages and net ties belong to.
    TNotShown notShown;

    /** The name of the drill pair of two layers, in any order; the board gets the pair if it has none yet. */
    QString DrillPair(Osmirel::Layer one, Osmirel::Layer other);
    /** The name of the net that an element is on, by its `(net number ...)`; empty if it is on none. */
    QString NetOf(const TSexpression& element) const;
    /** The layer that an element lies on, the first of several; `Osmirel::NoLayer` for one that is not known. */
    Osmirel::Layer LayerOf(const TSexpression& element) const;
};
