#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "workbench/editing/TSelection.h"
#include "workbench/window/TCanvas.h"

#include <workspace/TDoubleSpinBox.h>

#include <QKeyEvent>
#include <QtTest>

namespace {

using TItems = QList<TGraphicsItem*>;

/** Remembers the keys that it is given. */
class KeyLog : public TPropertySet
{
public:
    explicit KeyLog(QList<int>& keyLog) : TPropertySet("Keys"), keys(keyLog) {}
    void KeyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }

private:
    QList<int>& keys;
};

} // namespace

class TestCanvas : public QObject
{
    Q_OBJECT

private slots:
    void aClickSelectsOneItem();
    void aClickWithControlAppends();
    void aRubberBandSelectsInTheDesignsOrder();
    void aRubberBandWithControlAppends();
    void nothingIsReportedDuringAGesture();
    void manySignalsAreOneSet();
    void aDeletedItemLeavesTheSelection();
    void keysOnTheCanvasReachTheSet();
    void aKeyThatEditsShowsThePresentValues();
    void keysInAnEditorDoNotReachTheSet();
    void zoomKeysBelongToTheCanvas();
    void theWheelZoomsAroundTheCursor();
    void theMiddleButtonPans();
};

void TestCanvas::aClickSelectsOneItem()
{
    Test::ShownWorkbench workbench;
    const TItems vias = workbench.Items(ItemType::Via);
    workbench.Click(vias[1]);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), TItems{vias[1]});
    QCOMPARE(workbench.Title(), QString("Properties - Vias"));

    workbench.Click(vias[2]); // Two signals of the scene: one item is left, another selected.
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), TItems{vias[2]});
}

void TestCanvas::aClickWithControlAppends()
{
    Test::ShownWorkbench workbench;
    const TItems vias = workbench.Items(ItemType::Via);
    const TItems holes = workbench.Items(ItemType::Hole);
    workbench.Click(holes[1]);
    workbench.TakeSetsShown();
    workbench.Click(vias[2], Qt::ControlModifier);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    workbench.Click(vias[0], Qt::ControlModifier);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), (TItems{holes[1], vias[2], vias[0]}));
    QCOMPARE(workbench.Title(), QString("Properties - Hole"));

    workbench.Click(holes[1], Qt::ControlModifier);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), (TItems{vias[2], vias[0]}));
    QCOMPARE(workbench.Number("Diameter:")->value(), 1.0); // That of the via that was selected first.
}

void TestCanvas::aRubberBandSelectsInTheDesignsOrder()
{
    Test::ShownWorkbench workbench;
    TItems all = workbench.window->Board()->Items();
    while (all.last()->type() == ItemType::Hole) {
        all.removeLast();
    }
    const QPointF corner = all.last()->scenePos() + QPointF(30, 30);
    workbench.Drag(corner, all.first()->scenePos() - QPointF(30, 30));
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), all);
}

void TestCanvas::aRubberBandWithControlAppends()
{
    Test::ShownWorkbench workbench;
    const TItems pads = workbench.Items(ItemType::Pad);
    const TItems vias = workbench.Items(ItemType::Via);
    workbench.Click(pads[1]);
    workbench.TakeSetsShown();
    workbench.Drag(vias[0]->scenePos() - QPointF(30, 30), vias[2]->scenePos() + QPointF(30, 30), Qt::ControlModifier);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), TItems{pads[1]} + vias);
}

void TestCanvas::nothingIsReportedDuringAGesture()
{
    Test::ShownWorkbench workbench;
    TSelection& selection = workbench.window->Selection();
    const TItems vias = workbench.Items(ItemType::Via);
    selection.BeginGesture();
    vias[2]->setSelected(true);
    Test::SettleWorkbench();
    vias[0]->setSelected(true);
    QCOMPARE(workbench.TakeSetsShown(), 0);
    QCOMPARE(selection.Items(), (TItems{vias[0], vias[2]}));
    selection.EndGesture();
    QCOMPARE(workbench.TakeSetsShown(), 1);
    selection.BeginGesture(); // A click beside everything, with nothing selected before, changes nothing.
    selection.EndGesture();
    QCOMPARE(workbench.TakeSetsShown(), 0);
}

void TestCanvas::manySignalsAreOneSet()
{
    Test::ShownWorkbench workbench;
    int signalsOfScene = 0;
    connect(workbench.window->Board()->Scene(), &QGraphicsScene::selectionChanged, this, [&] { ++signalsOfScene; });
    for (TGraphicsItem* item : workbench.Items(ItemType::Via)) {
        item->setSelected(true);
    }
    QCOMPARE(signalsOfScene, 3);
    QCOMPARE(workbench.TakeSetsShown(), 1);

    workbench.window->Selection().Select(workbench.Items(ItemType::Pad));
    QCOMPARE(signalsOfScene, 3);
    QCOMPARE(workbench.TakeSetsShown(), 1);
}

void TestCanvas::aDeletedItemLeavesTheSelection()
{
    Test::ShownWorkbench workbench;
    const TItems vias = workbench.Items(ItemType::Via);
    workbench.window->Selection().Select(vias);
    delete vias[0];
    QCOMPARE(workbench.window->Selection().Items(), (TItems{vias[1], vias[2]}));
    workbench.TakeSetsShown();
    QCOMPARE(workbench.Number("Diameter:")->value(), 0.8);
}

