#include "mavCycEd/Catalogue.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "catalogue/ConfigAtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "headless/DocumentFaults.h"
#include "headless/RowFacts.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "rules/ParameterRows.h"
#include "rules/ValueOffers.h"

namespace mavCycEd {
namespace {

/// Makes sentences of what the rules report.
class ReportedFaults : public ErrorSink {
 public:
  explicit ReportedFaults(std::vector<std::string>& faults) : faults_(faults) {}

  void report(const RunTimeError& error, std::string_view) noexcept override {
    faults_.push_back("The definition \"" + definition + "\" cannot be read as a whole: " + error.description() + ".");
  }

  std::string definition;  // the one that is being read

 private:
  std::vector<std::string>& faults_;
};

}  // namespace

/// Catalogue and configuration with all that answers questions about them.
class Catalogue::Rules {
 public:
  Rules(std::shared_ptr<platform::XmlDocument> document, const Configuration& configuration, Hidden hidden) {
    catalogue_.setCatalogue(std::move(document));
    catalogue_.configuration().setText(configuration.text());
    provider_.setIgnoreHidden(hidden == Hidden::Offered);
    atomNames_ = catalogue_.atomNames();
    std::ranges::move(provider_.furtherAtomNames(), std::back_inserter(atomNames_));
    std::erase(atomNames_, "");
    offered_.insert(atomNames_.begin(), atomNames_.end());
  }

  const std::vector<std::string>& atomNames() const { return atomNames_; }
  bool offersAtom(std::string_view name) const { return offered_.contains(std::string(name)); }

  AtomParameters parametersOf(std::string_view atomName) {
    AtomParameters parameters;
    ReportedFaults faults(parameters.faults);
    ParameterRows rows(catalogue_, provider_, faults);
    ValueList definitions = rows.definitionsOf(atomName);
    std::ranges::move(rows.furtherDefinitionsOf(atomName), std::back_inserter(definitions));
    for (const std::string& definition : definitions) {
      faults.definition = definition;
      guarded(faults, {}, [&] { appendRow(parameters.rows, definition, rows); });
    }
    return parameters;
  }

  std::vector<std::string> valuesOfferedFor(const ParameterRow& row, const std::vector<VariableDefinition>& variables) {
    const ParamRowInfo info = headless::infoOf(row);
    ValueList values;
    if (!row.defaultValue.empty()) values.push_back(row.defaultValue);
    catalogue_.appendObjectValues(classOfRow(row.key, &info), values);
    for (const VariableDefinition& variable : variables) {
      const auto offer = variable.offer();
      if (offer && offer->unit == row.unit) values.push_back(offer->name);
    }
    if (row.unit.empty()) catalogue_.configuration().appendArguments("FREE TEXT", values);
    return eachOnce(values);
  }

 private:
  // A definition that names no unit to be found makes no row; one whose kind cannot be told makes one all the same.
  static void appendRow(std::vector<ParameterRow>& added, const std::string& text, ParameterRows& rows) {
    const ParameterDefinition definition(text);
    const UnitOfMeasure unit = rows.unitOf(definition);
    ParameterRow& row = added.emplace_back(headless::rowOf(definition, unit, {}));
    ParamRowInfo info;
    RowShows shows;
    const auto keep = [&] {
      row = headless::rowOf(definition, unit, info);
      if (shows.value) row.firstValue = textOf(info.Value);
    };
    try {
      shows = rows.describe(definition, unit, info);
    } catch (...) {
      keep();
      throw;
    }
    keep();
  }

  static std::vector<std::string> eachOnce(const ValueList& values) {
    std::vector<std::string> once;
    std::unordered_set<std::string_view> known{""};
    for (const std::string& value : values) {
      if (known.insert(value).second) once.push_back(value);
    }
    return once;
  }

  libxml2::Libxml2DocumentFactory xmlDocuments_;
  modCycleHelper catalogue_{xmlDocuments_};
  ConfigAtomListProvider provider_{catalogue_};
  std::vector<std::string> atomNames_;
  std::unordered_set<std::string> offered_;
};

Catalogue::Catalogue(std::shared_ptr<Rules> rules) : rules_(std::move(rules)) {}

Reading<Catalogue> Catalogue::read(std::string_view text, const Configuration& configuration, Hidden hidden) {
  libxml2::Libxml2DocumentFactory xmlDocuments;
  std::shared_ptr<platform::XmlDocument> document = xmlDocuments.createDocument();
  Reading<Catalogue> reading;
  if (auto fault = headless::load(*document, text, headless::DocumentKind::Catalogue, xmlDocuments)) {
    reading.faults.push_back(*std::move(fault));
    return reading;
  }
  reading.value = Catalogue(std::make_shared<Rules>(std::move(document), configuration, hidden));
  return reading;
}

const std::vector<std::string>& Catalogue::atomNames() const { return rules_->atomNames(); }

bool Catalogue::offersAtom(std::string_view name) const { return rules_->offersAtom(name); }

AtomParameters Catalogue::parametersOf(std::string_view atomName) const {
  return offersAtom(atomName) ? rules_->parametersOf(atomName) : AtomParameters();
}

std::optional<ValueFault> Catalogue::checkValue(std::string_view atomName, std::size_t parameter,
                                                std::string_view value) const {
  const AtomParameters parameters = parametersOf(atomName);
  if (parameter >= parameters.rows.size()) return std::nullopt;
  return mavCycEd::checkValue(parameters.rows[parameter], value);
}

std::vector<std::string> Catalogue::itemsOf(const ParameterRow& row,
                                            const std::vector<VariableDefinition>& variables) const {
  ParamRowInfo info = headless::infoOf(row);
  for (const OfferedNames& offered : offersOf(variables, variables.size())) {
    if (offered.unit == row.unit) offerNames(info, offered.names, offered.unit);
  }
  return headless::itemsIn(info);
}

std::vector<std::string> Catalogue::valuesOfferedFor(const ParameterRow& row,
                                                     const std::vector<VariableDefinition>& variables) const {
  return rules_->valuesOfferedFor(row, variables);
}

}  // namespace mavCycEd
