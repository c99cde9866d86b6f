#pragma once

#include <properties/Export.h>

#include <QPointer>
#include <QWidget>

class QTreeWidgetItem;
class TPropertySet;
class TTreeWidget;

/**
 * The panel: shows the rows of one property set, in a tree of labels and editors, and names the set in the title of
 * its parent widget (the dock or window that holds the panel).
 */
class PROPERTIES_EXPORT TPropertyWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TPropertyWidget(QWidget* parent);
    /** Deletes the shown set, and any set that the panel is given meanwhile. */
    ~TPropertyWidget() override;

    /**
     * Deletes the shown set and shows another, which the panel owns from then on; null shows none.
     *
     * Deleting a set moves the focus and emits `destroyed`. A handler of either may call this in turn, or delete the
     * panel: the last call wins, and @p set is then deleted when this returns.
     *
     * The shown set must not be passed again: it is deleted like any shown set, and the panel is then empty.
     */
    void SetPropertySet(TPropertySet* set);

    /** The shown set, null if there is none. */
    TPropertySet* PropertySet() const;

    /** The tree that holds the rows; owned by the panel. */
    TTreeWidget* Tree() const;

    /** Translates the panel's own window title into the current language. */
    void UpdateTranslate();

    /** Titles the parent widget: "Properties", followed by the set's name if one is given. */
    void SetTitle(const QString& setName);

    QSize sizeHint() const override;

private Q_SLOTS:
    /** Gives the keyboard focus to the editor of a clicked row. */
    void slotClickItem(QTreeWidgetItem* item, int column);

private:
    friend class TPropertySet;
    /** Called by a set whose destruction has begun, so that the panel does not delete it again. */
    void Forget(const TPropertySet& set);

    QPointer<TTreeWidget> tree;
    QPointer<TPropertySet> current;
    int calls = 0; ///< Of `SetPropertySet`, to detect a nested call.
};
