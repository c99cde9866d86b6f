#include "workbench/importer/BoardImporter.h"

#include "workbench/importer/ReadBoard.h"
#include "workbench/importer/TBoardDraft.h"
#include "workbench/importer/TImportError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

class TCancelled : public std::exception
{};

/** What the caller is told of one half of the work, which begins at @p before percent of the whole. */
std::function<void(int)> Half(int before, const TImportProgress& progress)
{
    return [before, progress, last = before](int percent) mutable {
        const int ofWhole = before + percent / 2;
        if (progress && ofWhole > last) {
            last = ofWhole;
            if (!progress(ofWhole)) {
                throw TCancelled();
            }
        }
    };
}

TImportResult Failed(const QString& error)
{
    TImportResult result;
    result.error = error;
    return result;
}

/** What stands in the project file beside a board; @p problem says why it cannot be read. */
QByteArray ProjectText(const QString& fileName, QString& problem)
{
    constexpr qint64 largestFile = 100'000'000;
    QFile file(fileName);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    if (!isOpen || file.size() > largestFile) {
        const QString cause = isOpen ? QStringLiteral("larger than 100 MB") : file.errorString();
        problem = QStringLiteral("%1: %2; nets have no classes and colours from there")
                      .arg(QDir::toNativeSeparators(fileName), cause);
        return {};
    }
    return file.readAll();
}

/** Draws the items of nets that have a colour of their own in it. */
void ShowNetColors(const TBoard& board, const TNetModel& nets)
{
    for (TGraphicsItem* item : board.Items()) {
        const QColor color = nets.ColorPcb(nets.NetRow(item->Net()));
        if (color.isValid()) {
            item->SetAltColor(color);
        }
    }
}

} // namespace

TImportResult ImportBoard(const QString& fileName, const TImportProgress& progress)
{
    constexpr qint64 largestFile = 1'000'000'000;
    const QString name = QDir::toNativeSeparators(fileName);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return Failed(QStringLiteral("%1: %2").arg(name, file.errorString()));
    }
    if (file.isSequential()) {
        return Failed(QStringLiteral("%1: not a regular file").arg(name));
    }
    if (file.size() > largestFile) {
        return Failed(QStringLiteral("%1: larger than 1 GB").arg(name));
    }
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return Failed(QStringLiteral("%1: %2").arg(name, file.errorString()));
    }
    const QFileInfo board(fileName);
    const QString projectFile =
        board.path() + QLatin1Char('/') + board.completeBaseName() + QLatin1String(".kicad_pro");
    QString problem;
    const QByteArray project = ProjectText(projectFile, problem);
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
        const TSexpressionTree tree(source.text, Half(0, progress));
        TBoardDraft draft;
        if (!source.projectText.isEmpty()) {
            const QString cause = draft.netSettings.ReadProject(source.projectText);
            if (!cause.isEmpty()) {
                result.warnings.append(QStringLiteral("%1:%2; nets have no classes and colours from there")
                                           .arg(source.projectName, cause));
            }
        }
        ReadBoard(tree.Root(), draft, Half(50, progress));
        const bool needsProject = draft.netSettings.Classes().isEmpty();
        if (needsProject && !source.projectProblem.isEmpty()) {
            result.warnings.append(source.projectProblem);
        }
        result.schematic = std::make_unique<TSchematic>();
        draft.netSettings.Fill(*result.schematic, draft.netNames);
        result.notShown = draft.notShown.Kinds();
        result.board = std::move(draft.board);
        ShowNetColors(*result.board, *result.schematic->NetModel());
    } catch (const TImportError& error) {
        result.error = QStringLiteral("%1:%2: %3").arg(source.name, QString::number(error.Line()), error.Cause());
    } catch (const TCancelled&) {
        result.cancelled = true;
    }
    return result;
}
