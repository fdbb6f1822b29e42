#include "panels/ExtraValues.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "rules/ValueOffers.h"

namespace mavCycEd {

int ExtraValues::lastRow() const { return std::min(grdAtom_.RowCount() - 1, state_.rows.upperBound()); }

template <typename Change>
void ExtraValues::forEachFittingRow(std::string_view unit, const Change& change) {
  const int last = lastRow();
  for (int row = 1; row <= last; ++row) {
    ParamRowInfo& info = state_.rows.row(row);
    if (info.Unit == unit) change(row, info);
  }
}

void ExtraValues::Add_Extra_Udons(const VariableDefinition& variable) {
  guarded(errors_, "Add_Extra_Udons", [&] {
    const std::optional<VariableOffer> added = variable.offer();
    if (added) offer(added->name, added->unit);
  });
}

// Offers names, separated by ";", to the rows of a unit.
void ExtraValues::offer(std::string_view names, std::string_view unit) {
  forEachFittingRow(unit, [&](int row, ParamRowInfo& info) {
    if (offerNames(info, names, unit)) grdAtom_.setPickList(row, info.Items);
  });
}

void ExtraValues::Delete_Extra_Udons(const VariableDefinition& variable) {
  guarded(errors_, "Delete_Extra_Udons", [&] {
    const std::optional<VariableOffer> deleted = variable.offer();
    if (!deleted) return;
    forEachFittingRow(deleted->unit, [&](int row, ParamRowInfo& info) {
      if (withdrawName(info, deleted->name, deleted->unit)) grdAtom_.setPickList(row, info.Items);
      if (isWithdrawn(grdAtom_.cellText(1, row), deleted->name, info)) grdAtom_.setValue(1, row, textOf(info.Value));
    });
  });
}

void ExtraValues::Update_Extra_Params() {
  guarded(errors_, "Update_Extra_Params", [this] {
    const std::size_t variables = cycle_.variables.size();
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
    const std::size_t variables = std::exchange(putOff_, 0);
    // The grid may have been filled since with an atom for which nobody asked: its first parameter has no name.
    if (!grdAtom_.cellText(0, 1).empty()) offerFirst(variables);
  });
}

// Offers the names of all variables of a unit at once: there may be a great many.
void ExtraValues::offerFirst(std::size_t variables) {
  for (const OfferedNames& offered : offersOf(cycle_.variables, variables)) {
    try {
      offer(offered.names, offered.unit);
    } catch (...) {
      // As if each of them had been offered by itself.
      for (int i = 0; i < offered.count; ++i) reportCurrentError(errors_, "Add_Extra_Udons");
    }
  }
}

void ExtraValues::followVariables() {
  guarded(errors_, "Update_Extra_Params", [this] {
    std::vector<std::string> before;
    for (int row = 1; row <= lastRow(); ++row) {
      ParamRowInfo& info = state_.rows.row(row);
      before.push_back(info.Items);
      withdrawAll(info);
    }
    for (const OfferedNames& offered : offersOf(cycle_.variables, cycle_.variables.size())) {
      forEachFittingRow(offered.unit, [&](int, ParamRowInfo& info) { offerNames(info, offered.names, offered.unit); });
    }
    for (int row = 1; row <= lastRow(); ++row) {
      const std::string& items = state_.rows.row(row).Items;
      if (items != before[static_cast<std::size_t>(row) - 1]) grdAtom_.setPickList(row, items);
    }
  });
}

}  // namespace mavCycEd
