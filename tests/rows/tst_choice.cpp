#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyAngleEnum.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyPadShape.h"
#include "properties/rows/TPropertyPenStyle.h"

#include <workspace/TWorkspace.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>

#include <memory>

namespace {

const QList<Osmirel::Layer> sides = {Osmirel::CopperTop, Osmirel::CopperBottom};

TWorkspace* Workspace()
{
    static TWorkspace workspace;
    return &workspace;
}

std::unique_ptr<TPropertyChoice> MakeEnum()
{
    return std::make_unique<TPropertyEnum>("Label", QStringList{"Auto", "Yes", "No"});
}
std::unique_ptr<TPropertyChoice> MakeFilledEnum()
{
    auto row = std::make_unique<TPropertyEnum>("Label");
    row->AddItem("By pour", 0);
    row->AddItem("Yes", 1);
    return row;
}
std::unique_ptr<TPropertyChoice> MakeAngle()
{
    return std::make_unique<TPropertyAngleEnum>("Label");
}
std::unique_ptr<TPropertyChoice> MakeLayer()
{
    return std::make_unique<TPropertyLayer>("Label", sides, Workspace());
}
std::unique_ptr<TPropertyChoice> MakePadShape()
{
    return std::make_unique<TPropertyPadShape>("Label");
}
std::unique_ptr<TPropertyChoice> MakePenStyle()
{
    return std::make_unique<TPropertyPenStyle>("Label");
}

using MakeRow = std::unique_ptr<TPropertyChoice> (*)();

/** A row of some kind whose editor is not a combo box. */
template <class Row>
class WithForeignEditor : public Row
{
public:
    template <class... Arguments>
    explicit WithForeignEditor(Arguments&&... arguments) : Row(std::forward<Arguments>(arguments)...)
    {
        delete this->Editor();
        this->SetEditor(new QLabel("not a combo box"));
    }
};

/** Asks everything of rows whose editor is gone or foreign. */
template <class Angle, class Enum, class Layer, class Shape, class Pen>
void AskRowsWithoutBox(Angle& angle, Enum& enumeration, Layer& layer, Shape& shape, Pen& pen)
{
    angle.SetCurrentAngle(90);
    enumeration.AddItem("more", 7);
    enumeration.SetCurrentEnum(1);
    enumeration.SetCurrentText("Yes");
    enumeration.SetCurrentText("unknown");
    layer.SetLayers(Workspace(), sides);
    layer.SetCurrentLayer(Osmirel::CopperTop);
    layer.SetCurrentLayer(Osmirel::Copper2);
    shape.SetCurrentPadShape(TGraphicsPadItem::ShapeRound);
    pen.SetCurrentPenStyle(Qt::DashLine);
    QCOMPARE(angle.CurrentAngle(), 0.0F);
    QCOMPARE(enumeration.CurrentEnum(), -1);
    QCOMPARE(layer.CurrentLayer(), Osmirel::NoLayer);
    QCOMPARE(int(shape.CurrentPadShape()), 0);
    QCOMPARE(pen.CurrentPenStyle(), Qt::NoPen);
    for (TPropertyChoice* row : std::initializer_list<TPropertyChoice*>{&angle, &enumeration, &layer, &shape, &pen}) {
        QVERIFY(!row->Box());
    }
}

/** Writes down both signals of an enum row in the order in which they come. */
class EnumSignals
{
public:
    explicit EnumSignals(const TPropertyEnum& row)
    {
        QObject::connect(&row, &TPropertyEnum::sigEnumChanged,
                         [this](int value) { lines.append(QStringLiteral("value %1").arg(value)); });
        QObject::connect(&row, &TPropertyEnum::sigTextChanged,
                         [this](const QString& text) { lines.append("text " + text); });
    }

    QStringList lines;
};

QStringList Texts(const TPropertyChoice& row)
{
    QStringList texts;
    for (int i = 0; i < row.Box()->count(); ++i) {
        texts.append(row.Box()->itemText(i));
    }
    return texts;
}

QVariantList Data(const TPropertyChoice& row)
{
    QVariantList data;
    for (int i = 0; i < row.Box()->count(); ++i) {
        data.append(row.Box()->itemData(i, Qt::UserRole));
    }
    return data;
}

} // namespace

