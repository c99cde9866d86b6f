#include "workbench/session/CommandLine.h"

#include "workbench/DesignActions.h"
#include "workbench/session/TItemQuery.h"
#include "workbench/session/TSession.h"
#include "workbench/session/TSessionError.h"

#include <QKeySequence>
#include <QPointF>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using TPerform = std::function<QString(TSession&)>;

enum class Argument { None, Count, Required };

/** An option that is a step: how it is written, what it does, and how its argument becomes something to do. */
struct TStepOption
{
    const char* name;
    Argument takes;
    const char* argument;
    QString help;
    std::function<TPerform(const QString& argument)> parse;
};

TPerform ParseSelect(const QString& what)
{
    return [query = TItemQuery::Parse(what)](TSession& session) { return session.Select(query); };
}

TPerform ParsePanel(const QString&)
{
    return [](TSession& session) { return session.Panel(); };
}

TPerform ParseSet(const QString& assignment)
{
    if (!assignment.contains(QLatin1Char('='))) {
        throw TSessionError(QStringLiteral("\"%1\" is no edit: Label=value or Label.part=value").arg(assignment));
    }
    return [assignment](TSession& session) { return session.Set(assignment); };
}

TPerform ParseKey(const QString& name)
{
    const auto key = QKeySequence::fromString(name, QKeySequence::PortableText);
    constexpr int unknown = Qt::Key_unknown;
    if (key.count() != 1 || (key[0] & unknown) == unknown) {
        throw TSessionError(QStringLiteral("\"%1\" is no key: O, 5, Space, Ctrl+R and the like").arg(name));
    }
    return [key](TSession& session) { return session.Press(key); };
}

/** A step that switches something. */
template <QString (TSession::*step)(bool on)>
TPerform ParseSwitch(const QString& state)
{
    const bool on = state == QLatin1String("on");
    if (!on && state != QLatin1String("off")) {
        throw TSessionError(QStringLiteral("takes on or off, not \"%1\"").arg(state));
    }
    return [on](TSession& session) { return (session.*step)(on); };
}

/** A point of the scene, given as "x,y" in millimetres. */
QPointF ParsePoint(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    bool isX = false;
    bool isY = false;
    const double x = parts.value(0).toDouble(&isX);
    const double y = parts.value(1).toDouble(&isY);
    if (parts.size() != 2 || !isX || !isY || !std::isfinite(x) || !std::isfinite(y)) {
        throw TSessionError(QStringLiteral("\"%1\" is no place: x,y in millimetres").arg(text));
    }
    constexpr double sceneUnitsPerMillimetre = 300.0 / 25.4;
    return QPointF(x, y) * sceneUnitsPerMillimetre;
}

TStepOption OptionOf(const TDesignAction& action)
{
    using Asks = TDesignAction::Asks;
    const char* argument = action.asks == Asks::Text ? "TEXT" : action.asks == Asks::Point ? "X,Y" : "";
    QString help = QString::fromUtf8(action.menuText).remove(QLatin1Char('&')).remove(QChar(0x2026));
    help[0] = help[0].toLower();
    return {action.option, action.asks == Asks::Nothing ? Argument::None : Argument::Required, argument, help,
            [&action](const QString& given) -> TPerform {
                const QPointF point = action.asks == Asks::Point ? ParsePoint(given) : QPointF();
                return [&action, given, point](TSession& session) { return session.Do(action, given, point); };
            }};
}

int ParseCount(const QString& count)
{
    return count.isEmpty() ? 1 : count.toInt();
}

TPerform ParseZoom(const QString& extent)
{
    if (extent == QLatin1String("all")) {
        return [](TSession& session) { return session.ZoomToAll(); };
    }
    if (extent == QLatin1String("selection")) {
        return [](TSession& session) { return session.ZoomToSelection(); };
    }
    throw TSessionError(QStringLiteral("takes all or selection, not \"%1\"").arg(extent));
}

TPerform ParseShowLayers(const QString& names)
{
    return [names](TSession& session) { return session.ShowLayers(names); };
}

TPerform ParseHideLayers(const QString& names)
{
    return [names](TSession& session) { return session.HideLayers(names); };
}

TPerform ParseUndo(const QString& count)
{
    return [times = ParseCount(count)](TSession& session) { return session.Undo(times); };
}

TPerform ParseRedo(const QString& count)
{
    return [times = ParseCount(count)](TSession& session) { return session.Redo(times); };
}

TPerform ParseHistory(const QString&)
{
    return [](TSession& session) { return session.History(); };
}

TPerform ParseDump(const QString& file)
{
    return [file](TSession& session) { return session.Dump(file); };
}

TPerform ParseScreenshot(const QString& file)
{
    return [file](TSession& session) { return session.Screenshot(file); };
}

