#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertySeparator.h"

#include <workspace/TDoubleSpinBox.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/** Remembers why a widget got the focus last. */
class FocusReason : public QObject
{
public:
    explicit FocusReason(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn) {
            reason = static_cast<QFocusEvent*>(event)->reason();
        }
        return false;
    }

    Qt::FocusReason reason = Qt::NoFocusReason;
};

/** A set that takes keys, as the application hands them to whatever set is shown. */
class KeySet : public Test::PlainSet
{
public:
    void KeyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }

    QList<int> keys;
};

bool ClickItem(TPropertyWidget* panel, QTreeWidgetItem* item, int column)
{
    return QMetaObject::invokeMethod(panel, "slotClickItem", Q_ARG(QTreeWidgetItem*, item), Q_ARG(int, column));
}

} // namespace

class TestPanel : public QObject
{
    Q_OBJECT

private slots:
    void treeHasALabelAndAnEditorColumn()
    {
        QWidget parent;
        const auto* panel = new TPropertyWidget(&parent);
        TTreeWidget* tree = panel->Tree();
        QCOMPARE(panel->findChildren<TTreeWidget*>(), QList<TTreeWidget*>{tree});
        QVERIFY(!tree->testAttribute(Qt::WA_MouseTracking));
        QCOMPARE(tree->columnCount(), 3);
        QVERIFY(tree->isColumnHidden(0));
        QVERIFY(!tree->isColumnHidden(1));
        QVERIFY(!tree->isColumnHidden(2));
        QVERIFY(tree->isHeaderHidden());
        QVERIFY(tree->header()->isHidden());
        QCOMPARE(tree->topLevelItemCount(), 0);
    }

    void treeFillsThePanel()
    {
        QWidget parent;
        const auto* panel = new TPropertyWidget(&parent);
        const auto* layout = qobject_cast<QVBoxLayout*>(panel->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget*>(panel->Tree()));
        QCOMPARE(layout->stretch(0), 1);
    }

    void panelIsAPlainChildWidget()
    {
        QWidget parent;
        const TPropertyWidget panel(&parent);
        QCOMPARE(panel.parentWidget(), &parent);
        QCOMPARE(panel.windowFlags(), QWidget(&parent).windowFlags());
        QCOMPARE(panel.windowTitle(), QString("Properties"));
        QCOMPARE(panel.sizeHint(), QSize(220, 185));
        QVERIFY(!panel.PropertySet());
    }

