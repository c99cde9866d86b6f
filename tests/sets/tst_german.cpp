#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace {

using Test::TextOf;

/** The texts that a set asks to be translated, as its source spells them. */
QStringList TextsOfSource(const QString& file)
{
    static const QRegularExpression request(QStringLiteral("\\btr\\(\"([^\"]+)\"\\)"));
    QStringList texts;
    auto found = request.globalMatch(TextOf(file));
    while (found.hasNext()) {
        texts.append(found.next().captured(1));
    }
    return texts;
}

} // namespace

/** The German translation has all texts of the sets. */
class TestGerman : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QXmlStreamReader reader(TextOf(QStringLiteral("properties/translations/properties_de.ts")));
        QString context;
        QString source;
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement()) {
                continue;
            }
            if (reader.name() == QLatin1String("name")) {
                context = reader.readElementText();
            } else if (reader.name() == QLatin1String("source")) {
                source = reader.readElementText();
            } else if (reader.name() == QLatin1String("translation")) {
                const bool finished = !reader.attributes().hasAttribute(QStringLiteral("type"));
                const QString german = reader.readElementText();
                QVERIFY2(finished && !german.isEmpty(), qPrintable(context + '/' + source));
                translated.insert(context + '/' + source);
            }
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    }

    void hasEveryTextOfTheSet_data()
    {
        QTest::addColumn<QString>("context");
        const QDir sets(Test::SourcePath("properties/sets"));
        const QStringList files = sets.entryList({QStringLiteral("TPropertySetFor*.cpp")}, QDir::Files);
        for (const QString& file : files) {
            QTest::newRow(qPrintable(file)) << file.chopped(4);
        }
        QVERIFY(!files.isEmpty());
    }

    void hasEveryTextOfTheSet()
    {
        QFETCH(QString, context);
        const QStringList texts = TextsOfSource(QStringLiteral("properties/sets/%1.cpp").arg(context));
        QVERIFY(!texts.isEmpty());
        for (const QString& text : texts) {
            QVERIFY2(translated.contains(context + '/' + text), qPrintable(text));
        }
    }

private:
    QSet<QString> translated; ///< As "context/text".
};

PROPERTIES_TEST(TestGerman)
#include "tst_german.moc"
