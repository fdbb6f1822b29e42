#pragma once

#include <string>

#include "catalogue/modCycleHelper.h"
#include "panels/GridState.h"
#include "platform/ErrorSink.h"
#include "platform/PopupMenu.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Offers values for the current grid row: the pop-up menu on the value column, and the tool tip with the row's range
/// or classes. Positions are in the grid's own units.
class OfferedValues {
 public:
  OfferedValues(platform::ValueListActiveX& GrdAtom, platform::PopupMenu& mnuSubParam, GridState& state,
                modCycleHelper& catalogue, ErrorSink& errors)
      : grdAtom_(GrdAtom), mnuSubParam_(mnuSubParam), state_(state), catalogue_(catalogue), errors_(errors) {}

  /// Remembers the pressed row, and where the primary button was pressed.
  void GrdAtom_OnMouseDown(platform::MouseButton button, int x, int y);
  /// Another cell became current.
  void GrdAtom_OnSelectionChange();
  /// Shows the menu when the pointer is over the value column and the rows, and the grid has parameters.
  void GrdAtom_OnContextPopup(int x, int y);
  /// Shows the current row's range or classes as the tool tip while the pointer is over its value.
  void GrdAtom_OnMouseMove(int x, int y);
  /// Takes the chosen entry as the value of the current grid row.
  void mnuSubParam_Click(int index);
  /// Fills the menu for the current grid row: the default, the values of the row's class, and its extra values; every
  /// caption once.
  void Update_Popup_Menu();

 private:
  void Add_Extra_Keywords(ValueList& list);
  bool hasParameters() const { return !grdAtom_.cellText(0, 1).empty(); }
  std::string toolTip(int x, int y) const;

  platform::ValueListActiveX& grdAtom_;
  platform::PopupMenu& mnuSubParam_;
  GridState& state_;
  modCycleHelper& catalogue_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
