#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QColor>
#include <QList>
#include <QStringList>

#include <optional>

class TGraphicsItem;
class TProject;
class TSchematic;
class TWorkspace;

/** Gives a net of the project another class. For a class that the schematic does not know it is a no-op. */
class PROPERTIES_EXPORT TCmdNetClass : public TReversibleCommand
{
public:
    TCmdNetClass(const QString& net, const QString& netClass, TProject* project);

    /** Writes the class to the net model if the project has a schematic that knows it. */
    void SetClass(const QString& ofNet, const QString& netClass);

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    /** Reads the old class, unless that was done before. False without a net model. */
    bool KeepOldClass();

    TProject* project;
    QString net;
    QString newClass;
    std::optional<QString> oldClass; ///< The value at construction, or when the command could first act.
};

/** Gives a net another colour in its schematic; an invalid one stands for the layers' colours. */
class PROPERTIES_EXPORT TCmdNetColorSch : public TReversibleCommand
{
public:
    TCmdNetColorSch(const QString& net, const QColor& color, TSchematic* schematic);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    /** Reads the old colour, unless that was done before. False without a net model. */
    bool KeepOldColor();

    TSchematic* schematic;
    QString net;
    QColor newColor;
    std::optional<QColor> oldColor; ///< The value at construction, or when the command could first act.
};

/** Gives a net of the project another colour on the board; an invalid one stands for the layers' colours. */
class PROPERTIES_EXPORT TCmdNetColorPcb : public TReversibleCommand
{
public:
    TCmdNetColorPcb(const QString& net, const QColor& color, TProject* project);

    /** Writes the colour to the net model and to the board's items of that net. */
    void SetColor(const QString& ofNet, const QColor& color);

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    /** Reads the old colour, unless that was done before. False without a net model. */
    bool KeepOldColor();

    TProject* project;
    QString net;
    QColor newColor;
    std::optional<QColor> oldColor; ///< The value at construction, or when the command could first act.
};

/** Gives nets of the project another routing priority: "Default" or a digit. */
class PROPERTIES_EXPORT TCmdNetPrio : public TReversibleCommand
{
public:
    TCmdNetPrio(const QStringList& nets, const QString& level, TProject* project);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    /** Reads the old levels, unless that was done before. False without a net model. */
    bool KeepOldLevels();
    /** Writes the levels, parallel to `nets`, to the net model and the rat lines, and recomputes the priorities. */
    void SetLevels(const QStringList& levels);

    TProject* project;
    QStringList nets;
    QString newLevel;
    QStringList oldLevels; ///< Parallel to `nets`: at construction, or when the command could first act.
};

/**
 * Intended: a no-op. A placeholder for a command that renames the net of an item, on the schematic or on the board as
 * the mode of the workspace says.
 */
class PROPERTIES_EXPORT TCmdNetName : public TReversibleCommand
{
public:
    TCmdNetName(TGraphicsItem* item, const QString& name, TWorkspace* workspace, TProject* project);

    /** @{ Intended: a no-op. */
    void SetNetNameOnSch(const QString& name);
    void SetNetNameOnPcb(const QString& name);
    /** @} */

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

    QList<TGraphicsItem*> items; ///< Intended: left empty.
    QString oldName;             ///< Intended: left empty.
    QString newName;
    TWorkspace* workspace;
    TProject* project;

private:
    void SetNetName(const QString& name);
};

/** Intended: a no-op. A placeholder for a command that renames a fragment of a net. */
class PROPERTIES_EXPORT TCmdFragmName : public TCmdNetName
{
public:
    TCmdFragmName(TGraphicsItem* item, const QString& name, TWorkspace* workspace, TProject* project);
    TCommandKind Kind() const override;
};
