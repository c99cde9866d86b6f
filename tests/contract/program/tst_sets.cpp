#include "properties/commands/Units.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyPenStyle.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForBus.h"
#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNet.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForNetTieSch.h"
#include "properties/sets/TPropertySetForOutline.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPart.h"
#include "properties/sets/TPropertySetForPin.h"
#include "properties/sets/TPropertySetForPort.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForTag.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"
#include "properties/TPropertyWidget.h"
#include "properties/TTreeWidget.h"

#include <application/TUndoCommand.h>
#include <contract/CalledOut.h>
#include <contract/TDesign.h>
#include <workspace/TDoubleSpinBox.h>

#include <QDir>
#include <QtTest>
#include <QUndoStack>

using ContractHost::TDesign;

namespace {

const QList<Osmirel::Layer> sides{Osmirel::PackagesTop, Osmirel::PackagesBottom};

QList<Osmirel::Layer> Copper(const TDesign& design)
{
    return design.layers.CopperLayers();
}

QVariant Millimetres(double sceneLength)
{
    return qRound(Units::MillimetresFromScene(sceneLength) * 1000) / 1000.0;
}

/** Nulls in a selection are skipped. */
QList<TGraphicsItem*> Selected(TGraphicsItem* item)
{
    return {nullptr, item, nullptr};
}

template <class Row>
Row* As(TAbstractProperty* row)
{
    return dynamic_cast<Row*>(row);
}

void TypeNumber(TAbstractProperty* row)
{
    As<TPropertyFloatSpin>(row)->spin->setValue(2.5);
}
void TypeText(TAbstractProperty* row)
{
    emit As<TPropertyText>(row)->sigTextChanged(QStringLiteral("N2"));
}

/** One edit by a row of the set for an item of its kind. */
struct Edit
{
    const char* name;
    const char* set;
    TPropertySet* (*make)(TDesign&);
    const char* label;
    void (*edit)(TAbstractProperty*);
    QVariant (*read)(const TDesign&); ///< The value that the edit changes.
    QVariant before;
    QVariant after;
    int commands = 1; ///< 0 for an edit that is written at once.
};

const QVector<Edit>& Edits()
{
    static const QVector<Edit> edits{
        {"diameter of a via", "Via",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForVia(Selected(d.via), {}); },
         "Diameter:", TypeNumber, [](const TDesign& d) { return Millimetres(d.via->Width()); }, 1.0, 2.5},
        {"number of a pad", "Pad",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForPad(Selected(d.pad), Copper(d)); },
         "Number:", TypeText, [](const TDesign& d) -> QVariant { return d.pad->Number(); }, "1", "N2"},
        {"diameter of a hole", "Hole",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForHole(Selected(d.hole)); }, "Diameter:", TypeNumber,
         [](const TDesign& d) { return Millimetres(d.hole->Size().width()); }, 1.0, 2.5},
        {"width of a wire", "Wire",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForWire(Selected(d.wire), &d.project); },
         "Width:", TypeNumber, [](const TDesign& d) { return Millimetres(qreal(d.wire->PenWidth())); }, 1.0, 2.5},
        {"layer of a wire that meets another", "Wire",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForWire(Selected(d.wire), &d.project); }, "Layer:",
         [](TAbstractProperty* row) {
             As<TPropertyLayer>(row)->SetCurrentLayer(static_cast<Osmirel::Layer>(Osmirel::CopperTop + 7));
         },
         [](const TDesign& d) -> QVariant { return d.wire->LastLink()->type(); }, ItemType::Wire, ItemType::Via},
        {"class of the net of a wire", "Wire",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForWire(Selected(d.wire), &d.project); },
         "Net class:", [](TAbstractProperty* row) { As<TPropertyEnum>(row)->SetCurrentText("Power"); },
         [](const TDesign& d) -> QVariant { return d.nets.NetClass("N1"); }, "Default", "Power"},
        {"side of a package", "Package",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForPackage(Selected(d.package), sides, &d.board); },
         "Side:", [](TAbstractProperty* row) { As<TPropertyLayer>(row)->SetCurrentLayer(Osmirel::PackagesBottom); },
         [](const TDesign& d) -> QVariant { return d.package->Layer(); }, Osmirel::PackagesTop,
         Osmirel::PackagesBottom},
        {"priority of a pour", "Pour",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForPour(Selected(d.pour), Copper(d)); },
         "Priority:", [](TAbstractProperty* row) { As<TPropertyIntSpin>(row)->SetCurrentValue(3); },
         [](const TDesign& d) -> QVariant { return d.pour->Priority(); }, 0, 3},
        {"layer of a keepout", "Keepout",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForKeepout(Selected(d.keepout)); }, "Top",
         [](TAbstractProperty* row) { As<TPropertyCheck>(row)->SetCurrentState(true); },
         [](const TDesign& d) -> QVariant { return d.keepout->IsLayerEnable(Osmirel::CopperTop); }, false, true},
        {"font of a text", "Text",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForText(Selected(d.text), Copper(d)); },
         "Type:", [](TAbstractProperty* row) { As<TPropertyEnum>(row)->SetCurrentEnum(1); },
         [](const TDesign& d) -> QVariant { return d.text->IsVector(); }, true, false},
        {"line style of a drawing", "Primitives",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForPrimitives(Selected(d.rectangle), {}); },
         "Line style:", [](TAbstractProperty* row) { As<TPropertyPenStyle>(row)->SetCurrentPenStyle(Qt::DotLine); },
         [](const TDesign& d) -> QVariant { return static_cast<int>(d.rectangle->Pen().style()); },
         static_cast<int>(Qt::SolidLine), static_cast<int>(Qt::DotLine)},
        {"width of a milling path", "Milling",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForMilling(Selected(d.milling)); }, "Line width:",
         TypeNumber, [](const TDesign& d) { return Millimetres(qreal(d.milling->PenWidth())); }, 1.0, 2.5},
        {"size of the outline", "Outline",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForOutline(Selected(d.outline)); },
         "Size:", [](TAbstractProperty* row) { QVERIFY(!row->Editor()->isEnabled()); },
         [](const TDesign& d) { return Millimetres(d.outline->Path().boundingRect().width()); }, 100.0, 100.0, 0},
        {"name of a net tie", "NetTiePcb",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForNetTiePcb(Selected(d.netTie), &d.project); },
         "Name:", TypeText, [](const TDesign& d) -> QVariant { return d.netTie->Name() + d.netTieSymbol->Name(); },
         "NT1NT1", "N2N2"},
        {"symbol of a net tie", "NetTieSch",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForNetTieSch(Selected(d.netTieSymbol), &d.project); },
         "Symbol:", [](TAbstractProperty* row) { As<TPropertyEnum>(row)->SetCurrentEnum(2); },
         [](const TDesign& d) -> QVariant { return d.netTieSymbol->Symbol(); }, 0, 2},
        {"level of a net", "Net",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForNet(Selected(d.netWire), &d.schematic); },
         "Level:", [](TAbstractProperty* row) { As<TPropertyEnum>(row)->SetCurrentEnum(4); },
         [](const TDesign& d) -> QVariant { return d.nets.Priority("N1"); }, "0", "4"},
        {"name of a bus", "Bus", [](TDesign& d) -> TPropertySet* { return new TPropertySetForBus(Selected(d.bus)); },
         "Name", TypeText, [](const TDesign& d) -> QVariant { return d.bus->Name(); }, "D[0..7]", "N2", 0},
        {"name of a pin", "Pin", [](TDesign& d) -> TPropertySet* { return new TPropertySetForPin(Selected(d.pin)); },
         "Name:", TypeText, [](const TDesign& d) -> QVariant { return d.pin->Name(); }, "A0", "N2"},
        {"number of a pin", "Pin", [](TDesign& d) -> TPropertySet* { return new TPropertySetForPin(Selected(d.pin)); },
         "Number:", TypeText, [](const TDesign& d) -> QVariant { return d.pin->Number(); }, "", "N2"},
        {"name of a port", "Port",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForPort(Selected(d.port), &d.schematic); }, "Name:",
         TypeText, [](const TDesign& d) -> QVariant { return d.port->Name() + d.netWire->Net(); }, "N1N1", "N2N2"},
        {"locks of a part", "Part",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForPart(Selected(d.part)); },
         "Lock:", [](TAbstractProperty* row) { As<TPropertyCheck2>(row)->SetChecked2(true); },
         [](const TDesign& d) -> QVariant { return d.part->LockValue(); }, false, true, 0},
        {"name of a tag", "Tag",
         [](TDesign& d) -> TPropertySet* { return new TPropertySetForTag(Selected(d.tag), &d.project); },
         "Name:", TypeText, [](const TDesign& d) -> QVariant { return d.tag->Name(); }, "title", "N2"},
    };
    return edits;
}

