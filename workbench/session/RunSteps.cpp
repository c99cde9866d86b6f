#include "workbench/session/RunSteps.h"

#include "workbench/session/TSession.h"
#include "workbench/session/TSessionError.h"

#include <QCoreApplication>
#include <QElapsedTimer>

int RunSteps(const QVector<TStep>& steps, bool timing, TSession& session, const TStreams& streams)
{
    int number = 0;
    for (const TStep& step : steps) {
        ++number;
        try {
            QElapsedTimer timer;
            timer.start();
            const QString result = step.perform(session);
            QCoreApplication::processEvents(); // Including the repaint that the step caused.
            const qint64 elapsed = timer.nsecsElapsed();
            if (!result.isEmpty()) {
                streams.results << result << '\n';
            }
            if (timing) {
                WriteTime(step.text, elapsed, streams.results);
            }
            streams.results.flush();
        } catch (const TSessionError& error) {
            streams.results.flush();
            streams.messages << "workbench: step " << number << " (" << step.text << "): " << error.Cause() << '\n';
            streams.messages.flush();
            return exitCodeOfErrors;
        }
    }
    return 0;
}

void WriteTime(const QString& what, qint64 nanoseconds, QTextStream& results)
{
    results << "time: " << what << ' ' << QString::number(static_cast<double>(nanoseconds) / 1e6, 'f', 1) << " ms\n";
}