std::vector<TStepOption> MakeStepOptions()
{
    std::vector<TStepOption> options{
        {"--select", Argument::Required, "WHAT",
         "select items: wire, via, pad and the like, several with commas, or all; with [i] or [i..j]\n"
         "for positions in the design's order among that kind, from 0",
         ParseSelect},
        {"--panel", Argument::None, "", "print the panel: its title, then each row's label and value", ParsePanel},
        {"--set", Argument::Required, "LABEL=VALUE",
         "edit a row; its parts are LABEL.check=on, LABEL.width=1.2, LABEL.height=0.6,\n"
         "LABEL.show=off, LABEL.1=on and LABEL.2=on",
         ParseSet},
        {"--key", Argument::Required, "KEY", "press a key on the canvas", ParseKey},
        {"--bypass", Argument::Required, "on|off",
         "let edits of the selected items leave no undo step, or again leave one", ParseSwitch<&TSession::Bypass>},
    };
    for (const TDesignAction& action : DesignActions::All()) {
        options.push_back(OptionOf(action));
    }
    const std::initializer_list<TStepOption> others{
        {"--designators", Argument::Required, "on|off", "show or hide the designators of all packages",
         ParseSwitch<&TSession::ShowDesignators>},
        {"--values", Argument::Required, "on|off", "show or hide the values of all packages",
         ParseSwitch<&TSession::ShowValues>},
        {"--undo", Argument::Count, "[N]", "undo the last edit, or the last N", ParseUndo},
        {"--redo", Argument::Count, "[N]", "redo the next edit, or the next N", ParseRedo},
        {"--history", Argument::None, "", "print the undo history", ParseHistory},
        {"--dump", Argument::Required, "FILE", "write every item of the design as one line of text; - prints it",
         ParseDump},
        {"--show-layers", Argument::Required, "LAYERS", "show layers, several with commas, or all", ParseShowLayers},
        {"--hide-layers", Argument::Required, "LAYERS", "hide layers, several with commas, or all", ParseHideLayers},
        {"--zoom", Argument::Required, "EXTENT", "zoom to all or selection", ParseZoom},
        {"--screenshot", Argument::Required, "FILE", "write the window as a PNG picture", ParseScreenshot},
    };
    options.insert(options.end(), others);
    return options;
}

const std::vector<TStepOption>& StepOptions()
{
    static const std::vector<TStepOption> options = MakeStepOptions();
    return options;
}

const TStepOption* FindOption(const QString& name)
{
    const auto found = std::find_if(StepOptions().begin(), StepOptions().end(),
                                    [&name](const TStepOption& option) { return name == QLatin1String(option.name); });
    return found == StepOptions().end() ? nullptr : &*found;
}

bool IsCount(const QString& text)
{
    constexpr int mostDigits = 6;
    return !text.isEmpty() && text.size() <= mostDigits && std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
}

/** Takes the argument that belongs to an option away from those that are left. */
QString TakeArgument(const TStepOption& option, QStringList& left)
{
    switch (option.takes) {
    case Argument::None: return {};
    case Argument::Count: return !left.isEmpty() && IsCount(left.first()) ? left.takeFirst() : QString();
    case Argument::Required: break;
    }
    if (left.isEmpty() || left.first().startsWith(QLatin1String("--"))) {
        throw TSessionError(
            QStringLiteral("%1 needs %2").arg(QLatin1String(option.name), QLatin1String(option.argument)));
    }
    return left.takeFirst();
}

/** The argument as it would be typed. */
QString Quoted(const QString& argument)
{
    static const QRegularExpression plain(QStringLiteral(R"(\A[\w.,:=/+-]+\z)"));
    return plain.match(argument).hasMatch() ? argument : QLatin1Char('\'') + argument + QLatin1Char('\'');
}

TStep ParseStep(const TStepOption& option, QStringList& left)
{
    const QString name = QString::fromLatin1(option.name);
    const QString argument = TakeArgument(option, left);
    TStep step;
    step.text = argument.isNull() ? name : name + QLatin1Char(' ') + Quoted(argument);
    try {
        step.perform = option.parse(argument);
    } catch (const TSessionError& error) {
        throw TSessionError(name + QStringLiteral(": ") + error.Cause());
    }
    return step;
}

} // namespace

TCommandLine TCommandLine::Parse(const QStringList& arguments)
{
    TCommandLine line;
    QStringList left = arguments;
    while (!left.isEmpty()) {
        const QString argument = left.takeFirst();
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            line.help = true;
        } else if (argument == QLatin1String("--timing")) {
            line.timing = true;
        } else if (const TStepOption* option = FindOption(argument)) {
            line.steps.append(ParseStep(*option, left));
        } else if (argument.startsWith(QLatin1Char('-')) && argument.size() > 1) {
            throw TSessionError(QStringLiteral("there is no option %1").arg(argument));
        } else if (!line.file.isEmpty()) {
            throw TSessionError(QStringLiteral("\"%1\" is too much: %2 is the file to open").arg(argument, line.file));
        } else if (!line.steps.isEmpty()) {
            throw TSessionError(
                QStringLiteral("\"%1\" is too late: the file to open stands before the steps").arg(argument));
        } else if (argument.isEmpty()) {
            throw TSessionError(QStringLiteral("the name of the file to open is empty"));
        } else {
            line.file = argument;
        }
    }
    return line;
}

QString TCommandLine::Usage()
{
    constexpr int helpColumn = 23;
    const auto entry = [](const QString& option, QString text) {
        text.replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(helpColumn, QLatin1Char(' ')));
        return QStringLiteral("  %1").arg(option).leftJustified(helpColumn) + text + QLatin1Char('\n');
    };
    QString usage = QStringLiteral("workbench [FILE] [STEP...]\n\n"
                                   "Opens a board (.kicad_pcb), or without FILE a sample board.\n\n"
                                   "Steps are done in their order, without a screen:\n");
    for (const TStepOption& option : StepOptions()) {
        usage +=
            entry(QStringLiteral("%1 %2").arg(QLatin1String(option.name), QLatin1String(option.argument)), option.help);
    }
    usage += entry(QStringLiteral("--timing"), QStringLiteral("print how many milliseconds each step takes"));
    usage += entry(QStringLiteral("--help"), QStringLiteral("print this and end"));
    usage += QStringLiteral("\nThe exit code is 0, or 2 after an error.\n");
    return usage;
}
