#pragma once

#include <QString>

class QWidget;

/** What a person does with the widgets that edit a value: number boxes, choices, texts and check boxes. */
namespace WidgetActions {

/** What the widget shows: a number with its suffix, a text in quotes, a box as `[x]` or `[ ]`. */
QString ShownText(const QWidget& widget);

/**
 * Gives the widget a value, with the widget's own signals. Throws `TSessionError`, whose cause goes on from the name
 * of what the widget belongs to, for a value that a person could not give it. The widget may be gone afterwards.
 */
void Give(QWidget& widget, const QString& value);

} // namespace WidgetActions
