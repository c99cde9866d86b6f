#include "tests/contract/ContractPage.h"
#include "tests/contract/HostHeaders.h"
#include "tests/support/Places.h"
#include "tests/support/Symbols.h"
#include "tests/support/TestProgram.h"
#include "tests/tree/TestSources.h"

#include <QDirIterator>
#include <QtTest>

#include <algorithm>

using HostHeaders::Header;
using HostHeaders::Member;

namespace {

const char* const madeUpHeader = R"(#include <objects/TOld.h>
#include <QList>

class TOther;

/** A class { */
class TNew : public TOld
{
public:
    enum class TSide { Left, Right = 4, Middle };

    TNew();
    ~TNew() override;
    int type() const override;
    QPen& Pen();
    const QPen& Pen() const;
    static const TRow* Row(const QMap<QString, int>& ofRows,
                           quint8 number, TSide side);

protected:
    void Hidden();
    int field = 0; ///< public:
};

struct TRow
{
    QSize size{1, 2};
    bool isOn = false;
};

class TBase
{
protected:
    void Offered(bool on);
    bool isHidden = true;
};
)";

const QString root = Test::SourcePath();

QStringList FilesOf(const QString& folder)
{
    QStringList files;
    QDirIterator found(root + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        files.append(found.next().mid(root.size()));
    }
    files.sort();
    return files;
}

bool Contains(const QString& text, const QString& pattern)
{
    return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(text).hasMatch();
}

QStringList Captured(const QString& text, const QString& pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    found.removeDuplicates();
    return found;
}

/** Those of the first list that the second lacks, each with what is to be done about it. */
QString Lacking(const QStringList& wanted, const QStringList& there, const char* advice)
{
    QString lines;
    for (const QString& entry : wanted) {
        if (!there.contains(entry)) {
            lines += QStringLiteral("\n  %1\n    %2").arg(entry, QLatin1String(advice));
        }
    }
    return lines;
}

} // namespace

