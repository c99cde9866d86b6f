#pragma once

#include <properties/Export.h>

#include <QObject>
#include <QPointer>
#include <QTreeWidgetItem>
#include <QVector>
#include <QWidget>

#include <functional>

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

    /** Enables or disables the row and its editor. Enabled rows have only `Qt::ItemIsEnabled`: none is selectable. */
    void SetEnabled(bool on);

    /** Shows or hides the row, at once if it is in a tree and when it is put into one otherwise. */
    void SetVisible(bool on);
    /** What `SetVisible` asked for, whether or not the row is in a tree yet. */
    bool IsHidden() const { return hidden; }

    /** The widget that edits the value; null for a row without an editor. */
    QWidget* Editor() const { return editor; }

    /** A widget of the editor that edits one value. */
    struct Part
    {
        QString name; ///< Empty for the row's own value; others are named, such as "width". Not translated.
        QWidget* widget = nullptr;
        bool isReadOnly = false; ///< Whether the widget, enabled or not, never edits the value.

        bool CanBeEdited() const { return widget->isEnabled() && !isReadOnly; }
    };

    /** The parts that are not hidden in the editor, from left to right; none without an editor. */
    QVector<Part> Parts() const;

    /** Reparents the editor of a row that is not shown to a widget, hidden, so that it is not a window. The row still
     *  owns it. */
    void KeepEditorIn(QWidget* holder);

    /** The values of a row: its own, or that of its first box; and that of the second box. */
    enum Value : unsigned { FirstValue = 1, SecondValue = 2 };

    /** Whether a value of the row differs between the selected items, so that it is not shown. False again once the
     *  user or the program sets it. */
    bool IsMixed() const { return mixed != 0; }
    void SetMixed(bool on, Value value = FirstValue);

protected:
    /** Gives the row its editor, once, in the constructor of a row kind. */
    void SetEditor(QWidget* widget) { editor = widget; }

    /**
     * Reports that the user or the program has set a value: @p emitSignals emits the row's signals. Their receivers may
     * do anything, including deleting the row and the panel; the editor lives until this returns.
     */
    void Report(Value value, const std::function<void()>& emitSignals);

    /** Names a part of the editor, from left to right. A row whose editor is its only part names none. */
    void AddPart(const QString& name, QWidget* widget);
    /** The same for a part that the row points to: the pointer is null once the part is gone. */
    template <class Widget>
    void AddOwnPart(const QString& name, Widget*& widget)
    {
        AddPart(name, widget);
        connect(widget, &QObject::destroyed, this, [&widget] { widget = nullptr; });
    }

private:
    struct NamedPart
    {
        QString name;
        QPointer<QWidget> widget;
    };

    QVector<NamedPart> parts; ///< Empty where the editor is the only part.
    QPointer<QWidget> editor;
    QPointer<QWidget> editorHolder; ///< Parent of the editor of a row that is not shown, or null.
    bool hidden = false;
    unsigned mixed = 0; ///< Bits of `Value`.
};
