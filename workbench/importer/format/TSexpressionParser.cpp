#include "workbench/importer/format/TSexpressionParser.h"

#include "workbench/importer/format/TImportError.h"

#include <limits>

namespace {

constexpr bool IsSpace(char character)
{
    return character == ' ' || character == '\n' || character == '\t' || character == '\r';
}

/** Control characters are invalid in these files: the input is probably not text. */
constexpr bool IsControl(char character)
{
    return static_cast<unsigned char>(character) < ' ';
}

constexpr bool EndsWord(char character)
{
    return IsControl(character) || character == ' ' || character == '(' || character == ')';
}

} // namespace

TSexpressionParser::TSexpressionParser(const QByteArray& text, std::vector<TSexpressionTree::TNode>& parsedNodes,
                                       const TSexpressionTree::TProgress& reportTo)
    : begin(text.constData()), end(begin + text.size()), at(begin), nodes(parsedNodes), progress(reportTo)
{
    constexpr std::size_t usualCharactersPerNode = 6;
    nodes.reserve(static_cast<std::size_t>(text.size()) / usualCharactersPerNode);
}

void TSexpressionParser::Parse()
{
    SkipSpace();
    if (at == end) {
        Fail(QStringLiteral("the file is empty"));
    }
    if (*at != '(') {
        Fail(QStringLiteral("not a design file: it does not begin with a parenthesis"));
    }
    OpenList();
    while (!open.empty()) {
        SkipSpace();
        if (at == end) {
            Fail(QStringLiteral("unexpected end of file: the list that begins in line %1 is not closed")
                     .arg(nodes[open.back()].line));
        }
        switch (*at) {
        case '(': OpenList(); break;
        case ')': CloseList(); break;
        case '"': ReadQuoted(); break;
        default: ReadWord(); break;
        }
    }
    SkipSpace();
    if (at != end) {
        Fail(*at == ')' ? QStringLiteral("unmatched closing parenthesis")
                        : QStringLiteral("text after the closing parenthesis"));
    }
}

void TSexpressionParser::SkipSpace()
{
    for (; at != end && IsSpace(*at); ++at) {
        if (*at == '\n') {
            ++line;
        }
    }
}

void TSexpressionParser::OpenList()
{
    if (open.size() == TSexpressionTree::maxDepth) {
        Fail(QStringLiteral("lists are nested more than %1 deep").arg(TSexpressionTree::maxDepth));
    }
    if (open.size() == 1) {
        Report();
    }
    open.push_back(static_cast<quint32>(nodes.size()));
    AddNode(TSexpressionTree::Kind::List, at, at);
    ++at;
}

void TSexpressionParser::CloseList()
{
    nodes[open.back()].end = static_cast<quint32>(nodes.size());
    open.pop_back();
    ++at;
}

void TSexpressionParser::ReadQuoted()
{
    const char* const from = ++at;
    while (at != end && *at != '"' && *at != '\n') {
        const bool isEscape = *at == '\\' && end - at > 1 && at[1] != '\n';
        at += isEscape ? 2 : 1;
    }
    if (at == end || *at == '\n') {
        Fail(QStringLiteral("unterminated quoted text"));
    }
    AddNode(TSexpressionTree::Kind::Quoted, from, at);
    ++at;
}

void TSexpressionParser::ReadWord()
{
    if (IsControl(*at)) {
        const int code = static_cast<unsigned char>(*at);
        Fail(QStringLiteral("unexpected control character (code %1)").arg(code));
    }
    const char* const from = at;
    while (at != end && !EndsWord(*at)) {
        ++at;
    }
    AddNode(TSexpressionTree::Kind::Word, from, at);
}

void TSexpressionParser::AddNode(TSexpressionTree::Kind kind, const char* from, const char* to)
{
    const auto next = static_cast<quint32>(nodes.size() + 1);
    nodes.push_back({static_cast<quint32>(from - begin), static_cast<quint32>(to - from), next, line, kind});
}

void TSexpressionParser::Report()
{
    const int percent = static_cast<int>(100 * (at - begin) / (end - begin));
    if (progress && percent > reported) {
        reported = percent;
        progress(percent);
    }
}

void TSexpressionParser::Fail(const QString& cause) const
{
    throw TImportError(line, cause);
}
