#pragma once

#include <QString>

#include <stdexcept>

/** Why a command line is invalid, or a step of it cannot be done. Never thrown through the event loop. */
class TSessionError : public std::runtime_error
{
public:
    explicit TSessionError(const QString& cause) : std::runtime_error(cause.toStdString()) {}

    QString Cause() const { return QString::fromUtf8(what()); }
};
