#include "workbench/session/TRowEditor.h"

#include "workbench/session/TSessionError.h"
#include "workbench/session/WidgetActions.h"

#include <QComboBox>

#include <algorithm>

namespace {

QString NamesOf(const QVector<TAbstractProperty::Part>& parts)
{
    QStringList names;
    for (const TAbstractProperty::Part& part : parts) {
        names.append(part.name.isEmpty() ? QStringLiteral("the value itself") : QLatin1Char('.') + part.name);
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

TRowEditor::TRowEditor(TAbstractProperty& propertyRow) : row(propertyRow), parts(row.Parts()) {}

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
    const bool isSize = !parts.isEmpty() && parts.last().name == QLatin1String("height");
    return values.join(isSize ? QStringLiteral(" x ") : QStringLiteral(" "));
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
        if (part.isReadOnly) {
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
