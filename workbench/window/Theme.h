#pragma once

class TPropertyWidget;

/** How the workbench looks. */
namespace Theme {

/** A light style around the dark canvas, the same wherever the application runs. */
void Apply();

/** Gives the panel rows in which an editor has room for its frame. */
void MakeRoomy(TPropertyWidget& panel);

} // namespace Theme
