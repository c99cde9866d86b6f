#include "tests/host/StateFields.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/FreePads.h"
#include "tests/workbench/support/PanelCells.h"
#include "tests/workbench/support/RealDesigns.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/design/TDesign.h"
#include "workbench/editing/Kinds.h"
#include "workbench/importer/ProjectImporter.h"

#include <application/TNetModel.h>
#include <application/TUndoCommand.h>
#include <objects/TGraphicsPackageItem.h>

#include <QGraphicsView>
#include <QtTest>
#include <QUndoStack>

#include <algorithm>
#include <cmath>
#include <limits>

using Test::PanelCell;
using Test::StateFields;

namespace {

using Items = QList<TGraphicsItem*>;

#ifdef __SANITIZE_ADDRESS__
constexpr int mostItems = 3'000; // A check of addresses makes everything slower by an order of magnitude.
#else
constexpr int mostItems = std::numeric_limits<int>::max();
#endif

constexpr double sceneUnitsPerMillimetre = 11.811023622047244;

/** The state of each item, parallel to the items; one that a command has taken off the design has none. */
QStringList LinesOf(const Items& items)
{
    QStringList lines;
    for (const TGraphicsItem* item : items) {
        lines.append(item->Owner() ? item->StateLine() : QStringLiteral("away"));
    }
    return lines;
}

/** What distinguishes two items for the panel: their states but for where they lie. */
QString StateWithoutPlace(const TGraphicsItem& item)
{
    StateFields fields(item.StateLine());
    for (const char* place : {"at", "rotation", "in.at"}) {
        fields.SetText(QLatin1String(place), QString());
    }
    return fields.Line();
}

/** All, the first, the last one, and two that differ. */
QList<Items> Selections(const Items& kind)
{
    QList<Items> selections{kind};
    if (kind.size() > 1) {
        selections << Items{kind.first()} << Items{kind.last()};
        const QString first = StateWithoutPlace(*kind.first());
        const auto other = std::find_if(kind.cbegin(), kind.cend(), [&first](const TGraphicsItem* item) {
            return StateWithoutPlace(*item) != first;
        });
        if (other != kind.cend()) {
            selections << Items{kind.first(), *other};
        }
    }
    return selections;
}

/** An editing widget of the panel and what the panel shows while it is used. */
struct Use
{
    QString cell;                ///< The kind's word, the row's label and the part's name.
    bool heightIsLocked = false; ///< After the edit.
    double width = 0;            ///< Of the size row, in millimetres, after the edit.
};

/** These edits change more than what is selected: what it is linked to, its net, its other side, and the rat lines. */
bool ReachesFurther(const QString& cell)
{
    static const QSet<QString> cells{
        "wire Width:", "wire Color:",  "wire Layer:",      "package Side:",      "via Drill pair:",
        "pad Side:",   "pad Type:",    "netwire Color:",   "netwire Level:",     "netwire Net class:",
        "port Name:",  "nettie Name:", "nettie Name:show", "nettiesymbol Name:", "nettiesymbol Name:show"};
    return cells.contains(cell);
}

/** By intention these are written at once and leave no undo step. */
bool IsWrittenAtOnce(const QString& cell)
{
    static const QSet<QString> cells{"package Lock:1", "package Lock:2",   "part Lock:1",    "part Lock:2",
                                     "bus Name",       "text Line width:", "tag Line width:"};
    return cells.contains(cell);
}

/**
 * A height command puts back the width that the pad had when it was made, and a locked height makes such commands
 * whenever the width or the shape is edited.
 */
void ApplyHeightException(const Use& use, StateFields& pad)
{
    if (use.cell == "pad Size (W x H):height" || (use.cell == "pad Shape:" && use.heightIsLocked)) {
        pad.SetText("height", pad.Text("width"));
    } else if (use.cell == "pad Size (W x H):width" && use.heightIsLocked) {
        pad.Set("height", use.width * sceneUnitsPerMillimetre);
    }
}

/**
 * Of a text come back whole points, whole degrees, the weights of normal and bold, and no oblique style. What is
 * smaller than half a point keeps the size that it was given.
 */
void ApplyTextExceptions(const Use& use, const StateFields& done, StateFields& text)
{
    constexpr double millimetresPerPoint = 0.3528;
    if (use.cell == "text Font size:" || use.cell == "tag Font size:") {
        const double points = std::round(text.Number("pixels") / (millimetresPerPoint * sceneUnitsPerMillimetre));
        const int pixels = static_cast<int>(points * millimetresPerPoint * sceneUnitsPerMillimetre);
        text.Set("pixels", pixels > 0 ? pixels : done.Integer("pixels"));
    } else if (use.cell == "text Angle:") {
        text.Set("rotation", std::trunc(text.Number("rotation")));
    } else if (use.cell == "text Bold:") {
        text.Set("weight", text.Integer("weight") > 57 ? 75 : 50);
    } else if (use.cell == "text Italic:") {
        text.Set("style", text.Integer("style") == 0 ? 0 : 1);
    }
}

/** What an edit that was undone leaves of an item that was selected; the same as before but for what is intended. */
QString Undone(const Use& use, const QString& before, const QString& done)
{
    StateFields fields(before);
    ApplyHeightException(use, fields);
    ApplyTextExceptions(use, StateFields(done), fields);
    return fields.Line();
}

/** A package that comes back from the other side shows its texts as the board's switches say. */
QString WithVisibility(QString line, bool shown)
{
    line.remove(QStringLiteral(" visible=no"));
    return shown ? line : line.replace(QStringLiteral(" text="), QStringLiteral(" visible=no text="));
}

/** Whether an item is the designator or the value of one of these packages and parts. */
bool IsTextOf(const QSet<TGraphicsItem*>& components, const TGraphicsItem& item)
{
    auto* parent = static_cast<TGraphicsItem*>(item.parentItem());
    const auto* component = components.contains(parent) ? dynamic_cast<TGraphicsComponentItem*>(parent) : nullptr;
    return component && (component->RefDesText() == &item || component->ValueText() == &item);
}

} // namespace

