#include "workbench/session/CommandLine.h"

#include "workbench/editing/DesignActions.h"
#include "workbench/session/TItemQuery.h"
#include "workbench/session/TSession.h"
#include "workbench/session/TSessionError.h"

#include <QKeySequence>
#include <QPointF>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace {

using TPerform = std::function<QString(TSession&)>;

enum class Argument { None, Count, Required };

/** An option that is a step: its syntax, its help, and the parser of its argument. */
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

TPerform ParseTree(const QString&)
{
    return [](TSession& session) { return session.Tree(); };
}

TPerform ParseSet(const QString& assignment)
{
    if (!assignment.contains(QLatin1Char('='))) {
        throw TSessionError(
            QStringLiteral("\"%1\" is not a valid edit: Label=value or Label.part=value").arg(assignment));
    }
    return [assignment](TSession& session) { return session.Set(assignment); };
}

TPerform ParseKey(const QString& name)
{
    const auto key = QKeySequence::fromString(name, QKeySequence::PortableText);
    constexpr int unknown = Qt::Key_unknown;
    if (key.count() != 1 || (key[0] & unknown) == unknown) {
        throw TSessionError(QStringLiteral("\"%1\" is not a valid key, such as O, 5, Space or Ctrl+R").arg(name));
    }
    return [key](TSession& session) { return session.Press(key); };
}

/** A step that switches something on or off. */
template <QString (TSession::*step)(bool on)>
TPerform ParseSwitch(const QString& state)
{
    const bool on = state == QLatin1String("on");
    if (!on && state != QLatin1String("off")) {
        throw TSessionError(QStringLiteral("takes on or off, not \"%1\"").arg(state));
    }
    return [on](TSession& session) { return (session.*step)(on); };
}

/** A step with a free-form argument. */
template <QString (TSession::*step)(const QString& argument)>
TPerform ParseText(const QString& argument)
{
    return [argument](TSession& session) { return (session.*step)(argument); };
}

/** A step that renames something. */
template <QString (TSession::*step)(const QString& renaming)>
TPerform ParseRenaming(const QString& renaming)
{
    if (renaming.indexOf(QLatin1Char('=')) < 1 || renaming.endsWith(QLatin1Char('='))) {
        throw TSessionError(QStringLiteral("\"%1\" is not a valid renaming: what=name").arg(renaming));
    }
    return ParseText<step>(renaming);
}

/** A step without argument. */
template <QString (TSession::*step)()>
TPerform ParseNothing(const QString&)
{
    return [](TSession& session) { return (session.*step)(); };
}

/** The argument of an action in the help text. */
const char* ArgumentOf(TDesignAction::Asks asks)
{
    using Asks = TDesignAction::Asks;
    switch (asks) {
    case Asks::Text: return "TEXT";
    case Asks::Point: return "X,Y";
    case Asks::Size: return "W,H";
    case Asks::Length: return "MM";
    case Asks::Level: return "LEVEL";
    case Asks::Nothing: break;
    }
    return "";
}

/** Checks the argument of an action; returns its lengths. */
QPointF ParseAsked(const TDesignAction& action, const QString& given)
{
    using Asks = TDesignAction::Asks;
    if (action.asks == Asks::Level && !DesignActions::Levels().contains(given)) {
        throw TSessionError(
            QStringLiteral("takes %1, not \"%2\"").arg(DesignActions::Levels().join(QStringLiteral(", ")), given));
    }
    if (!action.AsksForNumbers()) {
        return {};
    }
    const std::optional<QPointF> numbers = DesignActions::ParseNumbers(action.asks, given);
    if (!numbers) {
        const QString needed = action.asks == Asks::Point  ? QStringLiteral("position: x,y in millimetres")
                               : action.asks == Asks::Size ? QStringLiteral("size: width,height in millimetres")
                                                           : QStringLiteral("length in millimetres");
        throw TSessionError(QStringLiteral("\"%1\" is not a valid %2").arg(given, needed));
    }
    return *numbers;
}

