#include "tests/host/Sheet.h"
#include "tests/support/TestProgram.h"

#include <QPainter>
#include <QtTest>

#include <cmath>

namespace {

using Test::PinOf;
using Test::Sheet;
using Items = QVector<TGraphicsItem*>;

TGraphicsPinItem* LoosePin(Sheet& sheet, const QPointF& at)
{
    auto* pin = sheet.Add<TGraphicsPinItem>(at);
    pin->SetName("CLK");
    pin->NumberText()->SetText("A1");
    return pin;
}

using Maker = TGraphicsItem* (*)(Sheet&);

/** One of each kind, with no attribute as it is at first. */
const QList<QPair<const char*, Maker>>& EveryKind()
{
    static const QList<QPair<const char*, Maker>> kinds{
        {"pin",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPinItem* pin = LoosePin(sheet, {30, 40});
             pin->SetNumberVisible(false);
             pin->SetPinType(TGraphicsPinItem::TypePower);
             pin->SetPinStyle(TGraphicsPinItem::StyleInverse);
             pin->SetPinLength(TGraphicsPinItem::LengthLong);
             pin->SetSymbolLength(50);
             pin->SetSwap(3);
             return pin;
         }},
        {"port",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPortItem* port = sheet.Port({30, 40}, "GND");
             port->SetPortShape(TGraphicsPortItem::ShapeBidirectional);
             return port;
         }},
        {"port without its name",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPortItem* port = sheet.Port({30, 40}, "GND");
             port->SetPortShape(TGraphicsPortItem::ShapePower);
             port->SetNameVisible(false);
             return port;
         }},
        {"part",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPartItem* part = sheet.Part({30, 40}, 7, {{0, 0}, {60, 0}});
             part->SetRefDes("U7");
             part->SetValue("74HC00");
             part->SetName("7400");
             part->SetPackageName("SO14@x");
             part->SetSwapNumber(2);
             part->SetSymbolOpen(true);
             part->SetLockValue(true);
             PinOf(part, 2)->SetPinLength(TGraphicsPinItem::LengthShort);
             PinOf(part, 2)->UpdatePath();
             return part;
         }},
        {"nettiesymbol",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.NetTie({30, 40}, 9);
         }},
        {"netwire",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.Wire({30, 40}, {90, 40}, "N");
         }},
        {"bus",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.Bus({30, 40}, {90, 40}, "D[0..7]");
         }},
        {"busentry",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.Entry({30, 40});
         }},
        {"tag",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsTagItem* tag = sheet.Tag({30, 40}, "TITLE");
             tag->SetValue("Amplifier", true);
             return tag;
         }},
    };
    return kinds;
}

void Kinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < EveryKind().size(); ++i) {
        QTest::newRow(EveryKind()[i].first) << i;
    }
}

/** The lines of an item and of all below it. */
QString State(const TGraphicsItem* item)
{
    QString state = item->StateLine() + item->OwnNet();
    const QList<QGraphicsItem*> children = item->childItems();
    for (const QGraphicsItem* child : children) {
        state += '\n' + State(dynamic_cast<const TGraphicsItem*>(child));
    }
    return state;
}

} // namespace

class TestSheetItems : public QObject
{
    Q_OBJECT

private slots:
    void kindsHaveTheirNumbersAndNames()
    {
        Sheet sheet;
        const auto kind = [](const TGraphicsItem* item) { return qMakePair(item->type(), item->KindName()); };
        QCOMPARE(kind(sheet.Port({}, "P")), qMakePair(0x10009, QString("port")));
        QCOMPARE(kind(sheet.Part({}, 1, {})), qMakePair(0x1000a, QString("part")));
        QCOMPARE(kind(LoosePin(sheet, {})), qMakePair(0x1000c, QString("pin")));
        QCOMPARE(kind(sheet.Wire({}, {})), qMakePair(0x1000e, QString("netwire")));
        QCOMPARE(kind(sheet.Entry({})), qMakePair(0x1000f, QString("busentry")));
        QCOMPARE(kind(sheet.Bus({}, {})), qMakePair(0x10016, QString("bus")));
        QCOMPARE(kind(sheet.Tag({}, "T")), qMakePair(0x1001b, QString("tag")));
        QCOMPARE(static_cast<int>(sheet.Bus({}, {})->Layer()), 21);
    }

