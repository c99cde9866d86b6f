#pragma once

#include <functional>
#include <limits>
#include <string>
#include <vector>

/** Benchmarks of variants of one task, evaluated by the ratios of their times. */
namespace Bench {

/** Seconds that each variant of a task took, in the order in which the variants are named. */
using Times = std::vector<double>;

/** From this size on a task runs only once, whatever the number of repetitions, since it takes long. */
constexpr int smallestMeasuredOnce = 100'000;

/** Does a task of the given size with every variant in turn. */
using Round = std::function<Times(int size)>;

/** Processor time of the calling thread in seconds, which excludes time used by other programs. */
double ThreadSeconds();

/** Times one interval of work. */
template <class Work>
double SecondsOf(Work work)
{
    const double start = ThreadSeconds();
    work();
    return ThreadSeconds() - start;
}

double Median(std::vector<double> values);

/** The median of rounds, variant by variant: of several if a round is short, of a single one if it is long. */
Times MedianOfRounds(const std::function<Times()>& round);

/**
 * Registers the variants of a subject, each as a benchmark "subject/variant" at each size with linear growth fitted.
 *
 * A repetition of all variants is one round: they run one after the other, so that a busy machine slows all of them
 * alike.
 */
void Register(const std::string& subject, const std::vector<std::string>& variants, const std::vector<int>& sizes,
              const Round& round);

/** The baseline of a variant, and its goal for the ratio, if any, at one size or all. */
struct Goal
{
    static constexpr int everySize = 0;

    std::string variant;
    std::string baseline;
    double limit = std::numeric_limits<double>::infinity();
    int size = everySize;
};

/** Lets the program run without a screen; called before the `QApplication` is made. */
void UseOffscreenPlatform();

/** The order of the rounds: a shelf of designs needs those of one subject together. */
enum class Order { Shuffled, AsRegistered };

/**
 * Runs what is registered, repeatedly unless the command line overrides it, and prints medians as a Markdown table: the
 * time for each item, and for a variant that has a baseline the ratio to it, in bold where it misses its goal.
 * Returns the exit code.
 */
int RunAndCompare(int argc, char** argv, const std::vector<Goal>& goals, Order order = Order::Shuffled);

} // namespace Bench
