#include "tests/support/PanelFixture.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertySeparator.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"

#include <QFontMetrics>
#include <QSpinBox>

namespace {

constexpr int column = TAbstractProperty::labelColumn;

QFont BigFont(int points)
{
    QFont font;
    font.setPointSize(points);
    return font;
}

/** The height that the panel's tree gives a row of that label and font when the row has no editor. */
int BareRowHeight(const QString& label, const QFont& font)
{
    QWidget parent;
    parent.resize(400, 500);
    const TPropertyWidget panel(&parent);
    auto* item = new QTreeWidgetItem;
    item->setText(column, label);
    item->setFont(column, font);
    panel.Tree()->addTopLevelItem(item);
    return panel.Tree()->visualItemRect(item).height();
}

QStringList ShownLabels(const TTreeWidget* tree)
{
    QStringList labels;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        labels.append(tree->topLevelItem(i)->text(column));
    }
    return labels;
}

} // namespace

/** How the rows of a set are put into the panel. */
class TestPanelRows : public QObject
{
    Q_OBJECT

private slots:
    void rowsKeepTheirOrder()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        set->Add<TPropertyCheck>("C");
        set->Add<TPropertySeparator>("A");
        set->Add<TPropertyIntSpin>("B", 0, 9, 1);
        set->Keep<TPropertyCheck>("never shown");
        QCOMPARE(Test::Labels(set), (QStringList{"C", "A", "B"}));
        place.Show(set);
        QCOMPARE(ShownLabels(place.Tree()), (QStringList{"C", "A", "B"}));
    }

    void rowAddedTwiceIsThereOnce()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* first = set->Add<TPropertyCheck>("First");
        auto* second = set->Add<TPropertyCheck>("Second");
        set->AddProperty(first);
        set->AddProperty(second);
        QCOMPARE(set->Properties(), (QList<TAbstractProperty*>{first, second}));
        place.Show(set);
        QCOMPARE(place.Tree()->topLevelItemCount(), 2);
    }

    void rowsOfTheSameLabelAreDifferentRows()
    {
        Test::PlainSet set;
        set.Add<TPropertyCheck>("Label");
        set.Add<TPropertyCheck>("Label");
        QCOMPARE(set.Properties().count(), 2);
    }

    void editorsStandInColumnTwo()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* number = set->Add<TPropertyIntSpin>("Number", 0, 9, 1);
        auto* separator = set->Add<TPropertySeparator>("Group");
        place.Show(set);
        QCOMPARE(place.Tree()->itemWidget(number, 2), number->Editor());
        QVERIFY(!place.Tree()->itemWidget(number, 1));
        QVERIFY(!place.Tree()->itemWidget(separator, 2));
        QVERIFY(number->Editor()->isVisible());
    }

    void editorsAreAsHighAsTheFirstBareRow_data()
    {
        QTest::addColumn<bool>("panelIsShownFirst");
        QTest::newRow("set given to a visible panel") << true;
        QTest::newRow("set given before the panel is seen") << false;
    }

    void editorsAreAsHighAsTheFirstBareRow()
    {
        QFETCH(bool, panelIsShownFirst);
        Test::PanelWindow place;
        if (panelIsShownFirst) {
            place.Show(nullptr);
        }
        auto* set = new Test::PlainSet;
        set->Add<TPropertySeparator>("Group")->setFont(column, BigFont(40));
        auto* first = set->Add<TPropertyIntSpin>("First", 0, 9, 1);
        first->setFont(column, BigFont(20));
        const QList<TAbstractProperty*> rows{
            first, set->Add<TPropertyFloatSpin>("Float", 0, 1, 0.1, 1), set->Add<TPropertySize>("Size", 0, 1, 0.1, 1),
            set->Add<TPropertyText>("Text", "t", false), set->Add<TPropertyEnum>("Enum", QStringList{"a"})};
        place.Show(set);
        const int height = BareRowHeight("First", BigFont(20));
        QVERIFY(height > BareRowHeight("First", QFont()));
        QVERIFY(height < BareRowHeight("Group", BigFont(40)));
        for (const TAbstractProperty* row : rows) {
            QCOMPARE(row->Editor()->minimumHeight(), height);
            QCOMPARE(row->Editor()->maximumHeight(), height);
        }
    }

    void eachSetMeasuresAnew()
    {
        Test::PanelWindow place;
        auto* big = new Test::PlainSet;
        big->Add<TPropertyCheck>("Big")->setFont(column, BigFont(30));
        place.Show(big);
        auto* plain = new Test::PlainSet;
        auto* row = plain->Add<TPropertyCheck>("Plain");
        place.Show(plain);
        QCOMPARE(row->Editor()->minimumHeight(), BareRowHeight("Plain", QFont()));
    }

    void rowsAreEnabledAndNothingElse()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyCheck>("Label");
        QCOMPARE(row->flags(), QTreeWidgetItem().flags());
        place.Show(set);
        QCOMPARE(row->flags(), Qt::ItemIsEnabled);
    }

    void separatorsKeepTheirFlags()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* separator = set->Add<TPropertySeparator>("Group");
        auto* empty = set->Add<TPropertySeparator>("");
        place.Show(set);
        QCOMPARE(separator->flags(), QTreeWidgetItem().flags());
        QCOMPARE(empty->flags(), QTreeWidgetItem().flags());
        QVERIFY(!separator->isFirstColumnSpanned());
    }

    void disabledRowIsShownEnabledWithADisabledEditor()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyCheck>("Label");
        row->SetEnabled(false);
        QCOMPARE(row->flags(), Qt::NoItemFlags);
        place.Show(set);
        QCOMPARE(row->flags(), Qt::ItemIsEnabled);
        QVERIFY(!row->Editor()->isEnabled());
    }

    void shownRowIsDisabledAndEnabledAgain()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyCheck>("Label");
        place.Show(set);
        row->SetEnabled(false);
        QCOMPARE(row->flags(), Qt::NoItemFlags);
        QVERIFY(!row->Editor()->isEnabled());
        row->SetEnabled(true);
        QCOMPARE(row->flags(), Qt::ItemIsEnabled);
        QVERIFY(row->Editor()->isEnabled());
    }

    void rowHiddenBeforeIsHiddenWhenShown()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* first = set->Add<TPropertyCheck>("First");
        auto* second = set->Add<TPropertyCheck>("Second");
        auto* third = set->Add<TPropertyCheck>("Third");
        first->SetVisible(false);
        second->SetVisible(false);
        second->SetVisible(true);
        place.Show(set);
        QVERIFY(first->QTreeWidgetItem::isHidden());
        QVERIFY(!first->Editor()->isVisible());
        QVERIFY(!second->QTreeWidgetItem::isHidden());
        QVERIFY(!third->QTreeWidgetItem::isHidden());
        first->SetVisible(true);
        Test::Settle();
        QVERIFY(!first->QTreeWidgetItem::isHidden());
        QVERIFY(first->Editor()->isVisible());
    }

    void rowHiddenAfterIsHiddenAtOnce()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* row = set->Add<TPropertyCheck>("Label");
        place.Show(set);
        row->SetVisible(false);
        QVERIFY(row->QTreeWidgetItem::isHidden());
        QVERIFY(row->IsHidden());
    }

    void separatorsHiddenBeforeAreShown()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* separator = set->Add<TPropertySeparator>("Group");
        separator->SetVisible(false);
        place.Show(set);
        QVERIFY(!separator->QTreeWidgetItem::isHidden());
        separator->SetVisible(false);
        QVERIFY(separator->QTreeWidgetItem::isHidden());
    }

    void labelColumnFitsTheLabels()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        set->Add<TPropertyCheck>("i:");
        const QString longest = "A label that is much longer than the others:";
        set->Add<TPropertyCheck>(longest);
        place.Show(set);
        const int fitting = place.Tree()->columnWidth(column);
        QVERIFY(fitting >= QFontMetrics(place.Tree()->font()).horizontalAdvance(longest));
        place.Tree()->resizeColumnToContents(column);
        QCOMPARE(place.Tree()->columnWidth(column), fitting);

        auto* narrow = new Test::PlainSet;
        narrow->Add<TPropertyCheck>("i:");
        place.Show(narrow);
        QVERIFY(place.Tree()->columnWidth(column) < fitting);
    }

    void rowsDeletedByOthersAreForgotten()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        auto* doomed = set->Add<TPropertyCheck>("Doomed");
        auto* kept = set->Add<TPropertyCheck>("Kept");
        delete doomed;
        QCOMPARE(set->Properties(), QList<TAbstractProperty*>{kept});
        place.Show(set);
        QCOMPARE(ShownLabels(place.Tree()), QStringList{"Kept"});
    }
};

PROPERTIES_TEST(TestPanelRows)
#include "tst_rows.moc"
