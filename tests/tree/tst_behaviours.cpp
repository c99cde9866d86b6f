#include "tests/support/TestProgram.h"
#include "tests/tree/TestSources.h"

#include <QtTest>

/** Holds the list of intended oddities to what it says: each has a test, and the test is there. */
class TestBehaviours : public QObject
{
    Q_OBJECT

private slots:
    void everyOddityNamesATestThatIsThere_data()
    {
        QTest::addColumn<QString>("tests");
        static const QRegularExpression row(QStringLiteral(R"(^\| (?!what \|)(.+?) \|.*\|([^|]*)\|$)"),
                                            QRegularExpression::MultilineOption);
        auto matches = row.globalMatch(Test::TextOf(QStringLiteral("docs/behaviours.md")));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            QTest::newRow(match.captured(1).toUtf8()) << match.captured(2);
        }
    }
    // Functions follow the program that runs them.
    void everyOddityNamesATestThatIsThere()
    {
        QFETCH(QString, tests);
        static const QRegularExpression quoted(QStringLiteral("`(?:([a-z]+\\.\\w+)|([A-Za-z0-9]+))`"));
        QString program;
        QString sources;
        auto names = quoted.globalMatch(tests);
        while (names.hasNext()) {
            const QRegularExpressionMatch match = names.next();
            const QString function = match.captured(2);
            if (function.isEmpty()) {
                program = match.captured(1);
                sources = Test::SourcesOf(program);
                QVERIFY2(!sources.isEmpty(), qPrintable(program));
            } else {
                QVERIFY2(sources.contains(QStringLiteral("void %1(").arg(function))
                             || sources.contains(QStringLiteral("::%1(").arg(function)),
                         qPrintable(program + QLatin1Char(' ') + function));
            }
        }
        QVERIFY2(!program.isEmpty(), qPrintable(tests));
    }
};

PROPERTIES_TEST(TestBehaviours)
#include "tst_behaviours.moc"
