#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertySize.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalSpy>

namespace {

QSpinBox* BoxOf(const TPropertyIntSpin& row)
{
    return qobject_cast<QSpinBox*>(row.Editor());
}

QVariantList Values(const QSignalSpy& spy)
{
    QVariantList values;
    for (const QVariantList& arguments : spy) {
        values.append(arguments.first());
    }
    return values;
}

/** Writes down the signals of a size row in the order in which they come. */
class SizeSignals
{
public:
    explicit SizeSignals(const TPropertySize& row)
    {
        QObject::connect(&row, &TPropertySize::sigWidthChanged, [this](double width) { Add("w", width); });
        QObject::connect(&row, &TPropertySize::sigHeightChanged, [this](double height) { Add("h", height); });
    }

    QStringList lines;

private:
    void Add(const char* name, double value) { lines.append(QStringLiteral("%1 %2").arg(name).arg(value)); }
};

void CompareBox(const QDoubleSpinBox* box, double min, double max, double step, int decimals)
{
    QCOMPARE(box->minimum(), min);
    QCOMPARE(box->maximum(), max);
    QCOMPARE(box->singleStep(), step);
    QCOMPARE(box->decimals(), decimals);
}

} // namespace

class TestNumericRows : public QObject
{
    Q_OBJECT

private slots:
    void intRowIsASpinBox_data()
    {
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("first");
        QTest::newRow("zero inside") << -3 << 12 << 5 << 0;
        QTest::newRow("zero below") << 5 << 90 << 1 << 5;
        QTest::newRow("zero above") << -90 << -5 << 15 << -5;
    }

    void intRowIsASpinBox()
    {
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(int, step);
        const TPropertyIntSpin row("Count:", min, max, step);
        QCOMPARE(row.text(1), QString("Count:"));
        QVERIFY(Test::IsExactly(row.Editor(), QSpinBox::staticMetaObject));
        QCOMPARE(BoxOf(row)->minimum(), min);
        QCOMPARE(BoxOf(row)->maximum(), max);
        QCOMPARE(BoxOf(row)->singleStep(), step);
        QTEST(row.CurrentValue(), "first");
    }

    void intRowReportsChanges_data()
    {
        QTest::addColumn<int>("given");
        QTest::addColumn<int>("kept");
        QTest::addColumn<QVariantList>("reported");
        QTest::newRow("inside") << 7 << 7 << QVariantList{7};
        QTest::newRow("above is clamped") << 99 << 12 << QVariantList{12};
        QTest::newRow("below is clamped") << -99 << -3 << QVariantList{-3};
        QTest::newRow("the same says nothing") << 0 << 0 << QVariantList{};
    }

    void intRowReportsChanges()
    {
        QFETCH(int, given);
        TPropertyIntSpin row("Count:", -3, 12, 5);
        const QSignalSpy changes(&row, SIGNAL(sigValueChanged(int)));
        row.SetCurrentValue(given);
        QTEST(row.CurrentValue(), "kept");
        QCOMPARE(BoxOf(row)->value(), row.CurrentValue());
        QTEST(Values(changes), "reported");
    }

    void intRowReportsTheUsersStep()
    {
        TPropertyIntSpin row("Count:", 0, 100, 5);
        const QSignalSpy changes(&row, SIGNAL(sigValueChanged(int)));
        QTest::keyClick(row.Editor(), Qt::Key_Up);
        QTest::keyClick(row.Editor(), Qt::Key_Up);
        QTest::keyClick(row.Editor(), Qt::Key_Down);
        QCOMPARE(Values(changes), (QVariantList{5, 10, 5}));
    }

    void intRowTakesRangeStepAndSuffix()
    {
        TPropertyIntSpin row("Count:", 0, 100, 5);
        row.SetCurrentValue(50);
        row.SetRange(2, 40);
        row.SetStep(3);
        row.SetSuffix(" pcs");
        QCOMPARE(BoxOf(row)->minimum(), 2);
        QCOMPARE(BoxOf(row)->maximum(), 40);
        QCOMPARE(row.CurrentValue(), 40);
        QCOMPARE(BoxOf(row)->singleStep(), 3);
        QCOMPARE(BoxOf(row)->text(), QString("40 pcs"));
    }

