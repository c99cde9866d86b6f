#include "tests/support/PanelFixture.h"
#include "tests/support/TestMain.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyEnum.h"

#include <QTreeWidget>

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

PROPERTIES_TEST_MAIN(TestRow)
#include "tst_row.moc"
