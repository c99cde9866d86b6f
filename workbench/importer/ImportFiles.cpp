#include "workbench/importer/ImportFiles.h"

#include "workbench/importer/format/TImportError.h"

#include <QDir>
#include <QFile>

std::function<void(int)> ImportFiles::Part(int from, int to, const TImportProgress& progress)
{
    return [from, to, progress, last = from](int percent) mutable {
        const int ofWhole = from + percent * (to - from) / 100;
        if (progress && ofWhole > last) {
            last = ofWhole;
            if (!progress(ofWhole)) {
                throw TCancelled();
            }
        }
    };
}

QByteArray ImportFiles::Read(const QString& fileName)
{
    constexpr qint64 largestFile = 1'000'000'000;
    QFile file(fileName);
    const auto fail = [&fileName](const QString& cause) {
        throw TImportError(0, QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(fileName), cause));
    };
    if (!file.open(QIODevice::ReadOnly)) {
        fail(file.errorString());
    }
    if (file.isSequential()) {
        fail(QStringLiteral("not a regular file"));
    }
    if (file.size() > largestFile) {
        fail(QStringLiteral("larger than 1 GB"));
    }
    QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        fail(file.errorString());
    }
    return text;
}

QByteArray ImportFiles::ReadProject(const QString& fileName, QString& problem)
{
    constexpr qint64 largestFile = 100'000'000;
    QFile file(fileName);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    if (!isOpen || file.size() > largestFile) {
        const QString cause = isOpen ? QStringLiteral("larger than 100 MB") : file.errorString();
        problem = QStringLiteral("%1: %2; its net classes and colours are not used")
                      .arg(QDir::toNativeSeparators(fileName), cause);
        return {};
    }
    return file.readAll();
}

void ImportFiles::ShowNetColors(const TBoard& board, const TNetModel& nets)
{
    for (TGraphicsItem* item : board.Items()) {
        const QColor color = nets.ColorPcb(nets.NetRow(item->Net()));
        if (color.isValid()) {
            item->SetAltColor(color);
        }
    }
}
