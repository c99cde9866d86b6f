#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

/** Holds the benchmarks to what is exported: every command and every set is measured, or said to have nothing to
 *  measure, and its results are written down. */
class TestBenchmarks : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandIsMeasured_data() { AddRows("commands", "TCmd"); }
    void everyCommandIsMeasured()
    {
        QFETCH(QString, name);
        if (ThatDoNothing().contains(name)) {
            QCOMPARE(RowsOf(name), 1); // It says so.
            return;
        }
        QVERIFY(IsRegistered(name));
        QVERIFY(RowsOf(name) >= 1);
    }

    void everySetIsMeasured_data() { AddRows("sets", "TPropertySetFor"); }
    void everySetIsMeasured()
    {
        QFETCH(QString, name);
        QVERIFY(IsRegistered(name));
        QCOMPARE(RowsOf(name), 1);
    }

    void whatDoesNothingIsExported()
    {
        const QStringList exported = Exported("commands", "TCmd");
        QVERIFY(!ThatDoNothing().isEmpty());
        for (const QString& name : ThatDoNothing()) {
            QVERIFY2(exported.contains(name), qPrintable(name));
        }
    }

private:
    static void AddRows(const char* folder, const char* prefix)
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : Exported(folder, prefix)) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }

    /** The names of the exported classes of a folder that begin like this. */
    static QStringList Exported(const char* folder, const char* prefix)
    {
        const QRegularExpression declaration(QStringLiteral("^class PROPERTIES_EXPORT (%1\\w+)").arg(prefix),
                                             QRegularExpression::MultilineOption);
        QStringList names;
        auto matches = declaration.globalMatch(TextOfAll(QStringLiteral("properties/%1").arg(folder), "*.h"));
        while (matches.hasNext()) {
            names.append(matches.next().captured(1));
        }
        return names;
    }

    /** The names in the README's sentence about those that are not measured. */
    static QStringList ThatDoNothing()
    {
        static const QRegularExpression sentence(QStringLiteral(R"(((?:`TCmd\w+`[,\s]*(?:and\s+)?)+)do\s+nothing)"));
        return sentence.match(Readme()).captured(1).split(QRegularExpression(QStringLiteral(R"(\W+|\band\b)")),
                                                          Qt::SkipEmptyParts);
    }

    /** In how many rows of results a name stands, variants included. */
    static int RowsOf(const QString& name)
    {
        const QString results = Readme().mid(Readme().indexOf(QStringLiteral("\n## Results")));
        const QRegularExpression row(QStringLiteral(R"(^\| `%1` (\([a-z ]+\) )?\|)").arg(name),
                                     QRegularExpression::MultilineOption);
        return results.count(row);
    }

    static bool IsRegistered(const QString& name)
    {
        static const QString sources = TextOfAll(QStringLiteral("benchmarks"), "*.cpp")
                                       + TextOfAll(QStringLiteral("benchmarks/commands"), "*.cpp");
        return sources.contains(QStringLiteral("\"%1\"").arg(name));
    }

    static QString Readme()
    {
        static const QString text = TextOfAll(QStringLiteral("benchmarks"), "README.md");
        return text;
    }

    static QString TextOfAll(const QString& folder, const char* files)
    {
        const QDir dir(Test::SourcePath(folder));
        QString text;
        for (const QString& name : dir.entryList({QString::fromLatin1(files)}, QDir::Files)) {
            QFile file(dir.filePath(name));
            if (!file.open(QIODevice::ReadOnly)) {
                qFatal("%s cannot be read", qPrintable(name));
            }
            text += QString::fromUtf8(file.readAll());
        }
        return text;
    }
};

PROPERTIES_TEST(TestBenchmarks)
#include "tst_benchmarks.moc"
