#include "cycle/UnwritablePlace.h"

#include <string_view>

#include "cycle/CycleText.h"
#include "text/Utf8.h"
#include "text/XmlText.h"

namespace mavCycEd {
namespace {

/// Hears nothing: only whether there is a document is asked.
class Deaf : public platform::XmlContent {
 public:
  void startElement(std::string_view, const std::vector<platform::XmlAttribute>&) override {}
  void text(std::string_view) override {}
  void endElement() override {}
};

class Search {
 public:
  explicit Search(platform::XmlDocumentFactory& xmlDocuments) : xmlDocuments_(xmlDocuments) {}

  bool canStandInAnElement(std::string_view text) {
    std::string plain;
    if (text::appendPlainXml(plain, text)) return true;
    Deaf deaf;
    return xmlDocuments_.readDocument(std::string("<a>").append(text).append("</a>"), deaf);
  }

  std::optional<UnwritablePlace> inLine(std::size_t index, const AtomLine& line) {
    using What = UnwritablePlace::What;
    if (!canStandInAnElement(line.name)) return UnwritablePlace{What::AtomName, index, {}, line.name};
    std::optional<UnwritablePlace> found;
    line.parameters.forEachSegment([&](const ParameterSegment& segment) {
      if (found || !segment.hasValue()) return;
      const std::string name = StripParamName(segment.name());
      if (!canStandInAnElement(name)) {
        found = UnwritablePlace{What::ParameterName, index, name, name};
        return;
      }
      segment.forEachValue([&](std::string_view value) {
        if (!canStandInAnElement(value)) found = UnwritablePlace{What::ParameterValue, index, name, std::string(value)};
        return !found;
      });
    });
    return found;
  }

 private:
  platform::XmlDocumentFactory& xmlDocuments_;
};

std::string quoted(std::string_view text) {
  constexpr std::size_t longest = 100;
  std::string shown;
  for (std::size_t count = 0; !text.empty() && count < longest; ++count) {
    const std::size_t size = text::firstCharacterSize(text);
    shown.append(text.substr(0, size));
    text.remove_prefix(size);
  }
  if (!text.empty()) shown += "...";
  return "\"" + shown + "\"";
}

}  // namespace

std::optional<UnwritablePlace> unwritablePlace(const Cycle& cycle, platform::XmlDocumentFactory& xmlDocuments) {
  Search search(xmlDocuments);
  for (std::size_t i = 0; i < cycle.lines.size(); ++i) {
    if (auto place = search.inLine(i, cycle.lines[i])) return place;
  }
  for (std::size_t i = 0; i < cycle.variables.size(); ++i) {
    const VariableDefinition& variable = cycle.variables[i];
    if (variable.isBlank() || search.canStandInAnElement(variable.text())) continue;
    return UnwritablePlace{UnwritablePlace::What::Variable, i, {}, variable.text()};
  }
  return std::nullopt;
}

std::string reasonOf(const UnwritablePlace& place) {
  const std::string line = "line " + std::to_string(place.index + 1);
  std::string what;
  switch (place.what) {
    case UnwritablePlace::What::AtomName: what = "the atom name " + quoted(place.text) + " in " + line; break;
    case UnwritablePlace::What::ParameterName: what = "the parameter name " + quoted(place.text) + " in " + line; break;
    case UnwritablePlace::What::ParameterValue:
      what = "the value " + quoted(place.text) + " of the parameter " + quoted(place.parameterName) + " in " + line;
      break;
    case UnwritablePlace::What::Variable: what = "the variable " + quoted(place.text); break;
  }
  return "The cycle cannot be written as a cycle document: " + what +
         " holds markup (\"<\" or \"&\") or a character that XML does not allow.";
}

std::string describe(const UnwritablePlace& place) {
  return reasonOf(place) + " Change it, and hand the cycle back again.";
}

}  // namespace mavCycEd
