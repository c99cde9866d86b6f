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
 * into it, in the order in which they begin.
 */
class TSexpressionTree
{
public:
    /** Lists that lie deeper in each other than this are refused. */
    static constexpr int maxDepth = 100;

    /** Called with the part of the text that is behind, in percent, each time that it has grown. */
    using TProgress = std::function<void(int percent)>;

    /** Parses a text. Throws `TImportError` unless it is exactly one list, with all that it opens closed. */
    explicit TSexpressionTree(const QByteArray& parsedText, const TProgress& progress = {});

    /** The list that the whole text is. It and all that is reached from it lives as long as the tree. */
    TSexpression Root() const;

private:
    friend class TSexpression;
    friend class TSexpressionParser;

    enum class Kind : quint8 { List, Word, Quoted };

    struct TNode
    {
        quint32 begin;  ///< Where an atom's characters begin in the text, without the quotes.
        quint32 length; ///< How many there are, escapes not yet resolved.
        quint32 end;    ///< Index of the first node behind this one and all that it holds.
        qint32 line;
        Kind kind;
    };

    QByteArray text;
    std::vector<TNode> nodes;
};

/**
 * An atom or a list of a tree, to be passed by value. A list's leading word is its name; what follows are its values,
 * counted from 0. What kind of value an atom is only its reader knows: reading one as what it is not throws
 * `TImportError`.
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
    /** The name of a list; empty for an atom, and for a list that begins with anything but a word. */
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

    /** Whether a flag is set: a bare word among the values, from the one at @p from on, or a list that does not deny
     * it. */
    bool HasFlag(std::string_view flag, int from = 0) const;

    /** The atom with its escapes resolved. */
    QString Text() const;
    /** The atom as a whole number. */
    int Integer() const;
    /** The atom as a decimal number. */
    double Decimal() const;
    /** The atom, as a number of millimetres or degrees, in millionths; at most 10 000 of the unit. */
    qint64 Millionths() const;
    /** The same for measures that cannot be negative. */
    qint64 Extent() const;

    /** Throws a `TImportError` of this line. */
    [[noreturn]] void Fail(const QString& cause) const;

private:
    const TSexpressionTree::TNode& Node() const { return tree->nodes[index]; }
    /** The characters of an atom as they stand in the text. */
    std::string_view Characters() const;
    /** The same, where an atom is due. */
    std::string_view Atom() const;
    [[noreturn]] void FailToBe(const char* what) const;

    const TSexpressionTree* tree;
    quint32 index;
};
