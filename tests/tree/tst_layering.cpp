#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <algorithm>

namespace {

struct Include
{
    int line;
    QString name; // as written, with its delimiters
    QString path; // without them; for a file of the project its path from the root
};

struct SourceFile
{
    QString path; // from the root
    QVector<Include> includes;
};

bool Matches(const QString& text, const QString& pattern)
{
    return QRegularExpression("\\A(?:" + pattern + ")\\z").match(text).hasMatch();
}

bool IsWidgetHeader(const QString& path)
{
    const auto views = QStringLiteral("(abstractitem|column|graphics|header|list|table|tree|undo)view");
    const auto families =
        QStringLiteral("(?!graphics)\\w*(widgets?|button|box|dialog|edit|slider|bar|area|menu|frame)");
    const auto others =
        QStringLiteral("application|mainwindow|mdisubwindow|label|splitter|splashscreen|rubberband|dial|"
                       "lcdnumber|textbrowser|errormessage|wizard(page)?");
    return Matches(path.toLower(), "(.*/)?q(" + views + '|' + families + '|' + others + ")(\\.h)?");
}

// Who includes whom, by the text of the sources. Headers that are not part of the tree have no includes of their own.
class TIncludeGraph
{
public:
    void AddFile(const QString& path, const QString& text)
    {
        static const QRegularExpression directive(R"(^\s*#\s*include\s*(["<]([^">]+)[">]))");
        static const QRegularExpression hostLibrary("^(workspace|graphics|objects|application)/");
        SourceFile file{path, {}};
        const auto lines = text.split('\n');
        for (int i = 0; i < lines.size(); ++i) {
            const auto match = directive.match(lines[i]);
            if (!match.hasMatch())
                continue;
            file.includes.append({i + 1, match.captured(1), match.captured(2).replace(hostLibrary, "host/\\1/")});
        }
        files.insert(path, file);
    }

    void AddTree(const QString& root, const QStringList& folders)
    {
        for (const auto& folder : folders) {
            QDirIterator found(root + '/' + folder, {"*.h", "*.hpp", "*.cpp"}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (found.hasNext()) {
                QFile file(found.next());
                if (file.open(QIODevice::ReadOnly))
                    AddFile(QDir(root).relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()));
            }
        }
    }

    QVector<SourceFile> Files(const QString& pattern) const
    {
        QVector<SourceFile> found;
        for (const auto& file : files)
            if (Matches(file.path, pattern))
                found.append(file);
        return found;
    }

    // Everything that the file includes, directly or through files of the tree, with the way there.
    template <typename Visit>
    void VisitReached(const QString& path, Visit visit) const
    {
        QSet<QString> seen{path};
        QStringList waiting{path};
        while (!waiting.isEmpty()) {
            const auto file = files.value(waiting.takeFirst());
            for (const auto& include : file.includes) {
                visit(file, include);
                if (files.contains(include.path) && !seen.contains(include.path)) {
                    seen.insert(include.path);
                    waiting.append(include.path);
                }
            }
        }
    }

private:
    QMap<QString, SourceFile> files;
};

QString Offence(const SourceFile& file, const Include& include)
{
    return QString("%1:%2 includes %3").arg(file.path).arg(include.line).arg(include.name);
}

const auto projectFile = QStringLiteral("(host|properties|workbench|tests|benchmarks|examples)/.*");

// Includes of project files by the files of a layer that are not among the allowed ones.
QStringList LayerOffences(const TIncludeGraph& graph, const QString& layer, const QString& allowed)
{
    QStringList offences;
    for (const auto& file : graph.Files(layer))
        for (const auto& include : file.includes)
            if (Matches(include.path, projectFile) && !Matches(include.path, allowed))
                offences.append(Offence(file, include));
    return offences;
}

// Widget headers that a command header draws in, directly or through other headers.
QStringList WidgetOffences(const TIncludeGraph& graph)
{
    QStringList offences;
    for (const auto& header : graph.Files("properties/commands/.*\\.h"))
        graph.VisitReached(header.path, [&](const SourceFile& file, const Include& include) {
            if (IsWidgetHeader(include.path))
                offences.append(header.path + ": " + Offence(file, include));
        });
    return offences;
}

