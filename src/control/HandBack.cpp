#include "control/HandBack.h"

#include "control/CycleEditorErrorEvent.h"
#include "cycle/UnwritablePlace.h"
#include "platform/RunTimeError.h"
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
  constexpr std::string_view procedure = "RetrieveCycle";
  return guarded(errors_, procedure, [&] {
    std::string result;
    const Format format = referenceFormat();
    switch (format) {
      case Format::Old: result = writer_.RetrieveNewCycle(); break;
      case Format::New: {
        const bool changed = guarded(errors_, "CycleChanged", [&] { return differs(procedure); });
        result = changed ? writer_.RetrieveNewCycle() : writer_.RetrieveCycleVersion03();
        break;
      }
      case Format::Unknown: break;
    }
    if (format != Format::Unknown) tellIfSpoiled(result, procedure);
    cycle_.reference.setWritten(result, result.empty() ? CycleFacts() : writer_.writtenFacts());
    cycle_.compared.reset();
    cycle_.document.sealStretch();
    return result;
  });
}

bool HandBack::CycleChanged() {
  return guarded(errors_, "CycleChanged", [this] { return differs("CycleChanged"); });
}

// Recomputes the changed flag for a procedure.
bool HandBack::differs(std::string_view procedure) {
  cycle_.changed = false;
  const CycleDocument::Revision revision = cycle_.document.revision();
  if (!cycle_.compared || cycle_.compared->revision != revision) {
    cycle_.compared.reset();
    if (const std::optional<bool> found = compared(procedure)) cycle_.compared = {revision, *found};
  }
  cycle_.changed = cycle_.compared && cycle_.compared->differs;
  return cycle_.changed;
}

// Whether the cycle differs from the reference; nothing when it could not be written.
std::optional<bool> HandBack::compared(std::string_view procedure) {
  std::string produced;
  switch (referenceFormat()) {
    case Format::Old: produced = writer_.RetrieveCycleVersion02(); break;
    case Format::New: produced = writer_.RetrieveCycleVersion03(); break;
    case Format::Unknown: return std::nullopt;
  }
  tellIfSpoiled(produced, procedure);
  if (produced.empty()) return std::nullopt;
  if (cycle_.reference.isWrittenAs(produced, xmlDocuments_)) return false;
  return codePage_.fromUtf8(produced) != codePage_.fromUtf8(cycle_.reference.xml(xmlDocuments_));
}

void HandBack::tellIfSpoiled(const std::string& written, std::string_view procedure) {
  if (!written.empty() || cycle_.cycle().lines.empty() || told_.contains(cycle_.document.revision())) return;
  const auto place = unwritablePlace(cycle_.cycle(), xmlDocuments_);
  if (!place) return;  // the writer has failed, and said so
  told_.insert(cycle_.document.revision());
  errors_.report(RunTimeError(mavCycEdErrorInvalidXML, describe(*place)), procedure);
}

}  // namespace mavCycEd
