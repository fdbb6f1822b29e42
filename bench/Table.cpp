#include "Table.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <ostream>

namespace mavCycEd::bench {
namespace {

struct Unit {
  double size;
  const char* name;
};

std::string inUnit(double value, bool timed) {
  static constexpr std::array times{Unit{1, "s"}, Unit{1e-3, "ms"}, Unit{1e-6, "us"}};
  static constexpr std::array sizes{Unit{1e6, "MB"}, Unit{1e3, "kB"}, Unit{1, "B"}};
  const auto& units = timed ? times : sizes;
  const Unit* unit = units.data();
  while (unit != &units.back() && value < unit->size) ++unit;
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%.3g %s", value / unit->size, unit->name);
  return text.data();
}

std::string number(const char* format, double value) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), format, value);
  return text.data();
}

}  // namespace

void writeTable(std::ostream& output, const std::vector<Result>& results) {
  output << "| work | lines | ours | yardstick | ratio | target |\n|---|--:|--:|--:|--:|--:|\n";
  std::size_t missed = 0;
  for (const Result& result : results) {
    output << "| " << result.work << " | " << (result.lines > 0 ? std::to_string(result.lines) : "–") << " | "
           << inUnit(result.ours, result.timed) << " | " << inUnit(result.yardstick, result.timed) << " | "
           << number("%.2f", result.ratio()) << " | " << (result.target ? number("%g", *result.target) : "–") << " |\n";
    if (!result.isMet()) ++missed;
  }
  output << '\n';
  if (missed == 0) output << "All targets are met.\n";
  for (const Result& result : results) {
    if (result.isMet()) continue;
    output << "Missed: " << result.work;
    if (result.lines > 0) output << ", " << result.lines << " lines";
    output << ": " << number("%.2f", result.ratio()) << " instead of at most " << number("%g", *result.target) << '\n';
  }
}

void writeJson(std::ostream& output, const std::vector<Result>& results) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const Result& result : results) {
    list.push_back({{"work", result.work},
                    {"lines", result.lines},
                    {"ours", result.ours},
                    {"yardstick", result.yardstick},
                    {"ratio", result.ratio()},
                    {"target", result.target ? nlohmann::ordered_json(*result.target) : nlohmann::ordered_json()}});
  }
  output << list.dump(2) << '\n';
}

}  // namespace mavCycEd::bench
