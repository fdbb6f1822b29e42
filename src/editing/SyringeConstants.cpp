#include "editing/SyringeConstants.h"

#include "paramgrid/modControlArray.h"

namespace mavCycEd {

void SyringeConstants::cboUnit_LostFocus() {
  guarded(errors_, "cboUnit_LostFocus", [this] {
    ValueList values;
    catalogue_.appendObjectValues(screen_.cboUnit().text(), values);
    EmptyMnu();
    platform::PopupMenu& menu = screen_.mnuSyrConstant();
    for (const std::string& value : values) {
      if (value.empty()) continue;
      if (menu.itemCaption(0).empty()) {
        menu.setItemCaption(0, value);
      } else if (!IsMenuItem(value)) {
        const int place = modControlArray::firstFreePlace(menu);
        menu.createItem(place);
        menu.setItemCaption(place, value);
      }
    }
  });
}

void SyringeConstants::EmptyMnu() {
  modControlArray::deleteItems(screen_.mnuSyrConstant());
  screen_.mnuSyrConstant().setItemCaption(0, "");
}

bool SyringeConstants::IsMenuItem(std::string_view caption) const {
  const platform::PopupMenu& menu = screen_.mnuSyrConstant();
  for (int i = 0; i <= menu.lastIndex(); ++i) {
    if (menu.hasItem(i) && menu.itemCaption(i) == caption) return true;
  }
  return false;
}

void SyringeConstants::grdParamStnd_OnMouseDown(platform::MouseButton button) {
  guarded(errors_, "grdParamStnd_OnMouseDown", [&] {
    if (button == platform::MouseButton::Primary) pressedRow_ = screen_.grdParamStnd().Row();
  });
}

void SyringeConstants::grdParamStnd_OnContextPopup(int x, int y) {
  guarded(errors_, "grdParamStnd_OnContextPopup", [&] {
    constexpr int titleBottom = 16;
    constexpr int rowsBottom = 76;
    constexpr int keyColumnEnd = 150;
    const bool overValues = y > titleBottom && y < rowsBottom && x > keyColumnEnd;
    platform::PopupMenu& menu = screen_.mnuSyrConstant();
    if (overValues && !menu.itemCaption(0).empty()) menu.popUp();
  });
}

void SyringeConstants::mnuSyrConstant_Click(int index) {
  guarded(errors_, "mnuSyrConstant_Click", [&] {
    const int row = pressedRow_ == 0 ? 1 : pressedRow_;
    screen_.grdParamStnd().setValue(1, row, screen_.mnuSyrConstant().itemCaption(index));
  });
}

}  // namespace mavCycEd
