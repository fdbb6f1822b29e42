#include "cycle/LoadedCycle.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cycle/CycleText.h"
#include "platform/XmlContent.h"
#include "text/LineEnds.h"
#include "text/Strings.h"

namespace mavCycEd {
namespace {

/// Where in a cycle document an element stands.
enum class Place {
  Elsewhere,
  Cycle,
  Description,
  Variables,
  Variable,
  Version,
  AtomSequence,
  Atoms,
  Atom,
  AtomName,
  Parameters,
  Parameter,
  ParamName,
  ParamValue,
};

/// The description as it is edited, from the text that a document holds.
std::string shownDescription(std::string_view text) {
  const std::string unmarked = text::replaceAll(text, descriptionMarker, "");
  return ReverseDescription(text::replaceAll(unmarked, "\n", text::crLf));
}

/// Puts what is heard where it belongs. Of elements that a path leads to several times the first one counts, except for
/// those that are lists.
class CycleContent : public platform::XmlContent {
 public:
  void startElement(std::string_view name, const std::vector<platform::XmlAttribute>& attributes) override {
    ++depth_;
    if (++elements_ == 1) loaded_.root = name;
    loaded_.isEmpty = false;
    if (depth_ > placedDepth_ + 1) return;  // in an element that is read as a text, or not at all
    const Place place = placeOf(name);
    if (place == Place::Elsewhere) return;
    places_.push_back(place);
    placedDepth_ = depth_;
    start(place, attributes);
  }

  void text(std::string_view piece) override {
    if (text_ != nullptr) text_->append(piece);
  }

  void endElement() override {
    if (depth_-- != placedDepth_) return;
    end(places_.back());
    places_.pop_back();
    --placedDepth_;
  }

  /// What has been heard, when everything has.
  LoadedCycle take() {
    loaded_.cycle.description = shownDescription(description_.value_or(""));
    return std::move(loaded_);
  }

 private:
  Place placeOf(std::string_view name) const {
    if (places_.empty()) return depth_ == 1 && name == "CYCLE" ? Place::Cycle : Place::Elsewhere;
    switch (places_.back()) {
      case Place::Cycle: return placeInCycle(name);
      case Place::Variables: return Place::Variable;
      case Place::AtomSequence: return name == "ATOMS" && !loaded_.hasAtoms ? Place::Atoms : Place::Elsewhere;
      case Place::Atoms: return name == "ATOM" && !loaded_.lacksElement ? Place::Atom : Place::Elsewhere;
      case Place::Atom:
        if (name == "ATOMNAME" && !atomName_) return Place::AtomName;
        return name == "PARAMETERS" ? Place::Parameters : Place::Elsewhere;
      case Place::Parameters: return name == "PARAMETER" ? Place::Parameter : Place::Elsewhere;
      case Place::Parameter:
        if (name == "PARAMNAME" && !paramName_) return Place::ParamName;
        return name == "PARAMVALUE" && !paramValue_ ? Place::ParamValue : Place::Elsewhere;
      default: return Place::Elsewhere;
    }
  }

  Place placeInCycle(std::string_view name) const {
    if (name == "DESCRIPTION" && !description_) return Place::Description;
    if (name == "VARIABLES" && !loaded_.hasVariables) return Place::Variables;
    if (name == "VERSION" && !loaded_.facts.version) return Place::Version;
    return name == "ATOMSEQUENCE" ? Place::AtomSequence : Place::Elsewhere;
  }

  void start(Place place, const std::vector<platform::XmlAttribute>& attributes) {
    switch (place) {
      case Place::Cycle: takeTimestamps(attributes); break;
      case Place::Description: text_ = &description_.emplace(); break;
      case Place::Variables: loaded_.hasVariables = true; break;
      case Place::Variable: text_ = &variable_.emplace(); break;
      case Place::Version: text_ = &loaded_.facts.version.emplace(); break;
      case Place::Atoms: loaded_.hasAtoms = true; break;
      case Place::Atom: startAtom(); break;
      case Place::AtomName: text_ = &atomName_.emplace(); break;
      case Place::Parameter: startParameter(); break;
      case Place::ParamName: text_ = &paramName_.emplace(); break;
      case Place::ParamValue: text_ = &paramValue_.emplace(); break;
      default: break;
    }
  }

  void end(Place place) {
    text_ = nullptr;
    if (place == Place::Variable) loaded_.cycle.variables.emplace_back(std::move(*variable_));
    if (place == Place::Parameter) endParameter();
    if (place == Place::Atom) endAtom();
  }

  void takeTimestamps(const std::vector<platform::XmlAttribute>& attributes) {
    for (const platform::XmlAttribute& attribute : attributes) {
      if (attribute.name == "Created") loaded_.facts.created = attribute.value;
      if (attribute.name == "Modified") loaded_.facts.modified = attribute.value;
    }
  }

  void startAtom() {
    atom_ = elements_;
    atomName_.reset();
    parameters_.clear();
    atomLacksElement_ = false;
  }

  void startParameter() {
    parameter_ = elements_;
    paramName_.reset();
    paramValue_.reset();
  }

  void endParameter() {
    if (!paramName_ || !paramValue_) {
      noteLack(parameter_, paramName_ ? "PARAMVALUE" : "PARAMNAME");
      return;
    }
    parameters_.append(*paramName_, *paramValue_);
  }

  void endAtom() {
    if (!atomName_) noteLack(atom_, "ATOMNAME");
    if (atomLacksElement_) {
      loaded_.lacksElement = true;
      return;
    }
    parameters_.endAppending();
    loaded_.cycle.lines.push_back({std::move(*atomName_), parameters_});  // a copy takes no more room than it needs
  }

  // The first element of an atom that lacks one.
  void noteLack(std::size_t element, std::string_view missing) {
    if (!atomLacksElement_) {
      loaded_.elementWithout = element;
      loaded_.missingElement = missing;
    }
    atomLacksElement_ = true;
  }

  std::size_t elements_ = 0;   // that have been started
  std::size_t atom_ = 0;       // the number of the open ATOM among them
  std::size_t parameter_ = 0;  // the number of the open PARAMETER
  int depth_ = 0;
  int placedDepth_ = 0;          // of the innermost open element that has a place
  std::vector<Place> places_;    // of the open elements that have one
  std::string* text_ = nullptr;  // what the text goes to; null: nowhere
  LoadedCycle loaded_;
  std::optional<std::string> description_;
  std::optional<std::string> variable_;
  std::optional<std::string> atomName_;
  ParameterText parameters_;
  bool atomLacksElement_ = false;
  std::optional<std::string> paramName_;
  std::optional<std::string> paramValue_;
};

}  // namespace

LoadedCycle readCycle(std::string_view text, platform::XmlDocumentFactory& xmlDocuments) {
  CycleContent content;
  if (!xmlDocuments.readDocument(text, content)) return {};
  return content.take();
}

}  // namespace mavCycEd
