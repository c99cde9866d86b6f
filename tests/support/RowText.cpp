#include "tests/support/RowText.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "properties/TPropertySet.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>

namespace Test {

namespace {

QString RangeOf(const QDoubleSpinBox* box)
{
    return QStringLiteral("%1..%2 step %3 decimals %4")
        .arg(box->minimum())
        .arg(box->maximum())
        .arg(box->singleStep())
        .arg(box->decimals());
}

QString BoxText(const QCheckBox* box)
{
    return (box->isChecked() ? "[x] " : "[ ] ") + box->text();
}

QString Value(const TPropertyFloatSpin& row)
{
    const QString check = row.check->isHidden() ? "" : row.check->isChecked() ? "[x] " : "[ ] ";
    return RangeOf(row.spin) + " = " + check + row.spin->text();
}

QString Value(const TPropertySize& row)
{
    const QString width = RangeOf(row.width);
    const QString height = RangeOf(row.height);
    return (width == height ? width : width + " x " + height) + " = " + row.width->text() + " x " + row.height->text()
           + (row.height->isEnabled() ? "" : ", height locked");
}

QString Value(const TPropertyText& row)
{
    const QString show = row.visible->isHidden() ? "" : ", " + BoxText(row.visible);
    return "= " + row.line->label->text() + show + (row.line->IsEditable() ? "" : ", read-only");
}

QString Value(const QSpinBox* box)
{
    return QStringLiteral("%1..%2 step %3 = %4")
        .arg(box->minimum())
        .arg(box->maximum())
        .arg(box->singleStep())
        .arg(box->text());
}

/** All check boxes of an editor, in their order. */
QString BoxTexts(const QWidget* editor)
{
    QStringList boxes;
    for (const QCheckBox* box : editor->findChildren<QCheckBox*>()) {
        boxes.append(BoxText(box).trimmed());
    }
    return "= " + boxes.join(' ');
}

QString Value(const QComboBox* box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i) {
        const QVariant data = box->itemData(i);
        items.append(box->itemText(i) + (data.isValid() ? QStringLiteral(" %1").arg(data.toInt()) : QString()));
    }
    return items.join(", ") + " = " + (box->currentIndex() < 0 ? "none" : box->currentText());
}

QString ValueOf(const TAbstractProperty* row)
{
    if (const auto* number = qobject_cast<const TPropertyFloatSpin*>(row)) {
        return Value(*number);
    }
    if (const auto* size = qobject_cast<const TPropertySize*>(row)) {
        return Value(*size);
    }
    if (const auto* text = qobject_cast<const TPropertyText*>(row)) {
        return Value(*text);
    }
    if (qobject_cast<const TPropertyCheck*>(row) || qobject_cast<const TPropertyCheck2*>(row)) {
        return BoxTexts(row->Editor());
    }
    if (const auto* box = qobject_cast<const QSpinBox*>(row->Editor())) {
        return Value(box);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(row->Editor())) {
        const bool isColor = qobject_cast<const TPropertyColor*>(row) != nullptr;
        return isColor ? QStringLiteral("%1 colours = %2").arg(box->count()).arg(box->currentText()) : Value(box);
    }
    return "of an unknown kind";
}

QString KindAndLabel(const QString& rowText)
{
    return rowText.left(rowText.indexOf(':') + 1);
}

} // namespace

QString RowText(const TAbstractProperty* row)
{
    const bool itemEnabled = row->flags() & Qt::ItemIsEnabled;
    const bool editorEnabled = row->Editor()->isEnabled();
    const QString state = itemEnabled && editorEnabled     ? ""
                          : !itemEnabled && !editorEnabled ? ", disabled"
                                                           : ", item and editor disagree";
    return QStringLiteral("%1 %2 ").arg(row->metaObject()->className(), row->text(TAbstractProperty::labelColumn))
           + ValueOf(row) + state + (row->IsHidden() ? ", hidden" : "");
}

QStringList RowTexts(const TPropertySet* set)
{
    QStringList texts;
    for (const TAbstractProperty* row : set->Properties()) {
        texts.append(RowText(row));
    }
    return texts;
}

QStringList WithRows(QStringList base, const QStringList& changed)
{
    for (const QString& replacement : changed) {
        int replaced = 0;
        for (QString& row : base) {
            if (KindAndLabel(row) == KindAndLabel(replacement)) {
                row = replacement;
                ++replaced;
            }
        }
        if (replaced != 1) {
            qFatal("the table has %d rows like \"%s\"", replaced, qPrintable(replacement));
        }
    }
    return base;
}

} // namespace Test