    void aCopyHasAllAttributesAndNoLinks_data() { Kinds(); }
    void aCopyHasAllAttributesAndNoLinks()
    {
        QFETCH(int, kind);
        Sheet sheet;
        TGraphicsItem* item = EveryKind()[kind].second(sheet);
        item->setRotation(90);
        item->SetAltColor(Qt::green);
        item->SetTFlag(TGraphicsItem::Lock, true);
        const QString unlinked = State(item);
        item->setSelected(true);
        for (TGraphicsItem* pin : item->ChildrenOfKind(ItemType::Pin) + Items{item}) {
            if (auto* section = dynamic_cast<TGraphicsSectionItem*>(item)) {
                section->LinkToFirst(LoosePin(sheet, {}));
            } else if (pin->CanBeLinkedTo()) {
                sheet.Wire({0, 0}, {30, 40})->LinkToLast(pin);
            }
        }
        const std::unique_ptr<TGraphicsItem> copy(item->CreateCopy());
        QCOMPARE(copy->type(), item->type());
        QCOMPARE(State(copy.get()), unlinked);
        QVERIFY(!copy->Owner() && !copy->isSelected() && copy->DesignOrder() == 0);
        QCOMPARE(copy->Workspace(), item->Workspace());
        QCOMPARE(copy->Links(), Items());
        QCOMPARE(copy->zValue(), item->zValue());
        QCOMPARE(copy->boundingRect(), item->boundingRect());
        const std::unique_ptr<TGraphicsItem> copyOfCopy(copy->CreateCopy());
        QCOMPARE(State(copyOfCopy.get()), unlinked);
    }

