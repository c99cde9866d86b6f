#include "tests/commands/LawRows.h"
#include "tests/commands/MixedBoard.h"
#include "tests/commands/ProjectLawTable.h"
#include "tests/laws/LawTable.h"
#include "tests/support/TestProgram.h"

#include "properties/commands/CommandKind.h"

#include <QDir>
#include <QSet>
#include <QTranslator>

namespace {

/** What a command of each class is called. */
struct Named
{
    QString name; ///< Of the class.
    QString key;
    QString phrase;
    QString phraseOfThree;
};

Named NameOf(const QString& commandClass, const QUndoCommand& command)
{
    return {commandClass, CommandKind::Key(command), CommandKind::Phrase(command),
            CommandKind::Phrase(command, QStringLiteral("3 things"))};
}

/** Of each class that the library exports, in the language that is installed. */
std::vector<Named> NamesOfAll()
{
    std::vector<Named> names;
    Test::MixedBoard board;
    for (const Test::CommandLaw& law : Test::LawTable()) {
        names.push_back(NameOf(law.name, *law.make(board.Items(), 0)));
    }
    Test::WholeProject project;
    for (const Test::ProjectLaw& law : Test::ProjectLawTable()) {
        names.push_back(NameOf(law.name, *law.make(Test::Given(&project, 0))));
    }
    return names;
}

} // namespace

/** What undo steps are called. `commands.exported` holds the tables of laws to what the library exports. */
class TestCommandKinds : public QObject
{
    Q_OBJECT

private slots:
    void eachCommandHasAKeyAndAPhrase_data() { Test::AddRowForEach(NamesOfAll()); }

    void eachCommandHasAKeyAndAPhrase()
    {
        const std::vector<Named> names = NamesOfAll();
        const Named& named = Test::CurrentRowOf(names);
        QCOMPARE("TCmd" + named.key, named.name);
        QVERIFY(!named.phrase.isEmpty());
        QVERIFY2(!named.phrase.contains("%1"), qPrintable(named.phrase));
        QVERIFY2(named.phraseOfThree.contains("3 things"), qPrintable(named.phraseOfThree));
    }

    void keysAreUnique()
    {
        QSet<QString> keys;
        for (const Named& named : NamesOfAll()) {
            QVERIFY2(!keys.contains(named.key), qPrintable(named.name));
            keys.insert(named.key);
        }
    }

    void aForeignCommandHasNeither()
    {
        const QUndoCommand command;
        QCOMPARE(CommandKind::Key(command), QString());
        QCOMPARE(CommandKind::Phrase(command), QString());
    }

    void eachPhraseIsTranslated_data()
    {
        QTest::addColumn<QString>("translation");
        const QDir translations(":/properties/translations");
        const QStringList files = translations.entryList({"properties_*.qm"});
        QVERIFY(files.contains("properties_de.qm"));
        for (const QString& file : files) {
            QTest::newRow(qPrintable(file)) << translations.filePath(file);
        }
    }

    void eachPhraseIsTranslated()
    {
        QFETCH(QString, translation);
        const std::vector<Named> english = NamesOfAll();
        QTranslator translator;
        QVERIFY(translator.load(translation));
        QVERIFY(qApp->installTranslator(&translator));
        const std::vector<Named> translated = NamesOfAll();
        for (std::size_t i = 0; i < english.size(); ++i) {
            QVERIFY2(translated[i].phrase != english[i].phrase, qPrintable(english[i].phrase));
            QVERIFY2(translated[i].phraseOfThree.contains("3 things"), qPrintable(translated[i].phraseOfThree));
            QCOMPARE(translated[i].key, english[i].key);
        }
    }
};

PROPERTIES_TEST(TestCommandKinds)
#include "tst_commandkinds.moc"
