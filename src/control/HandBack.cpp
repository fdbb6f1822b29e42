#include "control/HandBack.h"

#include "text/Number.h"

namespace mavCycEd {
namespace {

/// The first version that keeps timestamps.
constexpr double newFormatVersion = 3;

}  // namespace

HandBack::Format HandBack::referenceFormat() const {
  const std::optional<std::string>& version = cycle_.reference.facts().version;
  if (!version) return Format::Old;
  if (!text::isNumeric(*version)) return Format::Unknown;
  return text::numericValue(*version) < newFormatVersion ? Format::Old : Format::New;
}

std::string HandBack::RetrieveCycle() {
  return guarded(errors_, "RetrieveCycle", [this] {
    std::string result;
    switch (referenceFormat()) {
      case Format::Old: result = writer_.RetrieveNewCycle(); break;
      case Format::New: result = CycleChanged() ? writer_.RetrieveNewCycle() : writer_.RetrieveCycleVersion03(); break;
      case Format::Unknown: break;
    }
    cycle_.reference.setWritten(result, result.empty() ? CycleFacts() : writer_.writtenFacts());
    cycle_.differs.reset();
    return result;
  });
}

bool HandBack::CycleChanged() {
  return guarded(errors_, "CycleChanged", [this] {
    cycle_.changed = false;
    if (!cycle_.differs) cycle_.differs = compared();
    cycle_.changed = cycle_.differs.value_or(false);
    return cycle_.changed;
  });
}

// Whether the cycle differs from the reference; nothing when it could not be written.
std::optional<bool> HandBack::compared() {
  std::string produced;
  switch (referenceFormat()) {
    case Format::Old: produced = writer_.RetrieveCycleVersion02(); break;
    case Format::New: produced = writer_.RetrieveCycleVersion03(); break;
    case Format::Unknown: break;
  }
  if (produced.empty()) return std::nullopt;
  if (cycle_.reference.isWrittenAs(produced, xmlDocuments_)) return false;
  return codePage_.fromUtf8(produced) != codePage_.fromUtf8(cycle_.reference.xml(xmlDocuments_));
}

}  // namespace mavCycEd