class TestRealDesigns : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { window = std::make_unique<Test::PanelWindow>(); }
    void cleanupTestCase() { window.reset(); }

    void designsAreThere()
    {
        if (Test::DesignsFolder().isEmpty()) {
            QSKIP("there is no folder of real designs");
        }
        QVERIFY(!Files().isEmpty());
    }

    void everyEditIsUndoneAndRedone_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("freePads");
        for (const QString& file : QStringList{SampleProjectFile(), SampleBoardFile()} + Files()) {
            const QByteArray name = QFileInfo(file).fileName().toUtf8();
            QTest::newRow(name) << file << false;
            if (file.endsWith(QStringLiteral(".kicad_pcb"))) {
                QTest::newRow(name + ", pads without packages") << file << true;
            }
        }
    }
    void everyEditIsUndoneAndRedone()
    {
        QFETCH(QString, file);
        QFETCH(bool, freePads);
        TImportResult imported = ImportDesign(file);
        QVERIFY2(HasDesign(imported), qPrintable(imported.error));
        design = std::make_unique<TDesign>(std::move(imported));
        QGraphicsView view;
        if (TBoard* board = design->Board()) {
            view.setScene(board->Scene());
            board->SetView(&view);
        }
        if (freePads) {
            Test::FreePads(*design->Board(), 1);
        }
        ReadItems();
        if (items.size() > mostItems) {
            QSKIP("too large to be edited in every way in this build");
        }
        int edits = 0;
        for (const TKind& kind : Kinds::All()) {
            Items ofKind;
            std::copy_if(items.cbegin(), items.cend(), std::back_inserter(ofKind),
                         [&kind](const TGraphicsItem* item) { return Kinds::Of(*item) == &kind; });
            if (ofKind.isEmpty() || !kind.makeSet || (freePads && kind.type != ItemType::Pad)) {
                continue;
            }
            for (const Items& selection : Selections(ofKind)) {
                edits += EditEveryCell(selection);
                if (QTest::currentTestFailed()) {
                    break;
                }
            }
        }
        window->panel->SetPropertySet(nullptr);
        stack.clear();
        design.reset();
        qInfo("%d items, %d edits", items.size(), edits);
        const bool isKnown = Test::IsAtHand(file) || file == SampleProjectFile() || file == SampleBoardFile();
        QVERIFY(edits > 0 || !isKnown || QTest::currentTestFailed());
    }

    void Push(TUndoCommand* command) { stack.push(command); }

