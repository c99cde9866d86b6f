#include "workbench/importer/format/TSexpression.h"

#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/TImportError.h"
#include "workbench/importer/format/TSexpressionParser.h"

#include <algorithm>
#include <charconv>

namespace {

/** An atom as quoted in a message. */
QString Shown(std::string_view characters)
{
    constexpr std::size_t longestShown = 40;
    const bool isCut = characters.size() > longestShown;
    const auto shownSize = static_cast<int>(std::min(characters.size(), longestShown));
    return QLatin1Char('\'') + QString::fromUtf8(characters.data(), shownSize)
           + (isCut ? QStringLiteral("...'") : QStringLiteral("'"));
}

int DigitValue(char character)
{
    int value = -1;
    std::from_chars(&character, &character + 1, value, 16);
    return value;
}

/** Reads the digits of a numeric escape, advances past them, and returns the byte. */
char NumberedByte(std::string_view::const_iterator& at, std::string_view::const_iterator end, int base, int mostDigits)
{
    int byte = 0;
    for (int count = 0; count < mostDigits && at != end; ++count, ++at) {
        const int digit = DigitValue(*at);
        if (digit < 0 || digit >= base) {
            break;
        }
        byte = byte * base + digit;
    }
    return static_cast<char>(byte);
}

/** The character of a one-letter escape; any other character stands for itself. */
char EscapedCharacter(char letter)
{
    switch (letter) {
    case 'a': return '\a';
    case 'b': return '\b';
    case 'f': return '\f';
    case 'n': return '\n';
    case 'r': return '\r';
    case 't': return '\t';
    case 'v': return '\v';
    default: return letter;
    }
}

/** Resolves the escapes of the C language. */
QByteArray WithoutEscapes(std::string_view characters)
{
    QByteArray bytes;
    bytes.reserve(static_cast<int>(characters.size()));
    for (auto at = characters.begin(); at != characters.end();) {
        const char character = *at++;
        if (character != '\\' || at == characters.end()) {
            bytes.append(character);
        } else if (*at >= '0' && *at <= '7') {
            bytes.append(NumberedByte(at, characters.end(), 8, 3));
        } else if (*at == 'x') {
            bytes.append(NumberedByte(++at, characters.end(), 16, 2));
        } else {
            bytes.append(EscapedCharacter(*at++));
        }
    }
    return bytes;
}

} // namespace

TSexpressionTree::TSexpressionTree(const QByteArray& parsedText, const TProgress& progress) : text(parsedText)
{
    TSexpressionParser(text, nodes, progress).Parse();
}

TSexpression TSexpressionTree::Root() const
{
    return {*this, 0};
}

TSexpression::TIterator& TSexpression::TIterator::operator++()
{
    index = tree->nodes[index].end;
    return *this;
}

std::string_view TSexpression::Characters() const
{
    const TSexpressionTree::TNode& node = Node();
    return {tree->text.constData() + node.begin, node.length};
}

bool TSexpression::IsWord(std::string_view word) const
{
    return Node().kind == TSexpressionTree::Kind::Word && Characters() == word;
}

std::string_view TSexpression::Name() const
{
    const quint32 first = index + 1;
    const bool hasName = first < Node().end && tree->nodes[first].kind == TSexpressionTree::Kind::Word;
    return hasName ? TSexpression(*tree, first).Characters() : std::string_view();
}

TSexpression::TIterator TSexpression::begin() const
{
    return {*tree, Name().empty() ? index + 1 : index + 2};
}

std::optional<TSexpression> TSexpression::FindValue(int position) const
{
    for (const TSexpression value : *this) {
        if (position-- == 0) {
            return value;
        }
    }
    return std::nullopt;
}

TSexpression TSexpression::Value(int position) const
{
    const std::optional<TSexpression> value = FindValue(position);
    if (!value) {
        Fail(QStringLiteral("%1 has fewer than %2 values").arg(Shown(Name())).arg(position + 1));
    }
    return *value;
}

std::optional<TSexpression> TSexpression::Find(std::string_view name) const
{
    for (const TSexpression value : *this) {
        if (value.Name() == name) {
            return value;
        }
    }
    return std::nullopt;
}

TSexpression TSexpression::Get(std::string_view name) const
{
    const std::optional<TSexpression> found = Find(name);
    if (!found) {
        Fail(QStringLiteral("%1 without %2").arg(Shown(Name()), Shown(name)));
    }
    return *found;
}

bool TSexpression::HasFlag(std::string_view flag, int from) const
{
    for (const TSexpression value : *this) {
        if (from-- > 0) {
            continue;
        }
        if (value.IsWord(flag)) {
            return true;
        }
        if (value.Name() == flag) {
            const std::optional<TSexpression> answer = value.FindValue(0);
            return !answer || !(answer->IsWord("no") || answer->IsWord("false"));
        }
    }
    return false;
}

std::string_view TSexpression::Atom() const
{
    if (IsList()) {
        Fail(QStringLiteral("expected a single value, found list %1").arg(Shown(Name())));
    }
    return Characters();
}

QString TSexpression::Text() const
{
    const std::string_view characters = Atom();
    const bool hasEscapes =
        Node().kind == TSexpressionTree::Kind::Quoted && characters.find('\\') != std::string_view::npos;
    return hasEscapes ? QString::fromUtf8(WithoutEscapes(characters))
                      : QString::fromUtf8(characters.data(), static_cast<int>(characters.size()));
}

int TSexpression::Integer() const
{
    const std::string_view characters = Atom();
    const char* const end = characters.data() + characters.size();
    int number = 0;
    const auto [stop, error] = std::from_chars(characters.data(), end, number);
    if (stop != end || error != std::errc()) {
        FailToBe("a whole number");
    }
    return number;
}

double TSexpression::Decimal() const
{
    const std::optional<double> number = Measures::ParseDecimal(Atom());
    if (!number) {
        FailToBe("a number");
    }
    return *number;
}

qint64 TSexpression::Millionths() const
{
    constexpr qint64 largest = 10'000'000'000;
    const std::optional<qint64> number = Measures::ParseMillionths(Atom());
    if (!number) {
        FailToBe("a number");
    }
    if (*number > largest || *number < -largest) {
        Fail(QStringLiteral("%1 is out of range").arg(Shown(Characters())));
    }
    return *number;
}

qint64 TSexpression::Extent() const
{
    const qint64 extent = Millionths();
    if (extent < 0) {
        Fail(QStringLiteral("%1 must not be negative").arg(Shown(Characters())));
    }
    return extent;
}

void TSexpression::Fail(const QString& cause) const
{
    throw TImportError(Line(), cause);
}

void TSexpression::FailToBe(const char* what) const
{
    Fail(QStringLiteral("%1 is not %2").arg(Shown(Characters()), QString::fromLatin1(what)));
}
