#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyAngleEnum.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyPadShape.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include <memory>

/** Which texts of the rows are translated, each in the context of its class. */
class TestRowTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { translator = std::make_unique<Test::MarkingTranslator>(); }
    void cleanupTestCase() { translator.reset(); }

    void enableBox()
    {
        const TPropertyFloatSpin row("Mask:", 0, 1, 0.1, 1);
        QCOMPARE(row.check->text(), QString("~En"));
        QVERIFY(translator->WasAsked("TPropertyFloatSpin", "En"));
    }

    void showBoxes()
    {
        const TPropertyText row("Name:", "GND", false);
        QCOMPARE(row.visible->text(), QString("~Show"));
        QVERIFY(translator->WasAsked("TPropertyText", "Show"));
        QCOMPARE(row.line->findChild<QCheckBox*>()->text(), QString("~Show"));
        QVERIFY(translator->WasAsked("TLineEdit", "Show"));
        QCOMPARE(row.line->label->text(), QString("GND"));
    }

    void padShapes()
    {
        const TPropertyPadShape row("Shape:");
        const QStringList shapes{"Round", "Square", "Octangle", "Obround", "Rectangle", "Octangle(long)"};
        QCOMPARE(row.Box()->count(), shapes.size());
        for (int i = 0; i < shapes.size(); ++i) {
            QCOMPARE(row.Box()->itemText(i), "~" + shapes[i]);
            QVERIFY(translator->WasAsked("TPropertyPadShape", shapes[i]));
        }
    }

    void defaultColorButNoColorName()
    {
        const TPropertyColor row("Color:", QColor("#123abc"));
        QCOMPARE(row.Box()->itemText(0), QString("~Default"));
        QVERIFY(translator->WasAsked("TPropertyColor", "Default"));
        QCOMPARE(row.Box()->itemText(1), QString("#FF5511"));
        QCOMPARE(row.Box()->itemText(23), QString("#123abc"));
    }

    void neitherAnglesNorTheCross()
    {
        const TPropertyAngleEnum angle("Rotation:");
        QCOMPARE(angle.Box()->itemText(1), QString("90"));
        const TPropertySize size("Size:", 0, 1, 0.1, 1);
        QCOMPARE(size.Editor()->findChildren<QLabel*>().value(0)->text(), QString("x"));
    }

private:
    std::unique_ptr<Test::MarkingTranslator> translator;
};

PROPERTIES_TEST(TestRowTranslation)
#include "tst_translation.moc"
