#pragma once

#include "tests/support/Observers.h"
#include "tests/support/TestBoard.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/TPropertySet.h"

#include <QApplication>
#include <QComboBox>
#include <QGraphicsView>

namespace Test {

inline double Scene(double millimetres)
{
    return millimetres * sceneUnitsPerMillimetre;
}

inline float SceneF(double millimetres)
{
    return static_cast<float>(Scene(millimetres));
}

/** Places an item of any kind on a board or a page, which owns it. */
template <class Item, class Document>
Item* Place(Document& document, const QPointF& at = {})
{
    auto owned = std::make_unique<Item>();
    Item* item = owned.get();
    item->setPos(at);
    document.Attach(std::move(owned));
    return item;
}

/** A board that a view shows, as commands that look their items up need it. */
class ViewedBoard : public TestBoard
{
public:
    ViewedBoard() : view(Scene()) { SetView(&view); }

private:
    QGraphicsView view;
};

/** Finds the editors of the rows that a set has made during this object's life and does not show. */
class UnshownEditors
{
public:
    UnshownEditors() : before(QApplication::topLevelWidgets()) {}

    template <class Editor>
    QList<Editor*> Of(const TPropertySet& set) const
    {
        QList<QWidget*> shown = before;
        for (const TAbstractProperty* row : set.Properties()) {
            shown.append(row->Editor());
        }
        QList<Editor*> editors;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* editor = qobject_cast<Editor*>(widget);
            if (editor && !shown.contains(widget)) {
                editors.append(editor);
            }
        }
        return editors;
    }

private:
    QList<QWidget*> before;
};

/** The painter's composition modes as sets list them, each with its position as its value. */
inline QStringList CompositionModeNames()
{
    return {"SourceOver",
            "DestinationOver",
            "Clear",
            "Source",
            "Destination",
            "SourceIn",
            "DestinationIn",
            "SourceOut",
            "DestinationOut",
            "SourceAtop",
            "DestinationAtop",
            "Xor",
            "_Plus",
            "_Multiply",
            "_Screen",
            "_Overlay",
            "_Darken",
            "_Lighten",
            "_ColorDodge",
            "_ColorBurn",
            "_HardLight",
            "_SoftLight",
            "_Difference",
            "_Exclusion",
            "Op_SourceOrDestination",
            "Op_SourceAndDestination",
            "Op_SourceXorDestination",
            "Op_NotSourceAndNotDestination",
            "Op_NotSourceOrNotDestination",
            "Op_NotSourceXorDestination",
            "Op_NotSource",
            "Op_NotSourceAndDestination",
            "Op_SourceAndNotDestination",
            "Op_NotSourceOrDestination",
            "Op_SourceOrNotDestination",
            "Op_ClearDestination",
            "Op_SetDestination",
            "Op_NotDestination"};
}

/** The texts of a list, when the value of each is its position; otherwise nothing. */
inline QStringList TextsByPosition(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        if (box.itemData(i) != i) {
            return {};
        }
        texts.append(box.itemText(i));
    }
    return texts;
}

/** Those of the texts that were not translated in the set's own context. */
inline QStringList Untranslated(const MarkingTranslator& translator, const QString& context, const QStringList& texts)
{
    QStringList missing;
    for (const QString& text : texts) {
        if (!translator.WasAsked(context, text)) {
            missing.append(text);
        }
    }
    return missing;
}

} // namespace Test