    void intRowWithoutEditorIsZeroAndDeaf()
    {
        TPropertyIntSpin row("Count:", 5, 100, 5);
        const QSignalSpy changes(&row, SIGNAL(sigValueChanged(int)));
        delete row.Editor();
        QVERIFY(!row.Editor());
        row.SetCurrentValue(20);
        row.SetRange(1, 2);
        row.SetStep(3);
        row.SetSuffix(" pcs");
        QCOMPARE(row.CurrentValue(), 0);
        QCOMPARE(changes.count(), 0);
    }

    void applicationBoxHasDefaults()
    {
        const TDoubleSpinBox box;
        QCOMPARE(box.decimals(), 2);
        QCOMPARE(box.singleStep(), 0.05);
        QCOMPARE(box.suffix(), QString(" mm"));
    }

    void floatRowTakesItsArguments_data()
    {
        QTest::addColumn<double>("min");
        QTest::addColumn<double>("max");
        QTest::addColumn<double>("step");
        QTest::addColumn<int>("decimals");
        QTest::newRow("drill") << 0.1 << 10.0 << 0.1 << 1;
        QTest::newRow("clearance") << 0.0 << 10.0 << 0.1 << 2;
        QTest::newRow("below zero") << -5.25 << 99.75 << 0.125 << 2;
        QTest::newRow("whole numbers") << -360.0 << 360.0 << 15.0 << 0;
    }