    void titlesItsParent()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        QCOMPARE(parent.windowTitle(), QString());
        panel.SetPropertySet(new Test::PlainSet("Vias"));
        QCOMPARE(parent.windowTitle(), QString("Properties - Vias"));
        panel.SetPropertySet(new Test::PlainSet("Pad"));
        QCOMPARE(parent.windowTitle(), QString("Properties - Pad"));
        panel.SetPropertySet(nullptr);
        QCOMPARE(parent.windowTitle(), QString("Properties"));
        QCOMPARE(panel.windowTitle(), QString("Properties"));
    }

    void titlesAreTranslated()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        const Test::MarkingTranslator translator;
        panel.UpdateTranslate();
        QCOMPARE(panel.windowTitle(), QString("~Properties"));
        panel.SetPropertySet(nullptr);
        QCOMPARE(parent.windowTitle(), QString("~Properties"));
        panel.SetPropertySet(new Test::PlainSet("Vias"));
        QCOMPARE(parent.windowTitle(), QString("~Properties - Vias"));
        QVERIFY(translator.WasAsked("TPropertyWidget", "Properties"));
    }

    void updateTranslateTitlesThePanelOnly()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        panel.SetPropertySet(new Test::PlainSet("Vias"));
        panel.setWindowTitle("stale");
        panel.UpdateTranslate();
        QCOMPARE(panel.windowTitle(), QString("Properties"));
        QCOMPARE(parent.windowTitle(), QString("Properties - Vias"));
    }

    void emptySetShowsAnEmptyTitledPanel()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        panel.SetPropertySet(new Test::PlainSet("Holes"));
        QCOMPARE(panel.Tree()->topLevelItemCount(), 0);
        QCOMPARE(parent.windowTitle(), QString("Properties - Holes"));
    }

    void newSetReplacesTheOld()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        const QPointer<Test::PlainSet> first(new Test::PlainSet);
        const Test::RowWatch old(first->Add<TPropertyCheck>("Old:"));
        panel.SetPropertySet(first);
        QCOMPARE(panel.PropertySet(), static_cast<TPropertySet*>(first));
        QCOMPARE(panel.Tree()->topLevelItemCount(), 1);

        const QPointer<Test::PlainSet> second(new Test::PlainSet);
        auto* row = second->Add<TPropertyCheck>("New:");
        panel.SetPropertySet(second);
        QVERIFY(!first);
        QVERIFY(!old.row);
        QCOMPARE(panel.PropertySet(), static_cast<TPropertySet*>(second));
        QCOMPARE(panel.Tree()->topLevelItemCount(), 1);
        QCOMPARE(panel.Tree()->topLevelItem(0), static_cast<QTreeWidgetItem*>(row));

        panel.SetPropertySet(nullptr);
        QVERIFY(!second);
        QVERIFY(!panel.PropertySet());
        QCOMPARE(panel.Tree()->topLevelItemCount(), 0);
        Test::Settle();
        QVERIFY(!old.editor);
    }

    void oldSetIsGoneBeforeTheNewIsShown()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        auto* first = new Test::PlainSet("First");
        first->Add<TPropertyCheck>("Old:");
        panel.SetPropertySet(first);
        int rowsThen = -1;
        QString titleThen;
        connect(first, &QObject::destroyed, &panel, [&] { titleThen = parent.windowTitle(); });
        auto* second = new Test::PlainSet("Second");
        second->Add<TPropertyCheck>("New:");
        connect(panel.Tree()->model(), &QAbstractItemModel::rowsAboutToBeInserted, &panel,
                [&] { rowsThen = panel.Tree()->topLevelItemCount(); });
        panel.SetPropertySet(second);
        QCOMPARE(titleThen, QString("Properties - First"));
        QCOMPARE(rowsThen, 0);
    }

    void setGivenTwiceIsDeletedAndNotUsed()
    {
        QWidget parent;
        TPropertyWidget panel(&parent);
        const QPointer<Test::PlainSet> set(new Test::PlainSet("Vias"));
        set->Add<TPropertyCheck>("Label:");
        panel.SetPropertySet(set);
        panel.SetPropertySet(set);
        QVERIFY(!set);
        QVERIFY(!panel.PropertySet());
        QCOMPARE(panel.Tree()->topLevelItemCount(), 0);
        QCOMPARE(parent.windowTitle(), QString("Properties"));
    }

    void panelWithoutParentWorks()
    {
        TPropertyWidget panel(nullptr);
        auto* set = new Test::PlainSet("Vias");
        set->Add<TPropertyCheck>("Label:");
        panel.SetPropertySet(set);
        panel.show();
        Test::Settle();
        QCOMPARE(panel.Tree()->topLevelItemCount(), 1);
        panel.UpdateTranslate();
        panel.SetPropertySet(nullptr);
        QCOMPARE(panel.Tree()->topLevelItemCount(), 0);
        QCOMPARE(panel.windowTitle(), QString("Properties"));
    }

    void clickOnALabelFocusesTheEditor()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        set->Add<TPropertyIntSpin>("First:", 0, 9, 1);
        auto* row = set->Add<TPropertyIntSpin>("Second:", 0, 9, 1);
        place.Show(set);
        QVERIFY(!row->Editor()->hasFocus());
        const FocusReason focus(row->Editor());
        place.ClickLabel(row);
        QVERIFY(row->Editor()->hasFocus());
        QCOMPARE(focus.reason, Qt::OtherFocusReason);
    }

    void anyColumnFocusesTheEditor_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow("hidden column") << 0;
        QTest::newRow("label") << 1;
        QTest::newRow("editor") << 2;
    }

    void anyColumnFocusesTheEditor()
    {
        QFETCH(int, column);
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyIntSpin>("Label:", 0, 9, 1);
        place.Show(set);
        QVERIFY(ClickItem(place.panel, row, column));
        QVERIFY(row->Editor()->hasFocus());
    }

    void containersGetTheFocusToo()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyFloatSpin>("Drill:", 0.1, 10, 0.1, 1);
        place.Show(set);
        place.ClickLabel(row);
        QVERIFY(row->Editor()->hasFocus());
    }

    void clickOnASeparatorLeavesTheFocus()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* separator = set->Add<TPropertySeparator>("Group");
        auto* row = set->Add<TPropertyIntSpin>("Label:", 0, 9, 1);
        place.Show(set);
        row->Editor()->setFocus();
        QVERIFY(ClickItem(place.panel, separator, 1));
        QVERIFY(row->Editor()->hasFocus());
    }

    void clickOnADisabledEditorLeavesTheFocus()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyIntSpin>("Label:", 0, 9, 1);
        row->SetEnabled(false);
        place.Show(set);
        place.ClickLabel(row);
        QVERIFY(!row->Editor()->hasFocus());
    }

    void setHasANameAndNoParent()
    {
        const Test::PlainSet set("Vias");
        QVERIFY(!set.parent());
        QCOMPARE(set.Name(), QString("Vias"));
        QCOMPARE(set.Properties(), QList<TAbstractProperty*>());
    }

    void setsCanTakeKeys()
    {
        KeySet set;
        TPropertySet& shown = set;
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        shown.KeyPressEvent(&key);
        QCOMPARE(set.keys, QList<int>{Qt::Key_Space});
    }

    void baseIgnoresKeys()
    {
        Test::PlainSet set;
        auto* row = set.Add<TPropertyIntSpin>("Label:", 0, 9, 1);
        const Test::CommandLog log(set);
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        set.KeyPressEvent(&key);
        set.KeyPressEvent(nullptr);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(row->CurrentValue(), 0);
    }
};

PROPERTIES_TEST(TestPanel)
#include "tst_panel.moc"
