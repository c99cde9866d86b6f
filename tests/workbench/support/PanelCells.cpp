#include "tests/workbench/support/PanelCells.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/rows/TLineEdit.h"
#include "properties/TPropertySet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>

namespace Test {

PanelCell::PanelCell(const QString& cellName, QWidget* editor, bool rowShown, bool partEditable)
    : name(cellName), widget(editor), shown(rowShown), editable(partEditable)
{}

bool PanelCell::CanBeEdited() const
{
    return shown && editable && widget->isEnabled();
}

double PanelCell::Number() const
{
    const auto* whole = qobject_cast<QSpinBox*>(widget);
    return whole ? whole->value() : qobject_cast<QDoubleSpinBox*>(widget)->value();
}

void PanelCell::Enter(double number) const
{
    if (auto* whole = qobject_cast<QSpinBox*>(widget)) {
        whole->setValue(static_cast<int>(number));
    } else {
        qobject_cast<QDoubleSpinBox*>(widget)->setValue(number);
    }
}

void PanelCell::Choose(int option) const
{
    qobject_cast<QComboBox*>(widget)->setCurrentIndex(option);
}

void PanelCell::Click() const
{
    qobject_cast<QCheckBox*>(widget)->click();
}

void PanelCell::Type(const QString& text) const
{
    const auto* line = qobject_cast<TLineEdit*>(widget);
    QTest::mouseDClick(line->label, Qt::LeftButton);
    line->edit->selectAll();
    QTest::keyClick(line->edit, Qt::Key_Delete);
    line->edit->insert(text); // as an input method does, which has all characters
    QTest::keyClick(line->edit, Qt::Key_Return);
}

bool PanelCell::GiveAnotherValue() const
{
    if (auto* spin = qobject_cast<QDoubleSpinBox*>(widget)) {
        const double step = 3 * spin->singleStep();
        Enter(spin->value() + (spin->value() + step > spin->maximum() ? -step : step));
    } else if (const auto* whole = qobject_cast<QSpinBox*>(widget)) {
        Enter(whole->value() + (whole->value() == whole->maximum() ? -1 : 1));
    } else if (const auto* box = qobject_cast<QComboBox*>(widget)) {
        const int other = box->currentIndex() < 0 ? box->count() - 1 : (box->currentIndex() + 1) % box->count();
        if (other == box->currentIndex()) {
            return false;
        }
        Choose(other);
    } else if (qobject_cast<QCheckBox*>(widget)) {
        Click();
    } else {
        Type(qobject_cast<TLineEdit*>(widget)->Text() + QStringLiteral("x"));
    }
    return true;
}

void PanelCell::GiveValue(int number) const
{
    if (qobject_cast<QDoubleSpinBox*>(widget)) {
        Enter(number / 100.0);
    } else if (qobject_cast<QSpinBox*>(widget)) {
        Enter(number);
    } else if (const auto* box = qobject_cast<QComboBox*>(widget)) {
        if (box->count() > 0) {
            Choose(number % box->count());
        }
    } else if (qobject_cast<QCheckBox*>(widget)) {
        Click();
    } else {
        const QStringList texts{"1", "", "A1", "say \"x\" \\ ", QString::fromUtf8("\xCE\xA9 7")};
        Type(texts[number % texts.size()]);
    }
}

std::vector<PanelCell> PanelCells(const TPropertySet& set)
{
    std::vector<PanelCell> cells;
    for (const TAbstractProperty* row : set.Properties()) {
        const QString label = row->text(TAbstractProperty::labelColumn);
        const bool shown = row->treeWidget() && !row->QTreeWidgetItem::isHidden();
        for (const TAbstractProperty::Part& part : row->Parts()) {
            cells.emplace_back(label + part.name, part.widget, shown, !part.isReadOnly);
        }
    }
    return cells;
}

} // namespace Test
