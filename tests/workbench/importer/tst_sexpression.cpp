#include "tests/support/TestProgram.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/TImportError.h"
#include "workbench/importer/format/TSexpression.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

using Measures::ParseDecimal;
using Measures::ParseMillionths;

namespace {

/** The element with one space between atoms; quoted texts in quotes with their escapes resolved. */
QString Canonical(const TSexpression& element)
{
    if (!element.IsList()) {
        const QString text = element.Text();
        return element.IsWord(text.toStdString()) ? text : '"' + text + '"';
    }
    QStringList parts;
    if (!element.Name().empty()) {
        parts.append(QString::fromStdString(std::string(element.Name())));
    }
    for (const TSexpression value : element) {
        parts.append(Canonical(value));
    }
    return '(' + parts.join(' ') + ')';
}

/** What a piece of work fails with, as "line: cause"; empty if it does not. */
template <class Work>
QString Failure(Work work)
{
    try {
        work();
        return {};
    } catch (const TImportError& error) {
        return QStringLiteral("%1: %2").arg(error.Line()).arg(error.Cause());
    }
}

QString ParseFailure(const QByteArray& text)
{
    return Failure([&text] { TSexpressionTree tree(text); });
}

QByteArray Nested(int depth)
{
    return QByteArray(depth, '(') + QByteArray(depth, ')');
}

} // namespace

