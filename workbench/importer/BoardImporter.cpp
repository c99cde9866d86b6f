#include "workbench/importer/BoardImporter.h"

#include "workbench/importer/ReadBoard.h"
#include "workbench/importer/TBoardDraft.h"
#include "workbench/importer/TImportError.h"

#include <QDir>
#include <QFile>

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
    return ImportBoardText(text, name, progress);
}

TImportResult ImportBoardText(const QByteArray& text, const QString& name, const TImportProgress& progress)
{
    TImportResult result;
    try {
        const TSexpressionTree tree(text, Half(0, progress));
        TBoardDraft draft;
        ReadBoard(tree.Root(), draft, Half(50, progress));
        result.notShown = draft.notShown.Kinds();
        result.board = std::move(draft.board);
    } catch (const TImportError& error) {
        result.error = QStringLiteral("%1:%2: %3").arg(name, QString::number(error.Line()), error.Cause());
    } catch (const TCancelled&) {
        result.cancelled = true;
    }
    return result;
}
