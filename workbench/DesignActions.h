#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QPointF>
#include <QVector>

#include <memory>

class TDesign;
class TUndoCommand;

/** What an action works on. */
struct TActionContext
{
    TDesign& design;
    QList<TGraphicsItem*> selection;
    QString text;  ///< What was asked for.
    QPointF point; ///< Where on the board, in scene units.
};

/** Something that the application does itself with what is selected, through a command that no row makes. */
struct TDesignAction
{
    enum class Asks { Nothing, Text, Point };

    const char* option = ""; ///< The step of a command line that does it.
    Asks asks = Asks::Nothing;
    const char* menuText = ""; ///< Translated in the context "DesignActions", like the words after it.
    const char* question = ""; ///< What the text is, as a dialog asks for it.
    const char* key = "";      ///< The key on the canvas; empty for none.
    const char* needs = "";    ///< What has to be selected.
    /** The command, or null if the selection does not suit it. */
    std::unique_ptr<TUndoCommand> (*make)(const TActionContext& context) = nullptr;

    QString MenuText() const;
    QString Question() const;
    /** Such as "packages", for one who has not selected any. */
    QString Needs() const;
};

namespace DesignActions {

/** All actions, in the order of the menu. */
const QVector<TDesignAction>& All();

} // namespace DesignActions
