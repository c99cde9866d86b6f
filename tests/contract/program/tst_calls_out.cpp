#include "properties/rows/TPropertyCheck.h"
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

#include <QColor>
#include <QMetaMethod>
#include <QPointer>
#include <QtTest>
#include <QUndoStack>

#include <utility>

using ContractHost::TDesign;

namespace {

using Items = QList<TGraphicsItem*>;

/** A set over two items of its kind, so that a write goes on after the first. */
struct SetOfTwo
{
    const char* name;
    Items (*items)(TDesign&);
    TPropertySet* (*make)(TDesign&, const Items&);
};

const QList<Osmirel::Layer> sides{Osmirel::PackagesTop, Osmirel::PackagesBottom};

QList<Osmirel::Layer> Copper(const TDesign& design)
{
    return design.layers.CopperLayers();
}

/** The design's item of a kind and one more. */
template <class Item>
Items WithOneMore(Item* item)
{
    auto* other = TDesign::Add<Item>(*item->Owner());
    other->SetLayer(item->Layer());
    return {item, other};
}

const SetOfTwo sets[] = {
    {"Via", [](TDesign& d) { return WithOneMore(d.via); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForVia(items, {"Top - Bottom"}); }},
    {"Pad", [](TDesign& d) { return WithOneMore(d.pad); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForPad(items, Copper(d)); }},
    {"Hole", [](TDesign& d) { return WithOneMore(d.hole); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForHole(items); }},
    {"Wire",
     [](TDesign& d) {
         return Items{d.wire, d.nextWire};
     },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForWire(items, &d.project); }},
    {"Package", [](TDesign& d) { return WithOneMore(d.package); },
     [](TDesign& d, const Items& items) -> TPropertySet* {
         return new TPropertySetForPackage(items, sides, &d.board);
     }},
    {"Pour", [](TDesign& d) { return WithOneMore(d.pour); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForPour(items, Copper(d)); }},
    {"Keepout", [](TDesign& d) { return WithOneMore(d.keepout); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForKeepout(items); }},
    {"Text", [](TDesign& d) { return WithOneMore(d.text); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForText(items, Copper(d)); }},
    {"Primitives", [](TDesign& d) { return WithOneMore(d.rectangle); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForPrimitives(items, Copper(d)); }},
    {"Milling", [](TDesign& d) { return WithOneMore(d.milling); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForMilling(items); }},
    {"Outline", [](TDesign& d) { return Items{d.outline}; },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForOutline(items); }},
    {"NetTiePcb", [](TDesign& d) { return WithOneMore(d.netTie); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForNetTiePcb(items, &d.project); }},
    {"NetTieSch", [](TDesign& d) { return WithOneMore(d.netTieSymbol); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForNetTieSch(items, &d.project); }},
    {"Net", [](TDesign& d) { return Items{d.netWire}; },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForNet(items, &d.schematic); }},
    {"Bus", [](TDesign& d) { return WithOneMore(d.bus); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForBus(items); }},
    {"Pin", [](TDesign& d) { return WithOneMore(d.pin); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForPin(items); }},
    {"Port", [](TDesign& d) { return WithOneMore(d.port); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForPort(items, &d.schematic); }},
    {"Part", [](TDesign& d) { return WithOneMore(d.part); },
     [](TDesign&, const Items& items) -> TPropertySet* { return new TPropertySetForPart(items); }},
    {"Tag", [](TDesign& d) { return WithOneMore(d.tag); },
     [](TDesign& d, const Items& items) -> TPropertySet* { return new TPropertySetForTag(items, &d.project); }},
};

/** Slots that write nothing. */
const QStringList silentSlots{"Pad::SetName",       "Pad::TypeChanged",      "Pad::ShapeChanged",
                              "Package::SetRefDes", "Pour::FillTypeChanged", "Pour::ThermalTypeChanged"};

/** Slots that write through the toolkit, at least without a command, so that no operation of the host is called. */
const QStringList toolkitSlots{"NetTiePcb::SetWireWidth", "Primitives::slotSetFillStyle",
                               "Primitives::slotSetLineStyle", "Text::SetAngle"};

enum class Reaction { ShowsAnother, ShowsNone, DeletesPanel, DeletesSet };

const struct
{
    const char* name;
    Reaction reaction;
} reactions[] = {
    {"shows another set", Reaction::ShowsAnother},
    {"shows none", Reaction::ShowsNone},
    {"deletes the panel", Reaction::DeletesPanel},
    {"deletes the set", Reaction::DeletesSet},
};

/** Calls a slot of one argument with a value of its type. */
bool Call(TPropertySet& set, const QMetaMethod& slot)
{
    const QByteArray type = slot.parameterTypes().value(0);
    const QString text = QStringLiteral("Power");
    const int number = 1;
    const double length = 2.5;
    const bool on = true;
    const QColor color(Qt::red);
    const auto layer = static_cast<Osmirel::Layer>(Osmirel::CopperTop + 7);
    const auto style = Qt::DotLine;
    const QHash<QByteArray, const void*> values{
        {"QString", &text}, {"int", &number},   {"double", &length},        {"qreal", &length},
        {"bool", &on},      {"QColor", &color}, {"Osmirel::Layer", &layer}, {"Qt::PenStyle", &style}};
    const auto value = values.constFind(type);
    return value != values.constEnd() && slot.parameterCount() == 1
           && slot.invoke(&set, Qt::DirectConnection, QGenericArgument(type.constData(), *value));
}

