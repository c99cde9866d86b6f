#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QVector>

class TGraphicsItem;
class TGraphicsPartItem;
class TProject;

/** Connects parts, each once, to what their pins touch. Created by the application. */
class PROPERTIES_EXPORT TCmdPartConnect : public TReversibleCommand
{
public:
    TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* project);

    /** Gives the pads of the parts' components the nets of their pins, where schematic and board are kept in sync and
     *  the board's connectivity is switched on. */
    void UpdatePCB();

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

    enum class Action { Connect, Disconnect };

    /** Calls the action on every part for everything it touches, keeps the results, and updates the board. */
    void ActOnAll(Action action);
    /** Calls the action on every part for its kept result, and updates the board. */
    void ActOnSaved(Action action);

private:
    static QVector<TGraphicsItem*> Act(Action action, TGraphicsPartItem& part, const QVector<TGraphicsItem*>& items);

    TProject* project;
    QVector<TGraphicsPartItem*> parts;
    QVector<QVector<TGraphicsItem*>> savedConnections; ///< From the last redo; parallel to `parts` since then.
    QList<unsigned short> components;                  ///< The numbers of the parts, each once.
};

/** Disconnects parts. Created by the application. */
class PROPERTIES_EXPORT TCmdPartDisconnect : public TCmdPartConnect
{
public:
    TCmdPartDisconnect(const QList<TGraphicsItem*>& selection, TProject* project);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;
};
