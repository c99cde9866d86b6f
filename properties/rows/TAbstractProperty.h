#pragma once

#include <properties/Export.h>

#include <QObject>
#include <QPointer>
#include <QTreeWidgetItem>
#include <QWidget>

/**
 * A row of the panel: a tree item with the label in column 1, and an editor widget that the panel puts into column 2.
 *
 * The row is owned by the set that made it. Its editor belongs to the row until it is put into a tree or a layout,
 * and to that parent widget from then on.
 */
class PROPERTIES_EXPORT TAbstractProperty : public QObject, public QTreeWidgetItem
{
    Q_OBJECT

public:
    /** Columns of the panel's tree; column 0 is hidden. */
    static constexpr int labelColumn = 1;
    static constexpr int editorColumn = 2;

    TAbstractProperty(const QString& label, QObject* parent);
    ~TAbstractProperty() override;
    Q_DISABLE_COPY(TAbstractProperty)

    /** Greys the row and its editor, or gives back exactly `Qt::ItemIsEnabled`: rows are never selectable. */
    void SetEnabled(bool on);

    /** Shows or hides the row, at once if it is in a tree and when it is put into one otherwise. */
    void SetVisible(bool on);
    /** What `SetVisible` asked for, whether or not the row is in a tree yet. */
    bool IsHidden() const { return hidden; }

    /** The widget that edits the value; null for a row without an editor. */
    QWidget* Editor() const { return editor; }

    /** Whether the row stands for values that differ between the selected items and so shows none of them. */
    bool IsMixed() const { return mixed; }
    void SetMixed(bool on) { mixed = on; }

protected:
    /** Gives the row its editor, once, in the constructor of a row kind. */
    void SetEditor(QWidget* widget) { editor = widget; }

private:
    QPointer<QWidget> editor;
    bool hidden = false;
    bool mixed = false;
};
