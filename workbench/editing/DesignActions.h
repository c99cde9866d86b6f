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

/** The input of an action. */
struct TActionContext
{
    TDesign& design;
    QList<TGraphicsItem*> selection;
    QString text;  ///< As entered by the user.
    QPointF point; ///< A position in the document, or width and height, or a length and 0; in scene units.
};

/** An action of the application itself on the selection, through a command that no row creates. */
struct TDesignAction
{
    enum class Asks { Nothing, Text, Point, Size, Length, Level };

    const char* option = ""; ///< The command line option of the step.
    Asks asks = Asks::Nothing;
    const char* menuText = ""; ///< Translated in the context "DesignActions", like the words after it.
    const char* question = ""; ///< The prompt of the dialog that asks for the text.
    const char* key = "";      ///< The key on the canvas; empty for none.
    const char* needs = "";    ///< What has to be selected.
    /** Creates the command, or returns null if the selection is unsuitable. */
    std::unique_ptr<TUndoCommand> (*make)(const TActionContext& context) = nullptr;

    /** Whether it asks for lengths: one number, or two. */
    bool AsksForNumbers() const { return asks == Asks::Point || asks == Asks::Size || asks == Asks::Length; }

    QString MenuText() const;
    QString Question() const;
    /** Such as "packages", for the message that some must be selected. */
    QString Needs() const;
};

namespace DesignActions {

/** All actions, in the order of the menu. */
const QVector<TDesignAction>& All();

/** The names of the priority levels of nets. */
QStringList Levels();

/** One number, or two with a comma between them, in millimetres, as scene units; none for any other text. A size or a
 * length must be greater than 0. */
std::optional<QPointF> ParseNumbers(TDesignAction::Asks asks, const QString& text);

} // namespace DesignActions
