#include "tests/support/Places.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyAngleEnum.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyPadShape.h"
#include "properties/rows/TPropertyPenStyle.h"
#include "properties/rows/TPropertySeparator.h"
#include "properties/rows/TPropertySize.h"
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
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "properties/TTreeWidget.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <memory>

namespace {

/** The part of a class that is connected to by name: documented names, argument types and order. */
struct Signature
{
    const QMetaObject* kind;
    const QMetaObject* base;
    QStringList signalNames;
    QStringList slotNames;
};

const Signature signatures[] = {
    {&TPropertyWidget::staticMetaObject, &QWidget::staticMetaObject, {}, {"slotClickItem(QTreeWidgetItem*,int)"}},
    {&TTreeWidget::staticMetaObject, &QTreeWidget::staticMetaObject, {}, {}},
    {&TPropertySet::staticMetaObject, &QObject::staticMetaObject, {"sigCmd(TUndoCommand*)"}, {}},

    {&TAbstractProperty::staticMetaObject, &QObject::staticMetaObject, {}, {}},
    {&TPropertyIntSpin::staticMetaObject, &TAbstractProperty::staticMetaObject, {"sigValueChanged(int)"}, {}},
    {&TPropertyFloatSpin::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigValueChanged(double)", "sigCheckChanged(bool)"},
     {"slotDoubleToFloat(double)"}},
    {&TPropertySize::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigWidthChanged(double)", "sigHeightChanged(double)"},
     {"slotWidthChanged(double)"}},
    {&TLineEdit::staticMetaObject, &QWidget::staticMetaObject, {"textChanged(QString)"}, {"slotEndEdit()"}},
    {&TPropertyText::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigTextChanged(QString)", "sigVisibleChanged(bool)"},
     {}},
    {&TPropertyEnum::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigEnumChanged(int)", "sigTextChanged(QString)"},
     {"slotRowChanged(int)"}},
    {&TPropertyAngleEnum::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigAngleChanged(float)"},
     {"slotRowChanged(int)"}},
    {&TPropertyLayer::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigLayerChanged(Osmirel::Layer)"},
     {"slotRowChanged(int)"}},
    {&TPropertyPadShape::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigPadShapeChanged(TGraphicsPadItem::TypePadShape)"},
     {"slotRowChanged(int)"}},
    {&TPropertyPenStyle::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigPenStyleChanged(Qt::PenStyle)"},
     {"slotRowChanged(int)"}},
    {&TPropertyColor::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigColorChanged(QColor)"},
     {"slotRowChanged(int)"}},
    {&TPropertySeparator::staticMetaObject, &TAbstractProperty::staticMetaObject, {}, {}},
    {&TCheckBox2Widget::staticMetaObject, &QWidget::staticMetaObject, {"sigChecked1(bool)", "sigChecked2(bool)"}, {}},
    {&TPropertyCheck::staticMetaObject, &TAbstractProperty::staticMetaObject, {"sigStateChanged(bool)"}, {}},
    {&TPropertyCheck2::staticMetaObject,
     &TAbstractProperty::staticMetaObject,
     {"sigChecked1(bool)", "sigChecked2(bool)"},
     {}},

    {&TPropertySetForVia::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetDiam(double)", "SetDrill(double)", "SetThermal(int)", "SetGroup(QString)", "SetMaskEnable(bool)",
      "SetMaskClearance(double)"}},
    {&TPropertySetForPad::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetNumber(QString)", "SetName(QString)", "SetType(int)", "SetDrill(double)", "SetSide(Osmirel::Layer)",
      "SetShape(int)", "SetWidth(double)", "SetHeight(double)", "SetThermal(int)", "SetMaskEnable(bool)",
      "SetMaskClearance(double)", "SetPasteEnable(bool)", "SetPasteClearance(double)", "TypeChanged(int)",
      "ShapeChanged(int)"}},
    {&TPropertySetForHole::staticMetaObject, &TPropertySet::staticMetaObject, {}, {"slotDiam(double)"}},
    {&TPropertySetForWire::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetLayer(Osmirel::Layer)", "SetWidth(double)", "SetClass(QString)", "SetColor(QColor)", "SetCompMode(int)"}},
    {&TPropertySetForPackage::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {"sigAttr()"},
     {"SetRefDes(QString)", "SetValue(QString)", "SetPackage(QString)", "SetLockRefDes(bool)", "SetLockValue(bool)",
      "SetSide(Osmirel::Layer)"}},
    {&TPropertySetForNetTieSch::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetName(QString)", "SetNameVis(bool)", "SetSymbol(int)"}},
    {&TPropertySetForNetTiePcb::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetName(QString)", "SetNameVis(bool)", "SetLayer(Osmirel::Layer)", "SetPadSz(double)", "SetWireWidth(double)"}},
    {&TPropertySetForText::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetColor(QColor)", "SetFontSize(int)", "SetLayer(Osmirel::Layer)", "SetBold(bool)", "SetItalic(bool)",
      "SetAlign(int)", "SetAngle(int)", "SetTrueTrue(int)", "SetFontName(QString)", "SetMirrorV(bool)",
      "SetMirrorH(bool)", "SetLine(double)"}},
    {&TPropertySetForPrimitives::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"slotSetColor(QColor)", "slotSetFillStyle(int)", "slotSetLayer(Osmirel::Layer)", "slotSetLineStyle(Qt::PenStyle)",
      "slotSetLineWidth(double)"}},
    {&TPropertySetForMilling::staticMetaObject, &TPropertySet::staticMetaObject, {}, {"slotSetLineWidth(double)"}},
    {&TPropertySetForKeepout::staticMetaObject, &TPropertySet::staticMetaObject, {}, {"SetEn(bool)"}},
    {&TPropertySetForOutline::staticMetaObject, &TPropertySet::staticMetaObject, {}, {}},
    {&TPropertySetForPour::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetClearanceToEtch(double)", "SetClearanceToBorder(double)", "SetClearanceToPour(double)", "SetFillType(int)",
      "SetLineWidth(double)", "SetMinimumArea(double)", "SetOnlyConnected(bool)", "SetPriority(int)",
      "SetThermalEn(bool)", "SetThermalLine(double)", "SetThermalIsol(double)", "SetLayer(Osmirel::Layer)",
      "SetNet(QString)", "FillTypeChanged(int)", "ThermalTypeChanged(int)", "SetCompMode(int)", "SetAlpha(int)"}},
    {&TPropertySetForNet::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"slotSetClass(QString)", "slotSetPrio(QString)", "slotSetColor(QColor)"}},
    {&TPropertySetForBus::staticMetaObject, &TPropertySet::staticMetaObject, {}, {"SetName(QString)"}},
    {&TPropertySetForPin::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetName(QString)", "SetNameVisible(bool)", "SetNumber(QString)", "SetNumberVisible(bool)", "SetPinType(int)",
      "SetPinStyle(int)", "SetPinLength(int)", "SetSwap(int)"}},
    {&TPropertySetForPort::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetName(QString)", "SetNameVis(bool)"}},
    {&TPropertySetForPart::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetLockRefDes(bool)", "SetLockValue(bool)"}},
    {&TPropertySetForTag::staticMetaObject,
     &TPropertySet::staticMetaObject,
     {},
     {"SetLine(double)", "SetFontName(QString)", "SetFontSize(int)", "SetAlign(int)", "SetName(QString)",
      "SetTrueTrue(int)"}},
};

QStringList OwnMethods(const QMetaObject* kind, QMetaMethod::MethodType type)
{
    QStringList names;
    for (int i = kind->methodOffset(); i < kind->methodCount(); ++i) {
        if (kind->method(i).methodType() == type) {
            names.append(QString::fromLatin1(kind->method(i).methodSignature()));
        }
    }
    return names;
}

QStringList ClassesWithMetaObject()
{
    static const QRegularExpression declaration("\\bclass (?:\\w+_EXPORT )?(\\w+)[^;{]*\\{\\s*Q_OBJECT");
    QStringList classes;
    QDirIterator headers(Test::SourcePath("properties"), {"*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        QFile header(headers.next());
        if (header.open(QIODevice::ReadOnly)) {
            auto found = declaration.globalMatch(QString::fromUtf8(header.readAll()));
            while (found.hasNext()) {
                classes.append(found.next().captured(1));
            }
        }
    }
    classes.sort();
    return classes;
}

/** Takes every kind of value that the rows report. */
class Receiver : public QObject
{
    Q_OBJECT

public:
    double number = 0;
    int calls = 0;

public slots:
    void TakeReal(qreal value) { Take(value); }
    void TakeDouble(double value) { Take(value); }

private:
    void Take(double value)
    {
        number = value;
        ++calls;
    }
};

} // namespace

Q_DECLARE_METATYPE(const Signature*)

class TestSignatures : public QObject
{
    Q_OBJECT

private slots:
    void tableHasEveryClass()
    {
        QStringList listed;
        for (const Signature& signature : signatures) {
            listed.append(signature.kind->className());
        }
        listed.sort();
        QCOMPARE(listed, ClassesWithMetaObject());
    }

    void classIsAsDocumented_data()
    {
        QTest::addColumn<const Signature*>("signature");
        for (const Signature& signature : signatures) {
            QTest::newRow(signature.kind->className()) << &signature;
        }
    }

    void classIsAsDocumented()
    {
        QFETCH(const Signature*, signature);
        QCOMPARE(signature->kind->superClass()->className(), signature->base->className());
        QCOMPARE(OwnMethods(signature->kind, QMetaMethod::Signal), signature->signalNames);
        QCOMPARE(OwnMethods(signature->kind, QMetaMethod::Slot), signature->slotNames);
        QCOMPARE(OwnMethods(signature->kind, QMetaMethod::Method), QStringList());
    }

    void commandSignalIsTheFirst()
    {
        const QMetaObject& kind = TPropertySet::staticMetaObject;
        QCOMPARE(kind.indexOfSignal("sigCmd(TUndoCommand*)"), kind.methodOffset());
    }

    void realNumbersConnectInBothSpellings_data()
    {
        QTest::addColumn<QByteArray>("signalName");
        QTest::addColumn<QByteArray>("slotName");
        for (const char* type : {"double", "qreal"}) {
            for (const char* slotName :
                 {"TakeReal(qreal)", "TakeReal(double)", "TakeDouble(double)", "TakeDouble(qreal)"}) {
                for (const char* signalName : {"sigValueChanged", "sigWidthChanged", "sigHeightChanged"}) {
                    QTest::addRow("%s(%s) to %s", signalName, type, slotName)
                        << QByteArray(signalName) + '(' + type + ')' << QByteArray(slotName);
                }
            }
        }
    }

    void realNumbersConnectInBothSpellings()
    {
        QFETCH(QByteArray, signalName);
        QFETCH(QByteArray, slotName);
        TPropertyFloatSpin number("Number:", 0, 10, 1, 1);
        TPropertySize size("Size:", 0, 10, 1, 1);
        QObject* row = signalName.startsWith("sigValue") ? static_cast<QObject*>(&number) : &size;
        Receiver receiver;
        QVERIFY(connect(row, "2" + signalName, &receiver, "1" + slotName));
        const QByteArray plainName = signalName.left(signalName.indexOf('('));
        QVERIFY(QMetaObject::invokeMethod(row, plainName, Q_ARG(double, 2.5)));
        QCOMPARE(receiver.calls, 1);
        QCOMPARE(receiver.number, 2.5);
    }

    void setSlotsConnectInBothSpellings_data()
    {
        QTest::addColumn<QByteArray>("slotName");
        QTest::addColumn<int>("set");
        const QList<QList<QByteArray>> slotNames{
            {"SetDiam", "SetDrill", "SetMaskClearance"},
            {"SetDrill", "SetWidth", "SetHeight", "SetMaskClearance", "SetPasteClearance"},
            {"slotDiam"},
            {"SetWidth"},
            {"SetPadSz", "SetWireWidth"},
            {"SetLine"},
            {"slotSetLineWidth"},
            {"slotSetLineWidth"},
            {"SetClearanceToEtch", "SetClearanceToBorder", "SetClearanceToPour", "SetLineWidth", "SetMinimumArea",
             "SetThermalLine", "SetThermalIsol"},
            {"SetLine"}};
        for (int set = 0; set < slotNames.size(); ++set) {
            for (const QByteArray& name : slotNames[set]) {
                QTest::addRow("%d: %s(qreal)", set, name.constData()) << name + "(qreal)" << set;
                QTest::addRow("%d: %s(double)", set, name.constData()) << name + "(double)" << set;
            }
        }
    }

    void setSlotsConnectInBothSpellings()
    {
        QFETCH(QByteArray, slotName);
        QFETCH(int, set);
        TPropertySetForVia via({}, {});
        TPropertySetForPad pad({}, {});
        TPropertySetForHole hole({});
        TPropertySetForWire wire({}, nullptr);
        TPropertySetForNetTiePcb tie({}, nullptr);
        TPropertySetForText text({}, {});
        TPropertySetForPrimitives drawing({}, {});
        TPropertySetForMilling milling({});
        TPropertySetForPour pour({}, {});
        TPropertySetForTag tag({}, nullptr);
        const QList<TPropertySet*> sets{&via, &pad, &hole, &wire, &tie, &text, &drawing, &milling, &pour, &tag};
        TPropertyFloatSpin row("Number:", 0, 10, 1, 1);
        for (const char* signalName : {SIGNAL(sigValueChanged(qreal)), SIGNAL(sigValueChanged(double))}) {
            QVERIFY(connect(&row, signalName, sets[set], "1" + slotName));
        }
    }
};

PROPERTIES_TEST(TestSignatures)
#include "tst_signatures.moc"
