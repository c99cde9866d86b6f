#include "tests/panel/KindsBoard.h"
#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestProgram.h"

#include "properties/commands/Units.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertySize.h"

#include <workspace/TDoubleSpinBox.h>

#include <QLocale>

namespace {

/** The user's locale during its life. */
class UserLocale
{
public:
    explicit UserLocale(const QString& name) { QLocale::setDefault(QLocale(name)); }
    ~UserLocale() { QLocale::setDefault(former); }
    Q_DISABLE_COPY(UserLocale)

private:
    QLocale former;
};

/** In tenths of a micrometre. */
qint64 Exact(double sceneLength)
{
    return qRound64(Units::MillimetresFromScene(sceneLength) * 1e4);
}

/** Types the number with the digits and the separator of the user's locale. */
void Type(TDoubleSpinBox* box, double value)
{
    box->setFocus();
    box->selectAll();
    for (const QChar character : QLocale().toString(value, 'f', box->decimals())) {
        QTest::sendKeyEvent(QTest::Click, static_cast<QWidget*>(box), Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
    }
}

} // namespace

/** Number boxes write and read numbers as the user's locale does; what reaches the design is the number itself. */
class TestLocales : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreShownAndTypedAsTheLocaleWritesThem_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("written");
        QTest::newRow("the C locale") << "C"
                                      << "1.2 mm";
        QTest::newRow("English") << "en_US"
                                 << "1.2 mm";
        QTest::newRow("German") << "de_DE"
                                << "1,2 mm";
        QTest::newRow("Turkish") << "tr_TR"
                                 << "1,2 mm";
        QTest::newRow("Japanese") << "ja_JP"
                                  << "1.2 mm";
        QTest::newRow("Polish") << "pl_PL"
                                << "1,2 mm";
        QTest::newRow("Arabic digits") << "ar_EG" << QString::fromUtf8("١٫٢ mm");
        QTest::newRow("Persian digits") << "fa_IR" << QString::fromUtf8("۱٫۲ mm");
    }
    void numbersAreShownAndTypedAsTheLocaleWritesThem()
    {
        QFETCH(QString, locale);
        QFETCH(QString, written);
        const UserLocale user(locale);
        Test::KindsBoard board;
        TGraphicsViaItem* via = board.AddVia(1.2);
        TGraphicsPadItem* pad = board.AddSurfacePad();
        const QString before = board.DumpAll();
        Test::PanelWindow place;

        auto* viaSet = new TPropertySetForVia({via}, board.ViaGroups());
        Test::CommandLog viaCommands(*viaSet);
        place.Show(viaSet);
        TDoubleSpinBox* diameter = Test::RowOf<TPropertyFloatSpin>(viaSet, "Diameter:")->spin;
        QCOMPARE(diameter->text(), written);
        QCOMPARE(viaCommands.Count(), 0);
        Type(diameter, 2.7);
        viaCommands.Redo();
        QCOMPARE(Exact(via->Width()), 27000);
        viaCommands.Undo();
        QCOMPARE(board.DumpAll(), before);

        auto* padSet = new TPropertySetForPad({pad}, board.Sides());
        Test::CommandLog padCommands(*padSet);
        place.Show(padSet);
        Type(Test::RowOf<TPropertySize>(padSet, "Size (W x H):")->width, 0.35);
        padCommands.Redo();
        QCOMPARE(Exact(double(pad->Width())), 3500);
        padCommands.Undo();
        QCOMPARE(board.DumpAll(), before);
    }

    void panelsOfAllKindsAreShownWithoutAnEdit_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* locale : {"C", "de_DE", "tr_TR", "ja_JP", "ar_EG", "fa_IR", "hi_IN"}) {
            QTest::newRow(locale) << locale;
        }
    }
    void panelsOfAllKindsAreShownWithoutAnEdit()
    {
        QFETCH(QString, locale);
        const UserLocale user(locale);
        Test::KindsBoard board;
        const QString before = board.DumpAll();
        Test::PanelWindow place;
        for (const Test::MakeKindsSet makeSet :
             {Test::MakeViaSet, Test::MakeHoleSet, Test::MakePackageSet, Test::MakePadSet, Test::MakeTextSet,
              Test::MakeDrawingSet, Test::MakePourSet, Test::MakeWireSet, Test::MakeNetTieSet, Test::MakeMillingSet,
              Test::MakeKeepoutSet, Test::MakeNetSet, Test::MakePortSet, Test::MakeBusSet, Test::MakePinSet,
              Test::MakePartSet, Test::MakeTagSet, Test::MakeNetTieSymbolSet}) {
            TPropertySet* set = makeSet(board);
            const Test::CommandLog commands(*set);
            place.Show(set);
            QVERIFY(place.Tree()->topLevelItemCount() > 0);
            QCOMPARE(commands.Names(), QStringList());
        }
        QCOMPARE(board.DumpAll(), before);
    }
};

PROPERTIES_TEST(TestLocales)
#include "tst_locales.moc"
