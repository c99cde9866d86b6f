#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

const QColor emptyMark("#FF7F7F");

/** A window with the widget under test and another that can take the focus. */
class FocusWindow
{
public:
    explicit FocusWindow(QWidget* tested) : elsewhere(new QLineEdit(&window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(tested);
        layout->addWidget(elsewhere);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the test's window does not become active");
        }
        elsewhere->setFocus();
    }

    QWidget window;
    QLineEdit* elsewhere;
};

/** A line with the text "old", open and with "new" typed into it, that remembers what it reports. */
class EditedLine
{
public:
    EditedLine() : line(new TLineEdit("old", false, nullptr)), place(line), changes(line, SIGNAL(textChanged(QString)))
    {
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QTest::keyClicks(line->edit, "new");
    }

    bool IsClosed() const { return line->label->isVisible() && !line->edit->isVisible(); }

    /** A commit is reported at least once; the toolkit may end the edit a second time when its editor is hidden. */
    bool ReportedOnly(const QString& text) const
    {
        return !changes.isEmpty() && changes.count() <= 2
               && std::all_of(changes.cbegin(), changes.cend(),
                              [&text](const QVariantList& arguments) { return arguments.first() == text; });
    }

    TLineEdit* line;
    FocusWindow place;
    QSignalSpy changes;
};

QColor Background(const QLabel* label)
{
    return const_cast<QLabel*>(label)->grab().toImage().pixelColor(label->width() - 5, label->height() / 2);
}

} // namespace

class TestTextRows : public QObject
{
    Q_OBJECT

private slots:
    void lineIsALabelWithAHiddenEditor()
    {
        TLineEdit line("R12", false, nullptr);
        line.show();
        QCOMPARE(line.label->text(), QString("R12"));
        QCOMPARE(line.label->frameShape(), QFrame::StyledPanel);
        QCOMPARE(line.label->frameShadow(), QFrame::Plain);
        QVERIFY(line.label->isVisible());
        QVERIFY(!line.edit->isVisible());
        QVERIFY(line.IsEditable());
        QCOMPARE(line.layout()->contentsMargins(), QMargins());
        QCOMPARE(Test::LayoutParts(&line), (QStringList{"QLabel 1", "QLineEdit 1", "QCheckBox 0"}));
        const QList<QCheckBox*> boxes = line.findChildren<QCheckBox*>();
        QCOMPARE(boxes.count(), 1);
        QCOMPARE(boxes.first()->text(), QString("Show"));
        QVERIFY(!boxes.first()->isVisible());
    }

    void lineHasTheGivenParent()
    {
        QWidget parent;
        const auto* line = new TLineEdit("", false, &parent);
        QCOMPARE(line->parentWidget(), &parent);
    }

    void setTextSaysNothing()
    {
        TLineEdit line("old", false, nullptr);
        const QSignalSpy changes(&line, SIGNAL(textChanged(QString)));
        line.setText("new");
        QCOMPARE(line.label->text(), QString("new"));
        QCOMPARE(line.Text(), QString("new"));
        QCOMPARE(changes.count(), 0);
    }

    void emptyTextIsMarked_data()
    {
        QTest::addColumn<bool>("markEmpty");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<bool>("red");
        QTest::newRow("marked, empty from the start") << true << QStringList{""} << true;
        QTest::newRow("marked, with text") << true << QStringList{"a"} << false;
        QTest::newRow("marked, emptied") << true << QStringList{"a", ""} << true;
        QTest::newRow("marked, text comes back") << true << QStringList{"", "a"} << false;
        QTest::newRow("marked, emptied once more") << true << QStringList{"", "a", ""} << true;
        QTest::newRow("marked, a blank is a text") << true << QStringList{" "} << false;
        QTest::newRow("unmarked, empty") << false << QStringList{"a", ""} << false;
    }

    void emptyTextIsMarked()
    {
        QFETCH(bool, markEmpty);
        QFETCH(QStringList, texts);
        QFETCH(bool, red);
        TLineEdit line(texts.takeFirst(), markEmpty, nullptr);
        for (const QString& text : texts) {
            line.setText(text);
        }
        line.resize(200, 30);
        line.show();
        QCOMPARE(line.label->styleSheet().contains("background-color: #FF7F7F"), red);
        QCOMPARE(Background(line.label) == emptyMark, red);
    }

