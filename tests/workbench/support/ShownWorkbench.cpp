#include "tests/workbench/support/ShownWorkbench.h"

#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/editing/TPropertyEditing.h"
#include "workbench/importer/ProjectImporter.h"
#include "workbench/session/RunSteps.h"
#include "workbench/session/TSession.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TDocumentTabs.h"

#include <objects/TGraphicsPackageItem.h>

#include <QTest>

namespace Test {

namespace {

constexpr double unitsPerMillimetre = 300.0 / 25.4;

class BoardMaker
{
public:
    template <class Item>
    Item* Place(std::unique_ptr<Item> item)
    {
        Item* placed = item.get();
        placed->setPos(next * 10 * unitsPerMillimetre, 0);
        ++next;
        board->Attach(std::move(item));
        return placed;
    }

    void AddVia(double diameter)
    {
        auto* via = Place(std::make_unique<TGraphicsViaItem>());
        via->SetSize(diameter * unitsPerMillimetre, diameter * unitsPerMillimetre);
        via->SetDrill(static_cast<float>(0.3 * unitsPerMillimetre));
        via->SetViaGroup(QStringLiteral("Top - Bottom"));
    }

    static void MakeSurfacePad(TGraphicsPadItem& pad, const QString& number)
    {
        pad.SetSize(1.5 * unitsPerMillimetre, 1.0 * unitsPerMillimetre);
        pad.SetPadShape(TGraphicsPadItem::ShapeRectangle);
        pad.SetLayers(Osmirel::CopperTop, Osmirel::CopperTop);
        pad.SetNumber(number);
        pad.SetMaskEnabled(true);
    }

    void AddPackage()
    {
        auto package = std::make_unique<TGraphicsPackageItem>();
        auto* pad = new TGraphicsPadItem(package.get());
        pad->SetSize(2.0 * unitsPerMillimetre, 2.0 * unitsPerMillimetre);
        pad->SetDrill(static_cast<float>(0.8 * unitsPerMillimetre));
        pad->SetNumber(QStringLiteral("A"));
        Place(std::move(package));
    }

    void AddHole(double diameter)
    {
        const auto side = static_cast<float>(diameter * unitsPerMillimetre);
        Place(std::make_unique<TGraphicsHoleItem>())->SetSize(side, side);
    }

    std::unique_ptr<TBoard> board = std::make_unique<TBoard>();

private:
    int next = 0;
};

} // namespace

std::unique_ptr<TBoard> MakeBoard()
{
    BoardMaker maker;
    TLayerManager& layers = *maker.board->LayerManager();
    layers.AddLayer({Osmirel::CopperTop, "Top", QColor("#c83434"), "Bottom"});
    layers.AddLayer({Osmirel::Copper2, "Inner 1", QColor("#7fc87f"), {}});
    layers.AddLayer({Osmirel::Copper3, "Inner 2", QColor("#ce7d2c"), {}});
    layers.AddLayer({Osmirel::CopperBottom, "Bottom", QColor("#4d7fc4"), "Top"});
    layers.AddDrillPair({"Top - Bottom", Osmirel::CopperTop, Osmirel::CopperBottom});
    layers.AddDrillPair({"Top - Inner 1", Osmirel::CopperTop, Osmirel::Copper2});
    for (const double diameter : {0.6, 0.8, 1.0}) {
        maker.AddVia(diameter);
    }
    for (const char* number : {"1", "2"}) {
        BoardMaker::MakeSurfacePad(*maker.Place(std::make_unique<TGraphicsPadItem>()), number);
    }
    maker.AddPackage();
    maker.AddHole(1);
    maker.AddHole(2);
    return std::move(maker.board);
}

ShownWorkbench::ShownWorkbench() : window(std::make_unique<TMainWindow>())
{
    TImportResult result;
    result.board = MakeBoard();
    window->ShowDesign(std::move(result), "test board");
    Show();
}

ShownWorkbench::ShownWorkbench(const QString& file) : ShownWorkbench(ImportDesign(file)) {}

ShownWorkbench::ShownWorkbench(TImportResult result) : window(std::make_unique<TMainWindow>())
{
    if (!HasDesign(result)) {
        qFatal("%s", qPrintable(result.error));
    }
    window->ShowDesign(std::move(result), "test design");
    Show();
}

void ShownWorkbench::Show()
{
    connect(&window->Editing(), &TPropertyEditing::sigSetShown, this, [this] { ++setsShown; });
    window->resize(1400, 900);
    window->show();
    QApplication::setActiveWindow(window.get());
    if (!QTest::qWaitForWindowActive(window.get())) {
        qFatal("The window does not become active");
    }
    TakeSetsShown();
}

Outcome ShownWorkbench::Run(const QStringList& arguments)
{
    Outcome outcome{};
    QTextStream results(&outcome.results);
    QTextStream messages(&outcome.messages);
    TSession session(*window);
    const TCommandLine line = TCommandLine::Parse(arguments);
    outcome.code = RunSteps(line.steps, line.timing, session, {results, messages});
    return outcome;
}

QString ShownWorkbench::Results(const QStringList& arguments)
{
    const Outcome outcome = Run(arguments);
    if (outcome.code != 0 || !outcome.messages.isEmpty()) {
        qFatal("%s", qPrintable(outcome.messages));
    }
    return outcome.results;
}

QString ShownWorkbench::Title() const
{
    return window->Panel().parentWidget()->windowTitle();
}

TAbstractProperty* ShownWorkbench::Row(const QString& label) const
{
    const TPropertySet* set = window->Panel().PropertySet();
    for (TAbstractProperty* row : set ? set->Properties() : QList<TAbstractProperty*>()) {
        if (row->text(TAbstractProperty::labelColumn) == label) {
            return row;
        }
    }
    return nullptr;
}

TDoubleSpinBox* ShownWorkbench::Number(const QString& label) const
{
    const auto* row = qobject_cast<TPropertyFloatSpin*>(Row(label));
    return row ? row->spin : nullptr;
}

QList<TGraphicsItem*> ShownWorkbench::Items(int type) const
{
    QList<TGraphicsItem*> items;
    const QList<TGraphicsItem*> shown = window->Design()->ItemsOf(window->Tabs().Document());
    for (TGraphicsItem* item : shown) {
        if (item->type() == type) {
            items.append(item);
        }
    }
    return items;
}

int ShownWorkbench::TakeSetsShown()
{
    SettleWorkbench();
    return std::exchange(setsShown, 0);
}

void ShownWorkbench::Click(const TGraphicsItem* item, Qt::KeyboardModifiers modifiers)
{
    ClickAt(item->scenePos(), modifiers);
}

void ShownWorkbench::ClickAt(const QPointF& scenePoint, Qt::KeyboardModifiers modifiers)
{
    const TCanvas& canvas = window->Canvas();
    QTest::mouseClick(canvas.viewport(), Qt::LeftButton, modifiers, canvas.mapFromScene(scenePoint));
}

void ShownWorkbench::Drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers)
{
    const TCanvas& canvas = window->Canvas();
    QWidget* viewport = canvas.viewport();
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, canvas.mapFromScene(from));
    constexpr int moves = 5;
    for (int i = 1; i <= moves; ++i) {
        const QPoint there = canvas.mapFromScene(from + (to - from) * i / moves);
        QMouseEvent move(QEvent::MouseMove, there, viewport->mapToGlobal(there), Qt::NoButton, Qt::LeftButton,
                         modifiers);
        QApplication::sendEvent(viewport, &move);
        SettleWorkbench();
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, canvas.mapFromScene(to));
}

void SettleWorkbench()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Test
