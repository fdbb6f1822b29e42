#pragma once

#include <string_view>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "paramgrid/GridState.h"
#include "paramgrid/ObjectPickList.h"
#include "paramgrid/ParameterDefinition.h"
#include "platform/ErrorSink.h"
#include "platform/ListBox.h"
#include "platform/TextBox.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Fills the parameter grid from the catalogue's definitions and keeps the row table beside it.
class ParamGrid {
 public:
  ParamGrid(platform::ValueListActiveX& GrdAtom, GridState& state, modCycleHelper& catalogue,
            AtomListProvider& provider, ErrorSink& errors)
      : grdAtom_(GrdAtom),
        state_(state),
        catalogue_(catalogue),
        provider_(provider),
        errors_(errors),
        objectPickList_(catalogue, provider, errors) {}

  /// Fills the grid with the parameters of an atom, named as the picker shows it: the catalogue's definitions, then the
  /// provider's further ones.
  void FillDefaultParams(std::string_view atomName);
  /// Removes every parameter row.
  void CleanGrdAtom();
  /// Empties the grid, the lists and the description for another cycle.
  void UpdateControls(platform::ListBox& lstVariables, platform::ListBox& lstAtomSequence,
                      platform::TextBox& txtCycleDescription);

 private:
  void FillParams(std::string_view definition, int row);
  void fillNumber(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info);
  bool fillObject(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info);
  void fillList(const ParameterDefinition& definition, ParamRowInfo& info);
  int newestRow() const { return grdAtom_.RowCount() - 1; }
  void writeValue(const ParamRowInfo& info);

  platform::ValueListActiveX& grdAtom_;
  GridState& state_;
  modCycleHelper& catalogue_;
  AtomListProvider& provider_;
  ErrorSink& errors_;
  ObjectPickList objectPickList_;
};

}  // namespace mavCycEd
