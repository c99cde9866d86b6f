#include "tests/support/PanelFixture.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyAngleEnum.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertyPadShape.h"
#include "properties/rows/TPropertyPenStyle.h"
#include "properties/rows/TPropertySeparator.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QTreeWidget>

#include <memory>

namespace {

/** A row that stands for values that differ, and a way to give it one. */
struct MixedRow
{
    const char* name;
    TAbstractProperty::Value value;
    TAbstractProperty* (*make)();
    void (*give)(TAbstractProperty* row);
};

template <class Row>
Row* As(TAbstractProperty* row)
{
    return static_cast<Row*>(row);
}

constexpr auto first = TAbstractProperty::FirstValue;
constexpr auto second = TAbstractProperty::SecondValue;

template <class Row>
TAbstractProperty* Make()
{
    return new Row("Label");
}
TAbstractProperty* MakeChoice()
{
    return new TPropertyEnum("Label", {"a", "b"});
}
TAbstractProperty* MakeTwoChecks()
{
    return new TPropertyCheck2("Label", "1", "2");
}
TAbstractProperty* MakeNumber()
{
    return new TPropertyFloatSpin("Label", 0, 9, 1, 1);
}
TAbstractProperty* MakeWholeNumber()
{
    return new TPropertyIntSpin("Label", 0, 9, 1);
}
TAbstractProperty* MakeSize()
{
    return new TPropertySize("Label", 0, 9, 1, 1);
}
TAbstractProperty* MakeText()
{
    return new TPropertyText("Label", "", false);
}

const MixedRow mixedRows[] = {
    {"check box, by the program", first, Make<TPropertyCheck>,
     [](TAbstractProperty* row) { As<TPropertyCheck>(row)->SetCurrentState(false); }},
    {"check box, by the user", first, Make<TPropertyCheck>,
     [](TAbstractProperty* row) { row->Editor()->findChild<QCheckBox*>()->click(); }},
    {"first of two check boxes", first, MakeTwoChecks,
     [](TAbstractProperty* row) { As<TPropertyCheck2>(row)->SetChecked1(false); }},
    {"second of two check boxes", second, MakeTwoChecks,
     [](TAbstractProperty* row) { As<TPropertyCheck2>(row)->SetChecked2(false); }},
    {"second of two check boxes, by the user", second, MakeTwoChecks,
     [](TAbstractProperty* row) { row->Editor()->findChildren<QCheckBox*>().value(1)->click(); }},
    {"choice by value", first, MakeChoice, [](TAbstractProperty* row) { As<TPropertyEnum>(row)->SetCurrentEnum(0); }},
    {"choice by text", first, MakeChoice,
     [](TAbstractProperty* row) { As<TPropertyEnum>(row)->SetCurrentText("unknown"); }},
    {"choice by the user", first, MakeChoice,
     [](TAbstractProperty* row) { As<TPropertyEnum>(row)->Box()->setCurrentIndex(1); }},
    {"angle", first, Make<TPropertyAngleEnum>,
     [](TAbstractProperty* row) { As<TPropertyAngleEnum>(row)->SetCurrentAngle(90); }},
    {"pad shape", first, Make<TPropertyPadShape>,
     [](TAbstractProperty* row) { As<TPropertyPadShape>(row)->SetCurrentPadShape(TGraphicsPadItem::ShapeRound); }},
    {"pen style", first, Make<TPropertyPenStyle>,
     [](TAbstractProperty* row) { As<TPropertyPenStyle>(row)->SetCurrentPenStyle(Qt::DashLine); }},
    {"colour", first, [] { return static_cast<TAbstractProperty*>(new TPropertyColor("Label", {})); },
     [](TAbstractProperty* row) { As<TPropertyColor>(row)->Box()->setCurrentIndex(3); }},
    {"number", first, MakeNumber, [](TAbstractProperty* row) { As<TPropertyFloatSpin>(row)->spin->setValue(3); }},
    {"box of a number", second, MakeNumber,
     [](TAbstractProperty* row) { As<TPropertyFloatSpin>(row)->check->click(); }},
    {"whole number", first, [] { return static_cast<TAbstractProperty*>(new TPropertyIntSpin("Label", 0, 9, 1)); },
     [](TAbstractProperty* row) { As<TPropertyIntSpin>(row)->SetCurrentValue(0); }},
    {"width", first, MakeSize, [](TAbstractProperty* row) { As<TPropertySize>(row)->width->setValue(3); }},
    {"height", second, MakeSize, [](TAbstractProperty* row) { As<TPropertySize>(row)->height->setValue(3); }},
    {"text", first, MakeText, [](TAbstractProperty* row) { As<TPropertyText>(row)->line->setText(""); }},
    {"box of a text", second, MakeText, [](TAbstractProperty* row) { As<TPropertyText>(row)->visible->click(); }},
};

} // namespace

