#pragma once

#include <string>
#include <string_view>

#include "catalogue/modCycleHelper.h"
#include "panels/GridState.h"
#include "platform/ErrorSink.h"
#include "platform/MessageBox.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Checks the values of the parameter grid: illegal characters while they are typed, range and step when an edit ends
/// and before an atom line takes them.
class ValueValidation {
 public:
  ValueValidation(platform::ValueListActiveX& GrdAtom, GridState& state, modCycleHelper& catalogue,
                  platform::MessageBox& messages, ErrorSink& errors)
      : grdAtom_(GrdAtom), state_(state), catalogue_(catalogue), messages_(messages), errors_(errors) {}

  /// The edit text of a cell changed: illegal characters are taken out again, and the user is told.
  void GrdAtom_OnSetEditText(int column, int row, const std::string& value);
  /// The edit of a cell ended: its value is checked; it stays as typed all the same.
  void GrdAtom_OnEndOfEdit(int row, const std::string& value);
  /// Whether a value may stand in a row (checkValue); one that may not is told to the user. False without a message
  /// while the grid is being refilled.
  bool Check_Range(std::string_view value, int row);
  /// Whether every row of the grid holds a valid value; if not, `message` names the first one that does not.
  bool ParamValueControl(std::string& message);

 private:
  platform::ValueListActiveX& grdAtom_;
  GridState& state_;
  modCycleHelper& catalogue_;
  platform::MessageBox& messages_;
  ErrorSink& errors_;
  bool SkipNextEditCheck_ = false;
};

}  // namespace mavCycEd
