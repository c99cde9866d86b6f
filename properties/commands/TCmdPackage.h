#pragma once

#include "properties/commands/TConnectCommand.h"
#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <workspace/Osmirel.h>

#include <QStringList>
#include <QVector>

class TBoard;
class TGraphicsItem;
class TGraphicsPackageItem;
class TProject;

/**
 * Moves packages, each once, to the other side of the board: disconnects them, shows or hides their texts as the
 * board's switches say, and connects them to what their pads touch there. Packages already on that side are skipped.
 */
class PROPERTIES_EXPORT TCmdPkgSide : public TReversibleCommand
{
public:
    TCmdPkgSide(const QList<TGraphicsPackageItem*>& packages, Osmirel::Layer layer, TBoard* board);

    /** Moves one package and shows or hides its designator and value as the board's switches say. */
    void SetLayer(TGraphicsPackageItem* package, Osmirel::Layer layer);
    /** Forgets the packages that are no longer on the board. */
    void ExistItems();

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    TBoard* board;
    QList<TGraphicsPackageItem*> items;
    QVector<Osmirel::Layer> oldLayers;                 ///< Parallel to `items`.
    QVector<QVector<TGraphicsItem*>> savedConnections; ///< What the last redo cut; parallel to `items` since then.
    Osmirel::Layer newLayer;
};

/**
 * Renames the selected packages of the project's board. In a project that keeps schematic and board in sync, packages
 * that belong to a component keep their designator.
 */
class PROPERTIES_EXPORT TCmdPackageRefDes : public TReversibleCommand
{
public:
    TCmdPackageRefDes(const QString& text, TProject* project);

    /** Forgets the packages that are no longer on the board. */
    void ExistItems();

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

    /** Writes the text that the command edits. */
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
    TCommandKind Kind() const override;

protected:
    void Write(TGraphicsPackageItem& package, const QString& text) const override;
};

/** Connects packages and net ties of the board, each once, to what their pads touch. */
class PROPERTIES_EXPORT TCmdPkgConnect : public TConnectCommand
{
public:
    TCmdPkgConnect(const QList<TGraphicsItem*>& selection, TBoard* board);

    /** Forgets the items that are no longer on the board. */
    void ExistItems();

    TCommandKind Kind() const override;

protected:
    TCmdPkgConnect(const QList<TGraphicsItem*>& selection, TBoard* board, Action ofRedo);

    /** False without the board's view. */
    bool Prepare() override;
    QVector<TGraphicsItem*> Act(Action action, TGraphicsItem& item,
                                const QVector<TGraphicsItem*>& connections) override;
    /** Updates the rat lines. */
    void Update() override;

private:
    TBoard* board;
};

/** Disconnects packages and net ties of the board. */
class PROPERTIES_EXPORT TCmdPkgDisconnect : public TCmdPkgConnect
{
public:
    TCmdPkgDisconnect(const QList<TGraphicsItem*>& selection, TBoard* board);
    TCommandKind Kind() const override;
};