using MakeRow = TAbstractProperty* (*)();

Q_DECLARE_METATYPE(const MixedRow*)
Q_DECLARE_METATYPE(MakeRow)

class TestRow : public QObject
{
    Q_OBJECT

private slots:
    void showsItsLabelInColumnOne()
    {
        const TAbstractProperty row("Diameter:", nullptr);
        QCOMPARE(row.data(1, Qt::DisplayRole).toString(), QString("Diameter:"));
        QVERIFY(!row.data(0, Qt::DisplayRole).isValid());
        QVERIFY(!row.data(2, Qt::DisplayRole).isValid());
        QCOMPARE(row.QTreeWidgetItem::type(), 0);
        QVERIFY(!row.Editor());
        QVERIFY(!row.IsHidden());
    }

    void takesAParentObject()
    {
        QObject parent;
        const QPointer<TAbstractProperty> row(new TAbstractProperty("Label", &parent));
        QCOMPARE(row->QObject::parent(), &parent);
    }

    void setEnabledReplacesAllFlags_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("flags");
        QTest::newRow("on leaves it enabled and nothing else") << true << int(Qt::ItemIsEnabled);
        QTest::newRow("off leaves no flag") << false << int(Qt::NoItemFlags);
    }

    void setEnabledReplacesAllFlags()
    {
        QFETCH(bool, on);
        QFETCH(int, flags);
        TAbstractProperty bare("Label", nullptr);
        bare.SetEnabled(on);
        QCOMPARE(int(bare.flags()), flags);

        TPropertyCheck row("Label");
        row.SetEnabled(!on);
        row.SetEnabled(on);
        QCOMPARE(int(row.flags()), flags);
        QCOMPARE(row.Editor()->isEnabled(), on);
    }

    void visibilityIsRememberedOutsideATree()
    {
        TPropertyCheck row("Label");
        row.SetVisible(false);
        QVERIFY(row.IsHidden());
        row.SetVisible(true);
        QVERIFY(!row.IsHidden());
    }

    void visibilityActsAtOnceInATree()
    {
        QTreeWidget tree;
        TAbstractProperty row("Label", nullptr);
        tree.addTopLevelItem(&row);
        row.SetVisible(false);
        QVERIFY(row.QTreeWidgetItem::isHidden());
        QVERIFY(row.IsHidden());
        row.SetVisible(true);
        QVERIFY(!row.QTreeWidgetItem::isHidden());
        QVERIFY(!row.IsHidden());
    }

    void leavesItsTreeWhenDeleted()
    {
        QTreeWidget tree;
        auto* row = new TPropertyEnum("Label", {"a", "b"});
        tree.addTopLevelItem(row);
        delete row;
        QCOMPARE(tree.topLevelItemCount(), 0);
    }

    void isMixedUntilItIsGivenTheValue_data()
    {
        QTest::addColumn<const MixedRow*>("mixedRow");
        for (const MixedRow& mixedRow : mixedRows) {
            QTest::newRow(mixedRow.name) << &mixedRow;
        }
    }

    void isMixedUntilItIsGivenTheValue()
    {
        QFETCH(const MixedRow*, mixedRow);
        const std::unique_ptr<TAbstractProperty> row(mixedRow->make());
        QVERIFY(!row->IsMixed());
        row->SetMixed(true, mixedRow->value);
        QVERIFY(row->IsMixed());
        mixedRow->give(row.get());
        QVERIFY(!row->IsMixed());

        const auto other = mixedRow->value == first ? second : first;
        row->SetMixed(true, other);
        mixedRow->give(row.get());
        QVERIFY(row->IsMixed());
    }

    void partsOfAnEditorThatIsGoneAreNull()
    {
        TPropertyFloatSpin number("Label", 0, 9, 1, 1);
        delete number.Editor();
        QVERIFY(!number.spin && !number.check);

        TPropertySize size("Label", 0, 9, 1, 1);
        delete size.Editor();
        QVERIFY(!size.width && !size.height);
        size.SetSuffix(" mm");
        size.SetDoubleHeight(true);
        QVERIFY(QMetaObject::invokeMethod(&size, "slotWidthChanged", Q_ARG(double, 1)));

        TPropertyText text("Label", "", false);
        delete text.Editor();
        QVERIFY(!text.line && !text.visible);
    }

    void tellsItsPartsFromLeftToRight_data()
    {
        QTest::addColumn<MakeRow>("make");
        QTest::addColumn<QStringList>("parts");
        QTest::newRow("list") << MakeRow(MakeChoice) << QStringList{"QComboBox"};
        QTest::newRow("whole number") << MakeRow(MakeWholeNumber) << QStringList{"QSpinBox"};
        QTest::newRow("one box") << MakeRow(Make<TPropertyCheck>) << QStringList{"QCheckBox"};
        QTest::newRow("two boxes") << MakeRow(MakeTwoChecks) << QStringList{"1 QCheckBox", "2 QCheckBox"};
        QTest::newRow("number") << MakeRow(MakeNumber) << QStringList{"TDoubleSpinBox"};
        QTest::newRow("size") << MakeRow(MakeSize) << QStringList{"width TDoubleSpinBox", "height TDoubleSpinBox"};
        QTest::newRow("text") << MakeRow(MakeText) << QStringList{"TLineEdit"};
        QTest::newRow("heading") << MakeRow(Make<TPropertySeparator>) << QStringList{};
    }
    void tellsItsPartsFromLeftToRight()
    {
        QFETCH(MakeRow, make);
        QFETCH(QStringList, parts);
        const std::unique_ptr<TAbstractProperty> row(make());
        QStringList told;
        for (const TAbstractProperty::Part& part : row->Parts()) {
            told.append((part.name + ' ' + part.widget->metaObject()->className()).trimmed());
            QVERIFY(part.CanBeEdited());
        }
        QCOMPARE(told, parts);
        row->SetEnabled(false);
        for (const TAbstractProperty::Part& part : row->Parts()) {
            QVERIFY(!part.CanBeEdited());
        }
        delete row->Editor();
        QVERIFY(row->Parts().isEmpty());
    }

    void partsThatAreShownLaterAreToldThen()
    {
        TPropertyFloatSpin number("Label", 0, 9, 1, 1);
        number.check->show();
        QCOMPARE(number.Parts().first().name, QString("check"));
        QCOMPARE(number.Parts().first().widget, static_cast<QWidget*>(number.check));
        TPropertyText text("Label", "", false);
        text.visible->show();
        QCOMPARE(text.Parts().last().name, QString("show"));
        QVERIFY(!text.Parts().first().isReadOnly);
        text.line->SetEditable(false);
        QVERIFY(text.Parts().first().isReadOnly);
        QVERIFY(!text.Parts().first().CanBeEdited());
    }

    void withoutItsEditorStillEnablesAndHides()
    {
        TPropertyCheck row("Label");
        delete row.Editor();
        row.SetEnabled(false);
        QCOMPARE(row.flags(), Qt::NoItemFlags);
        row.SetVisible(false);
        QVERIFY(row.IsHidden());
    }
};

PROPERTIES_TEST(TestRow)
#include "tst_base.moc"