/** An application whose items call it in the middle of a write, where it reacts, once. */
class HostileApplication
{
public:
    HostileApplication(const SetOfTwo& setOfTwo, Reaction toTheFirstCall, bool bypass)
        : items(setOfTwo.items(design)), reaction(toTheFirstCall)
    {
        for (TGraphicsItem* item : qAsConst(items)) {
            item->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        }
        set = setOfTwo.make(design, items);
        QObject::connect(set, &TPropertySet::sigCmd, [this](TUndoCommand* command) { undoStack.push(command); });
        panel = new TPropertyWidget(&window);
        panel->SetPropertySet(set);
        ContractHost::CalledOut = [this] {
            if (!std::exchange(hasReacted, true)) {
                React();
            }
        };
    }
    ~HostileApplication() { ContractHost::CalledOut = nullptr; }
    Q_DISABLE_COPY(HostileApplication)

    /** Exactly the set that was shown last is alive, and its rows alone are in the tree. */
    bool IsInOrder() const
    {
        if (!panel) {
            return !set && !another;
        }
        TPropertySet* shown = reaction == Reaction::ShowsAnother ? another.data() : nullptr;
        QList<TAbstractProperty*> rows;
        for (int i = 0; i < panel->Tree()->topLevelItemCount(); ++i) {
            rows.append(dynamic_cast<TAbstractProperty*>(panel->Tree()->topLevelItem(i)));
        }
        return !set && panel->PropertySet() == shown
               && rows == (shown ? shown->Properties() : QList<TAbstractProperty*>());
    }

    TDesign design;
    QUndoStack undoStack;
    Items items;
    QPointer<TPropertySet> set;
    bool hasReacted = false;

private:
    void React()
    {
        switch (reaction) {
        case Reaction::ShowsAnother:
            another = new TPropertySetForHole({design.hole});
            panel->SetPropertySet(another);
            break;
        case Reaction::ShowsNone: panel->SetPropertySet(nullptr); break;
        case Reaction::DeletesPanel: delete panel; break;
        case Reaction::DeletesSet: delete set; break;
        }
    }

    QWidget window;
    QPointer<TPropertyWidget> panel;
    QPointer<TPropertySet> another;
    Reaction reaction;
};

} // namespace

Q_DECLARE_METATYPE(const SetOfTwo*)
Q_DECLARE_METATYPE(Reaction)
Q_DECLARE_METATYPE(QMetaMethod)

/** Each slot of each set, while the items that it writes to call the application, which takes the set away. */
class TestCallsOut : public QObject
{
    Q_OBJECT

private slots:
    void anItemCallsInTheMiddleOfAWrite_data()
    {
        QTest::addColumn<const SetOfTwo*>("setOfTwo");
        QTest::addColumn<QMetaMethod>("method");
        QTest::addColumn<bool>("bypass");
        QTest::addColumn<Reaction>("reaction");
        int slotsOfAll = 0;
        for (const SetOfTwo& setOfTwo : sets) {
            TDesign design;
            const std::unique_ptr<TPropertySet> set(setOfTwo.make(design, setOfTwo.items(design)));
            const QMetaObject* meta = set->metaObject();
            for (int i = TPropertySet::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
                const QMetaMethod method = meta->method(i);
                const QString name = QStringLiteral("%1::%2").arg(setOfTwo.name, QString::fromLatin1(method.name()));
                if (method.methodType() != QMetaMethod::Slot || silentSlots.contains(name)) {
                    continue;
                }
                ++slotsOfAll;
                for (const bool bypass : {true, false}) {
                    for (const auto& each : reactions) {
                        QTest::addRow("%s, %s: %s", qPrintable(name), bypass ? "written at once" : "by a command",
                                      each.name)
                            << &setOfTwo << method << bypass << each.reaction;
                    }
                }
            }
        }
        QVERIFY(slotsOfAll > 80);
    }

    void anItemCallsInTheMiddleOfAWrite()
    {
        QFETCH(const SetOfTwo*, setOfTwo);
        QFETCH(QMetaMethod, method);
        QFETCH(bool, bypass);
        QFETCH(Reaction, reaction);
        HostileApplication application(*setOfTwo, reaction, bypass);
        if (method.name() == "SetEn") { // Which asks for the row that it is called by.
            auto* row = qobject_cast<TPropertyCheck*>(application.set->Properties().first());
            row->SetCurrentState(!row->CurrentState());
        } else {
            QVERIFY2(Call(*application.set, method), method.methodSignature().constData());
        }
        const QString name = QStringLiteral("%1::%2").arg(setOfTwo->name, QString::fromLatin1(method.name()));
        QVERIFY(application.hasReacted || toolkitSlots.contains(name));
        QVERIFY(!application.hasReacted || application.IsInOrder());
        application.undoStack.undo();
        application.undoStack.redo();
    }
};

QTEST_MAIN(TestCallsOut)
#include "tst_calls_out.moc"
