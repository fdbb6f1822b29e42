#include "mavCycEd/CycleWriting.h"

#include <utility>

#include "cycle/CycleWriter.h"
#include "cycle/MacroLines.h"
#include "cycle/UnwritablePlace.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "platform/LocalTime.h"

namespace mavCycEd {
namespace {

/// Keeps what the writer reports.
class ReportedError : public ErrorSink {
 public:
  void report(const RunTimeError& error, std::string_view) noexcept override { error_ = error.description(); }
  const std::string& error() const { return error_; }

 private:
  std::string error_;
};

class SystemTime : public platform::Clock {
 public:
  std::string localTimestamp() const override { return platform::localTimestamp(); }
};

WrittenCycle unwritten(std::string message, std::optional<UnwritablePlace> place = {}) {
  return {{}, WriteFault{std::move(place), std::move(message)}};
}

}  // namespace

WrittenCycle writeCycleDocument(const Cycle& cycle, const CycleFacts& facts) {
  if (cycle.lines.empty()) return unwritten("A cycle without atom lines cannot be written as a cycle document.");
  libxml2::Libxml2DocumentFactory xmlDocuments;
  ReferenceCycle reference;
  reference.setLoaded({}, facts);
  const SystemTime clock;
  ReportedError errors;
  CycleWriter writer(cycle, reference, xmlDocuments, clock, errors);
  std::string text = writer.RetrieveCycleVersion03();
  if (!text.empty()) return {std::move(text), std::nullopt};
  if (auto place = unwritablePlace(cycle, xmlDocuments)) {
    std::string reason = reasonOf(*place);
    return unwritten(std::move(reason), std::move(place));
  }
  return unwritten("The cycle cannot be written as a cycle document: " + errors.error() + ".");
}

WrittenCycle writeMacroText(const Cycle& cycle) {
  if (const auto line = lineWithoutName(cycle)) {
    const AtomLine& unnamed = cycle.lines[*line];
    return unwritten("The cycle cannot be written as a macro text: a parameter of the atom " + unnamed.name +
                         " in line " + std::to_string(*line + 1) + " has no name.",
                     UnwritablePlace{UnwritablePlace::What::ParameterName, *line, {}, {}});
  }
  return {macroHeader() + macroTextOf(cycle), std::nullopt};
}

}  // namespace mavCycEd
