#include "workbench/importer/ProjectImporter.h"

#include "workbench/importer/board/ReadBoard.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/TImportError.h"
#include "workbench/importer/ImportFiles.h"
#include "workbench/importer/MatchBoard.h"
#include "workbench/importer/schematic/BuildSchematic.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/** Progress in percent after reading the sheets, and after parsing the board's text. */
constexpr int sheetsRead = 15;
constexpr int boardParsed = 55;

/** The files of a design; a name is empty if there is none. */
struct TDesignFiles
{
    QString board;
    QString schematic;
    QString project;
};

class TDesignImporter
{
public:
    TDesignImporter(const TDesignFiles& ofFiles, const TImportProgress& reportTo) : files(ofFiles), progress(reportTo)
    {}

    TImportResult Import()
    {
        try {
            ReadProject();
            ReadSchematic();
            ReadBoardFile();
            Build();
        } catch (const TImportError& error) {
            return Failed(error);
        } catch (const ImportFiles::TCancelled&) {
            TImportResult cancelled;
            cancelled.cancelled = true;
            return cancelled;
        }
        return std::move(result);
    }

private:
    static TImportResult Failed(const TImportError& error)
    {
        TImportResult failed;
        failed.error = error.File().isEmpty() ? error.Cause()
                                              : QStringLiteral("%1:%2: %3")
                                                    .arg(QDir::toNativeSeparators(error.File()))
                                                    .arg(error.Line())
                                                    .arg(error.Cause());
        return failed;
    }

    void ReadProject()
    {
        QString problem;
        const QByteArray json = ImportFiles::ReadProject(files.project, problem);
        if (!problem.isEmpty()) {
            result.warnings.append(problem);
            return;
        }
        const QString cause = draft.netSettings.ReadProject(json);
        if (!cause.isEmpty()) {
            result.warnings.append(QStringLiteral("%1:%2; its net classes and colours are not used")
                                       .arg(QDir::toNativeSeparators(files.project), cause));
        }
        variables = TextVariables::OfProject(json);
        draft.textVariables = variables;
    }

    void ReadSchematic()
    {
        if (files.schematic.isEmpty()) {
            return;
        }
        hierarchy = ReadHierarchy(files.schematic, ImportFiles::Read);
        TraceNets(hierarchy);
        ImportFiles::Part(0, sheetsRead, progress)(100);
    }

    void ReadBoardFile()
    {
        if (files.board.isEmpty()) {
            draft.board.reset();
            return;
        }
        const QByteArray text = ImportFiles::Read(files.board);
        InFile(files.board, [&] {
            const TSexpressionTree tree(text, ImportFiles::Part(sheetsRead, boardParsed, progress));
            ReadBoard(tree.Root(), draft, ImportFiles::Part(boardParsed, 99, progress));
        });
    }

    void Build()
    {
        if (draft.board) {
            TakeBoardNames(hierarchy, draft);
        }
        result.schematic = std::make_unique<TSchematic>();
        QStringList nets = NetNames(hierarchy);
        const QSet<QString> known(nets.begin(), nets.end());
        std::copy_if(draft.netNames.begin(), draft.netNames.end(), std::back_inserter(nets),
                     [&known](const QString& net) { return !known.contains(net); });
        draft.netSettings.Fill(*result.schematic, nets);
        result.notShown = draft.notShown.Kinds();
        if (!files.schematic.isEmpty()) {
            BuildPages();
        }
        if (draft.board) {
            ImportFiles::ShowNetColors(*draft.board, *result.schematic->NetModel());
            result.board = std::move(draft.board);
        }
        ImportFiles::Part(0, 100, progress)(100);
    }

    void BuildPages()
    {
        const TSheetFile& root = *hierarchy.files.front();
        if (const std::optional<TSexpression> titleBlock = root.Root().Find("title_block")) {
            const TextVariables::TValues said =
                InFile(root.fileName, [&] { return TextVariables::OfTitleBlock(*titleBlock); });
            for (auto value = said.begin(); value != said.end(); ++value) {
                variables.insert(value.key(), value.value());
            }
        }
        variables.insert(QStringLiteral("PROJECTNAME"), hierarchy.pages.front().name);
        TSchematicDraft sheets{*result.schematic,           hierarchy, variables,
                               NumberComponents(hierarchy), {},        draft.notShown};
        BuildSchematic(sheets);
        result.notShown = sheets.notShown.Kinds();
        result.tagValues = sheets.tagValues;
        for (const TSheetPage& page : hierarchy.pages) {
            result.pageNames.append(page.name);
        }
        if (draft.board) {
            MatchNumbers(draft, hierarchy, sheets.numbers);
        }
    }

    const TDesignFiles& files;
    const TImportProgress& progress;
    TBoardDraft draft; ///< Without a board, only its net settings are used.
    TSheetHierarchy hierarchy;
    TextVariables::TValues variables;
    TImportResult result;
};

} // namespace

TImportResult ImportDesign(const QString& fileName, const TImportProgress& progress)
{
    const QFileInfo file(fileName);
    const QString base = file.path() + QLatin1Char('/') + file.completeBaseName();
    TDesignFiles files{base + QLatin1String(".kicad_pcb"), base + QLatin1String(".kicad_sch"),
                       base + QLatin1String(".kicad_pro")};
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("kicad_sch")) {
        files.schematic = fileName;
        files.board.clear();
        return TDesignImporter(files, progress).Import();
    }
    if (suffix != QLatin1String("kicad_pro")) {
        return ImportBoard(fileName, progress);
    }
    TImportResult failed;
    QStringList missing;
    for (QString* part : {&files.board, &files.schematic}) {
        if (!QFileInfo::exists(*part)) {
            missing.append(QStringLiteral("%1: there is no such file").arg(QDir::toNativeSeparators(*part)));
            part->clear();
        }
    }
    if (missing.size() == 2) {
        failed.error =
            QStringLiteral("%1: there is no board or schematic beside it").arg(QDir::toNativeSeparators(fileName));
        return failed;
    }
    TImportResult result = TDesignImporter(files, progress).Import();
    if (result.error.isEmpty() && !result.cancelled) {
        result.warnings = missing + result.warnings;
    }
    return result;
}
