#pragma once

#include "workbench/session/CommandLine.h"

#include <QTextStream>

/** The exit code after an error. */
constexpr int exitCodeOfErrors = 2;

/** Where a session's results go, and where everything else. */
struct TStreams
{
    QTextStream& results;
    QTextStream& messages;
};

/**
 * Does the steps one after another, with the events of each, and writes their results. After an error, which is
 * written with the number and the text of its step, no further step is done. Returns the exit code.
 */
int RunSteps(const QVector<TStep>& steps, bool timing, TSession& session, const TStreams& streams);

/** Writes how long something took. */
void WriteTime(const QString& what, qint64 nanoseconds, QTextStream& results);
