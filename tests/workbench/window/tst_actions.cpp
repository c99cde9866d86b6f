#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "tests/workbench/support/SmallProject.h"
#include "workbench/editing/DesignActions.h"
#include "workbench/editing/TSelection.h"
#include "workbench/session/CommandLine.h"

#include <graphics/TGraphicsRectItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>
#include <QUndoStack>

namespace {

/** Answers the dialogs that come up while it lives. */
class DialogUser : public QObject
{
public:
    /** Accepts what asks for input with this text, or rejects it for none. */
    explicit DialogUser(const QString& answer)
    {
        connect(&timer, &QTimer::timeout, this, [this, answer] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (auto* input = qobject_cast<QInputDialog*>(dialog)) {
                input->setTextValue(answer);
                answer.isNull() ? input->reject() : input->accept();
            } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
                complaint = box->text();
                box->accept();
            }
        });
        timer.start(5);
    }

    QString complaint;

private:
    QTimer timer;
};

} // namespace

class TestActions : public QObject
{
    Q_OBJECT

private slots:
    void areUndoneAndRedone_data();
    void areUndoneAndRedone();
    void saysWhatIsNeeded_data();
    void saysWhatIsNeeded();
    void optionsAndKeysAreUnique();
    void aValueReachesPartPackageAndModel();
    void aValueOfAPackageReachesThePart();
    void packagesWithoutComponentKeepTheirOwnValue();
    void partsAreConnectedAndDisconnected();
    void busEntriesAreTakenOff();
    void numbersAreMillimetres();
    void aDialogAsks_data();
    void aDialogAsks();
};

void TestActions::areUndoneAndRedone_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* page, const char* items, const QStringList& action, const char* text) {
        QTest::addRow("%s %s", qPrintable(action.first()), items)
            << QStringList{"--page", page, "--select", items} + action << QString(text);
    };
    row("1", "part", {"--revalue", "2k2"}, "Change value of 2 parts");
    row("1", "part[0]", {"--lock"}, "Change lock of 1 part");
    row("1", "part", {"--disconnect"}, "Disconnect 2 parts");
    row("2", "busentry", {"--disconnect-entries"}, "Disconnect 1 bus entry");
    row("1", "netwire", {"--priority", "7"}, "Change net priority of 1 net wire");
    row("1", "rectangle", {"--resize", "20,10.5"}, "Change size of 1 rectangle");
}

void TestActions::areUndoneAndRedone()
{
    QFETCH(QStringList, steps);
    Test::ShownWorkbench workbench(Test::MakeProject());
    const QString before = workbench.Dump();
    workbench.Results(steps);
    QTEST(workbench.window->UndoStack().undoText(), "text");
    const QString after = workbench.Dump();
    QVERIFY(after != before);
    workbench.Results({"--undo"});
    QCOMPARE(workbench.Dump(), before);
    workbench.Results({"--redo"});
    QCOMPARE(workbench.Dump(), after);
}

void TestActions::saysWhatIsNeeded_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("needed");

    const auto row = [](const char* page, const char* items, const QStringList& action, const char* needed) {
        QTest::addRow("%s %s", qPrintable(action.first()), items)
            << QStringList{"--page", page, "--select", items} + action << QString(needed);
    };
    row("1", "netwire", {"--connect"}, "packages, net ties or parts");
    row("1", "netwire", {"--lock"}, "packages or parts");
    row("1", "part", {"--rename", "R9"}, "packages that are not named on the schematic");
    row("1", "pin", {"--revalue", "1"}, "parts of components");
    row("1", "part", {"--disconnect-entries"}, "bus entries");
    row("2", "tag", {"--priority", "1"}, "an item that is on a net");
    row("2", "nettiesymbol", {"--tie-width", "1"}, "net ties of the board");
    row("1", "part", {"--resize", "1,1"}, "rectangles");
    row("1", "netwire", {"--add-node", "1,1"}, "one wire");
}

