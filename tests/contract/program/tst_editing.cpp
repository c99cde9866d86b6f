#include "properties/rows/TAbstractProperty.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/sets/TPropertySetForWire.h"
#include "properties/TPropertyWidget.h"

#include <contract/TDesign.h>
#include <embed/TPanelEditing.h>
#include <workspace/TDoubleSpinBox.h>

#include <QtTest>
#include <QUndoStack>

namespace {

/** A window with the panel over two wires, kept up to date as docs/embedding.md shows. */
struct Application
{
    ContractHost::TDesign design;
    QUndoStack undoStack;
    QWidget window;
    TPropertyWidget* panel = new TPropertyWidget(&window);
    TPanelEditing editing{*panel, undoStack, [this] {
                              return new TPropertySetForWire({design.wire, design.nextWire}, &design.project);
                          }};

    Application()
    {
        editing.ShowSelection();
        window.resize(300, 300);
        window.show();
        window.activateWindow();
    }

    TPropertyFloatSpin* Width() const
    {
        for (TAbstractProperty* row : panel->PropertySet()->Properties()) {
            if (auto* width = dynamic_cast<TPropertyFloatSpin*>(row)) {
                return width;
            }
        }
        return nullptr;
    }

    bool Forward(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        editing.ForwardKey(&event);
        return event.isAccepted();
    }
};

} // namespace

/** What every application does around the panel: the code of the example, over the contract host. */
class TestEditing : public QObject
{
    Q_OBJECT

private slots:
    void anEditKeepsItsRow()
    {
        Application application;
        const QPointer<TPropertySet> set = application.panel->PropertySet();
        application.Width()->spin->setValue(2.5);
        application.Width()->spin->stepUp();
        QCOMPARE(application.undoStack.count(), 2);
        QVERIFY(set && set == application.panel->PropertySet());
    }

    void undoAndRedoShowTheValuesOfNow()
    {
        Application application;
        application.Width()->spin->setValue(2.5);
        application.undoStack.undo();
        QCOMPARE(application.Width()->spin->value(), 1.0);
        application.undoStack.redo();
        QCOMPARE(application.Width()->spin->value(), 2.5);
        QCOMPARE(application.undoStack.count(), 1);
    }

    void undoKeepsTheFocus()
    {
        Application application;
        QVERIFY(QTest::qWaitForWindowActive(&application.window));
        application.Width()->spin->setValue(2.5);
        application.Width()->spin->setFocus();
        application.undoStack.undo();
        QVERIFY(application.Width()->spin->hasFocus());
    }

    void keysOfTheCanvasEdit()
    {
        Application application;
        QVERIFY(application.Forward(Qt::Key_3));
        QCOMPARE(application.undoStack.count(), 1);
        QCOMPARE(application.Width()->spin->value(), 0.3);
        QVERIFY(!application.Forward(Qt::Key_A));
        QCOMPARE(application.undoStack.count(), 1);
    }
};

QTEST_MAIN(TestEditing)
#include "tst_editing.moc"
