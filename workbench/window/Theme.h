#pragma once

class TPropertyWidget;

/** The appearance of the workbench. */
namespace Theme {

/** A light style around the dark canvas, the same wherever the application runs. */
void Apply();

/** Makes the panel's rows high enough for the frame of an editor. */
void MakeRoomy(TPropertyWidget& panel);

} // namespace Theme
