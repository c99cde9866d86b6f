#pragma once

#include <QString>

#include <rapidcheck.h>

#include <vector>

namespace Test {

/** None to so many parts; the numbers of each are drawn from their whole ranges. */
template <class Part>
rc::Gen<std::vector<Part>> UpTo(int most, const rc::Gen<Part>& part)
{
    constexpr int fullRange = 100; // the size at which numbers are drawn so
    return rc::gen::resize(most, rc::gen::container<std::vector<Part>>(rc::gen::resize(fullRange, part)));
}

/** Chooses so many cases, the same ones every time, and returns true, unless `RC_PARAMS` is there to repeat a failed
 *  case or to try others: "seed=1", "max_success=10000". */
inline bool TriesUsualCases(int count)
{
    const bool isUsual = qEnvironmentVariableIsEmpty("RC_PARAMS");
    if (isUsual) {
        qputenv("RC_PARAMS", QStringLiteral("seed=20240108 max_success=%1").arg(count).toLatin1());
    }
    return isUsual;
}

} // namespace Test
