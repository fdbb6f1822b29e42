#include "mavCycEd/CycleCheck.h"

#include <unordered_map>
#include <utility>

namespace mavCycEd {
namespace {

class CycleChecker {
 public:
  explicit CycleChecker(const Catalogue& catalogue) : catalogue_(catalogue) {}

  void check(std::size_t index, const AtomLine& line) {
    const std::vector<ParameterRow>& rows = rowsOf(index, line.name);
    std::size_t parameter = 0;
    line.parameters.forEachSegment([&](const ParameterSegment& segment) {
      if (parameter < rows.size()) checkOne(index, parameter, rows[parameter], segment.value());
      ++parameter;
    });
  }

  std::vector<CycleFault> take() { return std::move(faults_); }

 private:
  void checkOne(std::size_t line, std::size_t parameter, const ParameterRow& row, std::string_view value) {
    if (const auto fault = checkValue(row, value)) {
      faults_.push_back({CycleFault::Kind::Value, line, parameter, describe(*fault, row, value)});
    }
  }

  const std::vector<ParameterRow>& rowsOf(std::size_t line, const std::string& name) {
    const auto known = rows_.find(name);
    if (known != rows_.end()) return known->second;
    AtomParameters parameters = catalogue_.parametersOf(name);
    if (!catalogue_.offersAtom(name)) {
      faults_.push_back({CycleFault::Kind::UnknownAtom, line, 0,
                         "The catalogue has no atom " + name + ": its values cannot be checked."});
    }
    for (std::string& fault : parameters.faults) {
      faults_.push_back({CycleFault::Kind::AtomDefinition, line, 0, std::move(fault)});
    }
    return rows_.emplace(name, std::move(parameters.rows)).first->second;
  }

  const Catalogue& catalogue_;
  std::unordered_map<std::string, std::vector<ParameterRow>> rows_;  // by atom
  std::vector<CycleFault> faults_;
};

}  // namespace

std::vector<CycleFault> checkCycle(const Cycle& cycle, const Catalogue& catalogue) {
  CycleChecker checker(catalogue);
  for (std::size_t i = 0; i < cycle.lines.size(); ++i) checker.check(i, cycle.lines[i]);
  return checker.take();
}

}  // namespace mavCycEd
