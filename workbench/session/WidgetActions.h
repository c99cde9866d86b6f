#pragma once

#include <QString>

class QWidget;

/** User actions on the widgets that edit a value: number boxes, choices, texts and check boxes. */
namespace WidgetActions {

/** The shown value: a number with its suffix, a text in quotes, a box as `[x]` or `[ ]`. */
QString ShownText(const QWidget& widget);

/**
 * Sets the widget's value, with the widget's own signals. Throws `TSessionError`, whose cause continues the name of the
 * widget's row, for a value that a user could not enter. The widget may be gone afterwards.
 */
void Give(QWidget& widget, const QString& value);

} // namespace WidgetActions
