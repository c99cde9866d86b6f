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
