#pragma once

#include <string_view>

#include "catalogue/modCycleHelper.h"
#include "panels/VariableDialogScreen.h"
#include "platform/ErrorSink.h"

namespace mavCycEd {

/// The pop-up menu of the variable dialog's settings grid: the values of the chosen unit, to be put into one of the
/// three settings.
class SyringeConstants {
 public:
  SyringeConstants(const VariableDialogScreen& screen, modCycleHelper& catalogue, ErrorSink& errors)
      : screen_(screen), catalogue_(catalogue), errors_(errors) {}

  /// The focus left the unit box: gathers the values of the unit that stands there.
  void cboUnit_LostFocus();
  /// The row was chosen; if no press of the mouse follows, the keys have led there.
  void grdParamStnd_OnSelectionChange() { chosenByKeys_ = true; }
  /// Remembers the row that the primary button pressed.
  void grdParamStnd_OnMouseDown(platform::MouseButton button);
  /// Shows the menu when the pointer is over the values of the three settings. A user of the keyboard has no button to
  /// press: the row that the keys led to is remembered then.
  void grdParamStnd_OnContextPopup(int x, int y);
  /// Puts the chosen value into the remembered row, or into the first one.
  void mnuSyrConstant_Click(int index);

 private:
  void EmptyMnu();

  const VariableDialogScreen& screen_;
  modCycleHelper& catalogue_;
  ErrorSink& errors_;
  int pressedRow_ = 0;
  bool chosenByKeys_ = false;
};

}  // namespace mavCycEd