/** Holds docs/embedding.md, the headers of the contract host, and what the library uses to each other. */
class TestTables : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        ReadLibrary();
        ReadSymbols();
        ReadHost();
        page = ContractPage::Text();
        for (const QString& operation : ContractPage::Operations(page)) {
            (operation.startsWith(QLatin1Char('Q')) ? toolkitListed : listed).append(operation);
        }
        QVERIFY(headers.size() > 30 && declared.size() > 200 && listed.size() > 200 && symbols.size() > 200);
    }

    void whatIsDeclaredIsListed()
    {
        Expect(Lacking(declared, listed,
                       "is declared in tests/contract/host and not listed: add it to its table in docs/embedding.md"));
    }

    void whatIsListedIsDeclared()
    {
        Expect(Lacking(listed, declared,
                       "is listed in docs/embedding.md and not declared: declare it in tests/contract/host if the "
                       "library uses it, else take it off the page"));
        QStringList once = listed;
        QCOMPARE(once.removeDuplicates(), 0);
    }

    void whatIsDeclaredIsUsed()
    {
        QStringList unused;
        for (const Header& header : qAsConst(headers)) {
            for (const QString& type : header.declares) {
                if (!Contains(library, QStringLiteral(R"(\b%1\b)").arg(type.section(QLatin1Char(' '), 0, 0)))) {
                    unused.append(type);
                }
            }
            for (const Member& member : header.members) {
                if (!IsUsed(member)) {
                    unused.append(member.scope + QStringLiteral(": ")
                                  + (member.spelling.isEmpty() ? member.symbol : member.spelling));
                }
            }
        }
        Expect(Lacking(unused, {},
                       "is not used by the library any more: take it off docs/embedding.md and out of "
                       "tests/contract/host"));
    }

    /** Without this, declarations that are not understood would be missed. */
    void whatIsUsedIsRead()
    {
        QStringList known;
        QStringList scopes;
        for (const Header& header : qAsConst(headers)) {
            for (const Member& member : header.members) {
                known.append(member.symbol);
                scopes.append(member.scope);
            }
        }
        QStringList used;
        for (const QString& symbol : qAsConst(symbols)) {
            if (scopes.contains(symbol.section(QStringLiteral("::"), 0, 0)) && !symbol.contains(QLatin1Char('~'))) {
                used.append(symbol);
            }
        }
        QVERIFY(used.size() > 200);
        Expect(Lacking(used, known, "is used by the library, but this test does not read its declaration"));
    }

    void headersAreAsListed()
    {
        const QString bracketed = QStringLiteral("<%1>");
        QStringList found;
        for (const Header& header : qAsConst(headers)) {
            QStringList includes;
            for (const QString& include : header.includes) {
                includes.append(bracketed.arg(include));
            }
            const QString reached = included.contains(header.name) ? QString() : QStringLiteral("through others");
            found.append(
                QStringList{bracketed.arg(header.name), header.declares.join(", "), includes.join(", "), reached}.join(
                    " | "));
        }
        QStringList rows;
        for (const QStringList& cells : ContractPage::Rows(page, QStringLiteral("| header |"))) {
            rows.append(QStringList(cells.mid(0, 4)).join(" | ").remove('`'));
        }
        Expect(Lacking(found, rows, "is what tests/contract/host has, and no row of the headers in docs/embedding.md")
               + Lacking(rows, found, "is a row of docs/embedding.md, and not what tests/contract/host has"));
    }

    void everyHeaderIsReached()
    {
        QStringList reached = included;
        for (int i = 0; i < reached.size(); ++i) {
            for (const Header& header : qAsConst(headers)) {
                if (header.name == reached.at(i)) {
                    reached += header.includes;
                }
            }
        }
        QStringList names;
        for (const Header& header : qAsConst(headers)) {
            names.append(header.name);
        }
        Expect(Lacking(names, reached, "is not reached by the library: take it out of tests/contract/host")
               + Lacking(included, names, "is included by the library and not there in tests/contract/host"));
    }

    void operationsOfTheToolkitAreAsListed()
    {
        QStringList used{QStringLiteral("QGraphicsItem: type()")}; // Virtual: the linker does not name it.
        for (const QString& symbol : qAsConst(symbols)) {
            if (symbol.startsWith(QLatin1String("QGraphics"))) {
                used.append(symbol.section(QLatin1Char('@'), 0, 0)
                                .remove(QStringLiteral(" const"))
                                .replace(QStringLiteral("::"), QStringLiteral(": ")));
            }
        }
        QVERIFY(Contains(library, QStringLiteral(R"((->|\.)type\(\))")));
        Expect(Lacking(used, toolkitListed, "is used by the library: list it in docs/embedding.md, From the toolkit")
               + Lacking(toolkitListed, used, "is not used by the library: take it off docs/embedding.md"));
    }

    void codeIsThatOfTheExample()
    {
        QString example;
        for (const QString& file : FilesOf(QStringLiteral("examples/embed"))) {
            example += Test::TextOf(file);
        }
        const QStringList blocks = ContractPage::Code(page);
        QVERIFY(!blocks.isEmpty());
        for (const QString& block : blocks) {
            QVERIFY2(block.size() > 100 && example.contains(block),
                     qPrintable(QStringLiteral("docs/embedding.md shows what examples/embed does not do:\n") + block));
        }
    }

    void readsDeclarations()
    {
        const Header header = HostHeaders::Read("objects/TNew.h", madeUpHeader, {"TBase"});
        QCOMPARE(header.includes, QStringList("objects/TOld.h"));
        QCOMPARE(header.declares, QStringList({"TNew : TOld", "TRow", "TBase"}));
        QStringList spelled;
        QStringList called;
        for (const Member& member : header.members) {
            spelled.append(member.spelling);
            called.append(member.symbol);
        }
        called.removeAll(QString());
        QCOMPARE(spelled, QStringList({"enum TSide", "Left = 0", "Right = 4", "Middle = 5", "TNew()", "QPen& Pen()", "",
                                       "TRow* Row(QMap<QString, int>, quint8, TSide)", "QSize size", "bool isOn",
                                       "Offered(bool)"}));
        const QString row = "TNew::Row(QMap<QString, int>, unsigned char, TSide)";
        QCOMPARE(called,
                 QStringList({"TNew::TNew()", "TNew::Pen()", "TNew::Pen() const", row, "TBase::Offered(bool)"}));
        QCOMPARE(HostHeaders::Symbol("TNew::Row(QMap<QString, int> const&, unsigned char, TNew::TSide)"), row);
    }

    void tellsWhatIsLacking()
    {
        QCOMPARE(Lacking({"a", "b"}, {"b", "c"}, "add it"), QString("\n  a\n    add it"));
        QCOMPARE(Lacking({"b"}, {"b", "c"}, "add it"), QString());
    }

