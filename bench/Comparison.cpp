#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <map>
#include <regex>
#include <utility>
#include <vector>

#include "Table.h"

namespace mavCycEd::bench {
namespace {

using Work = std::function<double()>;

constexpr int repetitions = 5;
// The ratio of a pair is held to a target nearby: both have to come by a quiet moment.
constexpr int pairedRepetitions = 8;

std::vector<Comparison>& rows() {
  static std::vector<Comparison> all;
  return all;
}

/// The shortest time that each piece of work took: what disturbs a run only ever makes it longer. 0: it did not run.
using Shortest = std::map<const Work*, double>;

Shortest& shortest() {
  static Shortest times;
  return times;
}

double measured(const Work& work) {
  const double seconds = work();
  double& known = shortest()[&work];
  known = known == 0 ? seconds : std::min(known, seconds);
  return seconds;
}

// What is enlisted stays so to the end of the program: the works, and what they hold, must not.
void enlist(const std::string& name, std::vector<const Work*> works, int times) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [works = std::move(works)](benchmark::State& state) {
                                 for ([[maybe_unused]] const auto _ : state) {
                                   double seconds = 0;
                                   for (const Work* work : works) seconds += measured(*work);
                                   state.SetIterationTime(seconds);
                                 }
                               })
      ->UseManualTime()
      ->MinTime(0.05)
      ->Repetitions(times);
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

double processorSecondsOf(const std::function<void()>& work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::duration<double>(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
  };
  const auto start = now();
  work();
  return (now() - start).count();
}

std::vector<Result> runComparisons() {
  for (const Comparison& row : rows()) {
    if (!row.timed) continue;
    if (row.paired) {
      enlist(nameOf(row, "ours, yardstick"), {&row.ours, &row.yardstick}, pairedRepetitions);
    } else {
      enlist(nameOf(row, "ours"), {&row.ours}, repetitions);
      enlist(nameOf(row, "yardstick"), {&row.yardstick}, repetitions);
    }
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