private:
    /** Projects, and boards without one. */
    static QStringList Files()
    {
        QStringList files = Test::RealProjects();
        const QStringList boards = Test::RealDesigns("*.kicad_pcb");
        std::copy_if(boards.cbegin(), boards.cend(), std::back_inserter(files), [&files](const QString& board) {
            return !files.contains(QString(board).replace(QStringLiteral(".kicad_pcb"), QStringLiteral(".kicad_pro")));
        });
        return files;
    }

    std::vector<PanelCell> Show(const Items& selection)
    {
        std::unique_ptr<TPropertySet> set = Kinds::MakePropertySet(selection, *design);
        connect(set.get(), SIGNAL(sigCmd(TUndoCommand*)), this, SLOT(Push(TUndoCommand*)));
        window->Show(set.release());
        return Cells();
    }

    std::vector<PanelCell> Cells() const { return Test::PanelCells(*window->panel->PropertySet()); }

    /** The items of all documents, rat lines excepted, which come and go, and the whole design's dump. */
    void ReadItems()
    {
        items.clear();
        for (const TDocument& document : design->Documents()) {
            for (TGraphicsItem* item : design->ItemsOf(document)) {
                if (!item->IsDerived()) {
                    items.append(item);
                }
            }
        }
        opened = QSet<const TGraphicsItem*>(items.cbegin(), items.cend());
        dump = Dump();
    }

    /** The lines of the items, then of what else there is now, then of the nets and components. */
    QStringList Dump() const
    {
        Items others;
        for (const TDocument& document : design->Documents()) {
            for (TGraphicsItem* item : design->ItemsOf(document)) {
                if (!opened.contains(item)) {
                    others.append(item);
                }
            }
        }
        return LinesOf(items) + LinesOf(others) + Models().split(QLatin1Char('\n'));
    }

    /** Edits each cell of the panel that can be edited, and returns how many there were. */
    int EditEveryCell(const Items& selection)
    {
        const std::size_t count = Show(selection).size();
        int edits = 0;
        for (std::size_t cell = 0; cell < count && !QTest::currentTestFailed(); ++cell) {
            if (Show(selection)[cell].CanBeEdited()) {
                EditCell(cell, selection);
                ++edits;
            }
        }
        if (!QTest::currentTestFailed()) {
            ExpectOthersUntouched(selection);
        }
        return edits;
    }

    /** The steps of an edit are held against the selection, and all of them together against the whole design. */
    void ExpectOthersUntouched(const Items& selection)
    {
        const QSet<TGraphicsItem*> selected(selection.cbegin(), selection.cend());
        QStringList expected = dump;
        dump = Dump();
        for (int i = 0; i < items.size(); ++i) {
            // The texts of packages are locked and shown with them.
            if (selected.contains(items[i]) || IsTextOf(selected, *items[i])) {
                expected[i] = dump.value(i);
            }
        }
        if (selection.first()->type() == ItemType::Pad) {
            // Where a pad keeps another height, other connections may be missing.
            ExpectEqual(QStringLiteral("what was not selected"), dump.mid(0, items.size()),
                        expected.mid(0, items.size()));
        } else {
            ExpectEqual(QStringLiteral("what was not selected"), dump, expected);
        }
    }

    void EditCell(std::size_t cell, const Items& selection)
    {
        stack.clear();
        const bool reachesFurther =
            ReachesFurther(Kinds::Word(*selection.first()) + QLatin1Char(' ') + Cells()[cell].Name());
        const auto watched = [&] { return reachesFurther ? Dump() : LinesOf(selection); };
        const QStringList before = watched();
        const QString modelsBefore = Models();
        const PanelCell edited = Cells()[cell];
        if (!edited.GiveAnotherValue()) {
            return;
        }
        const Use use = UseOf(Kinds::Word(*selection.first()) + QLatin1Char(' ') + edited.Name());
        const QString what = use.cell + QStringLiteral(" of %1 items").arg(selection.size());
        const QStringList after = watched();
        if (IsWrittenAtOnce(use.cell)) {
            QCOMPARE(stack.count(), 0);
            QVERIFY2(after != before, qPrintable(what));
            return;
        }
        const bool changesNothing = after == before && Models() == modelsBefore;
        QVERIFY2(stack.index() > 0, qPrintable(what + QStringLiteral(": no undo step")));
        QVERIFY2(!changesNothing || IsIntendedToChangeNothing(selection),
                 qPrintable(what + QStringLiteral(": nothing changed")));
        stack.setIndex(0);
        const QStringList undone = watched();
        ExpectEqual(what + QStringLiteral(" undone"), undone, ExpectedUndone(use, selection, before, after));
        QCOMPARE(Models(), modelsBefore);
        stack.setIndex(stack.count());
        ExpectEqual(what + QStringLiteral(" redone"), watched(), after);
        stack.setIndex(0);
    }

    /** Drawings and texts within packages are shown like others, but commands leave them alone. */
    static bool IsIntendedToChangeNothing(const Items& selection)
    {
        return std::all_of(selection.cbegin(), selection.cend(),
                           [](const TGraphicsItem* item) { return item->parentItem() != nullptr; });
    }

    QString Models() const
    {
        const TSchematic& schematic = *design->Project().Schematic();
        return schematic.NetModel()->Dump() + schematic.CmpModel()->Dump() + design->Tree().Dump();
    }

    Use UseOf(const QString& cellName) const
    {
        Use use{cellName, false, 0};
        for (const PanelCell& cell : Cells()) {
            if (cell.Name() == "Size (W x H):height") {
                use.heightIsLocked = !cell.CanBeEdited();
            } else if (cell.Name() == "Size (W x H):width") {
                use.width = cell.Number();
            }
        }
        return use;
    }

    QStringList ExpectedUndone(const Use& use, const Items& selection, QStringList expected,
                               const QStringList& after) const
    {
        QSet<TGraphicsItem*> moved;
        for (int i = 0; use.cell == "package Side:" && i < items.size(); ++i) {
            if (StateFields(after[i]).Text("layer") != StateFields(expected[i]).Text("layer")) {
                moved.insert(items[i]);
            }
        }
        const QSet<TGraphicsItem*> selected(selection.cbegin(), selection.cend());
        const Items& watched = ReachesFurther(use.cell) ? items : selection;
        for (int i = 0; i < watched.size(); ++i) {
            if (selected.contains(watched[i])) {
                expected[i] = Undone(use, expected[i], after[i]);
            } else if (IsTextOf(moved, *watched[i])) {
                const auto* package = static_cast<TGraphicsPackageItem*>(watched[i]->parentItem());
                const TBoard& board = *design->Board();
                expected[i] = WithVisibility(expected[i], package->RefDesText() == watched[i] ? board.RefDesVisible()
                                                                                              : board.ValuesVisible());
            }
        }
        return expected;
    }

    static void ExpectEqual(const QString& what, const QStringList& actual, const QStringList& expected)
    {
        for (int i = 0; i < std::max(actual.size(), expected.size()); ++i) {
            if (actual.value(i) != expected.value(i)) {
                Differ(what, actual.value(i), expected.value(i));
                return;
            }
        }
    }

    static void Differ(const QString& what, const QString& actual, const QString& expected)
    {
        QTest::qFail(qPrintable(QStringLiteral("%1: is\n  %2\nand should be\n  %3").arg(what, actual, expected)),
                     __FILE__, __LINE__);
    }

    std::unique_ptr<Test::PanelWindow> window;
    QUndoStack stack;
    std::unique_ptr<TDesign> design;
    Items items;
    QSet<const TGraphicsItem*> opened; ///< The same items.
    QStringList dump;                  ///< As it is now; its lines begin with those of the items.
};

PROPERTIES_TEST(TestRealDesigns)
#include "tst_real_designs.moc"
