#pragma once

#include "properties/commands/TConnectCommand.h"

class TProject;

/** Connects parts, each once, to what their pins touch. Created by the application. */
class PROPERTIES_EXPORT TCmdPartConnect : public TConnectCommand
{
public:
    TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* project);

    /** Gives the pads of the parts' components the nets of their pins, where schematic and board are kept in sync and
     *  the board's connectivity is switched on. */
    void UpdatePCB();

    TCommandKind Kind() const override;

protected:
    TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* project, Action ofRedo);

    QVector<TGraphicsItem*> Act(Action action, TGraphicsItem& item,
                                const QVector<TGraphicsItem*>& connections) override;
    void Update() override;

private:
    TProject* project;
    QList<unsigned short> components; ///< The numbers of the parts, each once.
};

/** Disconnects parts. Created by the application. */
class PROPERTIES_EXPORT TCmdPartDisconnect : public TCmdPartConnect
{
public:
    TCmdPartDisconnect(const QList<TGraphicsItem*>& selection, TProject* project);
    TCommandKind Kind() const override;
};