    void floatRowTakesItsArguments()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(double, step);
        QFETCH(int, decimals);
        const TPropertyFloatSpin row("Drill:", min, max, step, decimals);
        QCOMPARE(row.text(1), QString("Drill:"));
        QVERIFY(Test::IsExactly(row.spin, TDoubleSpinBox::staticMetaObject));
        QCOMPARE(row.spin->suffix(), QString(" mm"));
        CompareBox(row.spin, min, max, step, decimals);
    }

    void floatRowPutsTheEnableBoxInFront()
    {
        const TPropertyFloatSpin row("Mask:", 0, 10, 0.1, 2);
        QVERIFY(Test::IsExactly(row.Editor(), QWidget::staticMetaObject));
        QCOMPARE(row.Editor()->minimumHeight(), 20);
        QCOMPARE(row.Editor()->maximumHeight(), 20);
        QCOMPARE(row.Editor()->layout()->contentsMargins(), QMargins());
        QCOMPARE(Test::LayoutParts(row.Editor()), (QStringList{"QCheckBox 0", "TDoubleSpinBox 1"}));
        QCOMPARE(row.Editor()->layout()->itemAt(0)->widget(), static_cast<QWidget*>(row.check));
        QCOMPARE(row.Editor()->layout()->itemAt(1)->widget(), static_cast<QWidget*>(row.spin));
        QCOMPARE(row.check->text(), QString("En"));
        QVERIFY(row.check->isHidden());
        QVERIFY(!row.spin->isHidden());
    }

    void hiddenEnableBoxStaysHiddenWhenTheEditorIsShown()
    {
        const TPropertyFloatSpin row("Drill:", 0, 10, 0.1, 2);
        row.Editor()->show();
        QVERIFY(!row.check->isVisible());
        QVERIFY(row.spin->isVisible());
    }

    void floatRowClamps_data()
    {
        QTest::addColumn<double>("given");
        QTest::addColumn<double>("kept");
        QTest::newRow("inside") << 2.5 << 2.5;
        QTest::newRow("below the minimum") << -4.0 << 0.1;
        QTest::newRow("above the maximum") << 40.0 << 10.0;
        QTest::newRow("rounded to the decimals") << 2.4687 << 2.47;
    }

    void floatRowClamps()
    {
        QFETCH(double, given);
        QFETCH(double, kept);
        const TPropertyFloatSpin row("Drill:", 0.1, 10, 0.1, 2);
        row.spin->setValue(5);
        const QSignalSpy changes(&row, SIGNAL(sigValueChanged(double)));
        row.spin->setValue(given);
        QCOMPARE(row.spin->value(), kept);
        QCOMPARE(Values(changes), QVariantList{kept});
    }

    void floatRowKeepsDoublePrecision()
    {
        TPropertyFloatSpin row("Drill:", 0, 10, 0.1, 6);
        const QSignalSpy changes(&row, SIGNAL(sigValueChanged(double)));
        row.spin->setValue(0.123457);
        QVERIFY(QMetaObject::invokeMethod(&row, "slotDoubleToFloat", Q_ARG(double, 0.7)));
        QCOMPARE(changes.count(), 2);
        QVERIFY(changes[0][0].toDouble() == 0.123457); // Exactly: a comparison with tolerance would allow floats.
        QVERIFY(changes[1][0].toDouble() == 0.7);
    }

    void enableBoxReportsClicksOnly()
    {
        const TPropertyFloatSpin row("Mask:", 0, 10, 0.1, 2);
        const QSignalSpy checks(&row, SIGNAL(sigCheckChanged(bool)));
        const QSignalSpy values(&row, SIGNAL(sigValueChanged(double)));
        row.check->show();
        row.Editor()->show();
        row.check->setChecked(true);
        QCOMPARE(checks.count(), 0);
        QTest::mouseClick(row.check, Qt::LeftButton, {}, QPoint(8, row.check->height() / 2));
        QTest::keyClick(row.check, Qt::Key_Space);
        QCOMPARE(Values(checks), (QVariantList{false, true}));
        QVERIFY(row.check->isChecked());
        QCOMPARE(values.count(), 0);
    }

    void hiddenEnableBoxReportsNothing()
    {
        const TPropertyFloatSpin row("Drill:", 0, 10, 0.1, 2);
        const QSignalSpy checks(&row, SIGNAL(sigCheckChanged(bool)));
        row.Editor()->resize(200, 20);
        row.Editor()->show();
        for (int x = 2; x < row.Editor()->width(); x += 6) {
            const QPoint position(x, row.Editor()->height() / 2);
            QWidget* hit = row.Editor()->childAt(position);
            QVERIFY(hit != row.check);
            QWidget* target = hit ? hit : row.Editor();
            QTest::mouseClick(target, Qt::LeftButton, {}, target->mapFrom(row.Editor(), position));
        }
        row.check->setChecked(true);
        QCOMPARE(checks.count(), 0);
    }

    void sizeRowHasTwoBoxes()
    {
        const TPropertySize row("Size (W x H):", 0.1, 100, 0.25, 3);
        QCOMPARE(row.text(1), QString("Size (W x H):"));
        QVERIFY(Test::IsExactly(row.Editor(), QWidget::staticMetaObject));
        QCOMPARE(row.Editor()->layout()->contentsMargins(), QMargins());
        QCOMPARE(Test::LayoutParts(row.Editor()), (QStringList{"TDoubleSpinBox 1", "QLabel 0", "TDoubleSpinBox 1"}));
        QCOMPARE(row.Editor()->layout()->itemAt(0)->widget(), static_cast<QWidget*>(row.width));
        QCOMPARE(row.Editor()->layout()->itemAt(2)->widget(), static_cast<QWidget*>(row.height));
        QCOMPARE(row.Editor()->findChildren<QLabel*>().value(0)->text(), QString("x"));
        for (const TDoubleSpinBox* box : {row.width, row.height}) {
            CompareBox(box, 0.1, 100, 0.25, 3);
            QVERIFY(box->isEnabled());
        }
    }

    void sizeRowGivesBothBoxesTheSuffix()
    {
        TPropertySize row("Size:", 0.1, 100, 0.1, 2);
        row.SetSuffix(" mil");
        QCOMPARE(row.width->suffix(), QString(" mil"));
        QCOMPARE(row.height->suffix(), QString(" mil"));
    }

    void heightFollowsWidthWhileLocked_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::addColumn<bool>("doubled");
        QTest::addColumn<double>("heightBefore");
        QTest::addColumn<double>("width");
        QTest::addColumn<QStringList>("said");
        QTest::addColumn<double>("height");

        QTest::newRow("open: never touched") << false << false << 7.0 << 1.5 << QStringList{"w 1.5"} << 7.0;
        QTest::newRow("open and doubled: never touched") << false << true << 7.0 << 1.5 << QStringList{"w 1.5"} << 7.0;
        QTest::newRow("locked: the same, said twice")
            << true << false << 7.0 << 1.5 << QStringList{"w 1.5", "h 1.5", "h 1.5"} << 1.5;
        QTest::newRow("locked and doubled: twice as much, the width itself last")
            << true << true << 7.0 << 1.5 << QStringList{"w 1.5", "h 3", "h 1.5"} << 3.0;
        QTest::newRow("locked, height there already: said once")
            << true << false << 1.5 << 1.5 << QStringList{"w 1.5", "h 1.5"} << 1.5;
        QTest::newRow("locked and doubled, height there already: the width itself")
            << true << true << 3.0 << 1.5 << QStringList{"w 1.5", "h 1.5"} << 3.0;
        QTest::newRow("locked and doubled beyond the range: clamped")
            << true << true << 7.0 << 60.0 << QStringList{"w 60", "h 100", "h 60"} << 100.0;
    }

    void heightFollowsWidthWhileLocked()
    {
        QFETCH(bool, locked);
        QFETCH(bool, doubled);
        QFETCH(double, heightBefore);
        QFETCH(double, width);
        TPropertySize row("Size:", 0.1, 100, 0.1, 2);
        row.SetDoubleHeight(doubled);
        row.height->setValue(heightBefore);
        row.height->setEnabled(!locked);
        const SizeSignals said(row);
        row.width->setValue(width);
        QTEST(said.lines, "said");
        QTEST(row.height->value(), "height");
    }

    void heightReportsItsOwnChange()
    {
        const TPropertySize row("Size:", 0.1, 100, 0.1, 2);
        row.width->setValue(4);
        const SizeSignals said(row);
        row.height->setValue(2.25);
        QCOMPARE(said.lines, QStringList{"h 2.25"});
        QCOMPARE(row.width->value(), 4.0);
    }

    void doubledModeActsAtOnce_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::addColumn<bool>("doubled");
        QTest::addColumn<QStringList>("said");
        QTest::addColumn<double>("height");
        QTest::newRow("open, on") << false << true << QStringList{} << 5.0;
        QTest::newRow("locked, on") << true << true << QStringList{"h 4", "h 2"} << 4.0;
        QTest::newRow("locked, off") << true << false << QStringList{"h 2", "h 2"} << 2.0;
    }

    void doubledModeActsAtOnce()
    {
        QFETCH(bool, locked);
        QFETCH(bool, doubled);
        TPropertySize row("Size:", 0.1, 100, 0.1, 2);
        row.width->setValue(2);
        row.height->setValue(5);
        row.height->setEnabled(!locked);
        const SizeSignals said(row);
        row.SetDoubleHeight(doubled);
        QTEST(said.lines, "said");
        QTEST(row.height->value(), "height");
    }

    void followingWidthIsASlot()
    {
        TPropertySize row("Size:", 0.1, 100, 0.1, 2);
        row.height->setEnabled(false);
        const SizeSignals said(row);
        QVERIFY(QMetaObject::invokeMethod(&row, "slotWidthChanged", Q_ARG(double, 8.5)));
        QCOMPARE(said.lines, (QStringList{"h 8.5", "h 8.5"}));
        QCOMPARE(row.width->value(), 0.1);
    }

    void realRowsWithoutEditorLiveOn()
    {
        TPropertyFloatSpin number("Drill:", 0, 10, 0.1, 2);
        TPropertySize size("Size:", 0, 10, 0.1, 2);
        const Test::SignalCounter values(&number, "sigValueChanged(double)");
        const Test::SignalCounter heights(&size, "sigHeightChanged(double)");
        delete number.Editor();
        delete size.Editor();
        number.SetEnabled(false);
        size.SetEnabled(false);
        QVERIFY(!number.Editor());
        QVERIFY(!size.Editor());
        QCOMPARE(values.Count() + heights.Count(), 0);
    }
};

PROPERTIES_TEST(TestNumericRows)
#include "tst_numeric.moc"
