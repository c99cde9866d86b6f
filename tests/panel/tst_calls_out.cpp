#include "tests/panel/UserEdits.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/TTreeWidget.h"

#include <application/TUndoCommand.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QUndoStack>

#include <functional>

namespace {

/** What an application does when the library calls it. */
enum class Reaction { ShowsAnother, ShowsNone, DeletesPanel, DeletesSet };

const struct
{
    const char* name;
    Reaction reaction;
} reactions[] = {
    {"shows another set", Reaction::ShowsAnother},
    {"shows none", Reaction::ShowsNone},
    {"deletes the panel", Reaction::DeletesPanel},
    {"deletes the set", Reaction::DeletesSet},
};

/** An application that reacts, once, to whatever it is called by, and knows every set that it has made. */
class Application : public QObject
{
    Q_OBJECT

public:
    explicit Application(Reaction toWhatever) : panel(place.panel), reaction(toWhatever) {}

    TPropertySet* Show(Test::MakeKindsSet make)
    {
        TPropertySet* set = make(board);
        made.append(set);
        connect(set, SIGNAL(sigCmd(TUndoCommand*)), SLOT(Push(TUndoCommand*)));
        place.Show(set);
        return set;
    }

    void Replace(Test::MakeKindsSet make)
    {
        TPropertySet* set = make ? make(board) : nullptr;
        if (set) {
            made.append(set);
        }
        panel->SetPropertySet(set);
    }

    /** Once: deleting what is being deleted is nobody's right. */
    void DeletePanel()
    {
        if (!std::exchange(panelEnds, true)) {
            delete panel;
        }
    }

    void React()
    {
        if (!std::exchange(isWaiting, false)) {
            return;
        }
        switch (reaction) {
        case Reaction::ShowsAnother: Replace(Test::MakeHoleSet); break;
        case Reaction::ShowsNone: Replace(nullptr); break;
        case Reaction::DeletesPanel: DeletePanel(); break;
        case Reaction::DeletesSet: delete panel->PropertySet(); break;
        }
    }

    /** Reacts in a dialog whose event loop deletes what is to be deleted later. */
    void ReactInADialog()
    {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [&] {
            React();
            QTimer::singleShot(0, &dialog, &QDialog::accept);
        });
        dialog.exec();
    }

    /** What is wrong about sets and rows; empty for nothing. */
    QString Fault() const
    {
        Test::Settle();
        const TPropertySet* shown = panel ? panel->PropertySet() : nullptr;
        for (const QPointer<TPropertySet>& set : made) {
            if (set && set != shown) {
                return "a set is alive that is not shown";
            }
        }
        if (!panel) {
            return {};
        }
        QList<TAbstractProperty*> rows;
        for (int i = 0; i < panel->Tree()->topLevelItemCount(); ++i) {
            rows.append(static_cast<TAbstractProperty*>(panel->Tree()->topLevelItem(i)));
        }
        return rows == (shown ? shown->Properties() : QList<TAbstractProperty*>()) ? "" : "other rows are in the tree";
    }

    Test::KindsBoard board;
    QUndoStack stack;
    Test::PanelWindow place;
    QPointer<TPropertyWidget> panel;
    std::function<void()> whenPushed = [this] { React(); };
    bool isWaiting = true;

public slots:
    void Push(TUndoCommand* command)
    {
        stack.push(command);
        whenPushed();
    }

    void HearOfARow() { React(); }

private:
    QList<QPointer<TPropertySet>> made;
    Reaction reaction;
    bool panelEnds = false;
};

/** What takes the focus, or the set, away from a row that is being edited. */
struct Trigger
{
    const char* name;
    void (*pull)(Application& application);
    bool endsTheSet;
    bool isThePanels = true; ///< Whether it is the panel that moves the focus, and not the toolkit alone.
};

