#include "rules/ValueOffers.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "rules/ObjectTests.h"
#include "rules/RowClass.h"
#include "text/CaseFold.h"
#include "text/Strings.h"

namespace mavCycEd {
namespace {

constexpr std::string_view defaultMark = "Default:";

void appendName(std::string& list, std::string_view name) {
  if (!list.empty()) list += ';';
  list += name;
}

// False when the list does not hold the name.
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

}  // namespace

std::string defaultEntry(const ParamRowInfo* row) {
  return std::string(defaultMark) + (row != nullptr ? textOf(row->Default) : std::string());
}

std::string valueOfEntry(std::string_view entry) { return text::replaceAll(entry, defaultMark, ""); }

std::string classOfRow(std::string_view key, const ParamRowInfo* row) {
  const bool severalClasses = row != nullptr && row->Description.find(';') != std::string::npos;
  return cleanedEntry(parenthesised(key).value_or(severalClasses ? "" : "None"));
}

bool listsVariables(const ParamRowInfo& row, std::string_view unit) { return row.IsNumeric == 0 || ItIsObject(unit); }

bool offerNames(ParamRowInfo& row, std::string_view names, std::string_view unit) {
  appendName(row.ExtraValues, names);
  if (!listsVariables(row, unit)) return false;
  appendName(row.Items, names);
  return true;
}

// A variable that is not offered any more is not in the pick list either: what has its name there is an item.
bool withdrawName(ParamRowInfo& row, std::string_view name, std::string_view unit) {
  if (!removeName(row.ExtraValues, name) || !listsVariables(row, unit)) return false;
  removeName(row.Items, name);
  return true;
}

// The names stand at the end of the pick list, where they were added.
void withdrawAll(ParamRowInfo& row) {
  const std::string names = std::exchange(row.ExtraValues, {});
  if (names.empty() || !listsVariables(row, row.Unit) || !row.Items.ends_with(names)) return;
  row.Items.erase(row.Items.size() - names.size());
  if (row.Items.ends_with(';')) row.Items.pop_back();
}

bool isWithdrawn(std::string_view value, std::string_view name, const ParamRowInfo& row) {
  if (value == name) return true;
  const bool offered = holdsName(row.ExtraValues, value) || holdsName(row.Items, value);
  return !offered && text::equalsIgnoringCase(text::trimSpaces(value), name);
}

std::vector<OfferedNames> offersOf(const std::vector<VariableDefinition>& variables, std::size_t count) {
  std::map<std::string, OfferedNames> byUnit;
  for (std::size_t i = 0; i < std::min(count, variables.size()); ++i) {
    std::optional<VariableOffer> offer = variables[i].offer();
    if (!offer) continue;
    OfferedNames& ofUnit = byUnit[offer->unit];
    ofUnit.unit = std::move(offer->unit);
    appendName(ofUnit.names, offer->name);
    ++ofUnit.count;
  }
  std::vector<OfferedNames> offers;
  for (auto& [unit, names] : byUnit) offers.push_back(std::move(names));
  return offers;
}

}  // namespace mavCycEd
