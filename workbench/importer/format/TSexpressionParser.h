#pragma once

#include "workbench/importer/format/TSexpression.h"

/**
 * Parses a text into words, quoted texts and lists, in one pass and without recursion. A word ends at white space or at
 * a parenthesis and has no escapes; a quoted text ends on the line on which it begins.
 */
class TSexpressionParser
{
public:
    TSexpressionParser(const QByteArray& text, std::vector<TSexpressionTree::TNode>& parsedNodes,
                       const TSexpressionTree::TProgress& reportTo);

    void Parse();

private:
    void SkipSpace();
    void OpenList();
    void CloseList();
    void ReadQuoted();
    void ReadWord();
    void AddNode(TSexpressionTree::Kind kind, const char* from, const char* to);
    void Report();
    [[noreturn]] void Fail(const QString& cause) const;

    const char* const begin;
    const char* const end;
    const char* at;
    qint32 line = 1;
    std::vector<TSexpressionTree::TNode>& nodes;
    std::vector<quint32> open; ///< The nodes of the open lists, outermost first.
    const TSexpressionTree::TProgress& progress;
    int reported = 0;
};
