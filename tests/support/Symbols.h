#pragma once

#include <QString>

namespace Test {

/**
 * The dynamic symbols that a shared library defines, or takes from others: lines of the binutils' `nm`, demangled.
 * Empty for a library that is not there or cannot be read.
 */
QString DefinedSymbols(const QString& library);
QString UndefinedSymbols(const QString& library);

} // namespace Test
