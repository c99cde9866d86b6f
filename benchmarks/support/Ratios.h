#pragma once

#include <functional>
#include <limits>
#include <string>
#include <vector>

/** Benchmarks that come as variants of one task and are judged by the ratios of their times. */
namespace Bench {

/** Seconds that each variant of a task took, in the order in which the variants are named. */
using Times = std::vector<double>;

/** From this size on a task is done once only, whatever the number of repetitions: all together it takes long. */
constexpr int smallestMeasuredOnce = 100'000;

/** Does a task of the given size with every variant in turn. */
using Round = std::function<Times(int size)>;

/** Processor time of the calling thread in seconds: time in which other programs had the processor does not count. */
double ThreadSeconds();

/** Times one stretch of work. */
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

/** What a variant is compared with, and the ratio that it is meant to keep to, if any, at one size or all. */
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

/** In which order the goes are done: a shelf of designs needs those of one subject together. */
enum class Order { Shuffled, AsRegistered };

/**
 * Runs what is registered, repeated unless the command line says otherwise, and prints medians as a Markdown table: the
 * time for each item, and for a variant that has a baseline the ratio to it, in bold where it misses its goal.
 * Returns the exit code.
 */
int RunAndCompare(int argc, char** argv, const std::vector<Goal>& goals, Order order = Order::Shuffled);

} // namespace Bench
