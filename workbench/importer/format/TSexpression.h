#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

class TSexpression;

/**
 * The tree of a parenthesised text: one list of atoms and further lists. It holds the text, and nodes that point
 * into it, in order of their beginnings.
 */
class TSexpressionTree
{
public:
    /** Lists that are nested deeper than this are refused. */
    static constexpr int maxDepth = 100;

    /** Called with the part of the text that is parsed, in percent, whenever it has grown. */
    using TProgress = std::function<void(int percent)>;

    /** Parses a text. Throws `TImportError` unless it is exactly one list with balanced parentheses. */
    explicit TSexpressionTree(const QByteArray& parsedText, const TProgress& progress = {});

    /** The root list. It, and everything reached from it, is valid as long as the tree. */
    TSexpression Root() const;

private:
    friend class TSexpression;
    friend class TSexpressionParser;

    enum class Kind : quint8 { List, Word, Quoted };

    struct TNode
    {
        quint32 begin;  ///< Where an atom's characters begin in the text, without the quotes.
        quint32 length; ///< Their number, with unresolved escapes.
        quint32 end;    ///< Index of the first node after this one and its descendants.
        qint32 line;
        Kind kind;
    };

    QByteArray text;
    std::vector<TNode> nodes;
};

/**
 * An atom or a list of a tree, to be passed by value. A list's leading word is its name; what follows are its values,
 * counted from 0. Atoms are untyped: reading one as a type that it does not have throws `TImportError`.
 */
class TSexpression
{
public:
    class TIterator
    {
    public:
        TIterator(const TSexpressionTree& ofTree, quint32 atIndex) : tree(&ofTree), index(atIndex) {}
        TSexpression operator*() const { return {*tree, index}; }
        TIterator& operator++();
        bool operator!=(const TIterator& other) const { return index != other.index; }

    private:
        const TSexpressionTree* tree;
        quint32 index;
    };

    TSexpression(const TSexpressionTree& ofTree, quint32 atIndex) : tree(&ofTree), index(atIndex) {}

    bool IsList() const { return Node().kind == TSexpressionTree::Kind::List; }
    /** Whether it is this unquoted atom. */
    bool IsWord(std::string_view word) const;
    /** The name of a list; empty for an atom, and for a list that does not begin with a word. */
    std::string_view Name() const;
    int Line() const { return Node().line; }

    /** The values of a list; none for an atom. */
    TIterator begin() const;
    TIterator end() const { return {*tree, Node().end}; }

    /** A value of the list; absent, or an error for `Value`, if it has fewer. */
    std::optional<TSexpression> FindValue(int position) const;
    TSexpression Value(int position) const;

    /** The first list of that name among the values; absent, or an error for `Get`, if there is none. */
    std::optional<TSexpression> Find(std::string_view name) const;
    TSexpression Get(std::string_view name) const;

    /** Whether a flag is set: a bare word among the values from index @p from on, or a list that does not negate it. */
    bool HasFlag(std::string_view flag, int from = 0) const;

    /** The atom with its escapes resolved. */
    QString Text() const;
    /** The atom as a whole number. */
    int Integer() const;
    /** The atom as a decimal number. */
    double Decimal() const;
    /** The atom, as a number of millimetres or degrees, in millionths; at most 10 000 of the unit. */
    qint64 Millionths() const;
    /** The same for measures that must not be negative. */
    qint64 Extent() const;

    /** Throws a `TImportError` of this line. */
    [[noreturn]] void Fail(const QString& cause) const;

private:
    const TSexpressionTree::TNode& Node() const { return tree->nodes[index]; }
    /** The raw characters of an atom. */
    std::string_view Characters() const;
    /** The same; an error unless it is an atom. */
    std::string_view Atom() const;
    [[noreturn]] void FailToBe(const char* what) const;

    const TSexpressionTree* tree;
    quint32 index;
};