// The host's libraries and the generated header stand in angle brackets, the rest in quotes and named from the root.
QStringList SpellingOffences(const TIncludeGraph& graph)
{
    const QString quoted(R"("(properties|workbench|tests|benchmarks)/[^"]+"|"\w+\.moc")");
    const QString angled("<properties/Export\\.h>|<(?!(host|properties|workbench|tests|benchmarks)/)[^>]+>");
    QStringList offences;
    for (const auto& file : graph.Files("(host|properties|workbench|tests|benchmarks)/.*"))
        for (const auto& include : file.includes)
            if (!Matches(include.name, quoted + '|' + angled) || include.path.split('/').contains(".."))
                offences.append(Offence(file, include));
    return offences;
}

struct Layer
{
    const char* name;
    const char* files;
    const char* mayInclude;
};

// Lowest first. The generated export header of the library has no layer.
const Layer layers[] = {
    {"workspace", "host/workspace/.*", "host/workspace/.*"},
    {"graphics", "host/graphics/.*", "host/(workspace|graphics)/.*"},
    {"objects", "host/objects/.*", "host/(workspace|graphics|objects)/.*"},
    {"application", "host/application/.*", "host/.*"},
    {"rows", "properties/rows/.*",
     "properties/(rows/.*|Export\\.h)|host/objects/TGraphicsPadItem\\.h|"
     "host/workspace/(Osmirel|TWorkspace|TLayerManager|TLayer|TDoubleSpinBox)\\.h"},
    {"commands", "properties/commands/.*", "properties/(commands/.*|Export\\.h)|host/.*"},
    {"panel", "properties/[^/]+", "properties/([^/]+|(rows|commands)/.*)|host/.*"},
    {"sets", "properties/sets/.*", "(properties|host)/.*"},
    {"format", "workbench/importer/format/.*", "workbench/importer/format/.*|host/.*"},
    {"board files", "workbench/importer/board/.*", "workbench/importer/(format|board)/.*|host/.*"},
    {"schematic files", "workbench/importer/schematic/.*", "workbench/importer/(format|schematic)/.*|host/.*"},
    {"importer", "workbench/importer/[^/]+", "workbench/importer/.*|host/.*"},
    {"design", "workbench/design/.*", "workbench/(importer/[^/]+|design/.*)|host/.*"},
    {"editing", "workbench/editing/.*", "workbench/(design|editing)/.*|(properties|host)/.*"},
    {"window", "workbench/window/.*", "workbench/(design|editing|window)/.*|(properties|host)/.*"},
    {"session", "workbench/session/.*", "workbench/(design|editing|window|session)/.*|(properties|host)/.*"},
    {"workbench", "workbench/[^/]+", "(workbench|properties|host)/.*"},
};

} // namespace

