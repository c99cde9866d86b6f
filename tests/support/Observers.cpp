#include "tests/support/Observers.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>

namespace Test {

namespace {

QString ClassName(const TUndoCommand& command)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(command).name(), nullptr, nullptr, &status), &std::free);
    return QString::fromLatin1(name.get());
}

QStringList* debugSink = nullptr;
QtMessageHandler outerHandler = nullptr;

void CollectDebugLine(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtDebugMsg) {
        debugSink->append(message);
    } else {
        outerHandler(type, context, message);
    }
}

} // namespace

CommandLog::CommandLog(const TPropertySet& set)
{
    connect(&set, SIGNAL(sigCmd(TUndoCommand*)), SLOT(Take(TUndoCommand*)));
}

QStringList CommandLog::Names() const
{
    QStringList names;
    for (const auto& command : commands) {
        names.append(ClassName(*command));
    }
    return names;
}

void CommandLog::Redo()
{
    for (const auto& command : commands) {
        command->redo();
    }
}

void CommandLog::Undo()
{
    std::for_each(commands.rbegin(), commands.rend(), [](const auto& command) { command->undo(); });
}

void CommandLog::Take(TUndoCommand* command)
{
    commands.emplace_back(command);
}

SignalCounter::SignalCounter(const QObject* sender, const char* signature)
    : connected(QObject::connect(sender, QByteArray("2").append(signature), this, SLOT(Add())))
{}

DebugLines::DebugLines()
{
    debugSink = &lines;
    outerHandler = qInstallMessageHandler(CollectDebugLine);
}

DebugLines::~DebugLines()
{
    qInstallMessageHandler(outerHandler);
    debugSink = nullptr;
}

MarkingTranslator::MarkingTranslator()
{
    QCoreApplication::installTranslator(this);
}

MarkingTranslator::~MarkingTranslator()
{
    QCoreApplication::removeTranslator(this);
}

bool MarkingTranslator::WasAsked(const QString& context, const QString& text) const
{
    return asked.contains(context + QLatin1Char('/') + text);
}

QString MarkingTranslator::translate(const char* context, const char* source, const char*, int) const
{
    const QString text = QString::fromUtf8(source);
    asked.insert(QString::fromLatin1(context) + QLatin1Char('/') + text);
    return Marked(text);
}

RepaintLog::RepaintLog(QGraphicsScene& scene)
{
    connect(&scene, SIGNAL(changed(QList<QRectF>)), SLOT(Add(QList<QRectF>)));
    Take();
}

QRectF RepaintLog::Take()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // The scene gathers what changed before it says so.
    return std::exchange(repainted, QRectF());
}

void RepaintLog::Add(const QList<QRectF>& region)
{
    for (const QRectF& part : region) {
        repainted |= part;
    }
}

} // namespace Test
