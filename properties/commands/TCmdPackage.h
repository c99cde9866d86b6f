#pragma once

#include "properties/commands/TExistingItems.h"
#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <workspace/Osmirel.h>

#include <QStringList>

class TBoard;
class TGraphicsPackageItem;
class TProject;

/**
 * Moves packages to the other side of the board: cuts their connections, shows their texts as the board's switches say,
 * and connects them to what their pads touch there. Packages that are on the side already are left out.
 */
class PROPERTIES_EXPORT TCmdPkgSide : public TReversibleCommand
{
public:
    TCmdPkgSide(const QList<TGraphicsPackageItem*>& packages, Osmirel::Layer layer, TBoard* board);

    /** Moves one package and shows or hides its designator and value as the board's switches say. */
    void SetLayer(TGraphicsPackageItem* package, Osmirel::Layer layer);
    /** Forgets the packages that are no longer on the board. */
    void ExistItems();

protected:
    void Do() override;
    void Undo() override;

private:
    TBoard* board;
    QList<TGraphicsPackageItem*> items;
    QVector<Osmirel::Layer> oldLayers;                 ///< Parallel to `items`.
    QVector<QVector<TGraphicsItem*>> savedConnections; ///< What the last redo cut; parallel to `items` from then on.
    Osmirel::Layer newLayer;
};

/**
 * Renames the selected packages of the project's board. In a project that keeps schematic and board in step, packages
 * that belong to a component keep their designator.
 */
class PROPERTIES_EXPORT TCmdPackageRefDes : public TReversibleCommand
{
public:
    TCmdPackageRefDes(const QString& text, TProject* project);

    /** Forgets the packages that are no longer on the board. */
    void ExistItems();

protected:
    void Do() override;
    void Undo() override;

    /** Writes the text that the command is about. */
    virtual void Write(TGraphicsPackageItem& package, const QString& text) const;

    QList<TGraphicsPackageItem*> items;
    QStringList oldTexts; ///< Parallel to `items`.

private:
    bool BelongsToSchematic(const TGraphicsPackageItem& package) const;

    QString newText;
    TProject* project;
};

/** Changes the value of the selected packages, by the rules of `TCmdPackageRefDes`. */
class PROPERTIES_EXPORT TCmdPackageValue : public TCmdPackageRefDes
{
public:
    TCmdPackageValue(const QString& text, TProject* project);

protected:
    void Write(TGraphicsPackageItem& package, const QString& text) const override;
};

/** Connects packages and net ties of the board to what their pads touch. */
class PROPERTIES_EXPORT TCmdPkgConnect : public TReversibleCommand
{
public:
    TCmdPkgConnect(const QList<TGraphicsItem*>& selection, TBoard* board);

    /** Forgets the items that are no longer on the board. */
    void ExistItems();

protected:
    void Do() override;
    void Undo() override;

    enum class Action { Connect, Disconnect };

    /** Acts on every item with all that it touches, keeps what each of them returned, and updates the rat lines. */
    void ActOnAll(Action action);
    /** Acts on every item with exactly what is kept for it, and updates the rat lines. */
    void ActOnSaved(Action action);

private:
    static QVector<TGraphicsItem*> Act(Action action, TGraphicsItem& item, const QVector<TGraphicsItem*>& connections);
    void UpdateRats();

    TBoard* board;
    QList<TGraphicsItem*> items;
    QVector<QVector<TGraphicsItem*>> savedConnections; ///< From the last redo; parallel to `items` from then on.
};

/** Cuts packages and net ties of the board from what they are connected to. */
class PROPERTIES_EXPORT TCmdPkgDisconnect : public TCmdPkgConnect
{
public:
    TCmdPkgDisconnect(const QList<TGraphicsItem*>& selection, TBoard* board);

protected:
    void Do() override;
    void Undo() override;
};
