#pragma once

#include <QString>
#include <QStringList>

class QKeySequence;
class QPointF;
class TItemQuery;
struct TDesignAction;
class TMainWindow;
class TPropertySet;

/**
 * Uses a window as a person would: selects, edits rows through their editors, presses keys, undoes and redoes.
 *
 * Each operation returns what it has to say, one or more lines without a last line break, or throws `TSessionError`
 * and has done nothing. The window must show a board.
 */
class TSession
{
public:
    explicit TSession(TMainWindow& shownWindow) : window(shownWindow) {}

    QString Select(const TItemQuery& query);
    /** The panel's title, and one line for each shown row. */
    QString Panel() const;
    /** Edits a row; the assignment is `Label=value` or `Label.part=value`. */
    QString Set(const QString& assignment);
    /** Gives the focus to the canvas and presses a key there. */
    QString Press(const QKeySequence& key);
    /** Sets or clears the flag of the selected items by which their edits leave no undo step. */
    QString Bypass(bool on);
    /** Does what the application does itself with the selected items; the point is one of the scene. */
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
    /** The texts of the commands that were pushed since the stack had this index. */
    QStringList PushedSince(int index) const;
    QString Move(int times, bool back);
    QString SetLayers(const QString& names, bool on);

    TMainWindow& window;
};
