#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "cycle/MacroLines.h"
#include "mavCycEd/CycleReading.h"
#include "text/LineEnds.h"
#include "text/TextPosition.h"

namespace mavCycEd {
namespace {

/// Takes a macro text over, line by line.
class MacroReader {
 public:
  MacroReader(std::string_view text, const Catalogue& catalogue)
      : text_(text), catalogue_(catalogue), positions_(text) {}

  Reading<ReadCycle> read() {
    std::string description;
    for (const MacroLine& line : macroLines(text_)) {
      switch (line.kind) {
        case MacroLine::Kind::Header: break;
        case MacroLine::Kind::Description: description.append(line.description()).append(text::crLf); break;
        case MacroLine::Kind::AtomCall: takeCall(line); break;
        case MacroLine::Kind::Variable: cycle_.variables.emplace_back(std::string(line.text)); break;
      }
    }
    cycle_.description = text::toCrLf(description);
    return {ReadCycle{std::move(cycle_), {}}, std::move(faults_)};
  }

 private:
  void takeCall(const MacroLine& line) {
    const std::string name(line.atomName());
    const std::vector<ParameterRow>& rows = rowsOf(name, line.text);
    const auto given = line.values();
    std::vector<std::pair<std::string, std::string>> parameters;
    std::optional<TextFault> refusal;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const std::string value = i < given.size() ? std::string(given[i]) : rows[i].firstValue;
      parameters.emplace_back(rows[i].key, value);
      const auto fault = refusal ? std::nullopt : checkValue(rows[i], value);
      if (!fault) continue;
      refusal = faultAt(i < given.size() ? given[i] : line.text, TextFault::Kind::RefusedValue,
                        describe(*fault, rows[i], value) + " The line is left out.");
    }
    if (refusal) {
      faults_.push_back(*std::move(refusal));
      return;
    }
    if (given.size() > rows.size() && catalogue_.offersAtom(name)) {
      faults_.push_back(faultAt(given[rows.size()], TextFault::Kind::DroppedValues,
                                "The atom " + name + " has " + std::to_string(rows.size()) +
                                    " parameters: this value and those behind it are dropped."));
    }
    cycle_.lines.push_back({name, ParameterText::of(parameters)});
  }

  // The parameters of the atom that a line names. What is wrong with them is told at its first line.
  const std::vector<ParameterRow>& rowsOf(const std::string& name, std::string_view line) {
    const auto known = rows_.find(name);
    if (known != rows_.end()) return known->second;
    AtomParameters parameters = catalogue_.parametersOf(name);
    if (!catalogue_.offersAtom(name)) {
      faults_.push_back(faultAt(line, TextFault::Kind::UnknownAtom,
                                "The catalogue has no atom " + name + ": its values are dropped."));
    }
    for (std::string& fault : parameters.faults) {
      faults_.push_back(faultAt(line, TextFault::Kind::AtomDefinition, std::move(fault)));
    }
    return rows_.emplace(name, std::move(parameters.rows)).first->second;
  }

  // `piece` points into the text; no piece stands before the one asked for last.
  TextFault faultAt(std::string_view piece, TextFault::Kind kind, std::string message) {
    const text::TextPosition position = positions_.at(static_cast<std::size_t>(piece.data() - text_.data()));
    return {kind, position.line, position.column, std::move(message)};
  }

  std::string_view text_;
  const Catalogue& catalogue_;
  text::TextPositions positions_;
  Cycle cycle_;
  std::vector<TextFault> faults_;
  std::unordered_map<std::string, std::vector<ParameterRow>> rows_;  // by atom
};

}  // namespace

Reading<ReadCycle> readMacroText(std::string_view text, const Catalogue& catalogue) {
  if (isMacroText(text)) return MacroReader(text, catalogue).read();
  Reading<ReadCycle> reading;
  reading.faults.push_back({TextFault::Kind::NoMacroText, 1, 1,
                            "A macro text begins with the line \"[PMA]\", ended by carriage return and line feed."});
  return reading;
}

}  // namespace mavCycEd
