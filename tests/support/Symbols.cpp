#include "tests/support/Symbols.h"

#include <QProcess>

namespace {

QString Symbols(const QString& library, const char* which)
{
    QProcess nm;
    nm.start(PROPERTIES_NM, {QStringLiteral("-DC"), QString::fromLatin1(which), library});
    const bool isRead = nm.waitForFinished() && nm.exitStatus() == QProcess::NormalExit && nm.exitCode() == 0;
    return isRead ? QString::fromUtf8(nm.readAllStandardOutput()) : QString();
}

} // namespace

QString Test::DefinedSymbols(const QString& library)
{
    return Symbols(library, "--defined-only");
}

QString Test::UndefinedSymbols(const QString& library)
{
    return Symbols(library, "--undefined-only");
}
