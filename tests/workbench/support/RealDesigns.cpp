#include "tests/workbench/support/RealDesigns.h"

#include "tests/support/Places.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

/** Whether a board or schematic is of a version that can be opened; a project is if both of its files are. */
bool CanBeOpened(const QString& path)
{
    const QFileInfo info(path);
    if (info.suffix() == QLatin1String("kicad_pro")) {
        const QString stem = info.path() + QLatin1Char('/') + info.completeBaseName();
        return CanBeOpened(stem + QLatin1String(".kicad_pcb")) && CanBeOpened(stem + QLatin1String(".kicad_sch"));
    }
    static const QRegularExpression version(QStringLiteral("\\(version (\\d+)\\)"));
    constexpr int newest = 20250114;
    QFile file(path);
    const bool isThere = file.open(QIODevice::ReadOnly);
    return !isThere || version.match(QString::fromUtf8(file.read(200))).captured(1).toInt() <= newest;
}

} // namespace

QStringList Test::RealDesigns(const QString& pattern)
{
    const QString folder = DesignsFolder();
    QStringList designs;
    QDirIterator found(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
    while (!folder.isEmpty() && found.hasNext()) {
        const QString file = found.next();
        if (CanBeOpened(file)) {
            designs.append(file);
        } else {
            qInfo("left out, being of a version that cannot be opened: %s", qPrintable(QFileInfo(file).fileName()));
        }
    }
    designs.sort();
#ifdef __SANITIZE_ADDRESS__
    // Sanitized programs are slow: one version of each design, which other versions share the name of, is enough.
    QStringList names;
    const auto isKnown = [&names](const QString& design) {
        const QString name = QFileInfo(design).fileName();
        const bool known = names.contains(name);
        names.append(name);
        return known;
    };
    designs.erase(std::remove_if(designs.begin(), designs.end(), isKnown), designs.end());
#endif
    return designs;
}

QStringList Test::RealProjects()
{
    QStringList projects = RealDesigns(QStringLiteral("*.kicad_pro"));
    const auto hasNoSchematic = [](const QString& project) {
        const QFileInfo info(project);
        return !QFile::exists(info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1String(".kicad_sch"));
    };
    projects.erase(std::remove_if(projects.begin(), projects.end(), hasNoSchematic), projects.end());
    return projects;
}

bool Test::IsAtHand(const QString& design)
{
    static const QStringList names{"akl-pt6", "ecp5_mainboard", "ethernet-coupled-probe",
                                   "glasgow", "ram-ddr5-1REV1", "sim-rev3c"};
    return names.contains(QFileInfo(design).completeBaseName());
}
