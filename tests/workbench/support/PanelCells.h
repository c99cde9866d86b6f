#pragma once

#include <QString>
#include <QWidget>

#include <vector>

class TPropertySet;

namespace Test {

/** One editing widget of a panel that shows a set: what can be seen of it, and what a person can do to it. */
class PanelCell
{
public:
    PanelCell(const QString& cellName, QWidget* editor, bool rowShown, bool partEditable = true);

    const QString& Name() const { return name; }
    bool CanBeEdited() const;
    /** The number of a number box. */
    double Number() const;

    void Enter(double number) const;
    void Choose(int option) const;
    void Click() const;
    /** Opens the editor with a double click, replaces the text and presses Return. */
    void Type(const QString& text) const;
    /** Does whichever of these gives it another value; false if there is no other one to give. */
    bool GiveAnotherValue() const;
    /** Does whichever of these gives it a value that the number stands for, which may be the one that it has. */
    void GiveValue(int number) const;

private:
    QString name;
    QWidget* widget;
    bool shown;
    bool editable;
};

/** The editing widgets of all rows, in the order of the rows and from left to right. */
std::vector<PanelCell> PanelCells(const TPropertySet& set);

} // namespace Test
