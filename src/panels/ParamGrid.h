#pragma once

#include <string_view>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "mavCycEd/CycleDocument.h"
#include "panels/GridState.h"
#include "platform/ErrorSink.h"
#include "platform/ValueListActiveX.h"
#include "rules/ParameterRows.h"

namespace mavCycEd {

/// Fills the parameter grid from the catalogue's definitions and keeps the row table beside it.
class ParamGrid {
 public:
  ParamGrid(platform::ValueListActiveX& GrdAtom, GridState& state, modCycleHelper& catalogue,
            AtomListProvider& provider, ErrorSink& errors)
      : grdAtom_(GrdAtom), state_(state), rows_(catalogue, provider, errors), errors_(errors) {}

  /// Fills the grid with the parameters of an atom, named as the picker shows it: the catalogue's definitions, then the
  /// provider's further ones.
  void FillDefaultParams(std::string_view atomName);
  /// Removes every parameter row.
  void CleanGrdAtom();
  /// Empties the grid, and the cycle with all that shows it, for another cycle.
  void UpdateControls(CycleDocument& document);

 private:
  void FillParams(std::string_view definition, int row);
  int newestRow() const { return grdAtom_.RowCount() - 1; }

  platform::ValueListActiveX& grdAtom_;
  GridState& state_;
  ParameterRows rows_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
