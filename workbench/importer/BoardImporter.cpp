#include "workbench/importer/BoardImporter.h"

#include "workbench/importer/board/ReadBoard.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/TImportError.h"
#include "workbench/importer/ImportFiles.h"

#include <QDir>
#include <QFileInfo>

namespace {

TImportResult Failed(const QString& error)
{
    TImportResult result;
    result.error = error;
    return result;
}

} // namespace

TImportResult ImportBoard(const QString& fileName, const TImportProgress& progress)
{
    const QString name = QDir::toNativeSeparators(fileName);
    QByteArray text;
    try {
        text = ImportFiles::Read(fileName);
    } catch (const TImportError& error) {
        return Failed(error.Cause());
    }
    const QFileInfo board(fileName);
    const QString projectFile =
        board.path() + QLatin1Char('/') + board.completeBaseName() + QLatin1String(".kicad_pro");
    QString problem;
    const QByteArray project = ImportFiles::ReadProject(projectFile, problem);
    return ImportBoardText({text, name, project, QDir::toNativeSeparators(projectFile), problem}, progress);
}

TImportResult ImportBoardText(const QByteArray& text, const QString& name, const TImportProgress& progress)
{
    return ImportBoardText({text, name, {}, {}, {}}, progress);
}

TImportResult ImportBoardText(const TImportSource& source, const TImportProgress& progress)
{
    TImportResult result;
    try {
        const TSexpressionTree tree(source.text, ImportFiles::Part(0, 50, progress));
        TBoardDraft draft;
        if (!source.projectText.isEmpty()) {
            draft.textVariables = TextVariables::OfProject(source.projectText);
            const QString cause = draft.netSettings.ReadProject(source.projectText);
            if (!cause.isEmpty()) {
                result.warnings.append(
                    QStringLiteral("%1:%2; its net classes and colours are not used").arg(source.projectName, cause));
            }
        }
        ReadBoard(tree.Root(), draft, ImportFiles::Part(50, 100, progress));
        const bool needsProject = draft.netSettings.Classes().isEmpty();
        if (needsProject && !source.projectProblem.isEmpty()) {
            result.warnings.append(source.projectProblem);
        }
        result.schematic = std::make_unique<TSchematic>();
        draft.netSettings.Fill(*result.schematic, draft.netNames);
        result.notShown = draft.notShown.Kinds();
        result.board = std::move(draft.board);
        ImportFiles::ShowNetColors(*result.board, *result.schematic->NetModel());
    } catch (const TImportError& error) {
        result.error = QStringLiteral("%1:%2: %3").arg(source.name, QString::number(error.Line()), error.Cause());
    } catch (const ImportFiles::TCancelled&) {
        result.cancelled = true;
    }
    return result;
}
