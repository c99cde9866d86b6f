#include "tests/host/StateFields.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestMain.h"
#include "tests/workbench/FreePads.h"
#include "tests/workbench/PanelCells.h"
#include "workbench/Kinds.h"
#include "workbench/LoadBoard.h"
#include "workbench/TDesign.h"

#include <application/TUndoCommand.h>

#include <QDirIterator>
#include <QtTest>
#include <QUndoStack>

#include <algorithm>

using Test::PanelCell;
using Test::StateFields;

namespace {

using Items = QList<TGraphicsItem*>;

constexpr double sceneUnitsPerMillimetre = 11.811023622047244;

QStringList LinesOf(const Items& items)
{
    QStringList lines;
    for (const TGraphicsItem* item : items) {
        lines.append(item->StateLine());
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
    QString cell;
    bool heightIsLocked = false; ///< After the edit.
    double width = 0;            ///< Of the size row, in millimetres, after the edit.
};

/**
 * The one documented exception from "undo brings everything back": a height command puts back the width that the pad
 * had when it was made, and a locked height makes such commands whenever the width or the shape is edited.
 */
void ApplyHeightException(const Use& use, StateFields& pad)
{
    if (use.cell == "Size (W x H):height" || (use.cell == "Shape:" && use.heightIsLocked)) {
        pad.SetText("height", pad.Text("width"));
    } else if (use.cell == "Size (W x H):width" && use.heightIsLocked) {
        pad.Set("height", use.width * sceneUnitsPerMillimetre);
    }
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
        if (QStringLiteral(PROPERTIES_DESIGNS_DIR).isEmpty()) {
            QSKIP("there is no folder of real designs");
        }
        QVERIFY(!Files().isEmpty());
    }

    void everyEditIsUndoneAndRedone_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("freePads");
        for (const QString& file : QStringList(SampleBoardFile()) + Files()) {
            const QByteArray name = QFileInfo(file).fileName().toUtf8();
            QTest::newRow(name) << file << false;
            QTest::newRow(name + ", pads without packages") << file << true;
        }
    }
    void everyEditIsUndoneAndRedone()
    {
        QFETCH(QString, file);
        QFETCH(bool, freePads);
        TImportResult imported = ImportBoard(file);
        QVERIFY2(imported.board, qPrintable(imported.error));
        design = std::make_unique<TDesign>(std::move(imported));
        TBoard* board = &design->Board();
        if (freePads) {
            Test::FreePads(*board, 1);
        }
        items = board->Items();
        lines = LinesOf(items);
        int edits = 0;
        for (const TKind& kind : Kinds::All()) {
            Items ofKind;
            std::copy_if(items.cbegin(), items.cend(), std::back_inserter(ofKind),
                         [&kind](const TGraphicsItem* item) { return item->type() == kind.type; });
            for (const Items& selection : Selections(ofKind)) {
                if (!selection.isEmpty()) {
                    edits += EditEveryCell(selection);
                }
                if (QTest::currentTestFailed()) {
                    break;
                }
            }
        }
        window->panel->SetPropertySet(nullptr);
        stack.clear();
        qInfo("%d items, %d edits", items.size(), edits);
        QVERIFY(edits > 0 || QTest::currentTestFailed());
    }

    void Push(TUndoCommand* command) { stack.push(command); }

private:
    static QStringList Files()
    {
        QStringList files;
        const QString folder = QStringLiteral(PROPERTIES_DESIGNS_DIR);
        QDirIterator found(folder, {"*.kicad_pcb"}, QDir::Files, QDirIterator::Subdirectories);
        while (!folder.isEmpty() && found.hasNext()) {
            files.append(found.next());
        }
        files.sort();
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

    /** Edits each cell of the panel that can be edited, and returns how many there were. */
    int EditEveryCell(const Items& selection)
    {
        // Of a small selection each step is held against its own items, and the whole board at the end.
        const bool all = selection.size() > 2;
        const Items watched = all ? items : selection;
        const std::size_t count = Show(selection).size();
        int edits = 0;
        for (std::size_t cell = 0; cell < count && !QTest::currentTestFailed(); ++cell) {
            if (Show(selection)[cell].CanBeEdited()) {
                EditCell(cell, selection, watched, all ? lines : LinesOf(watched));
                ++edits;
            }
        }
        if (!all) {
            const QStringList now = LinesOf(items);
            for (int i = 0; i < items.size(); ++i) {
                if (!selection.contains(items[i]) && now[i] != lines[i]) {
                    Differ("an item that was not selected", now[i], lines[i]);
                }
            }
            lines = now;
        }
        return edits;
    }

    void EditCell(std::size_t cell, const Items& selection, const Items& watched, const QStringList& before)
    {
        stack.clear();
        const PanelCell edited = Cells()[cell];
        if (!edited.GiveAnotherValue()) {
            return;
        }
        const Use use = UseOf(edited.Name());
        const QString what = use.cell + QStringLiteral(" of %1 items").arg(selection.size());
        const QStringList after = LinesOf(watched);
        if (after == before || stack.index() == 0) {
            QTest::qFail(qPrintable(what + QStringLiteral(": nothing changed")), __FILE__, __LINE__);
            return;
        }
        stack.setIndex(0);
        const QStringList undone = LinesOf(watched);
        ExpectUndone(what, use, selection, watched, before, undone);
        stack.setIndex(stack.count());
        ExpectEqual(what + QStringLiteral(" redone"), LinesOf(watched), after);
        stack.setIndex(0);
        if (watched.size() == items.size()) {
            lines = undone;
        }
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

    static void ExpectUndone(const QString& what, const Use& use, const Items& selection, const Items& watched,
                             QStringList expected, const QStringList& undone)
    {
        const QSet<TGraphicsItem*> selected(selection.cbegin(), selection.cend());
        for (int i = 0; i < watched.size(); ++i) {
            if (watched[i]->type() == ItemType::Pad && selected.contains(watched[i])) {
                StateFields pad(expected[i]);
                ApplyHeightException(use, pad);
                expected[i] = pad.Line();
            }
        }
        ExpectEqual(what + QStringLiteral(" undone"), undone, expected);
    }

    static void ExpectEqual(const QString& what, const QStringList& actual, const QStringList& expected)
    {
        for (int i = 0; i < expected.size(); ++i) {
            if (actual[i] != expected[i]) {
                Differ(what, actual[i], expected[i]);
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
    QStringList lines; ///< Of all items, as they are now.
};

PROPERTIES_TEST_MAIN(TestRealDesigns)
#include "tst_real_designs.moc"