const Trigger triggers[] = {
    {"another set is shown", [](Application& application) { application.Replace(Test::MakePadSet); }, true},
    {"no set is shown", [](Application& application) { application.Replace(nullptr); }, true},
    {"the set is deleted", [](Application& application) { delete application.panel->PropertySet(); }, true},
    {"the panel is deleted", [](Application& application) { application.DeletePanel(); }, true},
    {"the editor is left", [](Application& application) { application.place.elsewhere->setFocus(); }, false, false},
    {"a label is clicked",
     [](Application& application) {
         // Not by the mouse: the toolkit itself gives the focus to the tree then, and cannot have it deleted meanwhile.
         QTreeWidgetItem* row = application.panel->PropertySet()->Properties().last();
         QMetaObject::invokeMethod(application.panel, "slotClickItem", Q_ARG(QTreeWidgetItem*, row), Q_ARG(int, 1));
     },
     false},
};

/** An editor that has the focus. */
struct Focused
{
    const char* name;
    Test::MakeKindsSet makeSet;
    const char* label;
    bool isText;
};

const Focused focusedEditors[] = {
    {"number", Test::MakeViaSet, "Diameter:", false},         {"choice", Test::MakeViaSet, "Thermal:", false},
    {"half-typed text", Test::MakePadSet, "Number:", true},   {"check box", Test::MakeTextSet, "Bold:", false},
    {"two check boxes", Test::MakeTextSet, "Mirror:", false},
};

} // namespace

Q_DECLARE_METATYPE(const Test::UserEdit*)
Q_DECLARE_METATYPE(const Trigger*)
Q_DECLARE_METATYPE(const Focused*)
Q_DECLARE_METATYPE(Reaction)

/** Wherever the panel calls the application, the application may do anything to the panel. */
class TestCallsOut : public QObject
{
    Q_OBJECT

private slots:
    void aCommandIsReceived_data()
    {
        QTest::addColumn<const Test::UserEdit*>("userEdit");
        QTest::addColumn<Reaction>("reaction");
        QTest::addColumn<bool>("inADialog");
        for (const Test::UserEdit& userEdit : Test::UserEdits()) {
            for (const auto& each : reactions) {
                for (const bool inADialog : {false, true}) {
                    if (userEdit.commandsOfSignal > 0) {
                        QTest::addRow("%s: %s%s", userEdit.name, each.name, inADialog ? " in a dialog" : "")
                            << &userEdit << each.reaction << inADialog;
                    }
                }
            }
        }
    }

    void aCommandIsReceived()
    {
        QFETCH(const Test::UserEdit*, userEdit);
        QFETCH(Reaction, reaction);
        QFETCH(bool, inADialog);
        Application application(reaction);
        if (inADialog) {
            application.whenPushed = [&application] { application.ReactInADialog(); };
        }
        const QString before = application.board.DumpAll();
        TPropertySet* set = application.Show(userEdit->makeSet);
        userEdit->edit(application.place, Test::FindRow(set, userEdit->label));
        QVERIFY(!application.isWaiting);
        QCOMPARE(application.Fault(), QString());
        QVERIFY(application.stack.count() > 0);
        QVERIFY(application.board.DumpAll() != before);
    }

    void aRowIsHeard_data()
    {
        QTest::addColumn<const Test::UserEdit*>("userEdit");
        QTest::addColumn<Reaction>("reaction");
        for (const Test::UserEdit& userEdit : Test::UserEdits()) {
            for (const auto& each : reactions) {
                QTest::addRow("%s: %s", userEdit.name, each.name) << &userEdit << each.reaction;
            }
        }
    }

    void aRowIsHeard()
    {
        QFETCH(const Test::UserEdit*, userEdit);
        QFETCH(Reaction, reaction);
        Application application(reaction);
        application.whenPushed = [] {};
        TPropertySet* set = application.Show(userEdit->makeSet);
        TAbstractProperty* row = Test::FindRow(set, userEdit->label);
        QVERIFY(connect(row, QByteArray("2") + userEdit->signature, &application, SLOT(HearOfARow())));
        userEdit->edit(application.place, row);
        QVERIFY(!application.isWaiting);
        QCOMPARE(application.Fault(), QString());
    }