    void aCopyIsChangedByItself()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        const QString before = State(part);
        const std::unique_ptr<TGraphicsItem> owned(part->CreateCopy());
        auto* copy = static_cast<TGraphicsPartItem*>(owned.get());
        copy->SetValue("10k");
        copy->SetRefDes("R1");
        TGraphicsPinItem* pin = PinOf(copy, 1);
        pin->NumberText()->SetText("9");
        pin->SetNumberVisible(false);
        QCOMPARE(State(part), before);
        QCOMPARE(static_cast<TGraphicsTextItem*>(copy->ValueText())->Text(), QString("10k"));
        QCOMPARE(static_cast<TGraphicsTextItem*>(copy->RefDesText())->Text(), QString("R1"));
        QCOMPARE(pin->Number(), QString("9"));
        QVERIFY(!pin->NumberText()->isVisible());
    }

    void aCopiedPortNamesWhatIsWiredToIt()
    {
        Sheet sheet;
        TGraphicsPortItem* port = sheet.Port({0, 0}, "GND");
        auto* copy = static_cast<TGraphicsPortItem*>(port->CreateCopy());
        copy->AttachTo(port->Owner());
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        wire->LinkToFirst(copy->Pin());
        QCOMPARE(wire->Net(), QString("GND"));
        copy->SetName("VCC", {});
        QCOMPARE(wire->Net(), QString("VCC"));
        QCOMPARE(port->Net(), QString("GND"));
    }

    void everyKindIsDrawnWithinItsExtent_data() { Kinds(); }
    void everyKindIsDrawnWithinItsExtent()
    {
        QFETCH(int, kind);
        Sheet sheet;
        TGraphicsItem* item = EveryKind()[kind].second(sheet);
        for (const double angle : {0.0, 90.0, 180.0}) {
            item->setRotation(angle);
            QRectF extent;
            for (const TGraphicsItem* each : sheet.AllItems()) {
                extent |= each->sceneBoundingRect();
            }
            const QRectF area = extent.adjusted(-50, -50, 50, 50);
            QImage image((area.size() * 2).toSize(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            item->Owner()->render(&painter, {}, area, Qt::IgnoreAspectRatio);
            painter.end();
            int inside = 0;
            int outside = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QPointF place = area.topLeft() + QPointF(x, y) / 2;
                    const bool isDrawn = qAlpha(image.pixel(x, y)) > 0;
                    (extent.adjusted(-1, -1, 1, 1).contains(place) ? inside : outside) += isDrawn ? 1 : 0;
                }
            }
            QVERIFY(inside > 20);
            QCOMPARE(outside, 0);
        }
    }

    void aPinKeepsItsNumberUpright()
    {
        Sheet sheet;
        TGraphicsPinItem* pin = LoosePin(sheet, {0, 0});
        for (const double angle : {0.0, 180.0}) {
            pin->setRotation(angle);
            const double seen = std::fmod(pin->rotation() + pin->NumberText()->rotation(), 360);
            QCOMPARE(seen, 0.0);
            QVERIFY(pin->NumberText()->sceneBoundingRect().center().y() < 0); // Above the line.
        }
    }

    void lengthClassesAreMultiplesOfATwentiethOfAnInch()
    {
        TGraphicsPinItem pin;
        for (const int length : {0, 1, 2, 3}) {
            pin.SetPinLength(static_cast<TGraphicsPinItem::TypePinLength>(length));
            QCOMPARE(pin.LineLength(), 15.0 * length);
        }
        pin.SetPinLength(TGraphicsPinItem::LengthShort);
        pin.SetSymbolLength(21);
        QCOMPARE(pin.LineLength(), 21.0);
        pin.SetPinLength(TGraphicsPinItem::LengthLong);
        QCOMPARE(pin.LineLength(), 45.0); // The symbol's length is of one class only.
        pin.SetPinLength(TGraphicsPinItem::LengthShort);
        QCOMPARE(pin.LineLength(), 21.0);
    }

    void aPinWithoutItsNumberTextHasNone()
    {
        Sheet sheet;
        TGraphicsPinItem* pin = LoosePin(sheet, {0, 0});
        delete pin->NumberText();
        QCOMPARE(pin->NumberText(), nullptr);
        QCOMPARE(pin->Number(), QString());
        pin->UpdateNumberPos();
        pin->UpdatePath();
        pin->SetNumberVisible(false);
        QVERIFY(!pin->NumberVisible());
        const std::unique_ptr<TGraphicsItem> copy(pin->CreateCopy());
        QCOMPARE(copy->StateLine(), pin->StateLine());
    }

    void aPortWithoutItsPinIsOfItsOwnName()
    {
        Sheet sheet;
        TGraphicsPortItem* port = sheet.Port({0, 0}, "GND");
        delete port->Pin();
        QCOMPARE(port->Pin(), nullptr);
        port->SetName("VCC", Qt::red);
        QCOMPARE(port->Net(), QString("VCC"));
        QCOMPARE(port->ConnectedItems(), Items());
        const std::unique_ptr<TGraphicsItem> copy(port->CreateCopy());
        QCOMPARE(copy->StateLine(), port->StateLine());
    }

    void aTagShowsItsValueOrItsName()
    {
        Sheet sheet;
        TGraphicsTagItem* tag = sheet.Tag({0, 0}, "TITLE");
        QCOMPARE(tag->Text(), QString("{TITLE}"));
        tag->SetValue("Amplifier", false);
        QCOMPARE(tag->Text(), QString("{TITLE}"));
        tag->SetName("NAME", true);
        QCOMPARE(tag->Text(), QString("Amplifier"));
        tag->SetName("OTHER", false);
        tag->SetValue(QString(), true);
        QCOMPARE(tag->Text(), QString("{OTHER}"));
    }

    void aPartFitsItsPins()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        PinOf(part, 1)->SetName(QString());
        const QRectF before = part->boundingRect();
        PinOf(part, 1)->SetPinLength(TGraphicsPinItem::LengthLong);
        QCOMPARE(part->boundingRect(), before); // Not before the pin is told.
        PinOf(part, 1)->UpdatePath();
        QVERIFY(part->boundingRect().width() > before.width() + 14);
    }
};

PROPERTIES_TEST(TestSheetItems)
#include "tst_sheet_items.moc"
