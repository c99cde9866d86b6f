#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace {

QString TextOf(const QString& file)
{
    QFile text(QStringLiteral(PROPERTIES_SOURCE_DIR "/") + file);
    if (!text.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(file));
    }
    return QString::fromUtf8(text.readAll());
}

/** One line of the catalogue: a class, the header that declares it, and the test programs that hold it. */
struct Row
{
    QString name;
    QString header;
    QStringList programs;
};

QVector<Row> Catalogue()
{
    static const QRegularExpression line(QStringLiteral(R"(^\| `(T\w+)` \|.*\| `(properties/[\w/.]+)` \| (.+) \|$)"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression program(QStringLiteral("`([a-z]+\\.\\w+)`"));
    QVector<Row> rows;
    auto matches = line.globalMatch(TextOf(QStringLiteral("docs/catalogue.md")));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        Row row{match.captured(1), match.captured(2), {}};
        auto programs = program.globalMatch(match.captured(3));
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
    QProcess nm;
    nm.start(PROPERTIES_NM, {"-DC", "--defined-only", PROPERTIES_LIBRARY});
    if (!nm.waitForFinished() || nm.exitCode() != 0) {
        return {};
    }
    const QRegularExpression constructor(QStringLiteral(R"(^[0-9a-f]+ [TW] (%1)::\1\()").arg(namePattern),
                                         QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = constructor.globalMatch(QString::fromUtf8(nm.readAllStandardOutput()));
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

/** All that the sources of a test program say; empty when there is no such program. */
QString SourcesOf(const QString& program)
{
    const QString folder = QStringLiteral("tests/%1/").arg(program.section(QLatin1Char('.'), 0, 0));
    QString list = TextOf(folder + QStringLiteral("CMakeLists.txt"));
    static const QRegularExpression variable(QStringLiteral(R"(set\((\w+) ([^)]*)\))"));
    auto variables = variable.globalMatch(list);
    while (variables.hasNext()) {
        const QRegularExpressionMatch match = variables.next();
        list.replace(QStringLiteral("${%1}").arg(match.captured(1)), match.captured(2));
    }
    const QRegularExpression added(
        QStringLiteral(R"(properties_add_test\(%1\s+SOURCES ([^)]*)\))").arg(QRegularExpression::escape(program)));
    const QStringList words = added.match(list).captured(1).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QString sources;
    for (const QString& word : words) {
        if (QFile::exists(QStringLiteral(PROPERTIES_SOURCE_DIR "/") + folder + word)) {
            sources += TextOf(folder + word);
        }
    }
    return sources;
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
        QTest::addColumn<int>("count");
        QTest::newRow("sets") << "TPropertySetFor" << 19;
        QTest::newRow("commands") << "TCmd" << 89;
    }
    void listsWhatTheLibraryExports()
    {
        QFETCH(QString, prefix);
        QFETCH(int, count);
        QCOMPARE(Listed(prefix), Exported(prefix + QStringLiteral("\\w+")));
        QCOMPARE(Listed(prefix).size(), count);
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
};

PROPERTIES_TEST_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
