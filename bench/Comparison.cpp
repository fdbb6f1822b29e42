#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "Table.h"

namespace mavCycEd::bench {
namespace {

constexpr int repetitions = 5;

std::vector<Comparison>& rows() {
  static std::vector<Comparison> all;
  return all;
}

void measure(benchmark::State& state, const std::function<double()>& work) {
  for ([[maybe_unused]] const auto _ : state) state.SetIterationTime(work());
}

// What is enlisted stays so to the end of the program: `work`, and what it holds, must not.
void enlist(const std::string& name, const std::function<double()>& work) {
  benchmark::RegisterBenchmark(name.c_str(), [&work](benchmark::State& state) { measure(state, work); })
      ->UseManualTime()
      ->MinTime(0.05)
      ->Repetitions(repetitions);
}

/// Keeps the shortest time of each benchmark: what disturbs a run only ever makes it longer.
class Shortest : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
      const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
      const auto [entry, isFirst] = seconds_.emplace(run.run_name.function_name, seconds);
      if (!isFirst) entry->second = std::min(entry->second, seconds);
    }
  }
  /// 0 for one that did not run.
  double of(const std::string& name) const {
    const auto entry = seconds_.find(name);
    return entry == seconds_.end() ? 0 : entry->second;
  }

 private:
  std::map<std::string, double> seconds_;
};

std::string nameOf(const Comparison& row, const char* side) {
  return row.work + " | " + std::to_string(row.lines) + " | " + side;
}

}  // namespace

void compare(Comparison row) { rows().push_back(std::move(row)); }

double secondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::vector<Result> runComparisons() {
  for (const Comparison& row : rows()) {
    if (!row.timed) continue;
    enlist(nameOf(row, "ours"), row.ours);
    enlist(nameOf(row, "yardstick"), row.yardstick);
  }
  Shortest shortest;
  benchmark::RunSpecifiedBenchmarks(&shortest);
  std::vector<Result> results;
  for (const Comparison& row : rows()) {
    Result result{row.work, row.lines, 0, 0, row.target, row.timed};
    result.ours = row.timed ? shortest.of(nameOf(row, "ours")) : row.ours();
    result.yardstick = row.timed ? shortest.of(nameOf(row, "yardstick")) : row.yardstick();
    if (result.yardstick > 0) results.push_back(std::move(result));
  }
  rows().clear();
  return results;
}

}  // namespace mavCycEd::bench