class TestLayering : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        tree.AddTree(Test::SourcePath(), {"host", "properties", "workbench", "tests", "benchmarks"});
    }

    void includesOnlyTheLayersBelow_data()
    {
        QTest::addColumn<QString>("files");
        QTest::addColumn<QString>("mayInclude");
        for (const auto& layer : layers)
            QTest::newRow(layer.name) << layer.files << layer.mayInclude;
    }

    void includesOnlyTheLayersBelow()
    {
        QFETCH(QString, files);
        QFETCH(QString, mayInclude);
        QVERIFY2(!tree.Files(files).isEmpty(), "no sources in this layer");
        Expect(LayerOffences(tree, files, mayInclude), 0);
    }

    void everySourceBelongsToALayer()
    {
        QStringList homeless;
        for (const auto& file : tree.Files("(host|properties|workbench)/.*"))
            if (std::none_of(std::begin(layers), std::end(layers),
                             [&](auto& f) { return Matches(file.path, f.files); }))
                homeless.append(file.path);
        Expect(homeless, 0);
    }

    void commandHeadersReachNoWidget() { Expect(WidgetOffences(tree), 0); }
    void includesAreSpelledFromTheRoot() { Expect(SpellingOffences(tree), 0); }

    // The rules over made-up sources: each wrong include is found, each right one is let pass.

    void findsAWrongLayer_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("include");
        QTest::addColumn<int>("offences");
        const auto row = [](const char* name, const char* path, const char* include, int offences) {
            QTest::newRow(name) << path << include << offences;
        };
        row("graphics on objects", "host/graphics/A.h", "<objects/B.h>", 1);
        row("host on the library", "host/application/A.cpp", "\"properties/TPropertySet.h\"", 1);
        row("host on the workbench", "host/application/A.cpp", "\"workbench/B.h\"", 1);
        row("row on command", "properties/rows/A.cpp", "\"properties/commands/B.h\"", 1);
        row("command on row", "properties/commands/A.cpp", "\"properties/rows/B.h\"", 1);
        row("command on row, in brackets", "properties/commands/A.cpp", "<properties/rows/B.h>", 1);
        row("row on panel", "properties/rows/A.cpp", "\"properties/TPropertySet.h\"", 1);
        row("row on export header", "properties/rows/A.h", "<properties/Export.h>", 0);
        row("row on layer", "properties/rows/A.h", "<workspace/TLayer.h>", 0);
        row("row on via", "properties/rows/A.h", "<objects/TGraphicsViaItem.h>", 1);
        row("panel on row", "properties/A.h", "\"properties/rows/B.h\"", 0);
        row("panel on set", "properties/A.cpp", "\"properties/sets/B.h\"", 1);
        row("set on command", "properties/sets/A.cpp", "\"properties/commands/B.h\"", 0);
        row("set on workbench", "properties/sets/A.cpp", "\"workbench/B.h\"", 1);
        row("workbench on test", "workbench/importer/A.cpp", "\"tests/support/B.h\"", 1);
    }

    void findsAWrongLayer()
    {
        QFETCH(QString, path);
        QFETCH(QString, include);
        QFETCH(int, offences);
        TIncludeGraph madeUp;
        madeUp.AddFile(path, "#pragma once\n  #  include " + include + "\n#include <QtCore/QList>\n");
        QStringList found;
        for (const auto& layer : layers)
            found += LayerOffences(madeUp, layer.files, layer.mayInclude);
        Expect(found, offences);
        for (const auto& offence : found)
            QCOMPARE(offence, path + ":2 includes " + include);
    }

    void findsWidgetBehindOtherHeaders()
    {
        TIncludeGraph madeUp;
        madeUp.AddFile("properties/commands/TCmdA.h", "#include <graphics/A.h>\n#include <QtWidgets/QUndoCommand>");
        madeUp.AddFile("host/graphics/A.h", "#include <workspace/B.h>\n#include <QGraphicsItem>");
        madeUp.AddFile("host/workspace/B.h", "#include <graphics/A.h>");
        Expect(WidgetOffences(madeUp), 0);
        madeUp.AddFile("host/workspace/B.h", "#include <graphics/A.h>\n#include <QtWidgets/qspinbox.h>");
        Expect(WidgetOffences(madeUp), 1);
        madeUp.AddFile("properties/commands/TCmdB.h", "#include <QWidget>");
        Expect(WidgetOffences(madeUp), 2);
    }

    void knowsWidgetHeaders()
    {
        for (const auto* name : {"QWidget", "QtWidgets", "QtWidgets/QLineEdit", "QtWidgets/qcombobox.h", "QTreeWidget",
                                 "QGraphicsView", "QDoubleSpinBox", "QApplication", "QMainWindow", "QLabel"})
            QVERIFY2(IsWidgetHeader(name), name);
        for (const auto* name : {"QGraphicsItem", "QGraphicsProxyWidget", "QUndoCommand", "QGuiApplication", "QWindow",
                                 "QStringView", "host/objects/TLabel.h"})
            QVERIFY2(!IsWidgetHeader(name), name);
    }

    void findsWrongSpelling()
    {
        TIncludeGraph madeUp;
        madeUp.AddFile("properties/A.h",
                       "#include \"properties/rows/B.h\"\n#include \"tst_a.moc\"\n"
                       "#include <objects/B.h>\n#include <properties/Export.h>\n#include <QtWidgets/QWidget>\n");
        Expect(SpellingOffences(madeUp), 0);
        for (const auto* wrong : {"\"../rows/B.h\"", "\"properties/../host/B.h\"", "<../B.h>", "\"B.h\"",
                                  "\"objects/B.h\"", "<properties/B.h>"}) {
            madeUp.AddFile("properties/A.h", QString("#include ") + wrong);
            QCOMPARE(SpellingOffences(madeUp), QStringList{QString("properties/A.h:1 includes ") + wrong});
        }
    }

private:
    static void Expect(const QStringList& offences, int count)
    {
        QVERIFY2(offences.size() == count, qPrintable('\n' + offences.join('\n')));
    }

    TIncludeGraph tree;
};

PROPERTIES_TEST(TestLayering)
#include "tst_layering.moc"
