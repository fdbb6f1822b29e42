#include "paramgrid/ExtraValues.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "paramgrid/ObjectTests.h"
#include "text/CaseFold.h"
#include "text/Strings.h"

namespace mavCycEd {
namespace {

struct Variable {
  std::string name;
  std::string unit;
};

std::optional<Variable> parsedFields(std::string_view entry) {
  const auto fields = text::split(entry, ';');
  if (fields.size() < 2) return std::nullopt;
  const std::string_view first = fields.front();
  const std::size_t open = first.find('(');
  const std::size_t close = open == std::string_view::npos ? open : first.find(')', open);
  if (close == std::string_view::npos) return Variable{std::string(text::trimSpaces(first)), ""};
  const std::string_view unit = first.substr(open + 1, close - open - 1);
  const std::string name = std::string(first.substr(0, open)).append(first.substr(close + 1));
  return Variable{std::string(text::trimSpaces(name)), unit.empty() ? "None" : std::string(unit)};
}

// What an entry says of its variable; nothing when it has fewer than two fields, or its variable no name.
std::optional<Variable> parsed(std::string_view entry) {
  std::optional<Variable> variable = parsedFields(entry);
  return variable && !variable->name.empty() ? variable : std::nullopt;
}

void appendName(std::string& list, std::string_view name) {
  if (!list.empty()) list += ';';
  list += name;
}

// Takes a name out of a list again: the last one of that name, since names are added at the end. False when the list
// does not hold it.
bool removeName(std::string& list, std::string_view name) {
  const auto pieces = text::split(list, ';');
  const auto last = std::find(pieces.rbegin(), pieces.rend(), name);
  if (last == pieces.rend()) return false;
  std::vector<std::string> kept(pieces.begin(), pieces.end());
  kept.erase(kept.begin() + (pieces.rend() - last - 1));
  list = text::join(kept, ";");
  return true;
}

bool holdsName(std::string_view list, std::string_view name) {
  const auto pieces = text::split(list, ';');
  return std::ranges::find(pieces, name) != pieces.end();
}

// Whether a value is the name of a variable that has just been withdrawn. Letters of the other case refer to the
// variable as well, unless they are what the row offers otherwise.
bool isWithdrawn(std::string_view value, std::string_view name, const ParamRowInfo& info) {
  if (value == name) return true;
  const bool offered = holdsName(info.ExtraValues, value) || holdsName(info.Items, value);
  return !offered && text::equalsIgnoringCase(text::trimSpaces(value), name);
}

bool hasPickList(const ParamRowInfo& info, std::string_view unit) { return info.IsNumeric == 0 || ItIsObject(unit); }

}  // namespace

template <typename Change>
void ExtraValues::forEachFittingRow(std::string_view unit, const Change& change) {
  const int lastRow = std::min(grdAtom_.RowCount() - 1, state_.rows.upperBound());
  for (int row = 1; row <= lastRow; ++row) {
    ParamRowInfo& info = state_.rows.row(row);
    if (info.Unit == unit) change(row, info);
  }
}

void ExtraValues::Add_Extra_Udons(std::string_view variable) {
  guarded(errors_, "Add_Extra_Udons", [&] {
    const std::optional<Variable> added = parsed(variable);
    if (added) offer(added->name, added->unit);
  });
}

// Offers names, separated by ";", to the rows of a unit.
void ExtraValues::offer(std::string_view names, std::string_view unit) {
  forEachFittingRow(unit, [&](int row, ParamRowInfo& info) {
    appendName(info.ExtraValues, names);
    if (!hasPickList(info, unit)) return;
    appendName(info.Items, names);
    grdAtom_.setPickList(row, info.Items);
  });
}

void ExtraValues::Delete_Extra_Udons(std::string_view variable) {
  guarded(errors_, "Delete_Extra_Udons", [&] {
    const std::optional<Variable> deleted = parsed(variable);
    if (!deleted) return;
    forEachFittingRow(deleted->unit, [&](int row, ParamRowInfo& info) {
      // A variable that is not offered any more is not in the pick list either: what has its name there is an item.
      const bool wasOffered = removeName(info.ExtraValues, deleted->name);
      if (wasOffered && hasPickList(info, deleted->unit)) {
        removeName(info.Items, deleted->name);
        grdAtom_.setPickList(row, info.Items);
      }
      if (isWithdrawn(grdAtom_.cellText(1, row), deleted->name, info)) grdAtom_.setValue(1, row, textOf(info.Value));
    });
  });
}

void ExtraValues::Update_Extra_Params() {
  guarded(errors_, "Update_Extra_Params", [this] {
    const int variables = lstVariables_.itemCount();
    if (held_ > 0) {
      putOff_ = variables;
    } else {
      offerFirst(variables);
    }
  });
}

ExtraValues::Hold::~Hold() {
  if (--values_.held_ == 0) values_.doWhatWasPutOff();
}

void ExtraValues::doWhatWasPutOff() {
  guarded(errors_, "Update_Extra_Params", [this] {
    const int variables = std::exchange(putOff_, 0);
    // The grid may have been filled since with an atom for which nobody asked: its first parameter has no name.
    if (!grdAtom_.cellText(0, 1).empty()) offerFirst(variables);
  });
}

// Offers the names of all variables of a unit at once: there may be a great many.
void ExtraValues::offerFirst(int variables) {
  struct Offer {
    std::string names;
    int count = 0;
  };
  std::map<std::string, Offer> offers;
  guarded(errors_, "Update_Extra_Params", [&] {
    for (int i = 0; i < std::min(variables, lstVariables_.itemCount()); ++i) {
      const std::optional<Variable> variable = parsed(lstVariables_.itemText(i));
      if (!variable) continue;
      Offer& ofUnit = offers[variable->unit];
      appendName(ofUnit.names, variable->name);
      ++ofUnit.count;
    }
  });
  for (const auto& [unit, offered] : offers) {
    try {
      offer(offered.names, unit);
    } catch (...) {
      // As if each of them had been offered by itself.
      for (int i = 0; i < offered.count; ++i) reportCurrentError(errors_, "Add_Extra_Udons");
    }
  }
}

}  // namespace mavCycEd
