#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QColor>
#include <QHash>
#include <QStringList>

class TNetModel;
class TProject;

/** Gives a net of the project another class. A class that the schematic does not know changes nothing. */
class PROPERTIES_EXPORT TCmdNetClass : public TReversibleCommand
{
public:
    TCmdNetClass(const QString& net, const QString& netClass, TProject* project);

    /** Writes the class to the net model if the project has a schematic that knows it. */
    void SetClass(const QString& ofNet, const QString& netClass);

protected:
    void Do() override;
    void Undo() override;

private:
    TProject* project;
    QString net;
    QString newClass;
    QString oldClass;
};

/** Gives a net of the project another colour on the board; an invalid one stands for the layers' colours. */
class PROPERTIES_EXPORT TCmdNetColorPcb : public TReversibleCommand
{
public:
    TCmdNetColorPcb(const QString& net, const QColor& color, TProject* project);

    /** Writes the colour to the net model and to the board's items of that net. */
    void SetColor(const QString& ofNet, const QColor& color);

protected:
    void Do() override;
    void Undo() override;

private:
    TProject* project;
    QString net;
    QColor newColor;
    QColor oldColor;
};

/** Gives nets of the project another routing priority: "Default" or a digit. */
class PROPERTIES_EXPORT TCmdNetPrio : public TReversibleCommand
{
public:
    TCmdNetPrio(const QStringList& nets, const QString& level, TProject* project);

protected:
    void Do() override;
    void Undo() override;

private:
    /** Writes the levels, parallel to `nets`, to the net model and the rat lines, and recomputes the priorities. */
    void SetLevels(const QStringList& levels);

    TProject* project;
    QStringList nets;
    QString newLevel;
    QStringList oldLevels; ///< Parallel to `nets`.
};
