#pragma once

#include <QString>
#include <QStringList>

class QKeySequence;
class QPointF;
class TItemQuery;
struct TDesignAction;
class TMainWindow;
class TPart;
class TPropertySet;
class TSchPage;

/**
 * Operates a window as a user would: selects, edits rows through their editors, presses keys, undoes and redoes.
 *
 * Each operation returns its result, one or more lines without a final line break, or throws `TSessionError` without
 * any effect. The window must show a design.
 */
class TSession
{
public:
    explicit TSession(TMainWindow& shownWindow) : window(shownWindow) {}

    /** Show a page, given by its number or its name, or the board; later selections are made there. */
    QString ShowPage(const QString& page);
    QString ShowBoard();
    /** The project tree, one line per row. */
    QString Tree() const;
    /** Open a page, or a part's symbol, as from the tree: with an undo step. A part is given by its designator, or by
     *  the number of its component. */
    QString OpenPage(const QString& page);
    QString OpenPart(const QString& part);
    QString CloseSymbol();
    /** Rename an entry of the tree; the renaming is `Page=name` or `Part=name`. */
    QString RenamePage(const QString& renaming);
    QString RenamePart(const QString& renaming);
    /** Selects in the document that is shown. */
    QString Select(const TItemQuery& query);
    /** The panel's title, and one line for each shown row. */
    QString Panel() const;
    /** Edits a row; the assignment is `Label=value` or `Label.part=value`. */
    QString Set(const QString& assignment);
    /** Gives the focus to the canvas and presses a key there. */
    QString Press(const QKeySequence& key);
    /** Sets or clears the flag of the selected items by which their edits bypass undo. */
    QString Bypass(bool on);
    /** Performs an action of the application on the selected items; the point is in scene coordinates. */
    QString Do(const TDesignAction& action, const QString& text, const QPointF& point);
    /** Shows or hides the designators, or the values, of all packages. */
    QString ShowDesignators(bool on);
    QString ShowValues(bool on);
    /** Shows or hides the layers of a list of names, or "all". */
    QString ShowLayers(const QString& names);
    QString HideLayers(const QString& names);
    QString ZoomToAll();
    QString ZoomToSelection();
    QString Undo(int times);
    QString Redo(int times);
    QString History() const;
    /** Writes the design's dump to a file; with "-" returns it. */
    QString Dump(const QString& file) const;
    QString Screenshot(const QString& file) const;

private:
    /** The shown set; throws if nothing is selected or the panel is empty. */
    TPropertySet& ShownSet() const;
    /** The texts of the commands pushed since the stack had this index. */
    QStringList PushedSince(int index) const;
    /** Those texts, or a substitute if there are none. */
    QString Outcome(int index, const QString& none) const;
    TSchPage& FindPage(const QString& page) const;
    TPart& FindPart(const QString& part) const;
    /** Such as "the board" or "page 2". */
    QString Place() const;
    QString Move(int times, bool back);
    QString SetLayers(const QString& names, bool on);

    TMainWindow& window;
};
