#pragma once

#include "workbench/session/CommandLine.h"

#include <QTextStream>

/** The exit code after an error. */
constexpr int exitCodeOfErrors = 2;

/** The stream for a session's results, and that for everything else. */
struct TStreams
{
    QTextStream& results;
    QTextStream& messages;
};

/**
 * Runs the steps in order, processing events after each, and writes their results. Stops at the first error, which is
 * written with the number and the text of its step. Returns the exit code.
 */
int RunSteps(const QVector<TStep>& steps, bool timing, TSession& session, const TStreams& streams);

/** Writes how long something took. */
void WriteTime(const QString& what, qint64 nanoseconds, QTextStream& results);
