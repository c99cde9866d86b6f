#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class TSession;

/** One step of a command line. */
struct TStep
{
    QString text;                              ///< As given, such as "--select via".
    std::function<QString(TSession&)> perform; ///< Returns the result; throws `TSessionError`.
};

/** A parsed command line. */
struct TCommandLine
{
    QString file; ///< Empty for the sample.
    QVector<TStep> steps;
    bool timing = false;
    bool help = false;

    /** Whether it runs unattended, without a screen. */
    bool IsScript() const { return timing || !steps.isEmpty(); }

    /** Parses the arguments, without the program's name. Throws `TSessionError` before any step runs. */
    static TCommandLine Parse(const QStringList& arguments);

    /** The help text. */
    static QString Usage();
};
