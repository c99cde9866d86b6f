#include "tests/commands/ProjectLawTable.h"
#include "tests/laws/LawTable.h"
#include "tests/support/Places.h"
#include "tests/support/Symbols.h"
#include "tests/support/TestProgram.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

namespace {

/** The names of the classes whose constructors are among the symbols. */
QStringList CommandsAmong(const QString& symbols)
{
    static const QRegularExpression constructor(R"(^[0-9a-f]+ [TW] (TCmd\w+)::\1\()",
                                                QRegularExpression::MultilineOption);
    QStringList names;
    for (auto match = constructor.globalMatch(symbols); match.hasNext();) {
        names.append(match.next().captured(1));
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

struct Id
{
    QString name;
    int number;
};

/** The ids of the enumeration, in the order in which the header lists them. */
QList<Id> IdsIn(const QString& header)
{
    static const QRegularExpression entry(R"(^\s*(\w+) = (-?\d+),)", QRegularExpression::MultilineOption);
    QList<Id> ids;
    for (auto match = entry.globalMatch(header); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        ids.append({found.captured(1), found.captured(2).toInt()});
    }
    return ids;
}

/** The commands of both tables with their ids. */
QList<Id> IdsOfLaws()
{
    QList<Id> ids;
    for (const Test::CommandLaw& law : Test::LawTable()) {
        ids.append({law.name, law.id});
    }
    for (const Test::ProjectLaw& law : Test::ProjectLawTable()) {
        ids.append({law.name, law.id});
    }
    return ids;
}

} // namespace

class TestExported : public QObject
{
    Q_OBJECT

private slots:
    void everyExportedCommandHasItsLaw()
    {
        const QString symbols = Test::DefinedSymbols(QStringLiteral(PROPERTIES_LIBRARY));
        QVERIFY2(!symbols.isEmpty(), PROPERTIES_LIBRARY);
        const QStringList exported = CommandsAmong(symbols);

        QStringList lawful;
        for (const Id& law : IdsOfLaws()) {
            lawful.append(law.name);
        }
        lawful.sort();
        QVERIFY(!lawful.isEmpty());
        QCOMPARE(exported, lawful);
    }

    void findsConstructorsOnly()
    {
        QCOMPARE(CommandsAmong("0000000000012340 T TCmdB::TCmdB(QList<TGraphicsItem*> const&, double)\n"
                               "0000000000012340 T TCmdB::TCmdB(QList<TGraphicsItem*> const&, double)\n"
                               "0000000000012350 T TCmdA::TCmdA()\n"
                               "                 U TCmdForeign::TCmdForeign(int)\n"
                               "0000000000012360 V vtable for TCmdC\n"
                               "0000000000012370 W TCmdD::redo()\n"
                               "0000000000012380 T f(TCmdE::TCmdE)\n"),
                 QStringList({"TCmdA", "TCmdB"}));
    }

    void idsAreUniqueAndAscending()
    {
        QList<Id> ids = IdsIn(Test::TextOf("properties/commands/CommandIds.h"));
        QVERIFY(ids.size() > 1);
        QCOMPARE(ids.takeFirst().number, -1); // that of a command without an id
        for (int i = 0; i < ids.size(); ++i) {
            QVERIFY2(i == 0 || ids[i - 1].number < ids[i].number, qPrintable(ids[i].name));
        }
    }

    void everyIdBelongsToOneLaw()
    {
        const QList<Id> ids = IdsIn(Test::TextOf("properties/commands/CommandIds.h"));
        const QList<Id> laws = IdsOfLaws();
        for (const Id& id : ids) {
            const auto owners = std::count_if(laws.begin(), laws.end(), [&id](const Id& law) {
                return law.number == id.number && law.name == "TCmd" + id.name;
            });
            QVERIFY2(id.number == -1 || owners == 1, qPrintable(id.name));
        }
        for (const Id& law : laws) {
            QVERIFY2(std::any_of(ids.begin(), ids.end(), [&law](const Id& id) { return id.number == law.number; }),
                     qPrintable(law.name));
        }
    }
};

PROPERTIES_TEST(TestExported)
#include "tst_exported.moc"
