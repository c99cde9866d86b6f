#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class TSession;

/** One thing that a command line asks for. */
struct TStep
{
    QString text;                              ///< As given, such as "--select via".
    std::function<QString(TSession&)> perform; ///< Returns the result; throws `TSessionError`.
};

/** What a command line asks for. */
struct TCommandLine
{
    QString file; ///< Empty for the sample.
    QVector<TStep> steps;
    bool timing = false;
    bool help = false;

    /** Whether all is told beforehand and nobody needs to look at a screen. */
    bool IsScript() const { return timing || !steps.isEmpty(); }

    /** Reads the arguments, without the program's name. Throws `TSessionError` before anything is done. */
    static TCommandLine Parse(const QStringList& arguments);

    /** What to say about the options. */
    static QString Usage();
};
