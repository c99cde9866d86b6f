#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TFootprintFrame.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"

#include <objects/TGraphicsPackageItem.h>

#include <algorithm>
#include <iterator>

namespace {

/** Reads a text or property that is the component's reference designator or value. */
void ReadField(const TSexpression& field, TGraphicsPackageItem& package)
{
    const bool isText = field.Name() == "fp_text";
    const QString kind = field.Value(0).Text();
    if (kind == (isText ? QLatin1String("reference") : QLatin1String("Reference"))) {
        package.SetRefDes(ElementValues::UserName(field.Value(1)));
    } else if (kind == (isText ? QLatin1String("value") : QLatin1String("Value"))) {
        package.SetValue(ElementValues::UserName(field.Value(1)));
    }
}

TextVariables::TValues WithBoard(TextVariables::TValues values, const TBoardDraft& draft)
{
    for (auto each = draft.textVariables.begin(); each != draft.textVariables.end(); ++each) {
        values.insert(each.key(), each.value());
    }
    return values;
}

constexpr struct
{
    std::string_view token;
    void (*read)(const TSexpression& element, const TFootprintFrame& footprint, TBoardDraft& draft);
} partReaders[] = {
    {"pad", ElementReaders::ReadPad},
    {"fp_line", ElementReaders::ReadFootprintGraphic},
    {"fp_arc", ElementReaders::ReadFootprintGraphic},
    {"fp_circle", ElementReaders::ReadFootprintGraphic},
    {"fp_rect", ElementReaders::ReadFootprintGraphic},
    {"fp_poly", ElementReaders::ReadFootprintGraphic},
    {"fp_curve", ElementReaders::ReadFootprintGraphic},
    {"fp_text", ElementReaders::ReadFootprintText},
    {"property", ElementReaders::ReadFootprintText},
    {"fp_text_box", ElementReaders::ReadFootprintTextBox},
    {"zone", ElementReaders::ReadFootprintZone},
};

} // namespace

void ElementReaders::ReadFootprint(const TSexpression& footprint, TBoardDraft& draft)
{
    if (IsNetTie(footprint, draft)) {
        ReadNetTie(footprint, draft);
        return;
    }
    const TSexpression at = footprint.Get("at");
    const bool isOnBottom = draft.layers.Find(footprint.Get("layer").Value(0).Text()) == Osmirel::CopperBottom;

    auto package = std::make_unique<TGraphicsPackageItem>();
    const TFootprintFrame frame{*package, ElementValues::Angle(at), ReadPadDefaults(footprint, draft.padDefaults),
                                WithBoard(TextVariables::OfFootprint(footprint), draft)};
    package->SetWorkspace(draft.board->Workspace());
    package->SetLayer(isOnBottom ? Osmirel::PackagesBottom : Osmirel::PackagesTop);
    package->SetPackageName(ElementValues::PackageName(footprint.Value(0).Text()));
    package->setPos(ElementValues::Position(at));
    package->setRotation(Measures::SceneRotation(frame.angle));
    package->SetTFlag(TGraphicsItem::Lock, footprint.HasFlag("locked", 1));
    for (const TSexpression element : footprint) {
        if (element.Name() == "fp_text" || element.Name() == "property") {
            ReadField(element, *package);
        }
    }
    for (const TSexpression element : footprint) {
        const auto reader = std::find_if(std::begin(partReaders), std::end(partReaders),
                                         [&element](const auto& each) { return each.token == element.Name(); });
        if (reader == std::end(partReaders)) {
            CountElement(element, draft);
        } else {
            reader->read(element, frame, draft);
        }
    }
    if (const std::optional<TSexpression> path = footprint.Find("path")) {
        draft.paths.insert(package.get(), path->Value(0).Text());
    }
    draft.board->Attach(std::move(package));
}