TStepOption OptionOf(const TDesignAction& action)
{
    using Asks = TDesignAction::Asks;
    QString help = QString::fromUtf8(action.menuText).remove(QLatin1Char('&')).remove(QChar(0x2026));
    help[0] = help[0].toLower();
    return {action.option, action.asks == Asks::Nothing ? Argument::None : Argument::Required, ArgumentOf(action.asks),
            help, [&action](const QString& given) -> TPerform {
                const QPointF point = ParseAsked(action, given);
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
        {"--page", Argument::Required, "PAGE",
         "show a page of the schematic, by its number or its name, and select there", ParseText<&TSession::ShowPage>},
        {"--board", Argument::None, "", "show the board, and select there", ParseNothing<&TSession::ShowBoard>},
        {"--tree", Argument::None, "", "print the pages and parts of the project", ParseTree},
        {"--select", Argument::Required, "WHAT",
         "select items: comma-separated kinds (wire, via, pad, part, pin, netwire, ...) or all;\n"
         "[i] or [i..j] after a kind: positions within it, from 0, in the design's order",
         ParseSelect},
        {"--panel", Argument::None, "", "print the panel: its title, then each row's label and value", ParsePanel},
        {"--set", Argument::Required, "LABEL=VALUE",
         "edit a row; its parts are LABEL.check=on, LABEL.width=1.2, LABEL.height=0.6,\n"
         "LABEL.show=off, LABEL.1=on and LABEL.2=on",
         ParseSet},
        {"--key", Argument::Required, "KEY", "press a key on the canvas", ParseKey},
        {"--bypass", Argument::Required, "on|off",
         "switch undo off for edits of the selected items (on), or back on (off)", ParseSwitch<&TSession::Bypass>},
    };
    for (const TDesignAction& action : DesignActions::All()) {
        options.push_back(OptionOf(action));
    }
    const std::initializer_list<TStepOption> others{
        {"--open-page", Argument::Required, "PAGE", "open a page from the project tree",
         ParseText<&TSession::OpenPage>},
        {"--open-part", Argument::Required, "PART",
         "open the symbol of a part for editing; the part is given by its designator, or by the number\n"
         "of its component",
         ParseText<&TSession::OpenPart>},
        {"--close-symbol", Argument::None, "", "close the symbol that is open", ParseNothing<&TSession::CloseSymbol>},
        {"--rename-page", Argument::Required, "PAGE=NAME", "rename a page in the project tree",
         ParseRenaming<&TSession::RenamePage>},
        {"--rename-part", Argument::Required, "PART=NAME", "rename a part in the project tree",
         ParseRenaming<&TSession::RenamePart>},
        {"--designators", Argument::Required, "on|off", "show or hide the designators of all packages",
         ParseSwitch<&TSession::ShowDesignators>},
        {"--values", Argument::Required, "on|off", "show or hide the values of all packages",
         ParseSwitch<&TSession::ShowValues>},
        {"--undo", Argument::Count, "[N]", "undo the last edit, or the last N, and show where it was made", ParseUndo},
        {"--redo", Argument::Count, "[N]", "redo the next edit, or the next N, and show where it was made", ParseRedo},
        {"--history", Argument::None, "", "print the undo history", ParseHistory},
        {"--dump", Argument::Required, "FILE", "write every item of the design as one line of text; - prints it",
         ParseDump},
        {"--show-layers", Argument::Required, "LAYERS", "show layers: comma-separated names, or all",
         ParseText<&TSession::ShowLayers>},
        {"--hide-layers", Argument::Required, "LAYERS", "hide layers: comma-separated names, or all",
         ParseText<&TSession::HideLayers>},
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

/** Removes the argument of an option from the remaining ones. */
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

/** The argument as typed in a shell. */
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
            throw TSessionError(QStringLiteral("unknown option %1").arg(argument));
        } else if (!line.file.isEmpty()) {
            throw TSessionError(
                QStringLiteral("unexpected argument \"%1\": %2 is the file to open").arg(argument, line.file));
        } else if (!line.steps.isEmpty()) {
            throw TSessionError(
                QStringLiteral("unexpected argument \"%1\": the file must come before the steps").arg(argument));
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
    constexpr int helpColumn = 27;
    const auto entry = [](const QString& option, QString text) {
        text.replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(helpColumn, QLatin1Char(' ')));
        return QStringLiteral("  %1").arg(option).leftJustified(helpColumn) + text + QLatin1Char('\n');
    };
    QString usage =
        QStringLiteral("workbench [FILE] [STEP...]\n\n"
                       "Opens a project (.kicad_pro) with its board and schematic, a schematic (.kicad_sch) or a\n"
                       "board (.kicad_pcb); without FILE, a sample project.\n\n"
                       "Steps run in the order given, without a screen:\n");
    for (const TStepOption& option : StepOptions()) {
        usage +=
            entry(QStringLiteral("%1 %2").arg(QLatin1String(option.name), QLatin1String(option.argument)), option.help);
    }
    usage += entry(QStringLiteral("--timing"), QStringLiteral("print how many milliseconds each step takes"));
    usage += entry(QStringLiteral("--help"), QStringLiteral("print this help and exit"));
    usage += QStringLiteral("\nThe exit code is 0, or 2 after an error.\n");
    return usage;
}
