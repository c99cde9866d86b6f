#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/RealDesigns.h"
#include "workbench/session/CommandLine.h"

#include <QApplication>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct ProgramRun
{
    int code;
    QString results;
    QString messages;
};

ProgramRun RunProgram(const QStringList& arguments, const QString& folder = {})
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(variable);
    }
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder.isEmpty() ? QDir::tempPath() : folder);
    program.start(WORKBENCH_PROGRAM, arguments);
    if (!program.waitForFinished(300000) || program.exitStatus() != QProcess::NormalExit) {
        return {-1, QString(), program.errorString() + program.readAllStandardError()};
    }
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

QByteArray ContentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

/** A row for each real file of that kind. */
void AddRealFiles(const QStringList& files)
{
    QTest::addColumn<QString>("file");
    const QString folder = Test::DesignsFolder();
    if (files.isEmpty()) {
        QSKIP("There are no real designs");
    }
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file.mid(folder.size() + 1))) << file;
    }
}

} // namespace

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void theProgramKeepsResultsApart();
    void theProgramEndsWithTwoAfterErrors_data();
    void theProgramEndsWithTwoAfterErrors();
    void dumpsOfTwoProcessesAreEqual();
    void theTourLeavesAPicture();
    void realDesignsComeBackAfterUndo_data();
    void realDesignsComeBackAfterUndo();
    void realProjectsComeBackAfterUndo_data();
    void realProjectsComeBackAfterUndo();
};

void TestProgram::theProgramKeepsResultsApart()
{
    const ProgramRun help = RunProgram({"--help"});
    QCOMPARE(help.code, 0);
    QCOMPARE(help.results, TCommandLine::Usage());
    QCOMPARE(help.messages, QString());

    const ProgramRun run = RunProgram({"--select", "via[0]", "--history"});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.results, QString("selected: 1 via\nhistory: 0 of 0 done\n"));
    QVERIFY(run.messages.startsWith("reading sample project\n"));
}

void TestProgram::theProgramEndsWithTwoAfterErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("no such option") << QStringList{"--nonsense"} << "^workbench: unknown option --nonsense .*\n$";
    QTest::newRow("seen before the file is") << QStringList{"nofile.kicad_pcb", "--select", "via["}
                                             << "^workbench: --select: \"via\\[\" is not a valid selection.*\n$";
    QTest::newRow("no such file") << QStringList{"nofile.kicad_pcb", "--panel"}
                                  << "nofile.kicad_pcb: No such file or directory\n$";
    QTest::newRow("a broken file") << QStringList{"broken.kicad_pcb", "--panel"}
                                   << "workbench: broken.kicad_pcb:\\d+: .+\n$";
    QTest::newRow("a broken file without steps")
        << QStringList{"broken.kicad_pcb"} << "workbench: broken.kicad_pcb:\\d+: .+\n$";
    QTest::newRow("a step") << QStringList{"--set", "A=1"}
                            << "workbench: step 1 \\(--set A=1\\): nothing is selected\n$";
}

void TestProgram::theProgramEndsWithTwoAfterErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    QFile broken(folder.filePath("broken.kicad_pcb"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    QVERIFY(broken.write("(kicad_pcb (version 20171130)\n(net 0 \"\"\n") > 0);
    broken.close();

    const ProgramRun run = RunProgram(arguments, folder.path());
    QCOMPARE(run.code, 2);
    QCOMPARE(run.results, QString());
    QVERIFY2(QRegularExpression(message).match(run.messages).hasMatch(), qPrintable(run.messages));
}

void TestProgram::dumpsOfTwoProcessesAreEqual()
{
    const QTemporaryDir folder;
    QStringList dumps;
    for (const char* name : {"first", "second"}) {
        const ProgramRun run = RunProgram({"--select", "via", "--set", "Diameter:=0.9", "--dump", name}, folder.path());
        QVERIFY2(run.code == 0, qPrintable(run.messages));
        dumps.append(QString::fromUtf8(ContentOf(folder.filePath(name))));
    }
    QVERIFY(dumps[0].count('\n') > 100);
    QCOMPARE(dumps[1], dumps[0]);

    const ProgramRun printed = RunProgram({"--select", "via", "--set", "Diameter:=0.9", "--dump", "-"});
    QVERIFY(printed.results.endsWith('\n' + dumps[0]));
}

void TestProgram::theTourLeavesAPicture()
{
    const QTemporaryDir folder;
    const ProgramRun run = RunProgram({}, folder.path());
    QVERIFY2(run.code == 0, qPrintable(run.messages));
    QVERIFY(run.results.count("\n* ") >= 8);
    const QSize pixels = QSize(1400, 900) * qApp->devicePixelRatio();
    QVERIFY2(run.results.contains(QStringLiteral("screenshot: %1 x %2 pixels to workbench-tour.png")
                                      .arg(pixels.width())
                                      .arg(pixels.height())),
             qPrintable(run.results));
    QCOMPARE(QImage(folder.filePath("workbench-tour.png")).size(), pixels);
}

void TestProgram::realDesignsComeBackAfterUndo_data()
{
    AddRealFiles(Test::RealDesigns("*.kicad_pcb"));
}

void TestProgram::realDesignsComeBackAfterUndo()
{
    QFETCH(QString, file);
    if (!Test::IsAtHand(file) && !ContentOf(file).contains("(via")) {
        QSKIP("This board has no vias");
    }
    const QTemporaryDir folder;
    const ProgramRun run = RunProgram({file, "--dump", "before", "--select", "via", "--panel", "--set", "Diameter:=2.9",
                                       "--set", "Drill:=2.1", "--dump", "edited", "--undo", "2", "--dump", "undone"},
                                      folder.path());
    QVERIFY2(run.code == 0, qPrintable(run.messages));
    const QByteArray before = ContentOf(folder.filePath("before"));
    QVERIFY(before.count('\n') > 10);
    QVERIFY(ContentOf(folder.filePath("edited")) != before);
    QCOMPARE(ContentOf(folder.filePath("undone")), before);
}

void TestProgram::realProjectsComeBackAfterUndo_data()
{
    AddRealFiles(Test::RealProjects());
}

void TestProgram::realProjectsComeBackAfterUndo()
{
    QFETCH(QString, file);
    const QTemporaryDir folder;
    const ProgramRun run = RunProgram({file,
                                       "--dump",
                                       "before",
                                       "--page",
                                       "1",
                                       "--select",
                                       "part",
                                       "--revalue",
                                       "new",
                                       "--disconnect",
                                       "--select",
                                       "pin",
                                       "--set",
                                       "Type:=Input",
                                       "--select",
                                       "netwire",
                                       "--priority",
                                       "4",
                                       "--rename-page",
                                       "1=Front page",
                                       "--dump",
                                       "edited",
                                       "--undo",
                                       "5",
                                       "--dump",
                                       "undone"},
                                      folder.path());
    static const QRegularExpression lacks(R"(\(--select (part|pin|netwire)\): .* has no \1)");
    if (!Test::IsAtHand(file) && lacks.match(run.messages).hasMatch()) {
        QSKIP("The first page lacks a kind");
    }
    QVERIFY2(run.code == 0, qPrintable(run.messages));
    const QByteArray before = ContentOf(folder.filePath("before"));
    QVERIFY(before.contains("page 1\n") && before.contains("\ntreepart "));
    QVERIFY(ContentOf(folder.filePath("edited")) != before);
    QCOMPARE(ContentOf(folder.filePath("undone")), before);
}

PROPERTIES_TEST(TestProgram)

#include "tst_program.moc"
