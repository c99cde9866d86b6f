#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QPointF>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>

class TDesign;
class TUndoCommand;

/** What an action works on. */
struct TActionContext
{
    TDesign& design;
    QList<TGraphicsItem*> selection;
    QString text;  ///< What was asked for.
    QPointF point; ///< Where in the document, or width and height, or a length and 0; in scene units.
};

/** Something that the application does itself with what is selected, through a command that no row makes. */
struct TDesignAction
{
    enum class Asks { Nothing, Text, Point, Size, Length, Level };

    const char* option = ""; ///< The step of a command line that does it.
    Asks asks = Asks::Nothing;
    const char* menuText = ""; ///< Translated in the context "DesignActions", like the words after it.
    const char* question = ""; ///< What the text is, as a dialog asks for it.
    const char* key = "";      ///< The key on the canvas; empty for none.
    const char* needs = "";    ///< What has to be selected.
    /** The command, or null if the selection does not suit it. */
    std::unique_ptr<TUndoCommand> (*make)(const TActionContext& context) = nullptr;

    /** Whether what it asks for are lengths: of one number, or of two. */
    bool AsksForNumbers() const { return asks == Asks::Point || asks == Asks::Size || asks == Asks::Length; }

    QString MenuText() const;
    QString Question() const;
    /** Such as "packages", for one who has not selected any. */
    QString Needs() const;
};

namespace DesignActions {

/** All actions, in the order of the menu. */
const QVector<TDesignAction>& All();

/** The priority levels of nets, as they are called. */
QStringList Levels();

/** One number, or two with a comma between them, in millimetres, as scene units; nothing for any other text. A size or
 * a length is greater than 0. */
std::optional<QPointF> ParseNumbers(TDesignAction::Asks asks, const QString& text);

} // namespace DesignActions
