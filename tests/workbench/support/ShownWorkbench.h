#pragma once

#include "workbench/design/TDesign.h"
#include "workbench/window/TMainWindow.h"

#include <application/TBoard.h>
#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsViaItem.h>

#include <QObject>
#include <QStringList>

class TAbstractProperty;
class TDoubleSpinBox;

namespace Test {

/** What a run of steps left behind. */
struct Outcome
{
    int code;
    QString results;
    QString messages;
};

/**
 * The workbench's window with a board of four layers: three vias (0.6, 0.8 and 1.0 mm), two surface pads of no package
 * ("1" and "2"), a package with a pad through the board ("A") and two holes (1 and 2 mm), in this order and 10 mm
 * apart from left to right. Or with another design.
 */
class ShownWorkbench : public QObject
{
    Q_OBJECT

public:
    ShownWorkbench();
    explicit ShownWorkbench(const QString& file);
    explicit ShownWorkbench(TImportResult result);

    /** Parses and does the steps. */
    Outcome Run(const QStringList& arguments);
    /** The results of steps that must succeed. */
    QString Results(const QStringList& arguments);

    QString Dump() const { return window->Design()->Dump(); }
    QString Title() const;
    /** The shown row of that label, null if there is none. */
    TAbstractProperty* Row(const QString& label) const;
    /** The number box of that row, null if there is none. */
    TDoubleSpinBox* Number(const QString& label) const;
    /** The items of a kind in the document that is shown, in the design's order. */
    QList<TGraphicsItem*> Items(int type) const;
    /** How many times the panel was given another set, or none, since the last call. */
    int TakeSetsShown();

    /** Presses and releases the left button above an item. */
    void Click(const TGraphicsItem* item, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void ClickAt(const QPointF& scenePoint, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /** Drags from one point of the scene to another with some moves on the way. */
    void Drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /** Null after `reset`: a test may close it earlier. */
    std::unique_ptr<TMainWindow> window;

private:
    void Show();

    int setsShown = 0;
};

/** Lets everything that is posted happen, deferred deletions included. */
void SettleWorkbench();

/** The board described above. */
std::unique_ptr<TBoard> MakeBoard();

} // namespace Test
