#include "properties/rows/TPropertyEnum.h"

#include <QComboBox>

TPropertyEnum::TPropertyEnum(const QString& label) : TPropertyChoice(label)
{
    ReportRowChanges();
}

TPropertyEnum::TPropertyEnum(const QString& label, QStringList texts) : TPropertyEnum(label)
{
    int value = 0;
    for (const QString& text : qAsConst(texts)) {
        AddItem(text, value++);
    }
}

void TPropertyEnum::AddItem(const QString& text, int value)
{
    Append(text, value);
}

int TPropertyEnum::CurrentEnum() const
{
    const QComboBox* box = Box();
    return box && box->currentIndex() >= 0 ? CurrentData().toInt() : -1;
}

void TPropertyEnum::SetCurrentEnum(int value)
{
    SetCurrentData(value);
}

void TPropertyEnum::SetCurrentText(const QString& text)
{
    const QComboBox* box = Box();
    const int row = box ? box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) : -1;
    if (row >= 0) {
        MakeCurrent(row);
    } else {
        InsertAsCurrent(text, QVariant());
    }
}

void TPropertyEnum::slotRowChanged(int row)
{
    ReportItem(row, [this, row] {
        const QString text = Box()->itemText(row);
        const QPointer<TPropertyEnum> self(this); // A receiver may replace the set, and with it this row.
        emit sigEnumChanged(DataAt(row).toInt());
        if (self) {
            emit sigTextChanged(text);
        }
    });
}
