// How the benchmarks without Qt run: counts first, times second, of the processor alone, which the neighbours on a
// shared machine don't change much.
#pragma once

#include <benchmark/benchmark.h>
#include <ctime>

namespace vorlane {

// The body of a benchmark's main.
inline int RunBenchmarks(int argc, char** argv, void (*printCounts)()) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    printCounts();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

// The processor's time that an operation takes, for benchmarks that take their time by hand.
template <class Operation>
double Seconds(Operation&& operation) {
    const std::clock_t start = std::clock();
    operation();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace vorlane
