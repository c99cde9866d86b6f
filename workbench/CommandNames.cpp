#include "workbench/CommandNames.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <typeinfo>

namespace {

struct TName
{
    const char* commandClass;
    const char* text;
};

constexpr TName names[] = {
    {"TCmdViaDiam", QT_TRANSLATE_NOOP("CommandNames", "Change diameter of %1")},
    {"TCmdViaDrill", QT_TRANSLATE_NOOP("CommandNames", "Change drill of %1")},
    {"TCmdViaTherm", QT_TRANSLATE_NOOP("CommandNames", "Change thermal connection of %1")},
    {"TCmdViaGroup", QT_TRANSLATE_NOOP("CommandNames", "Change drill pair of %1")},
    {"TCmdMaskClearance", QT_TRANSLATE_NOOP("CommandNames", "Change mask clearance of %1")},
    {"TCmdMaskEn", QT_TRANSLATE_NOOP("CommandNames", "Switch mask opening of %1")},
    {"TCmdPasteClearance", QT_TRANSLATE_NOOP("CommandNames", "Change paste clearance of %1")},
    {"TCmdPasteEn", QT_TRANSLATE_NOOP("CommandNames", "Switch paste of %1")},
    {"TCmdPadNumber", QT_TRANSLATE_NOOP("CommandNames", "Renumber %1")},
    {"TCmdPadName", QT_TRANSLATE_NOOP("CommandNames", "Rename %1")},
    {"TCmdPadWidth", QT_TRANSLATE_NOOP("CommandNames", "Change width of %1")},
    {"TCmdPadHeight", QT_TRANSLATE_NOOP("CommandNames", "Change height of %1")},
    {"TCmdPadShape", QT_TRANSLATE_NOOP("CommandNames", "Change shape of %1")},
    {"TCmdPadSide", QT_TRANSLATE_NOOP("CommandNames", "Change side of %1")},
    {"TCmdPadType", QT_TRANSLATE_NOOP("CommandNames", "Change type of %1")},
    {"TCmdRectSize", QT_TRANSLATE_NOOP("CommandNames", "Change size of %1")},
    {"TCmdWireWidth", QT_TRANSLATE_NOOP("CommandNames", "Change width of %1")},
    {"TCmdWireLayer", QT_TRANSLATE_NOOP("CommandNames", "Change layer of %1")},
    {"TCmdWireAddNode", QT_TRANSLATE_NOOP("CommandNames", "Add a node to %1")},
    {"TCmdWireDelNode", QT_TRANSLATE_NOOP("CommandNames", "Remove a node from %1")},
    {"TCmdNetClass", QT_TRANSLATE_NOOP("CommandNames", "Change net class of %1")},
    {"TCmdNetColorPcb", QT_TRANSLATE_NOOP("CommandNames", "Change net colour of %1")},
    {"TCmdNetPrio", QT_TRANSLATE_NOOP("CommandNames", "Change net priority of %1")},
    {"TCmdNetColorSch", QT_TRANSLATE_NOOP("CommandNames", "Change net colour of %1")},
    {"TCmdBusEntryDisconnect", QT_TRANSLATE_NOOP("CommandNames", "Disconnect %1")},
    {"TCmdPinName", QT_TRANSLATE_NOOP("CommandNames", "Rename %1")},
    {"TCmdPinNameVis", QT_TRANSLATE_NOOP("CommandNames", "Switch name of %1")},
    {"TCmdPinNumber", QT_TRANSLATE_NOOP("CommandNames", "Renumber %1")},
    {"TCmdPinNumberVis", QT_TRANSLATE_NOOP("CommandNames", "Switch number of %1")},
    {"TCmdPinType", QT_TRANSLATE_NOOP("CommandNames", "Change type of %1")},
    {"TCmdPinStyle", QT_TRANSLATE_NOOP("CommandNames", "Change style of %1")},
    {"TCmdPinLength", QT_TRANSLATE_NOOP("CommandNames", "Change length of %1")},
    {"TCmdPinSwap", QT_TRANSLATE_NOOP("CommandNames", "Change swap group of %1")},
    {"TCmdPortName", QT_TRANSLATE_NOOP("CommandNames", "Rename %1")},
    {"TCmdPortNameVis", QT_TRANSLATE_NOOP("CommandNames", "Switch name of %1")},
    {"TCmdPartConnect", QT_TRANSLATE_NOOP("CommandNames", "Connect %1")},
    {"TCmdPartDisconnect", QT_TRANSLATE_NOOP("CommandNames", "Disconnect %1")},
    {"TCmdCmpValue", QT_TRANSLATE_NOOP("CommandNames", "Change value of %1")},
    {"TValueCommands", QT_TRANSLATE_NOOP("CommandNames", "Change value of %1")},
    {"TCmdTagName", QT_TRANSLATE_NOOP("CommandNames", "Rename %1")},
    {"TCmdPartRename", QT_TRANSLATE_NOOP("CommandNames", "Rename part %1")},
    {"TCmdPageRename", QT_TRANSLATE_NOOP("CommandNames", "Rename page %1")},
    {"TCmdPartOpen", QT_TRANSLATE_NOOP("CommandNames", "Open symbol of %1")},
    {"TCmdPageOpen", QT_TRANSLATE_NOOP("CommandNames", "Open page %1")},
    {"TCmdPkgSide", QT_TRANSLATE_NOOP("CommandNames", "Change side of %1")},
    {"TCmdPackageRefDes", QT_TRANSLATE_NOOP("CommandNames", "Rename %1")},
    {"TCmdPackageValue", QT_TRANSLATE_NOOP("CommandNames", "Change value of %1")},
    {"TCmdLock", QT_TRANSLATE_NOOP("CommandNames", "Change lock of %1")},
    {"TCmdPkgConnect", QT_TRANSLATE_NOOP("CommandNames", "Connect %1")},
    {"TCmdPkgDisconnect", QT_TRANSLATE_NOOP("CommandNames", "Disconnect %1")},
    {"TCmdNetTieName", QT_TRANSLATE_NOOP("CommandNames", "Rename %1")},
    {"TCmdNetTieNameVis", QT_TRANSLATE_NOOP("CommandNames", "Switch name of %1")},
    {"TCmdNetTiePcbLayer", QT_TRANSLATE_NOOP("CommandNames", "Change layer of %1")},
    {"TCmdNetTiePadSz", QT_TRANSLATE_NOOP("CommandNames", "Change pad size of %1")},
    {"TCmdNetTieWireWidth", QT_TRANSLATE_NOOP("CommandNames", "Change wire width of %1")},
    {"TCmdNetTieSchSymbol", QT_TRANSLATE_NOOP("CommandNames", "Change symbol of %1")},
    {"TCmdTextTrueType", QT_TRANSLATE_NOOP("CommandNames", "Change font kind of %1")},
    {"TCmdTextFontName", QT_TRANSLATE_NOOP("CommandNames", "Change font of %1")},
    {"TCmdTextFontSize", QT_TRANSLATE_NOOP("CommandNames", "Change font size of %1")},
    {"TCmdTextAlign", QT_TRANSLATE_NOOP("CommandNames", "Change alignment of %1")},
    {"TCmdTextAngle", QT_TRANSLATE_NOOP("CommandNames", "Change angle of %1")},
    {"TCmdTextBold", QT_TRANSLATE_NOOP("CommandNames", "Switch bold of %1")},
    {"TCmdTextItalic", QT_TRANSLATE_NOOP("CommandNames", "Switch italic of %1")},
    {"TCmdTextLayer", QT_TRANSLATE_NOOP("CommandNames", "Change layer of %1")},
    {"TCmdTextMirrH", QT_TRANSLATE_NOOP("CommandNames", "Mirror %1 horizontally")},
    {"TCmdTextMirrV", QT_TRANSLATE_NOOP("CommandNames", "Mirror %1 vertically")},
    {"TCmdPenWidth", QT_TRANSLATE_NOOP("CommandNames", "Change line width of %1")},
    {"TCmdPenStyle", QT_TRANSLATE_NOOP("CommandNames", "Change line style of %1")},
    {"TCmdBrushStyle", QT_TRANSLATE_NOOP("CommandNames", "Change filling of %1")},
    {"TCmdLayerPrim", QT_TRANSLATE_NOOP("CommandNames", "Change layer of %1")},
    {"TCmdUserColor", QT_TRANSLATE_NOOP("CommandNames", "Change colour of %1")},
    {"TCmdKeepoutLayEn", QT_TRANSLATE_NOOP("CommandNames", "Switch a layer of %1")},
    {"TCmdOutlineAddNode", QT_TRANSLATE_NOOP("CommandNames", "Add a node to %1")},
    {"TCmdOutlineDelNode", QT_TRANSLATE_NOOP("CommandNames", "Remove a node from %1")},
    {"TCmdPourClEtch", QT_TRANSLATE_NOOP("CommandNames", "Change clearance to etch of %1")},
    {"TCmdPourClBorder", QT_TRANSLATE_NOOP("CommandNames", "Change clearance to border of %1")},
    {"TCmdPourClPour", QT_TRANSLATE_NOOP("CommandNames", "Change clearance to pour of %1")},
    {"TCmdPourFillType", QT_TRANSLATE_NOOP("CommandNames", "Change filling of %1")},
    {"TCmdPourLineWidth", QT_TRANSLATE_NOOP("CommandNames", "Change line width of %1")},
    {"TCmdPourMinArea", QT_TRANSLATE_NOOP("CommandNames", "Change minimum area of %1")},
    {"TCmdPourOnlyConn", QT_TRANSLATE_NOOP("CommandNames", "Switch unconnected copper of %1")},
    {"TCmdPourPrio", QT_TRANSLATE_NOOP("CommandNames", "Change priority of %1")},
    {"TCmdPourThermEn", QT_TRANSLATE_NOOP("CommandNames", "Switch thermal spokes of %1")},
    {"TCmdPourThermLine", QT_TRANSLATE_NOOP("CommandNames", "Change thermal line of %1")},
    {"TCmdPourThermIsol", QT_TRANSLATE_NOOP("CommandNames", "Change thermal isolation of %1")},
    {"TCmdPourLayer", QT_TRANSLATE_NOOP("CommandNames", "Change layer of %1")},
    {"TCmdPourNet", QT_TRANSLATE_NOOP("CommandNames", "Change net of %1")},
};

QString ClassName(const QUndoCommand& command)
{
    const char* mangled = typeid(command).name();
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                           &std::free);
    return QString::fromLatin1(name ? name.get() : mangled);
}

} // namespace

QString CommandNames::Text(const QUndoCommand& command, const QString& what)
{
    const QString className = ClassName(command);
    const auto* found = std::find_if(std::begin(names), std::end(names), [&className](const TName& name) {
        return className == QLatin1String(name.commandClass);
    });
    return found == std::end(names) ? className : QCoreApplication::translate("CommandNames", found->text).arg(what);
}
