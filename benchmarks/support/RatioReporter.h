#pragma once

#include "benchmarks/support/Ratios.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <set>

namespace Bench {

/** Prints, after the last benchmark, a table of ratios and one of times, with a row for each subject. */
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    explicit RatioReporter(std::vector<Goal> wanted) : goals(std::move(wanted)) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    /** Nanoseconds by repetition. */
    using Repetitions = std::map<std::int64_t, double>;

    struct Variant
    {
        std::string name;
        std::map<int, Repetitions> bySize;
        double slope = 0;  ///< Fitted nanoseconds for each item.
        double misfit = 0; ///< Root mean square of the distances from the fitted line, as a fraction of the mean.
    };

    struct Subject
    {
        std::string name;
        std::vector<Variant> variants;
    };

    void Read(const Run& run);
    Variant& VariantOf(const Run& run);
    void PrintRatios(const std::set<int>& sizes) const;
    void PrintTimes(const std::set<int>& sizes) const;
    /** The ratios that have a goal, each once. */
    std::vector<Goal> Comparisons() const;
    std::string Ratio(const Subject& subject, const Goal& comparison, int size) const;

    std::vector<Goal> goals;
    std::map<std::int64_t, std::vector<Run>> families; ///< In the order of registration, which is not that of the runs.
    std::vector<Subject> subjects;
};

} // namespace Bench
