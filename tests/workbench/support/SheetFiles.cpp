#include "tests/workbench/support/SheetFiles.h"

#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <QFile>

const char* const SheetFiles::project = R"json({
  "net_settings": {
    "classes": [
      {"name": "Default"},
      {"name": "Power", "schematic_color": "rgb(200, 0, 0)", "pcb_color": "rgb(0, 0, 200)"}
    ],
    "netclass_patterns": [{"pattern": "GND", "netclass": "Power"}]
  },
  "text_variables": {"MAKER": "Works", "PLACE": "Town"}
})json";

SheetFiles::TFolder::TFolder(const QMap<QString, QByteArray>& files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        QFile target(Path(file.key()));
        const bool isWritten = target.open(QIODevice::WriteOnly) && target.write(file.value()) == file->size();
        Q_ASSERT(isWritten);
        Q_UNUSED(isWritten)
    }
}

TImportResult SheetFiles::ImportSheets(QMap<QString, QByteArray> sheets)
{
    sheets.insert(QStringLiteral("root.kicad_pro"), project);
    const TFolder folder(sheets);
    return ImportDesign(folder.Path(QStringLiteral("root.kicad_sch")));
}

TImportResult SheetFiles::ImportSheet(const QByteArray& elements, int version)
{
    return ImportSheets({{QStringLiteral("root.kicad_sch"), SheetTexts::Sheet(elements, version)}});
}

QString SheetFiles::NetsOfParts(const TImportResult& result)
{
    QStringList nets;
    const QList<TGraphicsPinItem*> pins = All<TGraphicsPinItem>(result);
    for (const TGraphicsPinItem* pin : pins) {
        if (const auto* part = dynamic_cast<TGraphicsPartItem*>(pin->parentItem())) {
            nets.append(QStringLiteral("%1.%2=%3").arg(part->RefDes(), pin->Number(), pin->Net()));
        }
    }
    nets.sort();
    return nets.join(QLatin1Char(' '));
}