    void theFocusMoves_data()
    {
        QTest::addColumn<const Focused*>("focused");
        QTest::addColumn<const Trigger*>("trigger");
        QTest::addColumn<Reaction>("reaction");
        QTest::addColumn<bool>("inADialog");
        for (const Focused& focused : focusedEditors) {
            for (const Trigger& trigger : triggers) {
                for (const auto& each : reactions) {
                    QTest::addRow("%s, %s: %s", focused.name, trigger.name, each.name)
                        << &focused << &trigger << each.reaction << false;
                    if (trigger.isThePanels) {
                        QTest::addRow("%s, %s: %s in a dialog", focused.name, trigger.name, each.name)
                            << &focused << &trigger << each.reaction << true;
                    }
                }
            }
        }
    }

    void theFocusMoves()
    {
        QFETCH(const Focused*, focused);
        QFETCH(const Trigger*, trigger);
        QFETCH(Reaction, reaction);
        QFETCH(bool, inADialog);
        Application application(reaction);
        application.whenPushed = [] {};
        TAbstractProperty* row = Test::FindRow(application.Show(focused->makeSet), focused->label);
        if (focused->isText) {
            Test::TypeHalfText(row, "X");
        } else {
            row->Editor()->setFocus();
        }
        QVERIFY(QApplication::focusWidget() && QApplication::focusWidget() != application.place.elsewhere);

        const auto connection = connect(qApp, &QApplication::focusChanged, &application, [&application, inADialog] {
            if (application.isWaiting) {
                inADialog ? application.ReactInADialog() : application.React();
            }
        });
        trigger->pull(application);
        disconnect(connection);
        QVERIFY(!application.isWaiting);
        QCOMPARE(application.Fault(), QString());
    }

    void aSetEnds_data()
    {
        QTest::addColumn<const Trigger*>("trigger");
        QTest::addColumn<Reaction>("reaction");
        for (const Trigger& trigger : triggers) {
            for (const auto& each : reactions) {
                if (trigger.endsTheSet) {
                    QTest::addRow("%s: %s", trigger.name, each.name) << &trigger << each.reaction;
                }
            }
        }
    }

    void aSetEnds()
    {
        QFETCH(const Trigger*, trigger);
        QFETCH(Reaction, reaction);
        Application application(reaction);
        TPropertySet* set = application.Show(Test::MakeViaSet);
        connect(set, &QObject::destroyed, &application, &Application::React);
        trigger->pull(application);
        QVERIFY(!application.isWaiting);
        QCOMPARE(application.Fault(), QString());
    }

    void theLastSetThatWasGivenIsShown()
    {
        Application application(Reaction::ShowsAnother);
        TPropertySet* set = application.Show(Test::MakeViaSet);
        connect(set, &QObject::destroyed, &application, &Application::React);
        application.Replace(Test::MakePadSet);
        QCOMPARE(Test::Labels(application.panel->PropertySet()), QStringList{"Diameter:"});
        QCOMPARE(application.Fault(), QString());
    }

    void theTitleIsHeardOf()
    {
        Application application(Reaction::ShowsAnother);
        connect(&application.place.window, &QWidget::windowTitleChanged, &application, &Application::React);
        application.Replace(Test::MakeViaSet);
        QVERIFY(!application.isWaiting);
        QCOMPARE(application.Fault(), QString());
        QCOMPARE(Test::Labels(application.panel->PropertySet()), QStringList{"Diameter:"});
    }

    void aSetThatIsAddedTwiceIsShownOnce()
    {
        Test::PanelWindow place;
        auto* set = new Test::PlainSet;
        place.Show(set);
        const auto rows = set->Properties();
        set->AddToPropertyWidget(place.panel);
        QCOMPARE(set->Properties(), rows);
        QCOMPARE(place.Tree()->topLevelItemCount(), rows.size());
    }
};

PROPERTIES_TEST(TestCallsOut)
#include "tst_calls_out.moc"
