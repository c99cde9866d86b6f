#include "tests/support/RowText.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/TPropertySet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

namespace Test {

namespace {

/** What a widget lets one choose: the range of a number, the items of a list. Null for other widgets. */
QString ChoiceOf(const QWidget* widget, bool isColor)
{
    const auto rangeOf = [](const auto* box) {
        return QStringLiteral("%1..%2 step %3").arg(box->minimum()).arg(box->maximum()).arg(box->singleStep());
    };
    if (const auto* number = qobject_cast<const QDoubleSpinBox*>(widget)) {
        return rangeOf(number) + QStringLiteral(" decimals %1").arg(number->decimals());
    }
    if (const auto* whole = qobject_cast<const QSpinBox*>(widget)) {
        return rangeOf(whole);
    }
    const auto* list = qobject_cast<const QComboBox*>(widget);
    if (!list || isColor) {
        return list ? QStringLiteral("%1 colours").arg(list->count()) : QString();
    }
    QString items(QLatin1String(""));
    for (int i = 0; i < list->count(); ++i) {
        const QVariant data = list->itemData(i);
        items += (i > 0 ? ", " : "") + list->itemText(i)
                 + (data.isValid() ? QStringLiteral(" %1").arg(data.toInt()) : QString());
    }
    return items;
}

QString ShownIn(const QWidget* widget)
{
    if (const auto* number = qobject_cast<const QAbstractSpinBox*>(widget)) {
        return number->text();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
        return list->currentIndex() < 0 ? QStringLiteral("none") : list->currentText();
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
        return ((box->isChecked() ? "[x] " : "[ ] ") + box->text()).trimmed();
    }
    const auto* line = qobject_cast<const TLineEdit*>(widget);
    return line ? line->Text() : QStringLiteral("of an unknown kind");
}

/** A part as it follows those before it: an enable box without its text, since it stands in front of what it enables.
 */
QString Joined(const TAbstractProperty::Part& part, bool isFirst)
{
    const QString shown = ShownIn(part.widget);
    if (part.name == QLatin1String("check")) {
        return shown.left(3);
    }
    const QString separator = part.name == QLatin1String("height") ? " x "
                              : part.name == QLatin1String("show") ? ", "
                                                                   : " ";
    return (isFirst ? QString() : separator) + shown;
}

QString ValueOf(const TAbstractProperty* row)
{
    QStringList choices;
    QString value;
    QString state;
    const QVector<TAbstractProperty::Part> parts = row->Parts();
    for (const TAbstractProperty::Part& part : parts) {
        const QString choice = ChoiceOf(part.widget, qobject_cast<const TPropertyColor*>(row));
        if (!choice.isNull() && !choices.contains(choice)) {
            choices.append(choice);
        }
        value += Joined(part, part.widget == parts.first().widget);
        if (part.isReadOnly) {
            state += QStringLiteral(", read-only");
        }
        if (part.name == QLatin1String("height") && !part.widget->isEnabled()) {
            state += QStringLiteral(", height locked");
        }
    }
    return (choices.isEmpty() ? QString() : choices.join(" x ") + QLatin1Char(' ')) + "= " + value + state;
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