void TestActions::saysWhatIsNeeded()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, needed);
    Test::ShownWorkbench workbench(Test::MakeProject());
    const QString before = workbench.Dump();
    const Test::Outcome outcome = workbench.Run(steps);
    QVERIFY2(outcome.messages.contains("select " + needed), qPrintable(outcome.messages));
    QCOMPARE(workbench.window->UndoStack().count(), 0);
    QCOMPARE(workbench.Dump(), before);
}

void TestActions::optionsAndKeysAreUnique()
{
    QSet<QString> options;
    QSet<QString> keys;
    const QString usage = TCommandLine::Usage();
    for (const TDesignAction& action : DesignActions::All()) {
        QVERIFY(!options.contains(action.option));
        QVERIFY(!keys.contains(action.key));
        options.insert(action.option);
        keys.insert(action.key);
        QVERIFY2(usage.contains(QString("  %1 ").arg(action.option)), action.option);
        QCOMPARE(action.Question().isEmpty(),
                 action.asks == TDesignAction::Asks::Nothing || action.asks == TDesignAction::Asks::Point);
        QVERIFY(!action.Needs().isEmpty());
    }
}

void TestActions::aValueReachesPartPackageAndModel()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    TDesign& design = *workbench.window->Design();
    const auto* package = static_cast<TGraphicsPackageItem*>(workbench.Items(ItemType::Package).first());
    workbench.Results({"--page", "1", "--select", "part[0]", "--revalue", "47k"});
    QCOMPARE(design.Schematic().CmpModel()->CmpModelItem(1)->value, QString("47k"));
    QCOMPARE(design.Schematic().CmpModel()->CmpModelItem(2)->value, QString("1k"));
    QCOMPARE(design.Schematic().PartItems(1).first()->Value(), QString("47k"));
    QCOMPARE(package->Value(), QString("47k"));
    QVERIFY(workbench.Results({"--panel"}).contains("Value: \"47k\""));
}

void TestActions::aValueOfAPackageReachesThePart()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--select", "package", "--revalue", "47k"});
    QCOMPARE(workbench.window->Design()->Schematic().PartItems(1).first()->Value(), QString("47k"));
    QCOMPARE(workbench.window->UndoStack().undoText(), QString("Change value of 1 package"));
}

void TestActions::packagesWithoutComponentKeepTheirOwnValue()
{
    TImportResult result = Test::MakeProject();
    for (const int component : {0, 0, 2}) {
        auto package = std::make_unique<TGraphicsPackageItem>();
        new TGraphicsPadItem(package.get());
        package->SetComponentNumber(static_cast<quint16>(component));
        result.board->Attach(std::move(package));
    }
    Test::ShownWorkbench workbench(std::move(result));
    const QList<TGraphicsItem*> packages = workbench.Items(ItemType::Package);
    const auto values = [&packages] {
        QStringList texts;
        for (const TGraphicsItem* package : packages) {
            texts.append(static_cast<const TGraphicsPackageItem*>(package)->Value());
        }
        return texts;
    };
    const QString before = workbench.Dump();
    workbench.Results({"--select", "package[1]", "--revalue", "one"});
    QCOMPARE(values(), (QStringList{"1k", "one", "", ""}));
    workbench.Results({"--undo", "--select", "package[0..2]", "--revalue", "all"});
    QCOMPARE(values(), (QStringList{"all", "all", "all", ""}));
    QCOMPARE(workbench.window->UndoStack().count(), 1); // One step for both sorts.
    QCOMPARE(workbench.window->UndoStack().undoText(), QString("Change value of 3 packages"));
    workbench.Results({"--undo"});
    QCOMPARE(workbench.Dump(), before);
}

