#include "workbench/session/TRowEditor.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "workbench/session/TSessionError.h"
#include "workbench/session/WidgetActions.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QTreeWidget>

#include <algorithm>

namespace {

using TParts = QVector<TRowEditor::TPart>;

/** The parts of each kind of row; a row whose editor is one widget has that one. */
TParts AllParts(const TAbstractProperty& row, QWidget* editor)
{
    if (const auto* number = qobject_cast<const TPropertyFloatSpin*>(&row)) {
        return {{QStringLiteral("check"), number->check}, {QString(), number->spin}};
    }
    if (const auto* size = qobject_cast<const TPropertySize*>(&row)) {
        return {{QStringLiteral("width"), size->width}, {QStringLiteral("height"), size->height}};
    }
    if (const auto* text = qobject_cast<const TPropertyText*>(&row)) {
        return {{QString(), text->line}, {QStringLiteral("show"), text->visible}};
    }
    if (qobject_cast<const TPropertyCheck*>(&row)) {
        return {{QString(), editor->findChild<QCheckBox*>()}};
    }
    if (const auto* boxes = qobject_cast<TCheckBox2Widget*>(editor)) {
        return {{QStringLiteral("1"), boxes->box1}, {QStringLiteral("2"), boxes->box2}};
    }
    return {{QString(), editor}};
}

QString NamesOf(const TParts& parts)
{
    QStringList names;
    for (const TRowEditor::TPart& part : parts) {
        names.append(part.name.isEmpty() ? QStringLiteral("the value itself") : QLatin1Char('.') + part.name);
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

TRowEditor::TRowEditor(TAbstractProperty& propertyRow) : row(propertyRow)
{
    QWidget* editor = row.treeWidget()->itemWidget(&row, TAbstractProperty::editorColumn);
    if (!editor) {
        return;
    }
    for (const TPart& part : AllParts(row, editor)) {
        if (part.widget && !part.widget->isHidden()) {
            parts.append(part);
        }
    }
}

QString TRowEditor::Label() const
{
    return row.text(TAbstractProperty::labelColumn);
}

QString TRowEditor::ShownValue() const
{
    QStringList values;
    for (const TPart& part : parts) {
        values.append(WidgetActions::ShownText(*part.widget));
    }
    return values.join(qobject_cast<const TPropertySize*>(&row) ? QStringLiteral(" x ") : QStringLiteral(" "));
}

bool TRowEditor::IsEnabled() const
{
    return (row.flags() & Qt::ItemIsEnabled) && (!row.Editor() || row.Editor()->isEnabled());
}

QString TRowEditor::Line() const
{
    QStringList words{Label()};
    if (const QString value = ShownValue(); !value.isEmpty()) {
        words.append(value);
    }
    const bool hasNoChoice = std::any_of(parts.cbegin(), parts.cend(), [](const TPart& part) {
        const auto* box = qobject_cast<const QComboBox*>(part.widget);
        return box && box->currentIndex() < 0;
    });
    if (row.IsMixed() || hasNoChoice) {
        words.append(QStringLiteral("(mixed)"));
    }
    if (!IsEnabled()) {
        words.append(QStringLiteral("(disabled)"));
    }
    for (const TPart& part : parts) {
        if (IsEnabled() && !part.widget->isEnabled()) {
            words.append(part.name.isEmpty() ? QStringLiteral("(disabled)")
                                             : QStringLiteral("(%1 disabled)").arg(part.name));
        }
        if (const auto* line = qobject_cast<const TLineEdit*>(part.widget); line && !line->IsEditable()) {
            words.append(QStringLiteral("(read-only)"));
        }
    }
    return words.join(QLatin1Char(' '));
}

const TRowEditor::TPart& TRowEditor::Part(const QString& name) const
{
    const auto* found =
        std::find_if(parts.cbegin(), parts.cend(), [&name](const TPart& part) { return part.name == name; });
    if (found == parts.cend()) {
        throw TSessionError(
            parts.isEmpty() ? QStringLiteral("row \"%1\" has nothing to set").arg(Label())
                            : QStringLiteral("row \"%1\" has no such part; it has %2").arg(Label(), NamesOf(parts)));
    }
    return *found;
}

void TRowEditor::Set(const QString& partName, const QString& value) const
{
    if (row.isHidden()) {
        throw TSessionError(QStringLiteral("row \"%1\" is hidden").arg(Label()));
    }
    const TPart& part = Part(partName);
    if (!IsEnabled() || !part.widget->isEnabled()) {
        throw TSessionError(QStringLiteral("row \"%1\" is disabled").arg(Label()));
    }
    try {
        WidgetActions::Give(*part.widget, value);
    } catch (const TSessionError& error) {
        throw TSessionError(QStringLiteral("row \"%1\" %2").arg(Label(), error.Cause()));
    }
}
