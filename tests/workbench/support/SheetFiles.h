#pragma once

#include "tests/workbench/support/SheetTexts.h"

#include "workbench/importer/ProjectImporter.h"

#include <QTemporaryDir>

/** Imports of sheets that a test has written. */
namespace SheetFiles {

/** A project whose class "Power" has colours, and the net GND; its texts are MAKER "Works" and PLACE "Town". */
extern const char* const project;

/** Files in a folder of their own. */
class TFolder
{
public:
    explicit TFolder(const QMap<QString, QByteArray>& files);

    QString Path(const QString& name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

/** Imports "root.kicad_sch", with the project beside it. */
TImportResult ImportSheets(QMap<QString, QByteArray> sheets);
/** The same for one sheet with these elements. */
TImportResult ImportSheet(const QByteArray& elements, int version = 7);

/** All items of one class, page by page. */
template <class Item>
QList<Item*> All(const TImportResult& result)
{
    QList<Item*> found;
    for (const auto& page : result.schematic->Pages()) {
        const QList<TGraphicsItem*> items = page->Scene()->DesignItems();
        for (TGraphicsItem* item : items) {
            if (auto* wanted = dynamic_cast<Item*>(item)) {
                found.append(wanted);
            }
        }
    }
    return found;
}

/** The nets of all pins of the parts, "R1.1=/A R1.2=GND", in the order of their names. */
QString NetsOfParts(const TImportResult& result);

} // namespace SheetFiles
