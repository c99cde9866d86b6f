#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QVector>

class TGraphicsItem;
class TGraphicsPartItem;
class TProject;

/** Connects parts, each once, to what their pins touch. Made by the application. */
class PROPERTIES_EXPORT TCmdPartConnect : public TReversibleCommand
{
public:
    TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* project);

    /** Gives the pads of the parts' components the nets of their pins, where schematic and board are kept in step and
     *  the board's connectivity is switched on. */
    void UpdatePCB();

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

    enum class Action { Connect, Disconnect };

    /** Acts on every part with all that it touches, keeps what each of them returned, and updates the board. */
    void ActOnAll(Action action);
    /** Acts on every part with exactly what is kept for it, and updates the board. */
    void ActOnSaved(Action action);

private:
    static QVector<TGraphicsItem*> Act(Action action, TGraphicsPartItem& part, const QVector<TGraphicsItem*>& items);

    TProject* project;
    QVector<TGraphicsPartItem*> parts;
    QVector<QVector<TGraphicsItem*>> savedConnections; ///< From the last redo; parallel to `parts` from then on.
    QList<unsigned short> components;                  ///< The numbers of the parts, each once.
};

/** Cuts parts from what they are connected to. Made by the application. */
class PROPERTIES_EXPORT TCmdPartDisconnect : public TCmdPartConnect
{
public:
    TCmdPartDisconnect(const QList<TGraphicsItem*>& selection, TProject* project);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;
};
