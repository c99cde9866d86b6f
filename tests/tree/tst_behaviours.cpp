#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

/** Holds the list of intended oddities to what it says: each has a test, and the test is there. */
class TestBehaviours : public QObject
{
    Q_OBJECT

private slots:
    void everyOddityNamesATestThatIsThere_data()
    {
        QTest::addColumn<QString>("tests");
        static const QRegularExpression row(QStringLiteral(R"(^\| (.+?) \|.*\| (`.+`) \|$)"),
                                            QRegularExpression::MultilineOption);
        auto matches = row.globalMatch(TextOf(QStringLiteral("docs/behaviours.md")));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            QTest::newRow(match.captured(1).toUtf8()) << match.captured(2);
        }
    }
    void everyOddityNamesATestThatIsThere()
    {
        QFETCH(QString, tests);
        static const QRegularExpression program(QStringLiteral(R"(`([a-z]+)\.\w+`)"));
        static const QRegularExpression function(QStringLiteral("`([A-Za-z0-9]+)`"));
        QVERIFY2(program.match(tests).hasMatch(), qPrintable(tests));
        auto names = function.globalMatch(tests);
        QString sources;
        auto programs = program.globalMatch(tests);
        while (programs.hasNext()) {
            sources += SourcesOf(programs.next().captured(1));
        }
        while (names.hasNext()) {
            const QString name = names.next().captured(1);
            QVERIFY2(sources.contains(QStringLiteral("void %1(").arg(name))
                         || sources.contains(QStringLiteral("::%1(").arg(name)),
                     qPrintable(name));
        }
    }

private:
    static QString TextOf(const QString& file)
    {
        QFile text(QStringLiteral(PROPERTIES_SOURCE_DIR "/") + file);
        if (!text.open(QIODevice::ReadOnly)) {
            qFatal("%s cannot be read", qPrintable(file));
        }
        return QString::fromUtf8(text.readAll());
    }

    static QString SourcesOf(const QString& area)
    {
        const QString folder = QStringLiteral("tests/") + area;
        const QDir sources(QStringLiteral(PROPERTIES_SOURCE_DIR "/") + folder);
        QString text;
        for (const QString& file : sources.entryList({QStringLiteral("tst_*.cpp")}, QDir::Files)) {
            text += TextOf(folder + QLatin1Char('/') + file);
        }
        return text;
    }
};

PROPERTIES_TEST_MAIN(TestBehaviours)
#include "tst_behaviours.moc"
