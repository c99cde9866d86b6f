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

/** Properties that a pad inherits from its footprint, and a footprint from the board. */
struct TPadDefaults
{
    qint64 maskMargin = 0;         ///< How far the mask opening reaches beyond the copper, in nanometres.
    qint64 pasteMargin = 0;        ///< The same for the paste,
    double pasteRatio = 0;         ///< to which this part of the pad's shorter side is added.
    std::optional<int> connection; ///< How zones connect, in the file's numbers.
};

/** Default drill diameters of vias, in nanometres. */
struct TViaDrills
{
    std::optional<qint64> via;
    std::optional<qint64> microVia;
};

/** A board under construction, and the definitions that its elements refer to while they are read. */
struct TBoardDraft
{
    std::unique_ptr<TBoard> board = std::make_unique<TBoard>();
    TFileLayers layers;
    QHash<int, QString> nets; ///< Names by the numbers that the file uses,
    QStringList netNames;     ///< and in file order.
    TNetSettings netSettings;
    TPadDefaults padDefaults;
    TViaDrills viaDrills;                    ///< Of the whole board,
    QHash<QString, TViaDrills> netViaDrills; ///< and of the nets whose class has its own.
    bool viasTented = true;                  ///< The solder mask covers vias by default.
    TextVariables::TValues textVariables;
    std::vector<TTrack> tracks;    ///< Become wires once everything they can be linked to has been read.
    std::vector<TEdgeShape> edges; ///< The shapes of the outline, in file order.
    QHash<const TGraphicsItem*, QStringList> netsOfTies; ///< Which nets each net tie joins.
    QHash<const TGraphicsItem*, QString> paths;          ///< Of the symbols that packages and net ties belong to.
    TNotShown notShown;

    /** The name of the drill pair of two layers, in any order; adds the pair to the board if it is missing. */
    QString DrillPair(Osmirel::Layer one, Osmirel::Layer other);
    /** The name of the net that an element is on, by its `(net number ...)`; empty if it is on none. */
    QString NetOf(const TSexpression& element) const;
    /** The layer that an element lies on, the first of several; `Osmirel::NoLayer` for one that is not known. */
    Osmirel::Layer LayerOf(const TSexpression& element) const;
};
