#include "tests/support/PanelFixture.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"

#include <QBoxLayout>
#include <QLabel>
#include <QTest>

namespace Test {

PanelWindow::PanelWindow() : panel(new TPropertyWidget(&window)), elsewhere(new QLineEdit(&window))
{
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(panel, 1);
    layout->addWidget(elsewhere);
    window.resize(400, 500);
}

void PanelWindow::Show(TPropertySet* set)
{
    panel->SetPropertySet(set);
    if (!window.isVisible()) {
        window.show();
        window.activateWindow();
    }
    if (!QTest::qWaitForWindowActive(&window)) {
        qFatal("the test's window does not become active");
    }
    elsewhere->setFocus();
    Settle();
}

void PanelWindow::ClickLabel(TAbstractProperty* row)
{
    const QRect item = Tree()->visualItemRect(row);
    const QPoint label(item.left() + Tree()->columnWidth(TAbstractProperty::labelColumn) / 2, item.center().y());
    QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, Qt::NoModifier, label);
}

TAbstractProperty* FindRow(const TPropertySet* set, const QString& label)
{
    for (TAbstractProperty* row : set->Properties()) {
        if (row->text(TAbstractProperty::labelColumn) == label) {
            return row;
        }
    }
    MissingRow(label, "any kind");
    return nullptr;
}

void MissingRow(const QString& label, const char* kind)
{
    qFatal("the set has no row \"%s\" of %s", qPrintable(label), kind);
}

QStringList Labels(const TPropertySet* set)
{
    QStringList labels;
    for (const TAbstractProperty* row : set->Properties()) {
        labels.append(row->text(TAbstractProperty::labelColumn));
    }
    return labels;
}

void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void TypeHalfText(TAbstractProperty* row, const QString& text)
{
    TLineEdit* line = qobject_cast<TPropertyText*>(row)->line;
    QTest::mouseDClick(line->label, Qt::LeftButton);
    QTest::keyClicks(line->edit, text);
}

bool IsExactly(const QWidget* widget, const QMetaObject& kind)
{
    return widget && widget->metaObject() == &kind;
}

QStringList LayoutParts(const QWidget* box)
{
    QStringList parts;
    const auto* layout = qobject_cast<QHBoxLayout*>(box->layout());
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem* part = layout->itemAt(i);
        parts.append(
            part->widget()
                ? QStringLiteral("%1 %2").arg(part->widget()->metaObject()->className()).arg(layout->stretch(i))
                : QStringLiteral("spacing %1").arg(part->sizeHint().width()));
    }
    return parts;
}

} // namespace Test
