#pragma once

#include "properties/rows/TAbstractProperty.h"

#include <QIcon>
#include <QVariant>

class QComboBox;

/**
 * The base of all rows that pick one value from a drop-down list; each item has its value as user data.
 *
 * The list has no current item until one is set, so that choosing any item, even the first, is a change. Each kind
 * declares the slot `slotRowChanged(int)`, which turns a change of the current item into its own typed signal; an
 * index of −1 emits nothing. If the editor is not a combo box, every operation is a no-op or returns its default.
 */
class PROPERTIES_EXPORT TPropertyChoice : public TAbstractProperty
{
public:
    ~TPropertyChoice() override;

    /** The list; null once the editor is gone. */
    QComboBox* Box() const;

protected:
    explicit TPropertyChoice(const QString& label);

    /** Connects changes of the current item to the kind's slot, which exists only from the kind's constructor on. */
    void ReportRowChanges();

    /** Adds an item at the end of the list; the current item stays. */
    void Append(const QString& text, const QVariant& data, const QIcon& icon = {});
    /** Inserts an item at the top of the list and makes it current, which is a change like any other. */
    void InsertAsCurrent(const QString& text, const QVariant& data, const QIcon& icon = {});
    /** Makes the item with that user data current; a no-op without such an item. */
    void SetCurrentData(const QVariant& data);

    /** Makes the item at this index, which must exist, the current one. */
    void MakeCurrent(int row);

    /** Reports that the item at this index is now current; a no-op for an invalid index. */
    void ReportItem(int row, const std::function<void()>& emitSignals);
    /** User data of an item; invalid for an invalid index. */
    QVariant DataAt(int row) const;
    /** User data of the current item, invalid when there is none. */
    QVariant CurrentData() const;

private:
    void Insert(int row, const QString& text, const QVariant& data, const QIcon& icon);
};
