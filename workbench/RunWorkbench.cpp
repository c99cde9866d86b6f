#include "workbench/RunWorkbench.h"

#include "workbench/design/LoadDesign.h"
#include "workbench/importer/ProjectImporter.h"
#include "workbench/session/RunSteps.h"
#include "workbench/session/Tour.h"
#include "workbench/session/TSession.h"
#include "workbench/session/TSessionError.h"
#include "workbench/window/Theme.h"
#include "workbench/window/TMainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

namespace {

bool IsSet(const char* variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

/** Whether the platform that the toolkit would choose, or is configured to use, has a screen. */
bool HasScreen()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!platform.isEmpty()) {
        return !platform.startsWith(QLatin1String("offscreen")) && !platform.startsWith(QLatin1String("minimal"));
    }
    return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY");
}

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

QtMessageHandler defaultHandler = nullptr;

/** Passes messages on, except the toolkit's warnings about a platform without a screen. */
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isAboutPlatform = message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))
                                 || message.startsWith(QLatin1String("This plugin does not support"));
    if (!isAboutPlatform && defaultHandler) {
        defaultHandler(type, context, message);
    }
}

int Fail(const QString& cause, QTextStream& messages)
{
    messages << "workbench: " << cause << '\n';
    messages.flush();
    return exitCodeOfErrors;
}

/** Opens the design that the command line names, shows the window, and runs the steps or the tour. */
int Work(const TCommandLine& line, bool forPerson, const TStreams& streams)
{
    const QString file = line.file.isEmpty() ? SampleProjectFile() : line.file;
    const QString name = line.file.isEmpty() ? QStringLiteral("sample project") : QFileInfo(file).fileName();
    QElapsedTimer timer;
    timer.start();
    if (!forPerson) {
        streams.messages << "reading " << name << '\n';
        streams.messages.flush();
    }
    TImportResult result = forPerson ? LoadDesignWithDialog(file, nullptr) : ImportDesign(file);
    if (!HasDesign(result)) {
        return result.cancelled ? 0 : Fail(result.error, streams.messages);
    }
    for (const QString& notice : Notices(result)) {
        streams.messages << name << ": " << notice << '\n';
    }
    streams.messages.flush();

    TMainWindow window;
    window.resize(1400, 900);
    window.ShowDesign(std::move(result), name);
    window.show();
    if (forPerson) {
        return QApplication::exec();
    }
    QApplication::processEvents();
    if (line.timing) {
        WriteTime(QStringLiteral("open ") + name, timer.nsecsElapsed(), streams.results);
    }
    if (!line.IsScript()) {
        return RunTour(window, streams);
    }
    TSession session(window);
    return RunSteps(line.steps, line.timing, session, streams);
}

} // namespace

int RunWorkbench(int argc, char** argv)
{
    QTextStream results(stdout);
    QTextStream messages(stderr);
    results.setCodec("UTF-8");
    messages.setCodec("UTF-8");

    TCommandLine line;
    try {
        line = TCommandLine::Parse(Arguments(argc, argv));
    } catch (const TSessionError& error) {
        return Fail(error.Cause() + QStringLiteral(" (see --help)"), messages);
    }
    if (line.help) {
        results << TCommandLine::Usage();
        return 0;
    }

    const bool forPerson = HasScreen() && !line.IsScript();
    if (!forPerson) {
        if (!IsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        QLocale::setDefault(QLocale::c()); // Number formats independent of the user's locale.
        defaultHandler = qInstallMessageHandler(HandleMessage);
    }
    int toolkitArguments = 1; // The command line does not take the toolkit's options.
    const QApplication application(toolkitArguments, argv);
    Theme::Apply();

    // The toolkit's file dialog saves its settings, which would leave a file in the user's home.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());

    const int code = Work(line, forPerson, {results, messages});
    results.flush();
    return results.status() == QTextStream::Ok ? code : Fail(QStringLiteral("the results cannot be written"), messages);
}
