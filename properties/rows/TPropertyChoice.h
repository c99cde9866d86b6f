#pragma once

#include "properties/rows/TAbstractProperty.h"

#include <QIcon>
#include <QVariant>

class QComboBox;

/**
 * What all rows share that let one value be picked from a drop-down list: each item carries its value as user data.
 *
 * The list has no current item until one is set, so that choosing any item, the first one too, is a change. Each kind
 * declares the slot `slotRowChanged(int)`, which turns a change of the current item into its own typed signal; an
 * index of −1 says nothing. Every operation does nothing, or returns its default, when the editor is not a combo box.
 */
class PROPERTIES_EXPORT TPropertyChoice : public TAbstractProperty
{
public:
    ~TPropertyChoice() override;

    /** The list itself, null when the row has lost its editor. */
    QComboBox* Box() const;

protected:
    explicit TPropertyChoice(const QString& label);

    /** Connects changes of the current item to the kind's slot, which exists only from the kind's constructor on. */
    void ReportRowChanges();

    /** Adds an item at the end of the list; the current item stays. */
    void Append(const QString& text, const QVariant& data, const QIcon& icon = {});
    /** Adds an item on top of the list and makes it the current one, which is a change like any other. */
    void InsertAsCurrent(const QString& text, const QVariant& data, const QIcon& icon = {});
    /** Makes the item with that user data current; without such an item nothing happens. */
    void SetCurrentData(const QVariant& data);

    /** Makes the item at this index, which there must be, the current one. */
    void MakeCurrent(int row);

    /** Lets a kind report that the item at this index is the current one now; nothing for an index that is none. */
    void ReportItem(int row, const std::function<void()>& emitSignals);
    /** User data of an item, invalid for an index that is none. */
    QVariant DataAt(int row) const;
    /** User data of the current item, invalid when there is none. */
    QVariant CurrentData() const;

private:
    void Insert(int row, const QString& text, const QVariant& data, const QIcon& icon);
};
