#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyColor.h"

#include <QComboBox>
#include <QSignalSpy>

namespace {

const QStringList palette = {
    "#FF5511", "#FF8800", "#FFBB00", "#FFFF00", "#BBFF00", "#77FF00", "#00FF00", "#00FF99",
    "#00FFFF", "#00BBFF", "#0066FF", "#0000FF", "#5500FF", "#7700FF", "#9900FF", "#FF0088",
    "#FF0000", "#DDDDDD", "#AAAAAA", "#888888", "#666666", "#444444",
};

QStringList Texts(const QComboBox* box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) {
        texts.append(box->itemText(i));
    }
    return texts;
}

} // namespace

class TestColorRow : public QObject
{
    Q_OBJECT

private slots:
    void offersThePalette_data()
    {
        QTest::addColumn<QColor>("current");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QString>("shown");
        QTest::newRow("invalid shows Default") << QColor() << QStringList{} << "Default";
        QTest::newRow("first of the palette is there twice")
            << QColor("#FF5511") << QStringList{"#ff5511"} << "#ff5511";
        QTest::newRow("a colour of its own comes last") << QColor("#123ABC") << QStringList{"#123abc"} << "#123abc";
        QTest::newRow("named colour") << QColor(Qt::red) << QStringList{"#ff0000"} << "#ff0000";
        QTest::newRow("digits only: the palette has that very text") << QColor("#888888") << QStringList{} << "#888888";
        QTest::newRow("transparency is left out")
            << QColor(0x12, 0x3a, 0xbc, 0x40) << QStringList{"#123abc"} << "#123abc";
    }

    void offersThePalette()
    {
        QFETCH(QColor, current);
        QFETCH(QStringList, added);
        const TPropertyColor row("Color:", current);
        const QComboBox* box = row.Box();
        QVERIFY(box);
        QCOMPARE(row.text(1), QString("Color:"));
        QCOMPARE(static_cast<const QWidget*>(box), row.Editor());
        QCOMPARE(box->iconSize(), QSize(18, 18));
        QCOMPARE(Texts(box), QStringList{"Default"} + palette + added);
        QTEST(box->currentText(), "shown");
        for (int i = 0; i < box->count(); ++i) {
            QVERIFY(!box->itemData(i).isValid());
        }
    }

    void swatchesAreOnePixelShort_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QColor>("color");
        QTest::newRow("first") << 1 << QColor("#FF5511");
        QTest::newRow("last") << 22 << QColor("#444444");
        QTest::newRow("added") << 23 << QColor("#204060");
    }

    void swatchesAreOnePixelShort()
    {
        QFETCH(int, entry);
        QFETCH(QColor, color);
        const TPropertyColor row("Color:", QColor("#204060"));
        const QIcon icon = row.Box()->itemIcon(entry);
        QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(18, 18)});
        const QImage swatch = icon.pixmap(18, 18).toImage();
        const QRgb rim = color.darker(200).rgba();
        for (int i = 0; i <= 16; ++i) {
            QCOMPARE(swatch.pixel(i, 0), rim);
            QCOMPARE(swatch.pixel(0, i), rim);
            QCOMPARE(swatch.pixel(i, 16), rim);
            QCOMPARE(swatch.pixel(16, i), rim);
        }
        for (int i = 1; i <= 15; ++i) {
            QCOMPARE(swatch.pixel(i, i), color.rgba());
        }
        for (int i = 0; i <= 17; ++i) {
            QVERIFY(swatch.pixel(17, i) != rim);
            QVERIFY(swatch.pixel(i, 17) != rim);
        }
    }

    void defaultHasNoSwatch()
    {
        const TPropertyColor row("Color:", QColor());
        QVERIFY(row.Box()->itemIcon(0).isNull());
        QVERIFY(!row.Box()->itemIcon(1).isNull());
    }

    void reportsTheChosenColor_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        QTest::newRow("of the palette") << "#0066FF" << QColor("#0066FF");
        QTest::newRow("first of the palette") << "#FF5511" << QColor("#FF5511");
        QTest::newRow("Default is invalid") << "Default" << QColor();
    }

    void reportsTheChosenColor()
    {
        QFETCH(QString, text);
        const TPropertyColor row("Color:", QColor("#123ABC"));
        const QSignalSpy changes(&row, SIGNAL(sigColorChanged(QColor)));
        row.Box()->setCurrentText(text);
        QCOMPARE(changes.count(), 1);
        QTEST(changes[0][0].value<QColor>(), "color");
    }

    void reportsTheUsersKeys()
    {
        const TPropertyColor row("Color:", QColor());
        const QSignalSpy changes(&row, SIGNAL(sigColorChanged(QColor)));
        QTest::keyClick(row.Box(), Qt::Key_Down);
        QTest::keyClick(row.Box(), Qt::Key_Up);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes[0][0].value<QColor>(), QColor("#FF5511"));
        QVERIFY(!changes[1][0].value<QColor>().isValid());
    }

    void saysNothingWithoutACurrentItem()
    {
        const TPropertyColor row("Color:", QColor("#123ABC"));
        const QSignalSpy changes(&row, SIGNAL(sigColorChanged(QColor)));
        row.Box()->setCurrentIndex(-1);
        QCOMPARE(changes.count(), 0);
    }

    void withoutEditorIsSilent()
    {
        TPropertyColor row("Color:", QColor());
        const QSignalSpy changes(&row, SIGNAL(sigColorChanged(QColor)));
        delete row.Editor();
        QVERIFY(!row.Box());
        QVERIFY(QMetaObject::invokeMethod(&row, "slotRowChanged", Q_ARG(int, 5)));
        QCOMPARE(changes.count(), 0);
    }
};

PROPERTIES_TEST(TestColorRow)
#include "tst_color.moc"
