#include "tests/support/PanelFixture.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertySeparator.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSignalSpy>

class TestCheckRows : public QObject
{
    Q_OBJECT

private slots:
    void checkRowIsABoxInAContainer()
    {
        const TPropertyCheck row("Locked:");
        QCOMPARE(row.text(1), QString("Locked:"));
        QVERIFY(Test::IsExactly(row.Editor(), QWidget::staticMetaObject));
        QCOMPARE(row.Editor()->layout()->contentsMargins(), QMargins(5, 0, 0, 0));
        QCOMPARE(Test::LayoutParts(row.Editor()).value(0), QString("QCheckBox 0"));
        const auto boxes = row.Editor()->findChildren<QCheckBox*>();
        QCOMPARE(boxes.count(), 1);
        QCOMPARE(boxes.first()->text(), QString());
        QVERIFY(!row.CurrentState());
    }

    void checkRowReportsEveryChange()
    {
        TPropertyCheck row("Locked:");
        const QSignalSpy changes(&row, SIGNAL(sigStateChanged(bool)));
        row.SetCurrentState(true);
        row.SetCurrentState(true);
        QVERIFY(row.CurrentState());
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes[0][0].toBool(), true);
        row.SetCurrentState(false);
        QVERIFY(!row.CurrentState());
        QTest::keyClick(row.Editor()->findChild<QCheckBox*>(), Qt::Key_Space);
        QCOMPARE(changes.count(), 3);
        QCOMPARE(changes[1][0].toBool(), false);
        QCOMPARE(changes[2][0].toBool(), true);
        QVERIFY(row.CurrentState());
    }

    void twoBoxesSideBySide()
    {
        QWidget parent;
        const auto* widget = new TCheckBox2Widget("H", "V", &parent);
        QCOMPARE(widget->parentWidget(), &parent);
        QCOMPARE(widget->minimumHeight(), 20);
        QCOMPARE(widget->maximumHeight(), 20);
        QCOMPARE(widget->layout()->contentsMargins(), QMargins());
        QCOMPARE(Test::LayoutParts(widget), (QStringList{"spacing 5", "QCheckBox 1", "QCheckBox 1"}));
        QCOMPARE(widget->layout()->itemAt(1)->widget(), static_cast<QWidget*>(widget->box1));
        QCOMPARE(widget->layout()->itemAt(2)->widget(), static_cast<QWidget*>(widget->box2));
        QCOMPARE(widget->box1->text(), QString("H"));
        QCOMPARE(widget->box2->text(), QString("V"));
    }

    void twoBoxesReportEveryChange()
    {
        const TCheckBox2Widget widget("H", "V", nullptr);
        const QSignalSpy first(&widget, SIGNAL(sigChecked1(bool)));
        const QSignalSpy second(&widget, SIGNAL(sigChecked2(bool)));
        widget.box1->setChecked(true);
        QTest::keyClick(widget.box1, Qt::Key_Space);
        widget.box2->setChecked(true);
        QCOMPARE(first.count(), 2);
        QCOMPARE(first[0][0].toBool(), true);
        QCOMPARE(first[1][0].toBool(), false);
        QCOMPARE(second.count(), 1);
        QCOMPARE(second[0][0].toBool(), true);
    }

    void check2RowRelaysItsBoxes()
    {
        TPropertyCheck2 row("Mirror:", "H", "V");
        QCOMPARE(row.text(1), QString("Mirror:"));
        auto* widget = qobject_cast<TCheckBox2Widget*>(row.Editor());
        QVERIFY(widget);
        QCOMPARE(widget->box1->text(), QString("H"));
        QCOMPARE(widget->box2->text(), QString("V"));
        const QSignalSpy first(&row, SIGNAL(sigChecked1(bool)));
        const QSignalSpy second(&row, SIGNAL(sigChecked2(bool)));

        row.SetChecked1(true);
        QVERIFY(row.IsChecked1() && !row.IsChecked2());
        QCOMPARE(first.count(), 1);
        QCOMPARE(first[0][0].toBool(), true);
        QCOMPARE(second.count(), 0);

        row.SetChecked2(true);
        row.SetChecked2(true);
        QVERIFY(row.IsChecked1() && row.IsChecked2());
        QCOMPARE(second.count(), 1);

        QTest::keyClick(widget->box2, Qt::Key_Space);
        QVERIFY(row.IsChecked1() && !row.IsChecked2());
        QCOMPARE(second.count(), 2);
        QCOMPARE(second[1][0].toBool(), false);
        QCOMPARE(first.count(), 1);
    }

    void withoutEditorReadAsUnchecked()
    {
        TPropertyCheck check("Locked:");
        TPropertyCheck2 check2("Mirror:", "H", "V");
        check.SetCurrentState(true);
        check2.SetChecked1(true);
        check2.SetChecked2(true);
        const QSignalSpy changes(&check, SIGNAL(sigStateChanged(bool)));
        const QSignalSpy first(&check2, SIGNAL(sigChecked1(bool)));
        delete check.Editor();
        delete check2.Editor();
        check.SetCurrentState(true);
        check2.SetChecked1(true);
        check2.SetChecked2(true);
        QVERIFY(!check.CurrentState());
        QVERIFY(!check2.IsChecked1());
        QVERIFY(!check2.IsChecked2());
        QCOMPARE(changes.count() + first.count(), 0);
    }

    void separatorIsABoldTitle()
    {
        const TPropertySeparator row("Geometry");
        QCOMPARE(row.text(1), QString("Geometry"));
        QVERIFY(!row.Editor());
        QCOMPARE(row.font(1).weight(), 75);
        QVERIFY(row.font(1).bold());
    }

    void emptySeparatorIsPlain()
    {
        const TPropertySeparator row("");
        QCOMPARE(row.text(1), QString());
        QVERIFY(!row.Editor());
        QVERIFY(!row.data(1, Qt::FontRole).isValid());
    }

    void separatorIsNotSpannedAndKeepsItsFlags()
    {
        const QTreeWidgetItem plainItem;
        auto* row = new TPropertySeparator("Geometry");
        QTreeWidget tree;
        tree.addTopLevelItem(row);
        QVERIFY(!row->isFirstColumnSpanned());
        QCOMPARE(row->flags(), plainItem.flags());
    }
};

PROPERTIES_TEST(TestCheckRows)
#include "tst_check.moc"
