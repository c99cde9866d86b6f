#pragma once

#include "properties/TPropertySet.h"

#include <application/TUndoCommand.h>

#include <QGraphicsScene>
#include <QSet>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace Test {

/** Takes the commands that a set emits, in order, and owns them without running them. */
class CommandLog : public QObject
{
    Q_OBJECT

public:
    explicit CommandLog(const TPropertySet& set);

    /** Class names of the commands. */
    QStringList Names() const;
    int Count() const { return static_cast<int>(commands.size()); }
    void Redo();
    /** Redoes one command, counted from 0. */
    void Redo(int index) { commands[static_cast<std::size_t>(index)]->redo(); }
    /** Undoes all, the last one first. */
    void Undo();

private slots:
    void Take(TUndoCommand* command);

private:
    std::vector<std::unique_ptr<TUndoCommand>> commands;
};

/** Counts a signal, which is connected by its name as the interface of the library is. */
class SignalCounter : public QObject
{
    Q_OBJECT

public:
    /** @p signature is the signal's name with its argument types. */
    SignalCounter(const QObject* sender, const char* signature);

    int Count() const { return count; }
    bool IsConnected() const { return connected; }

private slots:
    void Add() { ++count; }

private:
    int count = 0;
    bool connected;
};

/** Collects the lines written to the debug log during its life instead of printing them. */
class DebugLines
{
public:
    DebugLines();
    ~DebugLines();
    Q_DISABLE_COPY(DebugLines)

    const QStringList& Lines() const { return lines; }

private:
    QStringList lines;
};

/** Translates every text to itself with a mark before it, and remembers what was asked for, as "context/text". */
class MarkingTranslator : public QTranslator
{
public:
    /** Installs itself; the application is told of the new language at once. */
    MarkingTranslator();
    ~MarkingTranslator() override;

    static QString Marked(const QString& text) { return QLatin1Char('~') + text; }
    bool WasAsked(const QString& context, const QString& text) const;

    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override;
    bool isEmpty() const override { return false; }

private:
    mutable QSet<QString> asked;
};

/** Tells which part of a scene is painted anew. */
class RepaintLog : public QObject
{
    Q_OBJECT

public:
    explicit RepaintLog(QGraphicsScene& scene);

    /** What was marked for repainting since the last call, in scene coordinates; empty for nothing. */
    QRectF Take();

private slots:
    void Add(const QList<QRectF>& region);

private:
    QRectF repainted;
};

/** An item that counts how often it brings its drawing up to date. */
template <class Item>
class Counting : public Item
{
public:
    void Refresh() override
    {
        ++refreshes;
        Item::Refresh();
    }

    int refreshes = 0;
};

} // namespace Test