private:
    static void Expect(const QString& lacking) { QVERIFY2(lacking.isEmpty(), qPrintable(lacking)); }

    void ReadLibrary()
    {
        static const QRegularExpression comment(QStringLiteral(R"(/\*.*?\*/|//[^\n]*)"),
                                                QRegularExpression::DotMatchesEverythingOption);
        for (const QString& file : FilesOf(QStringLiteral("properties"))) {
            sources.append(Test::TextOf(file).remove(comment));
        }
        library = sources.join(QLatin1Char('\n'));
        included =
            Captured(library, QStringLiteral("#include <((?:workspace|graphics|objects|application)/\\w+\\.h)>"));
    }

    /** The symbols that the library, built against the contract host, takes from others. */
    void ReadSymbols()
    {
        const QString output = Test::UndefinedSymbols(QStringLiteral(PROPERTIES_CONTRACT_LIBRARY));
        QVERIFY2(!output.isEmpty(), "contract.build has not built the library");
        for (const QString& symbol : Captured(output, QStringLiteral(R"(^ +U ([A-Z]\w+::.+)$)"))) {
            symbols.append(HostHeaders::Symbol(symbol));
        }
    }

    void ReadHost()
    {
        const QStringList bases = Captured(library, QStringLiteral(R"(^class \w+(?: \w+)? : public (T\w+)$)"));
        for (const char* folder : {"workspace", "graphics", "objects", "application"}) {
            for (const QString& file : FilesOf(QStringLiteral("tests/contract/host/") + QLatin1String(folder))) {
                if (file.endsWith(QLatin1String(".h"))) {
                    headers.append(HostHeaders::Read(file.section(QLatin1Char('/'), 3), Test::TextOf(file), bases));
                    DropUnusedConstructors(headers.last());
                    for (const Member& member : qAsConst(headers.last().members)) {
                        if (!member.spelling.isEmpty()) {
                            declared.append(member.scope + QStringLiteral(": ") + member.spelling);
                        }
                    }
                }
            }
        }
    }

    /** A default constructor is there, written or not; only those that the library calls are part of the contract. */
    void DropUnusedConstructors(Header& header) const
    {
        const auto isUnused = [this](const Member& member) {
            return member.spelling == member.scope + QStringLiteral("()") && !symbols.contains(member.symbol);
        };
        header.members.erase(std::remove_if(header.members.begin(), header.members.end(), isUnused),
                             header.members.end());
    }

    bool IsUsed(const Member& member) const
    {
        if (!member.symbol.isEmpty()) {
            return symbols.contains(member.symbol);
        }
        const bool isField = !member.spelling.contains(QLatin1Char('=')) && !member.spelling.startsWith("enum ");
        if (isField) {
            return std::any_of(sources.cbegin(), sources.cend(), [&member](const QString& source) {
                return Contains(source, QStringLiteral(R"(\b%1\b)").arg(member.scope))
                       && Contains(source, QStringLiteral(R"((->|\.)%1\b(?! *\())").arg(member.name));
            });
        }
        const QString asArgument = QStringLiteral(R"([(, ]%1[,)])").arg(member.name);
        const bool isOfACall = member.spelling.startsWith("enum ")
                               && std::any_of(symbols.cbegin(), symbols.cend(), [&asArgument](const QString& symbol) {
                                      return Contains(symbol, asArgument);
                                  });
        if (isOfACall) {
            return true;
        }
        const QString qualified = member.enumeration.isEmpty() ? member.scope : member.scope + '|' + member.enumeration;
        return Contains(library, QStringLiteral(R"(\b(%1)::%2\b)").arg(qualified, member.name))
               || (Contains(library, QStringLiteral(" : public %1$").arg(member.scope))
                   && Contains(library, QStringLiteral(R"((?<!::)\b%1\b)").arg(member.name)));
    }

    QStringList sources; ///< Of the library, without comments.
    QString library;     ///< All of them.
    QStringList included;
    QStringList symbols;
    QVector<Header> headers;
    QStringList declared;
    QString page;
    QStringList listed;
    QStringList toolkitListed;
};

PROPERTIES_TEST(TestTables)
#include "tst_tables.moc"