    void backgroundColorIsAStyleSheet()
    {
        TLineEdit line("text", false, nullptr);
        line.SetBackgroundColor(QColor(1, 2, 0xab));
        QCOMPARE(line.label->styleSheet(), QString("background-color: #0102ab"));
        line.resize(200, 30);
        line.show();
        QCOMPARE(Background(line.label), QColor(1, 2, 0xab));
    }

    void nextTextTakesTheBackgroundColorAway()
    {
        TLineEdit line("text", false, nullptr);
        line.SetBackgroundColor(QColor(1, 2, 0xab));
        line.setText("other");
        line.resize(200, 30);
        line.show();
        QVERIFY(Background(line.label) != QColor(1, 2, 0xab));
    }

    void labelHasTheStyleOfTheBox()
    {
        TLineEdit line("", true, nullptr);
        line.setText("text");
        QCOMPARE(line.label->style(), line.findChild<QCheckBox*>()->style());
        QCOMPARE(line.label->styleSheet(), line.findChild<QCheckBox*>()->styleSheet());
    }

    void singleClickDoesNotEdit()
    {
        auto* line = new TLineEdit("old", false, nullptr);
        const FocusWindow place(line);
        const QSignalSpy changes(line, SIGNAL(textChanged(QString)));
        const Test::DebugLines debug;
        QTest::mouseClick(line->label, Qt::LeftButton);
        QVERIFY(line->label->isVisible());
        QVERIFY(!line->edit->isVisible());
        QCOMPARE(debug.Lines(), QStringList());
        QCOMPARE(changes.count(), 0);
    }

    void doubleClickEdits()
    {
        auto* line = new TLineEdit("old", false, nullptr);
        const FocusWindow place(line);
        const QSignalSpy changes(line, SIGNAL(textChanged(QString)));
        QTest::mouseClick(line->label, Qt::LeftButton);
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QVERIFY(!line->label->isVisible());
        QVERIFY(line->edit->isVisible());
        QVERIFY(line->edit->hasFocus());
        QCOMPARE(line->edit->text(), QString("old"));
        QCOMPARE(line->edit->selectedText(), QString("old"));
        QCOMPARE(changes.count(), 0);
    }

    void doubleClickTakesTheLabelsText()
    {
        auto* line = new TLineEdit("first", false, nullptr);
        const FocusWindow place(line);
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QTest::keyClick(line->edit, Qt::Key_Escape);
        line->setText("second");
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QCOMPARE(line->edit->text(), QString("second"));
    }

    void doubleClickOnAReadOnlyLineDoesNothing()
    {
        auto* line = new TLineEdit("old", false, nullptr);
        line->SetEditable(false);
        const FocusWindow place(line);
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QVERIFY(line->label->isVisible());
        QVERIFY(!line->edit->isVisible());
        QVERIFY(place.elsewhere->hasFocus());
    }