void TestActions::partsAreConnectedAndDisconnected()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "1"});
    const auto* wire = static_cast<TGraphicsNetItem*>(workbench.Items(ItemType::NetWire).first());
    QVERIFY(wire->FirstLink() && wire->LastLink());
    workbench.Results({"--select", "part[0]", "--disconnect"});
    QVERIFY(!wire->FirstLink() && wire->LastLink());
    workbench.Results({"--connect"});
    QVERIFY(wire->FirstLink());
    workbench.Results({"--undo"});
    QVERIFY(!wire->FirstLink());
    workbench.Results({"--undo"});
    QVERIFY(wire->FirstLink());
}

void TestActions::busEntriesAreTakenOff()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "2", "--select", "busentry,tag", "--disconnect-entries"});
    QVERIFY(workbench.Items(ItemType::BusEntry).isEmpty());
    QCOMPARE(workbench.window->Selection().Items(), workbench.Items(ItemType::Tag)); // The entry is nowhere now.
    workbench.Results({"--undo"});
    QCOMPARE(workbench.Items(ItemType::BusEntry).size(), 1);
    const auto* entry = static_cast<TGraphicsBusEntryItem*>(workbench.Items(ItemType::BusEntry).first());
    QCOMPARE(entry->BusLink(), workbench.Items(ItemType::Bus).first());
}

void TestActions::numbersAreMillimetres()
{
    constexpr double unitsPerMillimetre = 300.0 / 25.4;
    TImportResult result = Test::MakeProject();
    auto made = std::make_unique<TGraphicsNetTiePcbItem>();
    const TGraphicsNetTiePcbItem* tie = made.get();
    made->SetLayer(Osmirel::CopperTop);
    made->SetNumber(7);
    result.board->Attach(std::move(made));
    Test::ShownWorkbench workbench(std::move(result));
    workbench.Results({"--select", "nettie", "--tie-width", "0.7"});
    QCOMPARE(static_cast<const TGraphicsNetTiePcbItem*>(tie)->Pen().widthF(), 0.7 * unitsPerMillimetre);
    QCOMPARE(workbench.window->UndoStack().undoText(), QString("Change wire width of 1 net tie"));

    workbench.Results({"--page", "1", "--select", "rectangle", "--resize", "20,10.5"});
    const auto* frame = static_cast<TGraphicsRectItem*>(workbench.Items(ItemType::Rectangle).last());
    QCOMPARE(frame->Size().width(), static_cast<double>(static_cast<float>(20 * unitsPerMillimetre)));
    QCOMPARE(frame->Size().height(), static_cast<double>(static_cast<float>(10.5 * unitsPerMillimetre)));
}

void TestActions::aDialogAsks_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("undoText");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char* name, const char* items, const char* entry, const QString& answer,
                        const char* undoText, const char* complaint = "") {
        QTest::newRow(name) << items << QString(entry) << answer << QString(undoText) << QString(complaint);
    };
    row("a size", "rectangle", "Change &size of rectangles…", "20,10", "Change size of 1 rectangle");
    row("a size that is none", "rectangle", "Change &size of rectangles…", "20", "",
        "\"20\" is not valid: Width,height in millimetres");
    row("a size of nothing", "netwire", "Change &size of rectangles…", "20,10", "");
    row("a level", "netwire", "Change &priority of nets…", "4", "Change net priority of 1 net wire");
    row("a value", "part", "Change &value of components and packages…", "2k", "Change value of 2 parts");
    row("a cancelled value", "part", "Change &value of components and packages…", {}, "");
}

void TestActions::aDialogAsks()
{
    QFETCH(QString, items);
    QFETCH(QString, entry);
    QFETCH(QString, answer);
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "1", "--select", items});
    const DialogUser user(answer);
    const QList<QAction*> actions = workbench.window->findChildren<QAction*>();
    const auto action = std::find_if(actions.cbegin(), actions.cend(),
                                     [&entry](const QAction* candidate) { return candidate->text() == entry; });
    QVERIFY(action != actions.cend());
    (*action)->trigger();
    QTEST(workbench.window->UndoStack().undoText(), "undoText");
    QTEST(user.complaint, "complaint");
}

PROPERTIES_TEST(TestActions)

#include "tst_actions.moc"
