#include "control/HandBack.h"

#include "text/Number.h"

namespace mavCycEd {
namespace {

/// The first version that keeps timestamps.
constexpr double newFormatVersion = 3;

}  // namespace

HandBack::Format HandBack::referenceFormat() const {
  const platform::XmlNode version =
      cycle_.reference ? cycle_.reference->selectSingleNode("CYCLE/VERSION") : platform::XmlNode();
  if (!version) return Format::Old;
  const std::string value = version.nodeTypedValue();
  if (!text::isNumeric(value)) return Format::Unknown;
  return text::numericValue(value) < newFormatVersion ? Format::Old : Format::New;
}

std::string HandBack::RetrieveCycle() {
  return guarded(errors_, "RetrieveCycle", [this] {
    std::string result;
    switch (referenceFormat()) {
      case Format::Old: result = writer_.RetrieveNewCycle(); break;
      case Format::New: result = CycleChanged() ? writer_.RetrieveNewCycle() : writer_.RetrieveCycleVersion03(); break;
      case Format::Unknown: break;
    }
    if (cycle_.reference) cycle_.reference->loadXML(result);
    return result;
  });
}

bool HandBack::CycleChanged() {
  return guarded(errors_, "CycleChanged", [this] { return recomputeChanged(); });
}

bool HandBack::recomputeChanged() {
  cycle_.changed = false;
  if (!cycle_.reference) return false;
  std::string produced;
  switch (referenceFormat()) {
    case Format::Old: produced = writer_.RetrieveCycleVersion02(); break;
    case Format::New: produced = writer_.RetrieveCycleVersion03(); break;
    case Format::Unknown: break;
  }
  if (!produced.empty()) {
    cycle_.changed = codePage_.fromUtf8(produced) != codePage_.fromUtf8(cycle_.reference->xml());
  }
  return cycle_.changed;
}

}  // namespace mavCycEd