    void returnCommits_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }

    void returnCommits()
    {
        QFETCH(int, key);
        const EditedLine edited;
        QCOMPARE(edited.line->label->text(), QString("old"));
        QTest::keyClick(edited.line->edit, static_cast<Qt::Key>(key));
        QCOMPARE(edited.line->label->text(), QString("new"));
        QVERIFY(edited.IsClosed());
        QVERIFY(edited.ReportedOnly("new"));
    }

    void returnGivenToTheLineCommits_data() { returnCommits_data(); }

    void returnGivenToTheLineCommits()
    {
        QFETCH(int, key);
        const EditedLine edited;
        QTest::keyClick(edited.line, static_cast<Qt::Key>(key));
        QCOMPARE(edited.line->label->text(), QString("new"));
        QVERIFY(edited.IsClosed());
        QVERIFY(edited.ReportedOnly("new"));
    }

    void escapeDiscards()
    {
        const EditedLine edited;
        QTest::keyClick(edited.line->edit, Qt::Key_Escape);
        QCOMPARE(edited.line->label->text(), QString("old"));
        QVERIFY(edited.IsClosed());
        QVERIFY(!edited.line->edit->signalsBlocked());
        QCOMPARE(edited.changes.count(), 0);
        edited.place.elsewhere->setFocus();
        QCOMPARE(edited.line->label->text(), QString("old"));
        QCOMPARE(edited.changes.count(), 0);
    }

    void otherKeysStayInTheEditor()
    {
        const EditedLine edited;
        QTest::keyClick(edited.line->edit, Qt::Key_Left);
        QTest::keyClick(edited.line->edit, Qt::Key_X);
        QTest::keyClick(edited.line, Qt::Key_F5);
        QCOMPARE(edited.line->edit->text(), QString("nexw"));
        QCOMPARE(edited.line->label->text(), QString("old"));
        QVERIFY(edited.line->edit->isVisible());
        QCOMPARE(edited.changes.count(), 0);
    }

    void keysMeanNothingWhileTheLabelShows_data()
    {
        returnCommits_data();
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }

    void keysMeanNothingWhileTheLabelShows()
    {
        QFETCH(int, key);
        auto* line = new TLineEdit("old", false, nullptr);
        const FocusWindow place(line);
        const QSignalSpy changes(line, SIGNAL(textChanged(QString)));
        QTest::keyClick(line, static_cast<Qt::Key>(key));
        QCOMPARE(line->label->text(), QString("old"));
        QVERIFY(line->label->isVisible());
        QCOMPARE(changes.count(), 0);
    }

    void leavingTheEditorCommits()
    {
        const EditedLine edited;
        edited.place.elsewhere->setFocus();
        QCOMPARE(edited.line->label->text(), QString("new"));
        QVERIFY(edited.IsClosed());
        QVERIFY(edited.ReportedOnly("new"));
    }

    void endOfEditIsASlot()
    {
        const EditedLine edited;
        QVERIFY(QMetaObject::invokeMethod(edited.line, "slotEndEdit"));
        QCOMPARE(edited.line->label->text(), QString("new"));
        QVERIFY(edited.IsClosed());
        QVERIFY(edited.ReportedOnly("new"));
    }

    void mousePressCommitsToTheLabelInSilence()
    {
        const EditedLine edited;
        const QSignalBlocker editorEndsNothing(edited.line->edit);
        const Test::DebugLines debug;
        QTest::mousePress(edited.line, Qt::LeftButton);
        QCOMPARE(debug.Lines(), QStringList{"mouse press"});
        QCOMPARE(edited.line->label->text(), QString("new"));
        QVERIFY(edited.IsClosed());
        QCOMPARE(edited.changes.count(), 0);
    }

    void mousePressLeavesOneState()
    {
        const EditedLine edited;
        QTest::ignoreMessage(QtDebugMsg, "mouse press");
        QTest::mousePress(edited.line, Qt::LeftButton);
        QCOMPARE(edited.line->label->text(), QString("new"));
        QVERIFY(edited.IsClosed());
    }

    void mousePressHidesTheEditorBeforeTheLabelHasTheText()
    {
        const EditedLine edited;
        const QSignalBlocker editorEndsNothing(edited.line->edit);
        QString seen;
        const auto connection = connect(qApp, &QApplication::focusChanged, edited.line, [&] {
            seen += edited.line->label->text();
            edited.line->setText("of a handler");
        });
        QTest::ignoreMessage(QtDebugMsg, "mouse press");
        QTest::mousePress(edited.line, Qt::LeftButton);
        disconnect(connection);
        QCOMPARE(seen, QString("old"));
        QCOMPARE(edited.line->label->text(), QString("new"));
    }

    void mousePressMeansNothingWhileTheLabelShows()
    {
        TLineEdit line("old", false, nullptr);
        line.show();
        const Test::DebugLines debug;
        QTest::mousePress(&line, Qt::LeftButton);
        QCOMPARE(debug.Lines(), QStringList());
        QCOMPARE(line.label->text(), QString("old"));
    }

    void focusOutShowsTheLabel()
    {
        const EditedLine edited;
        const QSignalBlocker editorEndsNothing(edited.line->edit);
        const Test::DebugLines debug;
        QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(edited.line, &out);
        QCOMPARE(debug.Lines(), QStringList{"focus out"});
        QVERIFY(edited.IsClosed());
        QCOMPARE(edited.line->label->text(), QString("old"));
        QCOMPARE(edited.changes.count(), 0);
    }

    void realFocusOutWritesItsLine()
    {
        auto* line = new TLineEdit("old", false, nullptr);
        const FocusWindow place(line);
        line->setFocus();
        QVERIFY(line->hasFocus());
        QTest::ignoreMessage(QtDebugMsg, "focus out");
        place.elsewhere->setFocus();
        QVERIFY(line->label->isVisible());
    }

    void oneOfLabelAndEditorShows()
    {
        const EditedLine edited;
        QVERIFY(edited.line->edit->isVisible() && !edited.line->label->isVisible());
        QTest::keyClick(edited.line->edit, Qt::Key_Return);
        QVERIFY(!edited.line->edit->isVisible() && edited.line->label->isVisible());
        QTest::mouseDClick(edited.line->label, Qt::LeftButton);
        QVERIFY(edited.line->edit->isVisible() && !edited.line->label->isVisible());
    }

    void clearingAMarkedTextByHandMarksIt()
    {
        TPropertyText row("Value:", "10k", true);
        const FocusWindow place(row.Editor());
        QTest::mouseDClick(row.line->label, Qt::LeftButton);
        QTest::keyClick(row.line->edit, Qt::Key_Delete);
        QTest::keyClick(row.line->edit, Qt::Key_Return);
        QCOMPARE(row.line->label->styleSheet(), QString("background-color: #FF7F7F"));
        QCOMPARE(Background(row.line->label), emptyMark);
        QTest::mouseDClick(row.line->label, Qt::LeftButton);
        QTest::keyClicks(row.line->edit, "22k");
        QTest::keyClick(row.line->edit, Qt::Key_Return);
        QVERIFY(Background(row.line->label) != emptyMark);
    }

    void rowHoldsALineAndAHiddenBox()
    {
        const TPropertyText row("Number:", "A1", false);
        QCOMPARE(row.text(1), QString("Number:"));
        QVERIFY(Test::IsExactly(row.Editor(), QWidget::staticMetaObject));
        QCOMPARE(row.Editor()->layout()->contentsMargins(), QMargins());
        QCOMPARE(Test::LayoutParts(row.Editor()), (QStringList{"TLineEdit 1", "QCheckBox 0"}));
        QCOMPARE(row.Editor()->layout()->itemAt(1)->widget(), static_cast<QWidget*>(row.visible));
        QCOMPARE(row.line->label->text(), QString("A1"));
        QCOMPARE(row.visible->text(), QString("Show"));
        QVERIFY(row.visible->isChecked());
        row.Editor()->show();
        QVERIFY(!row.visible->isVisible());
    }

    void rowPassesTheMarkOn()
    {
        const TPropertyText marked("Value:", "", true);
        const TPropertyText plain("Value:", "", false);
        QCOMPARE(marked.line->label->styleSheet(), QString("background-color: #FF7F7F"));
        QVERIFY(!plain.line->label->styleSheet().contains("background"));
    }

    void rowReportsCommittedText()
    {
        TPropertyText row("Number:", "A1", false);
        const FocusWindow place(row.Editor());
        const QSignalSpy changes(&row, SIGNAL(sigTextChanged(QString)));
        QTest::mouseClick(row.line->label, Qt::LeftButton);
        QVERIFY(!row.line->edit->isVisible());
        Test::TypeHalfText(&row, "B2");
        QCOMPARE(changes.count(), 0);
        QTest::keyClick(row.line->edit, Qt::Key_Return);
        QVERIFY(!changes.isEmpty());
        for (const QVariantList& arguments : changes) {
            QCOMPARE(arguments.first().toString(), QString("B2"));
        }
    }

    void showBoxReportsClicksOnly()
    {
        TPropertyText row("Name:", "GND", false);
        const FocusWindow place(row.Editor());
        row.visible->show();
        const QSignalSpy changes(&row, SIGNAL(sigVisibleChanged(bool)));
        const QSignalSpy texts(&row, SIGNAL(sigTextChanged(QString)));
        row.visible->setChecked(false);
        row.visible->setChecked(true);
        QCOMPARE(changes.count(), 0);
        QTest::keyClick(row.visible, Qt::Key_Space);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes[0][0].toBool(), false);
        QTest::keyClick(row.visible, Qt::Key_Space);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes[1][0].toBool(), true);
        QCOMPARE(texts.count(), 0);
    }

    void rowWithoutEditorLivesOn()
    {
        TPropertyText row("Number:", "A1", false);
        delete row.Editor();
        row.SetEnabled(false);
        QVERIFY(!row.Editor());
    }
};

PROPERTIES_TEST(TestTextRows)
#include "tst_text.moc"
