#pragma once

#include <properties/Export.h>

#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QObject>
#include <QPointer>

#include <optional>

class QKeyEvent;
class TAbstractProperty;
class TPropertyWidget;
class TUndoCommand;

/**
 * The base of every property set: the rows that edit one selection, and the protocol by which an edit becomes an
 * undoable command or, for items that bypass undo, a direct write.
 *
 * A set is made for one selection, reads it in its constructor, and is then owned by the panel that shows it. The
 * items must outlive the last edit, not the set itself: destroying a set touches no item.
 */
class PROPERTIES_EXPORT TPropertySet : public QObject
{
    Q_OBJECT

public:
    /** @p setName is the name that the panel's title shows, translated. */
    explicit TPropertySet(const QString& setName);
    ~TPropertySet() override;

    /** Handles keys that the application forwards, and accepts the event if it edits; the base ignores all. An
     * edit by a key is not shown in the rows: the application shows a new set. */
    virtual void KeyPressEvent(QKeyEvent* event);

    const QString& Name() const { return name; }

    /** Appends a row to those shown; the set owns it. A row that was added before is not added again. */
    void AddProperty(TAbstractProperty* property);

    /** Appends several rows in display order; a null stands for a row that is not shown. */
    void AddProperties(std::initializer_list<TAbstractProperty*> rows);

    /** The shown rows in display order. */
    QList<TAbstractProperty*> Properties() const;

    /** Puts the rows into the panel's tree and titles the panel. Called by the panel; a second call is a no-op. */
    void AddToPropertyWidget(TPropertyWidget* panel);

Q_SIGNALS:
    /** A new command, owned by the receiver. Without a receiver, and while signals are blocked, the command is deleted
     *  and nothing changes. A receiver may show another set, run a dialog or delete the panel. */
    void sigCmd(TUndoCommand* cmd);

protected:
    /** Makes a row that belongs to this set, whether or not it is shown later with `AddProperty`. */
    template <class Row, class... Arguments>
    Row* NewRow(Arguments&&... arguments)
    {
        auto* row = new Row(std::forward<Arguments>(arguments)...);
        Own(row);
        return row;
    }

    /**
     * The editing protocol: makes and emits a @p Command over the items with the value as the editor gave it, or, when
     * the first item bypasses undo, writes the value to every item just as the command would. Without items it is a
     * no-op.
     *
     * Items, and receivers of the command, can call back: when an edit returns, the set may be gone. So the items are
     * copied into a list, and a direct write reaches all of them whichever set is shown by then.
     */
    template <class Command, class Item, class Value>
    void Edit(const QList<Item*>& items, const Value& value)
    {
        using Attribute = typename Command::Attribute;
        const std::optional<typename Attribute::Value> converted = Attribute::FromEditor(value);
        Edit<Command>(items, value, [converted](Item& item) {
            if (converted) {
                Attribute::Write(static_cast<typename Attribute::Item&>(item), *converted);
            }
        });
    }

    /** The editing protocol for an attribute whose direct write differs from the command: @p write is given each item.
     */
    template <class Command, class Item, class Value, class Write>
    void Edit(const QList<Item*>& items, const Value& value, Write write)
    {
        EditBy(
            items, [&items, &value] { return new Command(items, value); }, write);
    }

    /** The editing protocol for a command that takes more than items and a value: @p make returns a new one. */
    template <class Item, class Make, class Write>
    void EditBy(const QList<Item*>& items, Make make, Write write)
    {
        if (items.isEmpty()) {
            return;
        }
        if (!items.first()->HasTFlag(TGraphicsItem::UndoBypass)) {
            Emit(make());
        } else {
            WriteAll(items, write);
        }
    }

    /** Writes to every item at once, without a command. */
    template <class Item, class Write>
    static void WriteAll(QList<Item*> items, Write write)
    {
        for (Item* item : qAsConst(items)) {
            write(*item);
        }
    }

    /** Emits a command. The set may be gone when this returns: its receiver can show another one. */
    void Emit(TUndoCommand* command);

private:
    void Own(TAbstractProperty* row);
    void HideEditors() const;
    /** Hides the editors of rows that are not shown in the panel, which would otherwise be top-level widgets. */
    void TakeUnshownEditors();
    void PlaceEditor(TAbstractProperty& row, int height) const;

    QString name;
    QPointer<TPropertyWidget> panel;
    // A tree that is destroyed takes its rows along, so the rows are watched.
    QList<QPointer<TAbstractProperty>> properties; ///< The shown rows in display order.
    QList<QPointer<TAbstractProperty>> owned;      ///< All rows, shown or not.
};
