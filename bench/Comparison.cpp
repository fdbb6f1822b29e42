#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <regex>
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

/// The shortest time that each piece of work took: what disturbs a run only ever makes it longer. 0: it did not run.
using Shortest = std::map<const std::function<double()>*, double>;

Shortest& shortest() {
  static Shortest times;
  return times;
}

void measure(benchmark::State& state, const std::function<double()>& work) {
  for ([[maybe_unused]] const auto _ : state) {
    const double seconds = work();
    state.SetIterationTime(seconds);
    double& known = shortest()[&work];
    known = known == 0 ? seconds : std::min(known, seconds);
  }
}

// What is enlisted stays so to the end of the program: `work`, and what it holds, must not.
void enlist(const std::string& name, const std::function<double()>& work) {
  benchmark::RegisterBenchmark(name.c_str(), [&work](benchmark::State& state) { measure(state, work); })
      ->UseManualTime()
      ->MinTime(0.05)
      ->Repetitions(repetitions);
}

/// The table is ours.
class Silence : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>&) override {}
};

bool isWanted(const std::string& name) { return std::regex_search(name, std::regex(benchmark::GetBenchmarkFilter())); }

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
  Silence silence;
  benchmark::RunSpecifiedBenchmarks(&silence);
  std::vector<Result> results;
  for (const Comparison& row : rows()) {
    if (!row.timed && !isWanted(nameOf(row, "ours"))) continue;
    Result result{row.work, row.lines, 0, 0, row.target, row.timed};
    result.ours = row.timed ? shortest()[&row.ours] : row.ours();
    result.yardstick = row.timed ? shortest()[&row.yardstick] : row.yardstick();
    if (result.yardstick > 0) results.push_back(std::move(result));
  }
  rows().clear();
  return results;
}

}  // namespace mavCycEd::bench
