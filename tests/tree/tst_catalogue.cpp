#include "tests/support/Symbols.h"
#include "tests/support/TestProgram.h"
#include "tests/tree/TestSources.h"

#include <QHash>
#include <QtTest>

using Test::SourcesOf;
using Test::TextOf;

namespace {

/** One line of the catalogue: a class, its id, the header that declares it, and the test programs that hold it. */
struct Row
{
    QString name;
    QString id; ///< As it is written; empty for none. Sets have no ids.
    QString header;
    QStringList programs;
};

QVector<Row> Catalogue()
{
    static const QRegularExpression line(
        QStringLiteral(R"(^\| `(T\w+)` \|[^|]*\|(?:([^|`]*)\|)? `(properties/[\w/.]+)` \| (.+) \|$)"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression program(QStringLiteral("`([a-z]+\\.\\w+)`"));
    QVector<Row> rows;
    auto matches = line.globalMatch(TextOf(QStringLiteral("docs/catalogue.md")));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        Row row{match.captured(1), match.captured(2).trimmed(), match.captured(3), {}};
        auto programs = program.globalMatch(match.captured(4));
        while (programs.hasNext()) {
            row.programs.append(programs.next().captured(1));
        }
        rows.append(row);
    }
    return rows;
}

/** The classes of that name whose constructors the library exports. */
QStringList Exported(const QString& namePattern)
{
    const QRegularExpression constructor(QStringLiteral(R"(^[0-9a-f]+ [TW] (%1)::\1\()").arg(namePattern),
                                         QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = constructor.globalMatch(Test::DefinedSymbols(QStringLiteral(PROPERTIES_LIBRARY)));
    while (matches.hasNext()) {
        names.append(matches.next().captured(1));
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

QStringList Listed(const QString& prefix)
{
    QStringList names;
    for (const Row& row : Catalogue()) {
        if (row.name.startsWith(prefix)) {
            names.append(row.name);
        }
    }
    names.sort();
    return names;
}

/** The ids as they are written in their header, by the names of the commands without "TCmd". */
QHash<QString, QString> Ids()
{
    static const QRegularExpression line(QStringLiteral(R"(^    (\w+) = (\d+),$)"),
                                         QRegularExpression::MultilineOption);
    QHash<QString, QString> ids;
    auto matches = line.globalMatch(TextOf(QStringLiteral("properties/commands/CommandIds.h")));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        ids.insert(match.captured(1), match.captured(2));
    }
    return ids;
}

bool Mentions(const QString& text, const QString& name)
{
    return QRegularExpression(QStringLiteral("\\b%1\\b").arg(name)).match(text).hasMatch();
}

} // namespace

/** Holds the catalogue of sets and commands to the built library, its headers and its tests. */
class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void listsWhatTheLibraryExports_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::newRow("sets") << "TPropertySetFor";
        QTest::newRow("commands") << "TCmd";
    }
    void listsWhatTheLibraryExports()
    {
        QFETCH(QString, prefix);
        const QStringList exported = Exported(prefix + QStringLiteral("\\w+"));
        QVERIFY(!exported.isEmpty());
        QCOMPARE(Listed(prefix), exported);
    }

    void saysWhereEachIsBuiltAndTested_data()
    {
        QTest::addColumn<QString>("header");
        QTest::addColumn<QStringList>("programs");
        for (const Row& row : Catalogue()) {
            QTest::newRow(row.name.toUtf8()) << row.header << row.programs;
        }
    }
    void saysWhereEachIsBuiltAndTested()
    {
        QFETCH(QString, header);
        QFETCH(QStringList, programs);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        QVERIFY2(TextOf(header).contains(QStringLiteral("class PROPERTIES_EXPORT %1\n").arg(name))
                     || TextOf(header).contains(QStringLiteral("class PROPERTIES_EXPORT %1 :").arg(name)),
                 qPrintable(header));
        QVERIFY(!programs.isEmpty());
        for (const QString& program : qAsConst(programs)) {
            QVERIFY2(Mentions(SourcesOf(program), name), qPrintable(program));
        }
    }

    void saysTheIdOfEachCommand_data()
    {
        QTest::addColumn<QString>("id");
        for (const Row& row : Catalogue()) {
            if (row.name.startsWith(QStringLiteral("TCmd"))) {
                QTest::newRow(row.name.toUtf8()) << row.id;
            }
        }
    }
    void saysTheIdOfEachCommand()
    {
        QFETCH(QString, id);
        QCOMPARE(id, Ids().value(QString::fromUtf8(QTest::currentDataTag()).mid(4)));
    }

    void everyIdIsThatOfACommand()
    {
        const QStringList commands = Listed(QStringLiteral("TCmd"));
        const QStringList names = Ids().keys();
        QVERIFY(!names.isEmpty());
        for (const QString& name : names) {
            QVERIFY2(commands.contains(QStringLiteral("TCmd") + name), qPrintable(name));
        }
    }
};

PROPERTIES_TEST(TestCatalogue)
#include "tst_catalogue.moc"
