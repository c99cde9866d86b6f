#pragma once

#include "properties/commands/ProjectParts.h"
#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>

#include <QHash>
#include <QList>
#include <QVector>

/**
 * The base of the net-tie commands, which keep numbers of ties instead of items: the ties that bear the numbers are
 * found anew at every redo and undo, on the schematic and on the board. By itself it changes nothing.
 */
class PROPERTIES_EXPORT TCmdNetTieBase : public TReversibleCommand
{
public:
    explicit TCmdNetTieBase(TProject* project);

    /** The ties of the schematic as it stands now; none without a schematic. */
    QList<TGraphicsNetTieSchItem*> GetNetTiesOnSch() const;
    /** The ties that the board's view shows; none without a board and its view. */
    QList<TGraphicsNetTiePcbItem*> GetNetTiesOnPcb() const;

protected:
    void Do() override;
    void Undo() override;

    TProject* project;
};

/** Which documents hold an attribute of net ties. */
enum class TieSides { Schematic, Board, Both };

/**
 * A command over one attribute of net ties, a struct with `Value`, `sides`, and `Read` and `Write` for the items of
 * those sides. An edit reaches the side that it was made on, and the other one too when the project keeps both in step.
 */
template <class Attribute>
class TNetTieCommand : public TCmdNetTieBase
{
public:
    using Value = typename Attribute::Value;

protected:
    void Do() override
    {
        WriteAll([this](int) { return newValue; });
    }

    void Undo() override
    {
        WriteAll([this](int index) { return oldValues.at(index); });
    }

    template <class Tie>
    TNetTieCommand(const QList<Tie*>& ties, const Value& value, TProject* ofProject)
        : TCmdNetTieBase(ofProject), newValue(value), madeOnSchematic(std::is_same_v<Tie, TGraphicsNetTieSchItem>)
    {
        for (const Tie* tie : ties) {
            if (tie && !indexOfNumber.contains(tie->Number())) {
                indexOfNumber.insert(tie->Number(), oldValues.size());
                oldValues.append(Attribute::Read(*tie));
            }
        }
    }

private:
    template <class ValueAt>
    void WriteAll(ValueAt valueAt)
    {
        const bool inStep = ProjectParts::IsInStep(project);
        if constexpr (Attribute::sides != TieSides::Board) {
            if (madeOnSchematic || inStep) {
                Write(GetNetTiesOnSch(), valueAt);
            }
        }
        if constexpr (Attribute::sides != TieSides::Schematic) {
            if (!madeOnSchematic || inStep) {
                Write(GetNetTiesOnPcb(), valueAt);
            }
        }
    }

    template <class Tie, class ValueAt>
    void Write(const QList<Tie*>& ties, ValueAt valueAt)
    {
        for (Tie* tie : ties) {
            const auto index = indexOfNumber.constFind(tie->Number());
            if (index != indexOfNumber.constEnd()) {
                Attribute::Write(*tie, valueAt(*index));
            }
        }
    }

    QHash<quint16, int> indexOfNumber; ///< For each kept number its index in `oldValues`.
    QVector<Value> oldValues;
    Value newValue;
    bool madeOnSchematic;
};

namespace Attributes {

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
};

/** Shows or hides the names of net ties. */
class PROPERTIES_EXPORT TCmdNetTieNameVis : public TNetTieCommand<Attributes::NetTieNameVisible>
{
public:
    TCmdNetTieNameVis(const QList<TGraphicsNetTiePcbItem*>& ties, bool visible, TProject* project);
    TCmdNetTieNameVis(const QList<TGraphicsNetTieSchItem*>& ties, bool visible, TProject* project);
};

/** Moves net ties of the board to a layer. */
class PROPERTIES_EXPORT TCmdNetTiePcbLayer : public TNetTieCommand<Attributes::NetTieLayer>
{
public:
    TCmdNetTiePcbLayer(const QList<TGraphicsNetTiePcbItem*>& ties, Osmirel::Layer layer, TProject* project);
};

/** Sets the diameter, in scene units, of the pads of net ties. */
class PROPERTIES_EXPORT TCmdNetTiePadSz : public TNetTieCommand<Attributes::NetTiePadSize>
{
public:
    TCmdNetTiePadSz(const QList<TGraphicsNetTiePcbItem*>& ties, double size, TProject* project);
};

/** Sets the width, in scene units, of the wire of net ties. No set makes it; it is there for the application. */
class PROPERTIES_EXPORT TCmdNetTieWireWidth : public TNetTieCommand<Attributes::NetTieWireWidth>
{
public:
    TCmdNetTieWireWidth(const QList<TGraphicsNetTiePcbItem*>& ties, double width, TProject* project);
};

/** Chooses the symbol of net ties of the schematic: 0, 1 or 2. */
class PROPERTIES_EXPORT TCmdNetTieSchSymbol : public TNetTieCommand<Attributes::NetTieSymbol>
{
public:
    TCmdNetTieSchSymbol(const QList<TGraphicsNetTieSchItem*>& ties, int symbol, TProject* project);
};