void TestCanvas::keysOnTheCanvasReachTheSet()
{
    Test::ShownWorkbench workbench;
    QList<int> keys;
    workbench.window->Panel().SetPropertySet(new KeyLog(keys));
    workbench.window->Canvas().setFocus();
    QTest::keyClick(&workbench.window->Canvas(), Qt::Key_O);
    QTest::keyClick(&workbench.window->Canvas(), Qt::Key_5);
    QCOMPARE(keys, (QList<int>{Qt::Key_O, Qt::Key_5}));
    workbench.window->Panel().SetPropertySet(nullptr);
    QTest::keyClick(&workbench.window->Canvas(), Qt::Key_O);
    QCOMPARE(keys.size(), 2);
}

void TestCanvas::aKeyThatEditsShowsThePresentValues()
{
    Test::ShownWorkbench workbench;
    const TItems packages = workbench.Items(ItemType::Package);
    packages.first()->SetLayer(Osmirel::PackagesTop);
    TLayerManager& layers = *workbench.window->Board()->LayerManager();
    layers.AddLayer({Osmirel::PackagesTop, "Packages top", Qt::white, {}});
    layers.AddLayer({Osmirel::PackagesBottom, "Packages bottom", Qt::white, {}});
    workbench.window->Selection().Select(packages);
    workbench.window->Canvas().setFocus();
    for (const Osmirel::Layer side : {Osmirel::PackagesBottom, Osmirel::PackagesTop, Osmirel::PackagesBottom}) {
        QTest::keyClick(&workbench.window->Canvas(), Qt::Key_O);
        QCOMPARE(packages.first()->Layer(), side);
        QVERIFY(workbench.Results({"--panel"}).contains(QStringLiteral("Side: %1\n").arg(layers.Layer(side)->name)));
    }
}

void TestCanvas::keysInAnEditorDoNotReachTheSet()
{
    Test::ShownWorkbench workbench;
    QList<int> keys;
    auto* set = new KeyLog(keys);
    auto* row = new TPropertyFloatSpin("Width:", 0, 100, 1, 0);
    set->AddProperty(row);
    workbench.window->Panel().SetPropertySet(set);
    row->spin->setFocus();
    row->spin->selectAll();
    QTest::keyClick(row->spin, Qt::Key_5);
    QCOMPARE(row->spin->value(), 5.0);
    QCOMPARE(keys, QList<int>());
}

void TestCanvas::zoomKeysBelongToTheCanvas()
{
    Test::ShownWorkbench workbench;
    TCanvas& canvas = workbench.window->Canvas();
    canvas.setFocus();
    const QTransform fitting = canvas.transform();
    for (const int key : {Qt::Key_F, Qt::Key_Home}) {
        QTest::keyClick(&canvas, Qt::Key_Plus);
        QVERIFY(canvas.transform().m11() > fitting.m11());
        QTest::keyClick(&canvas, static_cast<Qt::Key>(key));
        QCOMPARE(canvas.transform(), fitting);
    }
    workbench.window->Selection().Select({workbench.Items(ItemType::Via)[0]});
    QTest::keyClick(&canvas, Qt::Key_F, Qt::ShiftModifier);
    QVERIFY(canvas.transform().m11() > 3 * fitting.m11());
    const QTransform close = canvas.transform();

    TDoubleSpinBox* spin = workbench.Number("Drill:");
    spin->setFocus();
    QTest::keyClick(spin, Qt::Key_Home);
    QTest::keyClick(spin, Qt::Key_F);
    QCOMPARE(canvas.transform(), close);
}

void TestCanvas::theWheelZoomsAroundTheCursor()
{
    Test::ShownWorkbench workbench;
    TCanvas& canvas = workbench.window->Canvas();
    const QPoint cursor = canvas.mapFromScene(workbench.Items(ItemType::Hole)[0]->scenePos());
    const QPointF before = canvas.mapToScene(cursor);
    const double scale = canvas.transform().m11();
    for (int i = 0; i < 4; ++i) {
        QWheelEvent wheel(cursor, canvas.viewport()->mapToGlobal(cursor), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas.viewport(), &wheel);
    }
    QCOMPARE(canvas.transform().m11(), scale * 1.25 * 1.25 * 1.25 * 1.25);
    const QPointF moved = canvas.mapToScene(cursor) - before;
    const double pixel = 1.5 / canvas.transform().m11();
    QVERIFY2(std::abs(moved.x()) <= pixel && std::abs(moved.y()) <= pixel,
             qPrintable(QString("%1 %2").arg(moved.x()).arg(moved.y())));
}

void TestCanvas::theMiddleButtonPans()
{
    Test::ShownWorkbench workbench;
    TCanvas& canvas = workbench.window->Canvas();
    const QPoint from = canvas.viewport()->rect().center();
    const QPoint to = from + QPoint(40, -25);
    const QPointF grabbed = canvas.mapToScene(from);
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    QTest::mousePress(canvas.viewport(), Qt::MiddleButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::MiddleButton, Qt::NoModifier);
    QApplication::sendEvent(canvas.viewport(), &move);
    QTest::mouseRelease(canvas.viewport(), Qt::MiddleButton, {}, to);
    QCOMPARE(canvas.mapFromScene(grabbed), to);
    QCOMPARE(workbench.window->Selection().Items(), workbench.Items(ItemType::Via));
}

PROPERTIES_TEST(TestCanvas)

#include "tst_canvas.moc"
