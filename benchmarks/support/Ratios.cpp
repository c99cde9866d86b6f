#include "benchmarks/support/Ratios.h"

#include "benchmarks/support/RatioReporter.h"

#include <QByteArray>

#include <algorithm>
#include <ctime>
#include <memory>

namespace Bench {

namespace {

/** Distributes the times of a subject's rounds to the benchmarks of its variants, in any order. */
class Rounds
{
public:
    Rounds(Round task, std::size_t variants) : round(std::move(task)), taken(variants) {}

    /** The variant's time in the first round of that size that it has not taken yet; of a size that is measured once,
     *  that one time again and again. */
    double Take(std::size_t variant, int size)
    {
        std::vector<Times>& done = bySize[size];
        const std::size_t turn = size < smallestMeasuredOnce ? taken[variant][size]++ : 0;
        if (turn == done.size()) {
            done.push_back(round(size));
        }
        return done[turn][variant];
    }

private:
    Round round;
    std::map<int, std::vector<Times>> bySize;
    std::vector<std::map<int, std::size_t>> taken;
};

} // namespace

double ThreadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Times MedianOfRounds(const std::function<Times()>& round)
{
    constexpr double enoughSeconds = 0.15;
    const double start = ThreadSeconds();
    std::vector<std::vector<double>> byVariant;
    do {
        const Times times = round();
        byVariant.resize(times.size());
        for (std::size_t variant = 0; variant < times.size(); ++variant) {
            byVariant[variant].push_back(times[variant]);
        }
    } while (ThreadSeconds() - start < enoughSeconds);
    Times medians;
    for (std::vector<double>& times : byVariant) {
        medians.push_back(Median(std::move(times)));
    }
    return medians;
}

void Register(const std::string& subject, const std::vector<std::string>& variants, const std::vector<int>& sizes,
              const Round& round)
{
    const auto rounds = std::make_shared<Rounds>(round, variants.size());
    for (std::size_t variant = 0; variant < variants.size(); ++variant) {
        const auto run = [rounds, variant](benchmark::State& state) {
            const auto size = static_cast<int>(state.range(0));
            for ([[maybe_unused]] auto iteration : state) {
                state.SetIterationTime(rounds->Take(variant, size));
            }
            state.SetComplexityN(size);
            state.SetItemsProcessed(state.iterations() * size);
        };
        auto* registered = benchmark::RegisterBenchmark((subject + '/' + variants[variant]).c_str(), run);
        registered->UseManualTime()->Iterations(1)->Complexity(benchmark::oN);
        for (const int size : sizes) {
            registered->Arg(size);
        }
    }
}

void UseOffscreenPlatform()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
    }
}

int RunAndCompare(int argc, char** argv, const std::vector<Goal>& goals, Order order)
{
    // The caller's arguments come later and so override these.
    std::vector<std::string> arguments{argv[0]};
    if (order == Order::Shuffled) {
        arguments.insert(arguments.end(), {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=5"});
    } else {
        arguments.emplace_back("--benchmark_repetitions=3");
    }
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char*> pointers(arguments.size());
    std::transform(arguments.begin(), arguments.end(), pointers.begin(), [](std::string& one) { return one.data(); });
    auto count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return 2;
    }
    RatioReporter reporter(goals);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}

} // namespace Bench