TAbstractProperty* RowOf(const TPropertySet& set, const QString& label)
{
    for (TAbstractProperty* row : set.Properties()) {
        if (row->text(TAbstractProperty::labelColumn) == label) {
            return row;
        }
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(const Edit*)

/** The library over a host that offers what the contract lists and nothing more. */
class TestSets : public QObject
{
    Q_OBJECT

private slots:
    void editsUndoesAndRedoes_data()
    {
        QTest::addColumn<const Edit*>("row");
        for (const Edit& edit : Edits()) {
            QTest::newRow(edit.name) << &edit;
        }
    }
    void editsUndoesAndRedoes()
    {
        QFETCH(const Edit*, row);
        TDesign design;
        QUndoStack undoStack;
        QWidget window;
        auto* panel = new TPropertyWidget(&window);
        TPropertySet* set = row->make(design);
        connect(set, &TPropertySet::sigCmd, [&undoStack](TUndoCommand* command) { undoStack.push(command); });
        panel->SetPropertySet(set);
        window.show();
        QCOMPARE(panel->Tree()->topLevelItemCount(), set->Properties().size());
        TAbstractProperty* edited = RowOf(*set, row->label);
        QVERIFY(edited);
        const int items = design.boardScene.items().size();
        QCOMPARE(row->read(design), row->before);

        row->edit(edited);
        QCOMPARE(row->read(design), row->after);
        QCOMPARE(undoStack.count(), row->commands);

        if (row->commands > 0) {
            undoStack.undo();
            QCOMPARE(row->read(design), row->before);
            QCOMPARE(design.boardScene.items().size(), items);
            undoStack.redo();
            QCOMPARE(row->read(design), row->after);
        }
    }

    void everySetIsTried()
    {
        const QStringList headers = QDir(INSTALLED_HEADERS "/properties/sets").entryList({"TPropertySetFor*.h"});
        QVERIFY(headers.size() >= 19);
        for (const QString& header : headers) {
            const auto isOfSet = [&header](const Edit& edit) {
                return header == QStringLiteral("TPropertySetFor%1.h").arg(edit.set);
            };
            QVERIFY2(std::any_of(Edits().cbegin(), Edits().cend(), isOfSet), qPrintable(header));
        }
    }

    void theHostCallsOutOnEveryWrite()
    {
        TDesign design;
        int calls = 0;
        ContractHost::CalledOut = [&] {
            ++calls;
            QCOMPARE(design.via->Drill(), 3.0F); // Stored by then.
        };
        design.via->SetDrill(3);
        ContractHost::CalledOut = nullptr;
        QCOMPARE(calls, 1);
        design.via->SetDrill(4);
        QCOMPARE(calls, 1);
    }
};

QTEST_MAIN(TestSets)
#include "tst_sets.moc"
