#include "benchmarks/support/Ratios.h"

#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyText.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "properties/TTreeWidget.h"

#include <QApplication>
#include <QStyledItemDelegate>

#include <algorithm>
#include <map>
#include <memory>

namespace {

/** Small sets are replaced repeatedly: a timed interval covers at least this many rows. */
constexpr int rowsInAStretch = 100;

/** A set of rows of the common kinds in turn. */
class SampleSet : public TPropertySet
{
public:
    explicit SampleSet(int rows) : TPropertySet(QStringLiteral("Sample"))
    {
        for (int i = 0; i < rows; ++i) {
            AddProperty(NewSampleRow(i, QStringLiteral("Attribute %1:").arg(i)));
        }
    }

private:
    TAbstractProperty* NewSampleRow(int number, const QString& label)
    {
        switch (number % 3) {
        case 0: return NewRow<TPropertyFloatSpin>(label, 0.1, 10.0, 0.1, 2);
        case 1:
            return NewRow<TPropertyEnum>(
                label, QStringList{QStringLiteral("Auto"), QStringLiteral("Yes"), QStringLiteral("No")});
        default: return NewRow<TPropertyText>(label, QStringLiteral("text"), false);
        }
    }
};

/** A window with a panel, in which sets are shown one after the other. */
class Window
{
public:
    Window() : panel(&window)
    {
        window.resize(300, 500);
        panel.resize(window.size());
        window.show();
        QCoreApplication::processEvents();
    }
    virtual ~Window() = default;

    /** Creates a set, shows it instead of the former one, which is deleted, and paints. */
    void ReplaceSet(int rows)
    {
        Show(std::make_unique<SampleSet>(rows));
        QCoreApplication::processEvents();
        // Without a running event loop the editors of the former sets would accumulate.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

protected:
    virtual void Show(std::unique_ptr<TPropertySet> next) = 0;

    QWidget window;
    TPropertyWidget panel;
};

/** The actual panel. */
class PanelWindow : public Window
{
protected:
    void Show(std::unique_ptr<TPropertySet> next) override { panel.SetPropertySet(next.release()); }
};

/** The panel's tree, filled row by row: each row is added and gets its editor at once. */
class RowByRowWindow : public Window
{
public:
    /** @p delegate measures the rows, instead of the tree's own unless it is null. */
    explicit RowByRowWindow(std::unique_ptr<QAbstractItemDelegate> delegate) : measuring(std::move(delegate))
    {
        if (measuring) {
            panel.Tree()->setItemDelegate(measuring.get());
        }
    }

protected:
    void Show(std::unique_ptr<TPropertySet> next) override
    {
        shown = std::move(next);
        panel.SetTitle(shown->Name());
        TTreeWidget& tree = *panel.Tree();
        int rowHeight = 0;
        for (TAbstractProperty* row : shown->Properties()) {
            tree.addTopLevelItem(row);
            if (rowHeight == 0) {
                rowHeight = tree.visualItemRect(row).height();
            }
            row->Editor()->setFixedHeight(rowHeight);
            row->setFlags(Qt::ItemIsEnabled);
            tree.setItemWidget(row, TAbstractProperty::editorColumn, row->Editor());
            row->SetVisible(!row->IsHidden());
        }
        tree.resizeColumnToContents(TAbstractProperty::labelColumn);
    }

private:
    std::unique_ptr<QAbstractItemDelegate> measuring;
    std::unique_ptr<TPropertySet> shown;
};

/** The variants for one number of rows, each showing a set of that many. */
struct Windows
{
    explicit Windows(int rows)
    {
        panel.ReplaceSet(rows);
        rowByRow.ReplaceSet(rows);
        rowByRowCached.ReplaceSet(rows);
    }

    PanelWindow panel;
    RowByRowWindow rowByRow{std::make_unique<QStyledItemDelegate>()};
    RowByRowWindow rowByRowCached{nullptr};
};

} // namespace

int main(int argc, char** argv)
{
    Bench::UseOffscreenPlatform();
    const QApplication application(argc, argv);

    std::map<int, Windows> windowsByRows;
    const auto round = [&windowsByRows](int rows) {
        Windows& windows = windowsByRows.try_emplace(rows, rows).first->second;
        const int replacements = std::max(1, rowsInAStretch / rows);
        const auto secondsToReplace = [&](Window& window) {
            QCoreApplication::processEvents();
            const double seconds = Bench::SecondsOf([&] {
                for (int i = 0; i < replacements; ++i) {
                    window.ReplaceSet(rows);
                }
            });
            return seconds / replacements;
        };
        return Bench::MedianOfRounds([&] {
            return Bench::Times{secondsToReplace(windows.rowByRow), secondsToReplace(windows.rowByRowCached),
                                secondsToReplace(windows.panel)};
        });
    };
    Bench::Register("replacing the shown set", {"row by row", "row by row, heights cached", "panel"}, {11, 100, 1'000},
                    round);
    return Bench::RunAndCompare(argc, argv,
                                {{"panel", "row by row", 0.75, 11}, {"row by row, heights cached", "row by row"}});
}
