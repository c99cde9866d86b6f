#include "workbench/session/WidgetActions.h"

#include "properties/rows/TLineEdit.h"
#include "workbench/session/TSessionError.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QSpinBox>

namespace {

/** The number in a text such as "0.8", "0.80" or "0.8 mm", in locale-independent form. */
double ParseNumber(const QString& text, const QString& suffix, int decimals)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\A[+-]?(?:\d+(?:\.(\d*?)0*)?|\.(\d+?)0*)\z)"));
    QString number = text.trimmed();
    if (const QString unit = suffix.trimmed(); !unit.isEmpty() && number.endsWith(unit)) {
        number = number.left(number.size() - unit.size()).trimmed();
    }
    const QRegularExpressionMatch match = pattern.match(number);
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    if (!match.hasMatch() || !isNumber) {
        throw TSessionError(QStringLiteral("takes a number, not \"%1\"").arg(text));
    }
    if (match.capturedLength(1) + match.capturedLength(2) > decimals) {
        throw TSessionError(decimals == 0 ? QStringLiteral("takes whole numbers, not %1").arg(number)
                                          : QStringLiteral("takes no more than %1 decimal%2, not %3")
                                                .arg(QString::number(decimals),
                                                     decimals == 1 ? QString() : QStringLiteral("s"), number));
    }
    return value;
}

/** Number boxes would silently clamp values outside their range. */
template <class Box>
void GiveNumber(Box& box, const QString& text, int decimals)
{
    const double value = ParseNumber(text, box.suffix(), decimals);
    const auto least = static_cast<double>(box.minimum());
    const auto most = static_cast<double>(box.maximum());
    if (value < least || value > most) {
        throw TSessionError(
            QStringLiteral("takes %1 to %2, not %3")
                .arg(QString::number(least, 'f', decimals), QString::number(most, 'f', decimals), text.trimmed()));
    }
    box.setValue(static_cast<decltype(box.value())>(value));
}

void Choose(QComboBox& box, const QString& text)
{
    const int index = box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        QStringList offered;
        for (int i = 0; i < box.count(); ++i) {
            offered.append(QLatin1Char('"') + box.itemText(i) + QLatin1Char('"'));
        }
        throw TSessionError(
            QStringLiteral("does not offer \"%1\"; it offers %2")
                .arg(text, offered.isEmpty() ? QStringLiteral("nothing") : offered.join(QStringLiteral(", "))));
    }
    box.setCurrentIndex(index);
}

void Tick(QCheckBox& box, const QString& state)
{
    const bool on = state == QLatin1String("on");
    if (!on && state != QLatin1String("off")) {
        throw TSessionError(QStringLiteral("takes on or off here, not \"%1\"").arg(state));
    }
    if (box.isChecked() != on) {
        box.click();
    }
}

void PressKey(QWidget& widget, int key, const QString& text = {})
{
    const QPointer<QWidget> receiver(&widget);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (receiver) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QApplication::sendEvent(receiver, &event);
        }
    }
}

void Type(TLineEdit& line, const QString& text)
{
    if (!line.IsEditable()) {
        throw TSessionError(QStringLiteral("is read-only"));
    }
    const QPointF middle = line.label->rect().center();
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, middle, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(line.label, &doubleClick);

    QLineEdit& edit = *line.edit; // Its text is all selected now: the first key replaces it.
    if (text.isEmpty()) {
        PressKey(edit, Qt::Key_Delete);
    }
    for (const QChar character : text) {
        PressKey(edit, Qt::Key_unknown, character);
    }
    PressKey(edit, Qt::Key_Return);
}

} // namespace

QString WidgetActions::ShownText(const QWidget& widget)
{
    if (const auto* number = qobject_cast<const QAbstractSpinBox*>(&widget)) {
        return number->text();
    }
    if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
        return choice->currentText();
    }
    if (const auto* line = qobject_cast<const TLineEdit*>(&widget)) {
        return QLatin1Char('"') + line->Text() + QLatin1Char('"');
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        const QString mark = box->isChecked() ? QStringLiteral("[x]") : QStringLiteral("[ ]");
        return box->text().isEmpty() ? mark : mark + QLatin1Char(' ') + box->text();
    }
    return {};
}

void WidgetActions::Give(QWidget& widget, const QString& value)
{
    if (auto* real = qobject_cast<QDoubleSpinBox*>(&widget)) {
        GiveNumber(*real, value, real->decimals());
    } else if (auto* whole = qobject_cast<QSpinBox*>(&widget)) {
        GiveNumber(*whole, value, 0);
    } else if (auto* choice = qobject_cast<QComboBox*>(&widget)) {
        Choose(*choice, value);
    } else if (auto* line = qobject_cast<TLineEdit*>(&widget)) {
        Type(*line, value);
    } else if (auto* box = qobject_cast<QCheckBox*>(&widget)) {
        Tick(*box, value);
    } else {
        throw TSessionError(QStringLiteral("cannot be set"));
    }
}
