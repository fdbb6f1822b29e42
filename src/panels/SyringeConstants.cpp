#include "panels/SyringeConstants.h"

#include <string_view>
#include <unordered_set>

#include "panels/modControlArray.h"
#include "platform/GridUnits.h"

namespace mavCycEd {

void SyringeConstants::cboUnit_LostFocus() {
  guarded(errors_, "cboUnit_LostFocus", [this] {
    ValueList values;
    catalogue_.appendObjectValues(screen_.cboUnit.text(), values);
    EmptyMnu();
    platform::PopupMenu& menu = screen_.mnuSyrConstant;
    std::unordered_set<std::string_view> offered;
    for (const std::string& value : values) {
      if (value.empty() || !offered.insert(value).second) continue;
      if (menu.itemCaption(0).empty()) {
        menu.setItemCaption(0, value);
      } else {
        const int place = modControlArray::firstFreePlace(menu);
        menu.createItem(place);
        menu.setItemCaption(place, value);
      }
    }
  });
}

void SyringeConstants::EmptyMnu() {
  modControlArray::deleteItems(screen_.mnuSyrConstant);
  screen_.mnuSyrConstant.setItemCaption(0, "");
}

void SyringeConstants::grdParamStnd_OnMouseDown(platform::MouseButton button) {
  guarded(errors_, "grdParamStnd_OnMouseDown", [&] {
    chosenByKeys_ = false;
    if (button == platform::MouseButton::Primary) pressedRow_ = screen_.grdParamStnd.Row();
  });
}

void SyringeConstants::grdParamStnd_OnContextPopup(int x, int y) {
  guarded(errors_, "grdParamStnd_OnContextPopup", [&] {
    using namespace platform::gridUnits;
    if (chosenByKeys_) pressedRow_ = screen_.grdParamStnd.Row();
    const bool overValues = y > settingsTop && y < settingsBottom && x > keyColumnEnd;
    platform::PopupMenu& menu = screen_.mnuSyrConstant;
    if (overValues && !menu.itemCaption(0).empty()) menu.popUp();
  });
}

void SyringeConstants::mnuSyrConstant_Click(int index) {
  guarded(errors_, "mnuSyrConstant_Click", [&] {
    const int row = pressedRow_ == 0 ? 1 : pressedRow_;
    screen_.grdParamStnd.setValue(1, row, screen_.mnuSyrConstant.itemCaption(index));
  });
}

}  // namespace mavCycEd
