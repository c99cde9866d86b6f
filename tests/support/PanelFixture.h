#pragma once

#include "properties/rows/TAbstractProperty.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "properties/TTreeWidget.h"

#include <QLineEdit>
#include <QWidget>

namespace Test {

/** A window that holds a panel, as the application's dock does, and a line editor that can take the focus away. */
class PanelWindow
{
public:
    PanelWindow();

    /** Shows a set, and the window if it is not yet shown, and waits until its editors can take the focus. */
    void Show(TPropertySet* set);

    TTreeWidget* Tree() const { return panel->Tree(); }
    /** Clicks a row's label with the mouse. */
    void ClickLabel(TAbstractProperty* row);

    QWidget window;
    TPropertyWidget* panel; ///< Owned by the window; null it when a test deletes it.
    QLineEdit* elsewhere;
};

/** The row with that label; the program ends when there is none of that kind. */
TAbstractProperty* FindRow(const TPropertySet* set, const QString& label);
void MissingRow(const QString& label, const char* kind);

template <class Row>
Row* RowOf(const TPropertySet* set, const QString& label)
{
    auto* row = qobject_cast<Row*>(FindRow(set, label));
    if (!row) {
        MissingRow(label, Row::staticMetaObject.className());
    }
    return row;
}

/** Labels of the rows that were added, in order. */
QStringList Labels(const TPropertySet* set);

/** Lets everything that is posted happen, deferred deletions included. */
void Settle();

/** Opens the editor of a text row with a double click and types into it; the text is not committed. */
void TypeHalfText(TAbstractProperty* row, const QString& text);

/** Whether a widget is the given class itself and no derived one. */
bool IsExactly(const QWidget* widget, const QMetaObject& kind);

/** The parts of an editor in their order, each as "class stretch", with "spacing n" for an empty space. */
QStringList LayoutParts(const QWidget* box);

} // namespace Test
