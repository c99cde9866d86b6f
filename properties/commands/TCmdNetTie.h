#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>

#include <QHash>
#include <QList>
#include <QVector>

class TProject;

/**
 * The base of the net-tie commands, which keep the numbers of ties instead of pointers: the ties with these numbers are
 * looked up at every redo and undo, on the schematic and on the board. By itself it is a no-op.
 */
class PROPERTIES_EXPORT TCmdNetTieBase : public TReversibleCommand
{
public:
    explicit TCmdNetTieBase(TProject* project);

    /** The present ties of the schematic; none without a schematic. */
    QList<TGraphicsNetTieSchItem*> GetNetTiesOnSch() const;
    /** The ties that the board's view shows; none without a board and its view. */
    QList<TGraphicsNetTiePcbItem*> GetNetTiesOnPcb() const;

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

    bool HasSchematic() const;
    bool HasBoardView() const;

    TProject* project;
};

/** Which documents hold an attribute of net ties. */
enum class PROPERTIES_EXPORT TieSides { Schematic, Board, Both };

/**
 * A command over one attribute of net ties, a struct with `Value`, `sides`, and `Read` and `Write` for the items of
 * those sides. An edit reaches the side it was made on, and also the other one if the project keeps both in sync.
 */
template <class Attribute>
class PROPERTIES_EXPORT TNetTieCommand : public TCmdNetTieBase
{
public:
    using Value = typename Attribute::Value;

    ~TNetTieCommand() override;

protected:
    /** Keeps the numbers of the ties, each with the value of the first tie of that number. */
    template <class Tie>
    TNetTieCommand(const QList<Tie*>& ties, const Value& value, TProject* ofProject);

    bool Do() override;
    bool Undo() override;

private:
    /** Writes to those sides that the edit reaches and that exist. False if there are none. */
    template <class ValueAt>
    bool WriteAll(ValueAt valueAt);
    template <class Tie, class ValueAt>
    void Write(const QList<Tie*>& ties, ValueAt valueAt);

    QHash<quint16, int> indexOfNumber; ///< For each kept number its index in `oldValues`.
    QVector<Value> oldValues;
    Value newValue;
    bool madeOnSchematic;
};

namespace Attributes PROPERTIES_EXPORT {

struct NetTieName
{
    using Value = QString;
    static constexpr TieSides sides = TieSides::Both;
    template <class Tie>
    static QString Read(const Tie& tie)
    {
        return tie.Name();
    }
    template <class Tie>
    static void Write(Tie& tie, const QString& name)
    {
        tie.SetName(name);
    }
};

struct NetTieNameVisible
{
    using Value = bool;
    static constexpr TieSides sides = TieSides::Both;
    template <class Tie>
    static bool Read(const Tie& tie)
    {
        return tie.NameVisible();
    }
    template <class Tie>
    static void Write(Tie& tie, bool visible)
    {
        tie.SetNameVisible(visible);
    }
};

struct NetTieLayer
{
    using Value = Osmirel::Layer;
    static constexpr TieSides sides = TieSides::Board;
    static Osmirel::Layer Read(const TGraphicsNetTiePcbItem& tie) { return tie.Layer(); }
    static void Write(TGraphicsNetTiePcbItem& tie, Osmirel::Layer layer) { tie.SetLayer(layer); }
};

struct NetTiePadSize
{
    using Value = double;
    static constexpr TieSides sides = TieSides::Board;
    static double Read(const TGraphicsNetTiePcbItem& tie) { return tie.PadSize(); }
    static void Write(TGraphicsNetTiePcbItem& tie, double size) { tie.SetPadSize(size); }
};

struct NetTieWireWidth
{
    using Value = double;
    static constexpr TieSides sides = TieSides::Board;
    static double Read(const TGraphicsNetTiePcbItem& tie) { return tie.Pen().widthF(); }
    static void Write(TGraphicsNetTiePcbItem& tie, double width)
    {
        tie.Pen().setWidthF(width);
        tie.update();
    }
};

struct NetTieSymbol
{
    using Value = int;
    static constexpr TieSides sides = TieSides::Schematic;
    static bool Has(int symbol) { return 0 <= symbol && symbol <= 2; }
    static int Read(const TGraphicsNetTieSchItem& tie) { return tie.Symbol(); }
    static void Write(TGraphicsNetTieSchItem& tie, int symbol)
    {
        tie.SetSymbol(symbol);
        tie.update();
    }
};

} // namespace Attributes

/** Renames net ties. */
class PROPERTIES_EXPORT TCmdNetTieName : public TNetTieCommand<Attributes::NetTieName>
{
public:
    TCmdNetTieName(const QList<TGraphicsNetTiePcbItem*>& ties, const QString& name, TProject* project);
    TCmdNetTieName(const QList<TGraphicsNetTieSchItem*>& ties, const QString& name, TProject* project);
    TCommandKind Kind() const override;
};

/** Shows or hides the names of net ties. */
class PROPERTIES_EXPORT TCmdNetTieNameVis : public TNetTieCommand<Attributes::NetTieNameVisible>
{
public:
    TCmdNetTieNameVis(const QList<TGraphicsNetTiePcbItem*>& ties, bool visible, TProject* project);
    TCmdNetTieNameVis(const QList<TGraphicsNetTieSchItem*>& ties, bool visible, TProject* project);
    TCommandKind Kind() const override;
};

/** Moves net ties of the board to a layer. */
class PROPERTIES_EXPORT TCmdNetTiePcbLayer : public TNetTieCommand<Attributes::NetTieLayer>
{
public:
    TCmdNetTiePcbLayer(const QList<TGraphicsNetTiePcbItem*>& ties, Osmirel::Layer layer, TProject* project);
    TCommandKind Kind() const override;
};

/** Sets the diameter, in scene units, of the pads of net ties. */
class PROPERTIES_EXPORT TCmdNetTiePadSz : public TNetTieCommand<Attributes::NetTiePadSize>
{
public:
    TCmdNetTiePadSz(const QList<TGraphicsNetTiePcbItem*>& ties, double size, TProject* project);
    TCommandKind Kind() const override;
};

/** Sets the width, in scene units, of the wire of net ties. No set creates it; it is for the application. */
class PROPERTIES_EXPORT TCmdNetTieWireWidth : public TNetTieCommand<Attributes::NetTieWireWidth>
{
public:
    TCmdNetTieWireWidth(const QList<TGraphicsNetTiePcbItem*>& ties, double width, TProject* project);
    TCommandKind Kind() const override;
};

/** Chooses the symbol of net ties of the schematic: 0, 1 or 2. */
class PROPERTIES_EXPORT TCmdNetTieSchSymbol : public TNetTieCommand<Attributes::NetTieSymbol>
{
public:
    TCmdNetTieSchSymbol(const QList<TGraphicsNetTieSchItem*>& ties, int symbol, TProject* project);
    TCommandKind Kind() const override;
};
