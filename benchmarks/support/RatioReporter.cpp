#include "benchmarks/support/RatioReporter.h"

#include <QStringList>

#include <algorithm>
#include <iostream>

namespace Bench {

namespace {

constexpr const char* separator = " · ";
constexpr const char* notMeasured = "–";

std::string Digits(double value, char format, int precision)
{
    return QString::number(value, format, precision).toStdString();
}

std::string Duration(double nanoseconds)
{
    if (nanoseconds < 1e3) {
        return Digits(nanoseconds, 'g', 3) + " ns";
    }
    return nanoseconds < 1e6 ? Digits(nanoseconds / 1e3, 'g', 3) + " µs" : Digits(nanoseconds / 1e6, 'g', 3) + " ms";
}

double MedianOf(const std::map<std::int64_t, double>& repetitions)
{
    std::vector<double> values(repetitions.size());
    std::transform(repetitions.begin(), repetitions.end(), values.begin(), [](const auto& one) { return one.second; });
    return Median(std::move(values));
}

/** One text for each of @p things, with a separator between them. */
template <class Things, class TextOf>
std::string Join(const Things& things, TextOf textOf)
{
    std::string joined;
    for (const auto& thing : things) {
        joined += (joined.empty() ? "" : separator) + textOf(thing);
    }
    return joined;
}

void PrintLine(const std::vector<std::string>& cells)
{
    for (const std::string& cell : cells) {
        std::cout << "| " << cell << ' ';
    }
    std::cout << "|\n";
}

/** The head of a table: its subject, a column for each size, and what comes after them. */
void PrintHead(const std::string& title, const std::set<int>& sizes, const std::vector<std::string>& more = {})
{
    std::vector<std::string> cells{title};
    for (const int size : sizes) {
        cells.push_back(std::to_string(size));
    }
    cells.insert(cells.end(), more.begin(), more.end());
    std::cout << '\n';
    PrintLine(cells);
    PrintLine(std::vector<std::string>(cells.size(), "---"));
}

template <class Named>
auto FindNamed(Named& things, const std::string& name)
{
    return std::find_if(things.begin(), things.end(), [&name](const auto& thing) { return thing.name == name; });
}

} // namespace

bool RatioReporter::ReportContext(const Context& context)
{
    PrintBasicContext(&std::cerr, context);
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        families[run.family_index].push_back(run);
    }
}

void RatioReporter::Finalize()
{
    std::set<int> sizes;
    for (const auto& [family, runs] : families) {
        for (const Run& run : runs) {
            Read(run);
            if (run.run_type == Run::RT_Iteration) {
                sizes.insert(static_cast<int>(run.complexity_n));
            }
        }
    }
    if (!subjects.empty()) {
        PrintRatios(sizes);
        PrintTimes(sizes);
    }
    std::cout << std::flush;
}

void RatioReporter::Read(const Run& run)
{
    Variant& variant = VariantOf(run);
    if (run.report_big_o) {
        variant.slope = run.GetAdjustedRealTime();
    } else if (run.report_rms) {
        variant.misfit = run.GetAdjustedRealTime();
    } else if (run.run_type == Run::RT_Iteration) {
        variant.bySize[static_cast<int>(run.complexity_n)][run.repetition_index] = run.GetAdjustedRealTime();
    }
}

RatioReporter::Variant& RatioReporter::VariantOf(const Run& run)
{
    const std::string& name = run.run_name.function_name;
    const std::size_t slash = name.find('/');
    auto subject = FindNamed(subjects, name.substr(0, slash));
    if (subject == subjects.end()) {
        subject = subjects.insert(subject, Subject{name.substr(0, slash), {}});
    }
    const auto variant = FindNamed(subject->variants, name.substr(slash + 1));
    return variant != subject->variants.end() ? *variant
                                              : subject->variants.emplace_back(Variant{name.substr(slash + 1), {}});
}

std::vector<Goal> RatioReporter::Comparisons() const
{
    std::vector<Goal> comparisons;
    for (const Goal& goal : goals) {
        const bool known = std::any_of(comparisons.begin(), comparisons.end(),
                                       [&goal](const Goal& one) { return one.variant == goal.variant; });
        if (!known) {
            comparisons.push_back(goal);
        }
    }
    return comparisons;
}

void RatioReporter::PrintRatios(const std::set<int>& sizes) const
{
    const std::vector<Goal> comparisons = Comparisons();
    PrintHead("ratio: " + Join(comparisons, [](const Goal& goal) { return goal.variant + " to " + goal.baseline; }),
              sizes);
    for (const Subject& subject : subjects) {
        std::vector<std::string> cells{subject.name};
        for (const int size : sizes) {
            cells.push_back(
                Join(comparisons, [&](const Goal& comparison) { return Ratio(subject, comparison, size); }));
        }
        PrintLine(cells);
    }
}

std::string RatioReporter::Ratio(const Subject& subject, const Goal& comparison, int size) const
{
    const auto variant = FindNamed(subject.variants, comparison.variant);
    const auto baseline = FindNamed(subject.variants, comparison.baseline);
    if (variant == subject.variants.end() || baseline == subject.variants.end() || variant->bySize.count(size) == 0
        || baseline->bySize.count(size) == 0) {
        return notMeasured;
    }
    Repetitions ratios;
    for (const auto& [repetition, time] : variant->bySize.at(size)) {
        ratios[repetition] = time / baseline->bySize.at(size).at(repetition); // In the same round.
    }
    const double ratio = MedianOf(ratios);
    const bool missed = std::any_of(goals.begin(), goals.end(), [&](const Goal& goal) {
        return goal.variant == variant->name && (goal.size == Goal::everySize || goal.size == size)
               && ratio > goal.limit;
    });
    const std::string text = Digits(ratio, 'f', ratio < 10 ? 2 : 0);
    return missed ? "**" + text + "**" : text;
}

void RatioReporter::PrintTimes(const std::set<int>& sizes) const
{
    PrintHead("time each: " + Join(subjects.front().variants, [](const Variant& variant) { return variant.name; }),
              sizes, {"fitted growth", "misfit"});
    for (const Subject& subject : subjects) {
        std::vector<std::string> cells{subject.name};
        for (const int size : sizes) {
            cells.push_back(Join(subject.variants, [size](const Variant& variant) {
                const auto measured = variant.bySize.find(size);
                return measured == variant.bySize.end() ? notMeasured : Duration(MedianOf(measured->second) / size);
            }));
        }
        cells.push_back(Join(subject.variants, [](const Variant& variant) { return Duration(variant.slope); }));
        cells.push_back(
            Join(subject.variants, [](const Variant& variant) { return Digits(100 * variant.misfit, 'f', 0) + " %"; }));
        PrintLine(cells);
    }
}

} // namespace Bench
