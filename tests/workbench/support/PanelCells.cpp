#include "tests/workbench/support/PanelCells.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyChoice.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "properties/TPropertySet.h"

#include <workspace/TDoubleSpinBox.h>

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
        if (const auto* number = qobject_cast<const TPropertyFloatSpin*>(row)) {
            cells.emplace_back(label, number->spin, shown);
            if (!number->check->isHidden()) {
                cells.emplace_back(label + QStringLiteral("check"), number->check, shown);
            }
        } else if (const auto* size = qobject_cast<const TPropertySize*>(row)) {
            cells.emplace_back(label + QStringLiteral("width"), size->width, shown);
            cells.emplace_back(label + QStringLiteral("height"), size->height, shown);
        } else if (const auto* text = qobject_cast<const TPropertyText*>(row)) {
            cells.emplace_back(label, text->line, shown, text->line->IsEditable());
            if (!text->visible->isHidden()) {
                cells.emplace_back(label + QStringLiteral("show"), text->visible, shown);
            }
        } else if (qobject_cast<const TPropertyCheck*>(row)) {
            cells.emplace_back(label, row->Editor()->findChild<QCheckBox*>(), shown);
        } else if (qobject_cast<const TPropertyCheck2*>(row)) {
            const auto* boxes = qobject_cast<TCheckBox2Widget*>(row->Editor());
            cells.emplace_back(label + QLatin1Char('1'), boxes->box1, shown);
            cells.emplace_back(label + QLatin1Char('2'), boxes->box2, shown);
        } else if (qobject_cast<const TPropertyIntSpin*>(row)) {
            cells.emplace_back(label, row->Editor(), shown);
        } else if (const auto* choice = dynamic_cast<const TPropertyChoice*>(row)) {
            cells.emplace_back(label, choice->Box(), shown);
        }
    }
    return cells;
}

} // namespace Test
