#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyLayer.h"

#include <QComboBox>
#include <QImage>

#include <memory>

namespace {

QStringList Texts(const TPropertyLayer& row)
{
    QStringList texts;
    for (int i = 0; i < row.Box()->count(); ++i) {
        texts.append(row.Box()->itemText(i));
    }
    return texts;
}

void CompareSwatch(const TPropertyLayer& row, int index, const QColor& color)
{
    const QIcon icon = row.Box()->itemIcon(index);
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(18, 18)});
    const QImage swatch = icon.pixmap(18, 18).toImage();
    const QRgb rim = color.darker(200).rgba();
    for (int i = 0; i <= 17; ++i) {
        QCOMPARE(swatch.pixel(i, 0), rim);
        QCOMPARE(swatch.pixel(0, i), rim);
        QCOMPARE(swatch.pixel(i, 17), rim);
        QCOMPARE(swatch.pixel(17, i), rim);
    }
    for (int i = 1; i <= 16; ++i) {
        QCOMPARE(swatch.pixel(i, i), color.rgba());
        QCOMPARE(swatch.pixel(17 - i, i), color.rgba());
    }
}

/** Writes down the layers that a row reports. */
class LayerSignals
{
public:
    explicit LayerSignals(const TPropertyLayer& row)
    {
        QObject::connect(&row, &TPropertyLayer::sigLayerChanged,
                         [this](Osmirel::Layer layer) { layers.append(layer); });
    }

    QList<Osmirel::Layer> layers;
};

} // namespace

class TestLayerRow : public QObject
{
    Q_OBJECT

private slots:
    void init() { board = std::make_unique<Test::TestBoard>(); }
    void cleanup() { board.reset(); }

    void offersTheGivenLayersInOrder()
    {
        const TPropertyLayer row("Side:", {Osmirel::CopperBottom, Osmirel::CopperTop, Osmirel::Copper2},
                                 board->Workspace());
        QCOMPARE(row.text(1), QString("Side:"));
        QCOMPARE(row.Box()->iconSize(), QSize(18, 18));
        QCOMPARE(Texts(row), (QStringList{"Bottom", "Top", "Inner 1"}));
        QCOMPARE(row.Box()->itemData(0).value<Osmirel::Layer>(), Osmirel::CopperBottom);
        QCOMPARE(row.Box()->itemData(2).value<Osmirel::Layer>(), Osmirel::Copper2);
        CompareSwatch(row, 0, "#4d7fc4");
        CompareSwatch(row, 1, "#c83434");
        CompareSwatch(row, 2, "#7fc87f");
    }

    void reportsTheChosenLayer()
    {
        const TPropertyLayer row("Side:", board->Sides(), board->Workspace());
        const LayerSignals said(row);
        row.Box()->setCurrentIndex(1);
        QCOMPARE(said.layers, QList<Osmirel::Layer>{Osmirel::CopperBottom});
        QCOMPARE(row.CurrentLayer(), Osmirel::CopperBottom);
    }

    void setCurrentLayerTakesAnOfferedOne()
    {
        TPropertyLayer row("Side:", board->Sides(), board->Workspace());
        const LayerSignals said(row);
        row.SetCurrentLayer(Osmirel::CopperBottom);
        row.SetCurrentLayer(Osmirel::CopperBottom);
        QCOMPARE(row.Box()->currentIndex(), 1);
        QCOMPARE(row.Box()->count(), 2);
        QCOMPARE(said.layers, QList<Osmirel::Layer>{Osmirel::CopperBottom});
        row.SetCurrentLayer(Osmirel::CopperTop);
        QCOMPARE(row.Box()->currentIndex(), 0);
    }

    void setCurrentLayerAddsOneThatIsNotOffered()
    {
        TPropertyLayer row("Side:", board->Sides(), board->Workspace());
        const LayerSignals said(row);
        row.SetCurrentLayer(Osmirel::Copper3);
        QCOMPARE(row.Box()->count(), 3);
        QCOMPARE(row.Box()->currentIndex(), 0);
        QCOMPARE(row.CurrentLayer(), Osmirel::Copper3);
        QCOMPARE(Texts(row).mid(1), (QStringList{"Top", "Bottom"}));
        CompareSwatch(row, 0, "#ce7d2c");
        QCOMPARE(said.layers, QList<Osmirel::Layer>{Osmirel::Copper3});
    }

    void aLayerThatTheTableLacksIsAddedToo()
    {
        TPropertyLayer row("Side:", board->Sides(), board->Workspace());
        row.SetCurrentLayer(Osmirel::Copper7);
        QCOMPARE(row.Box()->count(), 3);
        QCOMPARE(row.CurrentLayer(), Osmirel::Copper7);
    }

    void anEmptyListStaysEmpty()
    {
        TPropertyLayer row("Side:", {}, board->Workspace());
        const LayerSignals said(row);
        row.SetCurrentLayer(Osmirel::CopperTop);
        QCOMPARE(row.Box()->count(), 0);
        QCOMPARE(row.CurrentLayer(), Osmirel::NoLayer);
        QVERIFY(said.layers.isEmpty());
    }

    void setLayersStartsAnew()
    {
        TPropertyLayer row("Side:", board->Sides(), board->Workspace());
        row.SetCurrentLayer(Osmirel::CopperTop);
        const LayerSignals said(row);
        row.SetLayers(board->Workspace(), {Osmirel::Copper2, Osmirel::Copper3});
        QCOMPARE(Texts(row), (QStringList{"Inner 1", "Inner 2"}));
        QCOMPARE(row.Box()->currentIndex(), -1);
        QVERIFY(said.layers.isEmpty());
        row.SetCurrentLayer(Osmirel::Copper2);
        QCOMPARE(row.Box()->currentIndex(), 0);
        QCOMPARE(said.layers, QList<Osmirel::Layer>{Osmirel::Copper2});
    }

    void setLayersTakesTheOtherWorkspace()
    {
        TWorkspace other;
        other.Layers().AddLayer({Osmirel::CopperTop, "Component side", QColor("#102030"), ""});
        TPropertyLayer row("Side:", board->Sides(), board->Workspace());
        row.SetLayers(&other, {Osmirel::CopperTop});
        QCOMPARE(Texts(row), QStringList{"Component side"});
        CompareSwatch(row, 0, "#102030");
    }

    void withoutAWorkspaceNothingBreaks()
    {
        TPropertyLayer row("Side:", board->Sides(), nullptr);
        row.SetCurrentLayer(Osmirel::CopperTop);
        QCOMPARE(row.Box()->count(), 0);
        QCOMPARE(row.CurrentLayer(), Osmirel::NoLayer);
    }

private:
    std::unique_ptr<Test::TestBoard> board;
};

PROPERTIES_TEST(TestLayerRow)
#include "tst_layer.moc"
