#pragma once

#include <QHBoxLayout>
#include <QWidget>

/** The container of an editor that consists of several widgets: a row of boxes without margins. */
namespace EditorBox {

/** Height in pixels of the containers that have a fixed one. */
constexpr int fixedHeight = 20;

/** A part of an editor and the share of the spare width that it gets. */
struct Part
{
    QWidget* widget;
    int stretch;
};

/** Lays out the parts in @p box from left to right; the box owns them from then on. */
inline QHBoxLayout* LayOut(QWidget* box, std::initializer_list<Part> parts)
{
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const Part& part : parts) {
        layout->addWidget(part.widget, part.stretch);
    }
    return layout;
}

} // namespace EditorBox
