#include "workbench/design/LoadDesign.h"

#include "workbench/importer/ProjectImporter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProgressDialog>
#include <QStringList>

// The resource is in a static library, whose initialisers the linker omits. Not in a namespace: it is a macro.
static void InitialiseSamples()
{
    Q_INIT_RESOURCE(samples);
}

QString SampleProjectFile()
{
    InitialiseSamples();
    return QStringLiteral(":/samples/sample.kicad_pro");
}

QString SampleBoardFile()
{
    InitialiseSamples();
    return QStringLiteral(":/samples/sample.kicad_pcb");
}

bool HasDesign(const TImportResult& result)
{
    return result.board || (result.schematic && !result.schematic->Pages().empty());
}

TImportResult LoadDesignWithDialog(const QString& file, QWidget* parent)
{
    constexpr int shownAfterMilliseconds = 400;
    QProgressDialog dialog(QCoreApplication::translate("LoadDesign", "Reading %1…").arg(QFileInfo(file).fileName()),
                           QCoreApplication::translate("LoadDesign", "Cancel"), 0, 100, parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setMinimumDuration(shownAfterMilliseconds);
    return ImportDesign(file, [&dialog](int percent) {
        dialog.setValue(percent);
        return !dialog.wasCanceled();
    });
}

namespace {

/** Such as "17921 track segments, 3 zones"; empty if everything in the file is shown. */
QString DescribeNotShown(const TImportResult& result)
{
    QStringList parts;
    for (const auto& [kind, count] : result.notShown) {
        parts.append(QStringLiteral("%1 %2").arg(QString::number(count), kind));
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

QStringList Notices(const TImportResult& result)
{
    QStringList notices = result.warnings;
    const QString missing = DescribeNotShown(result);
    if (!missing.isEmpty()) {
        notices.append(QCoreApplication::translate("LoadDesign", "not shown: %1").arg(missing));
    }
    return notices;
}