Q_DECLARE_METATYPE(MakeRow)

class TestChoiceRows : public QObject
{
    Q_OBJECT

private slots:
    void startsWithoutACurrentItem_data()
    {
        QTest::addColumn<MakeRow>("make");
        QTest::addColumn<QByteArray>("signature");
        QTest::newRow("enum of texts") << MakeRow(MakeEnum) << QByteArray("sigEnumChanged(int)");
        QTest::newRow("enum of texts, as text") << MakeRow(MakeEnum) << QByteArray("sigTextChanged(QString)");
        QTest::newRow("enum filled later") << MakeRow(MakeFilledEnum) << QByteArray("sigEnumChanged(int)");
        QTest::newRow("angle") << MakeRow(MakeAngle) << QByteArray("sigAngleChanged(float)");
        QTest::newRow("layer") << MakeRow(MakeLayer) << QByteArray("sigLayerChanged(Osmirel::Layer)");
        QTest::newRow("pad shape") << MakeRow(MakePadShape)
                                   << QByteArray("sigPadShapeChanged(TGraphicsPadItem::TypePadShape)");
        QTest::newRow("pen style") << MakeRow(MakePenStyle) << QByteArray("sigPenStyleChanged(Qt::PenStyle)");
    }

    void startsWithoutACurrentItem()
    {
        QFETCH(MakeRow, make);
        const auto row = make();
        QVERIFY(Test::IsExactly(row->Editor(), QComboBox::staticMetaObject));
        QCOMPARE(static_cast<QWidget*>(row->Box()), row->Editor());
        QCOMPARE(row->text(1), QString("Label"));
        QVERIFY(row->Box()->count() > 0);
        QCOMPARE(row->Box()->currentIndex(), -1);
        row->Box()->show();
        QCOMPARE(row->Box()->currentIndex(), -1);
    }

    void firstItemCanBeChosen_data() { startsWithoutACurrentItem_data(); }

    void firstItemCanBeChosen()
    {
        QFETCH(MakeRow, make);
        QFETCH(QByteArray, signature);
        const auto row = make();
        const Test::SignalCounter changes(row.get(), signature);
        QVERIFY(changes.IsConnected());
        QTest::keyClick(row->Box(), Qt::Key_Down);
        QCOMPARE(row->Box()->currentIndex(), 0);
        QCOMPARE(changes.Count(), 1);
        QTest::keyClick(row->Box(), Qt::Key_Down);
        QCOMPARE(changes.Count(), 2);
    }

    void noCurrentItemSaysNothing_data() { startsWithoutACurrentItem_data(); }

    void noCurrentItemSaysNothing()
    {
        QFETCH(MakeRow, make);
        QFETCH(QByteArray, signature);
        const auto row = make();
        row->Box()->setCurrentIndex(1);
        const Test::SignalCounter changes(row.get(), signature);
        QVERIFY(changes.IsConnected());
        row->Box()->setCurrentIndex(-1);
        QCOMPARE(changes.Count(), 0);
        QVERIFY(QMetaObject::invokeMethod(row.get(), "slotRowChanged", Q_ARG(int, -1)));
        QCOMPARE(changes.Count(), 0);
        row->Box()->setCurrentIndex(1);
        QCOMPARE(changes.Count(), 1);
    }

    void emptyEnumOffersNothing()
    {
        const TPropertyEnum row("Label");
        QCOMPARE(row.Box()->count(), 0);
        QCOMPARE(row.CurrentEnum(), -1);
    }

    void enumOfTextsCountsFromZero()
    {
        const TPropertyEnum row("Label", {"Auto", "Yes", "No"});
        QCOMPARE(Texts(row), (QStringList{"Auto", "Yes", "No"}));
        QCOMPARE(Data(row), (QVariantList{0, 1, 2}));
    }

