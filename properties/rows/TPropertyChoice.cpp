#include "properties/rows/TPropertyChoice.h"

#include <QComboBox>
#include <QSignalBlocker>

TPropertyChoice::TPropertyChoice(const QString& label) : TAbstractProperty(label, nullptr)
{
    SetEditor(new QComboBox);
}

TPropertyChoice::~TPropertyChoice() = default;

void TPropertyChoice::ReportRowChanges()
{
    connect(Box(), SIGNAL(currentIndexChanged(int)), this, SLOT(slotRowChanged(int)));
}

QComboBox* TPropertyChoice::Box() const
{
    return qobject_cast<QComboBox*>(Editor());
}

void TPropertyChoice::Insert(int row, const QString& text, const QVariant& data, const QIcon& icon)
{
    QComboBox* box = Box();
    if (!box) {
        return;
    }
    // The toolkit makes the first item current, and reports an index that moves with its item as a change.
    const QSignalBlocker blocker(box);
    const bool hasCurrent = box->currentIndex() >= 0;
    box->insertItem(row, icon, text, data);
    if (!hasCurrent) {
        box->setCurrentIndex(-1);
    }
}

void TPropertyChoice::Append(const QString& text, const QVariant& data, const QIcon& icon)
{
    if (const QComboBox* box = Box()) {
        Insert(box->count(), text, data, icon);
    }
}

void TPropertyChoice::InsertAsCurrent(const QString& text, const QVariant& data, const QIcon& icon)
{
    if (Box()) {
        Insert(0, text, data, icon);
        MakeCurrent(0);
    }
}

void TPropertyChoice::SetCurrentData(const QVariant& data)
{
    const QComboBox* box = Box();
    const int row = box ? box->findData(data) : -1;
    if (row >= 0) {
        MakeCurrent(row);
    }
}

void TPropertyChoice::MakeCurrent(int row)
{
    SetMixed(false);
    Box()->setCurrentIndex(row);
}

void TPropertyChoice::ReportItem(int row, const std::function<void()>& emitSignals)
{
    const QComboBox* box = Box();
    if (box && row >= 0 && row < box->count()) {
        Report(FirstValue, emitSignals);
    }
}

QVariant TPropertyChoice::DataAt(int row) const
{
    const QComboBox* box = Box();
    return box ? box->itemData(row) : QVariant();
}

QVariant TPropertyChoice::CurrentData() const
{
    const QComboBox* box = Box();
    return box ? box->currentData() : QVariant();
}