class TestSexpression : public QObject
{
    Q_OBJECT

private slots:
    void parses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("canonical");
        const auto row = [](const char* name, const char* text, const char* canonical) {
            QTest::newRow(name) << QByteArray(text) << QString::fromUtf8(canonical);
        };
        row("empty list", "()", "()");
        row("only a name", "(a)", "(a)");
        row("words", "(net 1 GND)", "(net 1 GND)");
        row("lists in lists", "(a (b 1) (c (d)) e)", "(a (b 1) (c (d)) e)");
        row("a list without a name", "((a) b)", "((a) b)");
        row("no space needed", "(a(b)\"c\"(d)e)", "(a (b) \"c\" (d) e)");
        row("white space of all kinds", "\n\t(a\r\n\tb  \n c\t)\r\n", "(a b c)");
        row("words with every mark", "(a *&.-+/=%#:$~{}[],;'\\n F&B.Cu)", "(a *&.-+/=%#:$~{}[],;'\\n F&B.Cu)");
        row("a quote inside a word", "(a b\"c d)", "(a b\"c d)");
        row("what looks like a number stays a word", "(tstamp 5E203811)", "(tstamp 5E203811)");
        row("quoted", "(a \"b c\")", "(a \"b c\")");
        row("quoted and empty", "(a \"\")", "(a \"\")");
        row("quoted parentheses", "(a \"(b) )\")", "(a \"(b) )\")");
        row("a quoted word is no name", "(\"a\" b)", "(\"a\" b)");
        row("escaped quote", "(a \"say \\\"b\\\"\")", "(a \"say \"b\"\")");
        row("escaped backslash at the end", "(a \"b\\\\\" c)", "(a \"b\\\" c)");
        row("escaped line break and tab", "(a \"b\\nc\\td\")", "(a \"b\nc\td\")");
        row("escaped numbers", "(a \"\\x41\\101\\x2e\\0601\")", "(a \"AA.01\")");
        row("escaped ordinary character", "(a \"\\q\\{\")", "(a \"q{\")");
        row("UTF-8", "(a µΩ \"größe\\n\xe2\x82\xac\")", "(a µΩ \"größe\n€\")");
    }

    void parses()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, canonical);
        const TSexpressionTree tree(text);
        QCOMPARE(Canonical(tree.Root()), canonical);
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("failure");
        const auto row = [](const char* name, const QByteArray& text, const char* failure) {
            QTest::newRow(name) << text << failure;
        };
        row("nothing", "", "1: the file is empty");
        row("white space", " \n\n ", "3: the file is empty");
        row("other text", "\nGIF89a", "2: not a design file: it does not begin with a parenthesis");
        row("never closed", "(a\n(b\n", "3: unexpected end of file: the list that begins in line 2 is not closed");
        row("not all closed", "\n(a (b)\n", "3: unexpected end of file: the list that begins in line 2 is not closed");
        row("closed twice", "(a)\n\n)", "3: unmatched closing parenthesis");
        row("text behind", "(a)\nb", "2: text after the closing parenthesis");
        row("a second list", "(a)\n(b)", "2: text after the closing parenthesis");
        row("quote never closed", "(a\n \"b", "2: unterminated quoted text");
        row("quote over two lines", "(a\n \"b\nc\")", "2: unterminated quoted text");
        row("escaped line break in a quote", "(a \"b\\\nc\")", "1: unterminated quoted text");
        row("quote ends with a backslash", "(a \"b\\", "1: unterminated quoted text");
        row("only the last quote escaped", "(a \"b\\\")", "1: unterminated quoted text");
        row("control character", "(a\nb\001c)", "2: unexpected control character (code 1)");
        row("zero byte", QByteArray("(a\n\0)", 5), "2: unexpected control character (code 0)");
        row("too deep", Nested(TSexpressionTree::maxDepth + 1), "1: lists are nested more than 100 deep");
        row("far too deep", Nested(3'000'000), "1: lists are nested more than 100 deep");
    }

    void refuses()
    {
        QFETCH(QByteArray, text);
        QTEST(ParseFailure(text), "failure");
    }

    void allowsTheDeepestNesting() { QCOMPARE(ParseFailure(Nested(TSexpressionTree::maxDepth)), QString()); }

    void knowsItsLines()
    {
        const TSexpressionTree tree("(a 1\n\n (b 2\n3)\r\n\"c\")");
        const TSexpression root = tree.Root();
        QCOMPARE(root.Line(), 1);
        QCOMPARE(root.Get("b").Line(), 3);
        QCOMPARE(root.Get("b").Value(1).Line(), 4);
        QCOMPARE(root.Value(2).Line(), 5);
    }

    void reportsProgress()
    {
        QByteArray text = "(a";
        for (int i = 0; i < 1000; ++i) {
            text += " (b 1)";
        }
        QVector<int> reported;
        const TSexpressionTree tree(text + ')', [&reported](int percent) { reported.append(percent); });
        QVERIFY(reported.size() > 90);
        QVERIFY(std::is_sorted(reported.begin(), reported.end(), std::less_equal<>()));
        QVERIFY(reported.first() >= 1 && reported.last() <= 100);
    }

    void finds()
    {
        const TSexpressionTree tree("(via (at 1 2) (net 7) word (net 8) \"net\")");
        const TSexpression via = tree.Root();
        QCOMPARE(via.Get("net").Value(0).Integer(), 7);
        QVERIFY(via.Find("at") && !via.Find("drill") && !via.Find("word"));
        QVERIFY(via.Value(2).IsWord("word"));
        QVERIFY(!via.Value(4).IsWord("net"));
        QVERIFY(via.FindValue(4) && !via.FindValue(5));
    }

    void saysWhatIsMissing()
    {
        const TSexpressionTree tree("(via\n(at 1)\n(layers (a)))");
        const TSexpression via = tree.Root();
        QCOMPARE(Failure([&] { via.Get("size"); }), QString("1: 'via' without 'size'"));
        QCOMPARE(Failure([&] { via.Get("at").Value(1); }), QString("2: 'at' has fewer than 2 values"));
        QCOMPARE(Failure([&] { via.Get("layers").Value(0).Text(); }),
                 QString("3: expected a single value, found list 'a'"));
        QCOMPARE(Failure([&] { via.Millionths(); }), QString("1: expected a single value, found list 'via'"));
    }

    void knowsFlags_data()
    {
        QTest::addColumn<bool>("set");
        QTest::newRow("(pad 1 locked (at 0 0))") << true;
        QTest::newRow("(pad 1 (at 0 0) (locked yes))") << true;
        QTest::newRow("(pad 1 (locked))") << true;
        QTest::newRow("(pad 1 (locked true))") << true;
        QTest::newRow("(pad 1 (locked no))") << false;
        QTest::newRow("(pad 1 (locked false))") << false;
        QTest::newRow("(pad 1 (at locked))") << false;
        QTest::newRow("(pad 1 \"locked\")") << false;
        QTest::newRow("(pad locked (at 0 0))") << false; // Its number.
    }

    void knowsFlags()
    {
        const TSexpressionTree tree(QByteArray{QTest::currentDataTag()});
        QTEST(tree.Root().HasFlag("locked", 1), "set");
    }

    void readsMillionths_data()
    {
        QTest::addColumn<bool>("isNumber");
        QTest::addColumn<qint64>("millionths");
        const auto row = [](const char* text, qint64 millionths) { QTest::newRow(text) << true << millionths; };
        row("0", 0);
        row("-0", 0);
        row("1", 1'000'000);
        row("25.4", 25'400'000);
        row("-25.4", -25'400'000);
        row("+3", 3'000'000);
        row("007.5", 7'500'000);
        row(".5", 500'000);
        row("5.", 5'000'000);
        row("0.000001", 1);
        row("-0.000001", -1);
        row("0.1", 100'000);
        row("123456.789012", 123'456'789'012);
        row("0.0000004", 0);
        row("0.0000005", 1);
        row("-0.0000005", -1);
        row("0.00000049999999999999", 0);
        row("0.9999995", 1'000'000);
        row("1.0000000000000000000000000001", 1'000'000);
        row("9223372036854.775807", std::numeric_limits<qint64>::max());
        row("9223372036854.775808", std::numeric_limits<qint64>::max());
        row("9223372036854.7758075", std::numeric_limits<qint64>::max());
        row("-99999999999999999999999999", -std::numeric_limits<qint64>::max());
        for (const char* text : {"", "-", "+", ".", "-.", "a", "1a", "1 ", " 1", "1.2.3", "1,2", "1e3", "0x1f", "--1",
                                 "inf", "nan", "5E203811"}) {
            QTest::addRow("no number: '%s'", text) << false << qint64(0);
        }
    }

    void readsMillionths()
    {
        QFETCH(bool, isNumber);
        QFETCH(qint64, millionths);
        const std::string tag = QTest::currentDataTag();
        const std::string text = isNumber ? tag : tag.substr(12, tag.size() - 13);
        QCOMPARE(ParseMillionths(text).has_value(), isNumber);
        QCOMPARE(ParseDecimal(text).has_value(), isNumber);
        QCOMPARE(ParseMillionths(text).value_or(0), millionths);
    }

    void readsDecimals()
    {
        QCOMPARE(ParseDecimal("0.25").value_or(0), 0.25);
        QCOMPARE(ParseDecimal("-12.5").value_or(0), -12.5);
        QVERIFY(ParseDecimal("0.1").value_or(0) == 0.1);
        QVERIFY(ParseDecimal("0.2500000000000001").value_or(0) == 0.2500000000000001);
    }

    void refusesValues_data()
    {
        QTest::addColumn<QString>("integer");
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("extent");
        const auto row = [](const char* text, const char* integer, const char* length, const char* extent) {
            QTest::newRow(text) << integer << length << extent;
        };
        row("7", "", "", "");
        row("\"7\"", "", "", "");
        row("-7", "", "", "1: '-7' must not be negative");
        row("7.5", "1: '7.5' is not a whole number", "", "");
        row("abc", "1: 'abc' is not a whole number", "1: 'abc' is not a number", "1: 'abc' is not a number");
        row("10000", "", "", "");
        row("10000.000001", "1: '10000.000001' is not a whole number", "1: '10000.000001' is out of range",
            "1: '10000.000001' is out of range");
        row("99999999999", "1: '99999999999' is not a whole number", "1: '99999999999' is out of range",
            "1: '99999999999' is out of range");
        row("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa",
            "1: 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa...' is not a whole number",
            "1: 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa...' is not a number",
            "1: 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa...' is not a number");
    }

    void refusesValues()
    {
        const TSexpressionTree tree(QByteArray("(a ") + QTest::currentDataTag() + ')');
        const TSexpression value = tree.Root().Value(0);
        QTEST(Failure([&] { value.Integer(); }), "integer");
        QTEST(Failure([&] { value.Millionths(); }), "length");
        QTEST(Failure([&] { value.Extent(); }), "extent");
    }

    void convertsLengths()
    {
        QVERIFY(Measures::SceneLength(25'400'000) == 300.0);
        QVERIFY(Measures::SceneLength(-25'400'000) == -300.0);
        QVERIFY(Measures::SceneLength(1'000'000) == 300.0 / 25.4);
        QVERIFY(Measures::SceneLength(1) == 300.0 / 25'400'000);
        qint64 nanometres = 1;
        for (int i = 0; i < 10'000; ++i) {
            nanometres = (nanometres * 48'271) % 2'147'483'647;
            const double scene = Measures::SceneLength(nanometres);
            const auto miss = [nanometres](double candidate) {
                return std::abs(std::fma(candidate, 25'400'000.0, -300.0 * static_cast<double>(nanometres)));
            };
            QVERIFY(miss(scene) <= miss(std::nextafter(scene, 0.0)));
            QVERIFY(miss(scene) <= miss(std::nextafter(scene, 2 * scene)));
        }
    }

    void convertsRotations_data()
    {
        QTest::addColumn<qint64>("counterclockwise");
        QTest::addColumn<double>("clockwise");
        const auto row = [](double degrees, double clockwise) {
            QTest::addRow("%g", degrees) << qRound64(degrees * 1e6) << clockwise;
        };
        row(0, 0);
        row(90, -90);
        row(-90, 90);
        row(180, -180);
        row(-180, 180);
        row(270, 90);
        row(-270, -90);
        row(360, 0);
        row(450, -90);
        row(-810, 90);
        row(22.5, -22.5);
        row(337.5, 22.5);
        row(0.1, -0.1);
        row(9999.9, 80.1);
    }

    void convertsRotations()
    {
        QFETCH(qint64, counterclockwise);
        QFETCH(double, clockwise);
        QVERIFY(Measures::SceneRotation(counterclockwise) == clockwise);
    }
};

PROPERTIES_TEST(TestSexpression)
#include "tst_sexpression.moc"