    void addedItemsKeepTheirValues()
    {
        TPropertyEnum row("Label", {"a"});
        row.AddItem("Round", 1);
        row.AddItem("Rectangle", 5);
        row.AddItem("none", -7);
        QCOMPARE(Texts(row), (QStringList{"a", "Round", "Rectangle", "none"}));
        QCOMPARE(Data(row), (QVariantList{0, 1, 5, -7}));
        row.SetCurrentEnum(-7);
        QCOMPARE(row.CurrentEnum(), -7);
    }

    void setCurrentEnumFindsTheValue_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("said");
        QTest::newRow("another") << 4 << 2 << QStringList{"value 4", "text Obround"};
        QTest::newRow("first") << 1 << 0 << QStringList{"value 1", "text Round"};
        QTest::newRow("current one says nothing") << 5 << 1 << QStringList{};
        QTest::newRow("unknown changes nothing") << 2 << 1 << QStringList{};
        QTest::newRow("no value changes nothing") << -1 << 1 << QStringList{};
    }

    void setCurrentEnumFindsTheValue()
    {
        QFETCH(int, value);
        TPropertyEnum row("Label");
        row.AddItem("Round", 1);
        row.AddItem("Rectangle", 5);
        row.AddItem("Obround", 4);
        row.SetCurrentEnum(5);
        const EnumSignals said(row);
        row.SetCurrentEnum(value);
        QTEST(row.Box()->currentIndex(), "index");
        QTEST(said.lines, "said");
    }

    void dropDownSaysValueAndText()
    {
        const TPropertyEnum row("Label", {"Auto", "Yes", "No"});
        const EnumSignals said(row);
        row.Box()->show();
        QVERIFY(QTest::qWaitForWindowExposed(row.Box()));
        row.Box()->showPopup();
        QTest::keyClick(row.Box()->view(), Qt::Key_End);
        QTest::keyClick(row.Box()->view(), Qt::Key_Up);
        QCOMPARE(said.lines, QStringList());
        QTest::keyClick(row.Box()->view(), Qt::Key_Return);
        QCOMPARE(said.lines, (QStringList{"value 1", "text Yes"}));
    }

    void setCurrentTextFindsOrAdds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<int>("index");
        QTest::newRow("known") << "No" << QStringList{"Auto", "Yes", "No"} << 2;
        QTest::newRow("first") << "Auto" << QStringList{"Auto", "Yes", "No"} << 0;
        QTest::newRow("unknown comes first") << "Maybe" << QStringList{"Maybe", "Auto", "Yes", "No"} << 0;
        QTest::newRow("case counts") << "no" << QStringList{"no", "Auto", "Yes", "No"} << 0;
        QTest::newRow("a part is another text") << "Aut" << QStringList{"Aut", "Auto", "Yes", "No"} << 0;
        QTest::newRow("wildcards are letters") << "*" << QStringList{"*", "Auto", "Yes", "No"} << 0;
        QTest::newRow("empty") << "" << QStringList{"", "Auto", "Yes", "No"} << 0;
    }

    void setCurrentTextFindsOrAdds()
    {
        QFETCH(QString, text);
        TPropertyEnum row("Label", {"Auto", "Yes", "No"});
        const EnumSignals said(row);
        row.SetCurrentText(text);
        QTEST(Texts(row), "texts");
        QTEST(row.Box()->currentIndex(), "index");
        QCOMPARE(row.Box()->currentText(), text);
        QCOMPARE(said.lines.value(said.lines.size() - 1), "text " + text);
        row.SetCurrentText(text);
        QCOMPARE(said.lines.filter("text ").size(), 1);
    }

    void addedTextHasNoValueAndStays()
    {
        TPropertyEnum row("Label", {"Auto", "Yes", "No"});
        row.SetCurrentText("Maybe");
        QVERIFY(!row.Box()->itemData(0).isValid());
        row.SetCurrentEnum(2);
        QCOMPARE(row.Box()->currentText(), QString("No"));
        QCOMPARE(Texts(row), (QStringList{"Maybe", "Auto", "Yes", "No"}));
        row.SetCurrentText("Maybe");
        QCOMPARE(row.Box()->count(), 4);
        QCOMPARE(row.Box()->currentIndex(), 0);
    }

    void addedTextOverAnotherChoice()
    {
        TPropertyEnum row("Label", {"Auto", "Yes", "No"});
        row.SetCurrentEnum(1);
        const EnumSignals said(row);
        row.SetCurrentText("Maybe");
        QCOMPARE(row.Box()->currentText(), QString("Maybe"));
        QCOMPARE(said.lines.filter("text "), QStringList{"text Maybe"});
    }

    void setCurrentTextFillsAnEmptyList()
    {
        TPropertyEnum row("Label");
        const EnumSignals said(row);
        row.SetCurrentText("Top - Bottom");
        QCOMPARE(Texts(row), QStringList{"Top - Bottom"});
        QCOMPARE(row.Box()->currentIndex(), 0);
        QCOMPARE(said.lines.filter("text "), QStringList{"text Top - Bottom"});
    }

    void anglesAreFixed()
    {
        TPropertyAngleEnum row("Rotation:");
        QCOMPARE(Texts(row), (QStringList{"0", "90", "180", "270"}));
        QCOMPARE(Data(row), (QVariantList{0.0, 90.0, 180.0, 270.0}));
        for (const QVariant& angle : Data(row)) {
            QCOMPARE(int(angle.type()), int(QVariant::Double));
        }
        row.SetCurrentAngle(180);
        QCOMPARE(row.CurrentAngle(), 180.0F);
        QCOMPARE(row.Box()->currentIndex(), 2);
        row.SetCurrentAngle(45);
        QCOMPARE(row.CurrentAngle(), 180.0F);
    }

    void angleIsReportedAsFloat()
    {
        const TPropertyAngleEnum row("Rotation:");
        const QSignalSpy changes(&row, SIGNAL(sigAngleChanged(float)));
        row.Box()->setCurrentIndex(3);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes[0][0].userType(), int(QMetaType::Float));
        QCOMPARE(changes[0][0].toFloat(), 270.0F);
    }

    void padShapesAreFixed()
    {
        TPropertyPadShape row("Shape:");
        QCOMPARE(Texts(row), (QStringList{"Round", "Square", "Octangle", "Obround", "Rectangle", "Octangle(long)"}));
        QCOMPARE(Data(row), (QVariantList{1, 2, 3, 4, 5, 6}));
        row.SetCurrentPadShape(TGraphicsPadItem::ShapeObround);
        QCOMPARE(row.CurrentPadShape(), TGraphicsPadItem::ShapeObround);
        row.SetCurrentPadShape(static_cast<TGraphicsPadItem::TypePadShape>(0));
        QCOMPARE(row.CurrentPadShape(), TGraphicsPadItem::ShapeObround);
    }

    void padShapeIsReported_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("shape");
        QTest::newRow("Round is 1") << "Round" << 1;
        QTest::newRow("Octangle(long) is 6") << "Octangle(long)" << 6;
    }

    void padShapeIsReported()
    {
        QFETCH(QString, text);
        const TPropertyPadShape row("Shape:");
        QList<int> reported;
        connect(&row, &TPropertyPadShape::sigPadShapeChanged,
                [&reported](TGraphicsPadItem::TypePadShape shape) { reported.append(shape); });
        row.Box()->setCurrentText(text);
        QCOMPARE(reported.size(), 1);
        QTEST(reported.first(), "shape");
    }

    void penStylesAreSamples()
    {
        const TPropertyPenStyle row("Style:");
        QSet<int> styles;
        for (int i = 0; i < row.Box()->count(); ++i) {
            QVERIFY(!row.Box()->itemIcon(i).isNull());
            styles.insert(row.Box()->itemData(i).toInt());
        }
        QCOMPARE(styles.size(), row.Box()->count());
        for (const Qt::PenStyle style :
             {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine}) {
            QVERIFY(styles.contains(style));
        }
    }

    void penSampleIsALineTwoPixelsWide_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("solid");
        QTest::newRow("solid") << int(Qt::SolidLine) << true;
        QTest::newRow("dashes") << int(Qt::DashLine) << false;
        QTest::newRow("dots") << int(Qt::DotLine) << false;
        QTest::newRow("dash dot") << int(Qt::DashDotLine) << false;
        QTest::newRow("dash dot dot") << int(Qt::DashDotDotLine) << false;
    }

    void penSampleIsALineTwoPixelsWide()
    {
        QFETCH(int, style);
        QFETCH(bool, solid);
        const TPropertyPenStyle row("Style:");
        const QIcon icon = row.Box()->itemIcon(row.Box()->findData(style));
        QCOMPARE(icon.availableSizes().size(), 1);
        const QImage sample = icon.pixmap(icon.availableSizes().first()).toImage();
        const QRgb background = sample.pixel(0, 0);
        QPixmap ground(1, 1);
        ground.fill(Qt::color0);
        QCOMPARE(sample.pixelColor(0, 0), ground.toImage().pixelColor(0, 0));

        int linedRows = 0;
        bool gaps = false;
        for (int y = 0; y < sample.height(); ++y) {
            int drawn = 0;
            for (int x = 0; x < sample.width(); ++x) {
                drawn += sample.pixel(x, y) != background ? 1 : 0;
            }
            linedRows += drawn > 0 ? 1 : 0;
            gaps = gaps || (drawn > 0 && drawn < sample.width() * 9 / 10);
        }
        QCOMPARE(linedRows, 2);
        QCOMPARE(gaps, !solid);
    }

    void penStyleIsReported()
    {
        TPropertyPenStyle row("Style:");
        QList<int> reported;
        connect(&row, &TPropertyPenStyle::sigPenStyleChanged,
                [&reported](Qt::PenStyle style) { reported.append(style); });
        row.Box()->setCurrentIndex(row.Box()->findData(int(Qt::DotLine)));
        QCOMPARE(row.CurrentPenStyle(), Qt::DotLine);
        row.SetCurrentPenStyle(Qt::DashDotLine);
        row.SetCurrentPenStyle(Qt::CustomDashLine);
        QCOMPARE(row.CurrentPenStyle(), Qt::DashDotLine);
        QCOMPARE(reported, (QList<int>{Qt::DotLine, Qt::DashDotLine}));
    }

    void withoutEditorHasDefaults()
    {
        TPropertyAngleEnum angle("Label");
        TPropertyEnum enumeration("Label", {"Auto", "Yes"});
        TPropertyLayer layer("Label", sides, Workspace());
        TPropertyPadShape shape("Label");
        TPropertyPenStyle pen("Label");
        angle.SetCurrentAngle(90);
        enumeration.SetCurrentEnum(1);
        layer.SetCurrentLayer(Osmirel::CopperTop);
        shape.SetCurrentPadShape(TGraphicsPadItem::ShapeRound);
        pen.SetCurrentPenStyle(Qt::DotLine);
        for (TPropertyChoice* row :
             std::initializer_list<TPropertyChoice*>{&angle, &enumeration, &layer, &shape, &pen}) {
            delete row->Editor();
        }
        AskRowsWithoutBox(angle, enumeration, layer, shape, pen);
    }

    void withForeignEditorHasDefaults()
    {
        WithForeignEditor<TPropertyAngleEnum> angle("Label");
        WithForeignEditor<TPropertyEnum> enumeration("Label", QStringList{"Auto", "Yes"});
        WithForeignEditor<TPropertyLayer> layer("Label", sides, Workspace());
        WithForeignEditor<TPropertyPadShape> shape("Label");
        WithForeignEditor<TPropertyPenStyle> pen("Label");
        AskRowsWithoutBox(angle, enumeration, layer, shape, pen);
    }

    void changeWithoutEditorSaysNothing_data() { startsWithoutACurrentItem_data(); }

    void changeWithoutEditorSaysNothing()
    {
        QFETCH(MakeRow, make);
        QFETCH(QByteArray, signature);
        const auto row = make();
        const Test::SignalCounter changes(row.get(), signature);
        delete row->Editor();
        QVERIFY(QMetaObject::invokeMethod(row.get(), "slotRowChanged", Q_ARG(int, 1)));
        QCOMPARE(changes.Count(), 0);
    }
};

PROPERTIES_TEST(TestChoiceRows)
#include "tst_choice.moc"
