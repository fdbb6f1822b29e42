#include "panels/OfferedValues.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <unordered_set>

#include "panels/modControlArray.h"
#include "platform/GridUnits.h"
#include "rules/ValueOffers.h"
#include "text/Strings.h"

namespace mavCycEd {
using namespace platform::gridUnits;

void OfferedValues::GrdAtom_OnMouseDown(platform::MouseButton button, int x, int y) {
  guarded(errors_, "GrdAtom_OnMouseDown", [&] {
    if (button == platform::MouseButton::Middle) return;
    state_.currentRow = grdAtom_.Row();
    if (button != platform::MouseButton::Primary) return;
    state_.LastMouseX = x;
    state_.LastMouseY = y;
    if (hasParameters()) Update_Popup_Menu();
  });
}

void OfferedValues::GrdAtom_OnSelectionChange() {
  guarded(errors_, "GrdAtom_OnSelectionChange", [this] { state_.currentRow = grdAtom_.Row(); });
}

void OfferedValues::GrdAtom_OnContextPopup(int x, int y) {
  guarded(errors_, "GrdAtom_OnContextPopup", [&] {
    if (x < valueColumnBegin || y >= grdAtom_.RowCount() * rowHeight) return;
    Update_Popup_Menu();
    if (mnuSubParam_.itemCount() >= 1 && !mnuSubParam_.itemCaption(0).empty() && hasParameters()) mnuSubParam_.popUp();
  });
}

void OfferedValues::GrdAtom_OnMouseMove(int x, int y) {
  guarded(errors_, "GrdAtom_OnMouseMove", [&] {
    const int row = state_.currentRow;
    const bool hasRow = row != 0 && !grdAtom_.cellText(0, row).empty();
    grdAtom_.setToolTipText(hasRow ? toolTip(x, y) : std::string());
  });
}

std::string OfferedValues::toolTip(int x, int y) const {
  const ParamRowInfo* const info = state_.rows.find(state_.currentRow);
  const bool overRow = std::abs(std::int64_t{y} - state_.LastMouseY) < sameRowDistance && x >= valueColumnBegin;
  return overRow && info != nullptr ? text::replaceAll(info->Description, ";", " Or ") : std::string();
}

void OfferedValues::Update_Popup_Menu() {
  guarded(errors_, "Update_Popup_Menu", [this] {
    const ParamRowInfo* const info = state_.rows.find(state_.currentRow);
    const std::string defaultValue = info != nullptr ? textOf(info->Default) : std::string();
    ValueList values;
    catalogue_.appendObjectValues(classOfRow(grdAtom_.cellText(0, state_.currentRow), info), values);
    Add_Extra_Keywords(values);

    modControlArray::deleteItems(mnuSubParam_);
    const std::string defaultCaption = defaultEntry(info);
    mnuSubParam_.setItemCaption(0, defaultCaption);
    std::unordered_set<std::string_view> shown{defaultCaption, defaultValue, ""};
    for (const std::string& value : values) {
      if (!shown.insert(value).second) continue;
      const int place = modControlArray::firstFreePlace(mnuSubParam_);
      mnuSubParam_.createItem(place);
      mnuSubParam_.setItemCaption(place, value);
    }
  });
}

void OfferedValues::Add_Extra_Keywords(ValueList& list) {
  guarded(errors_, "Add_Extra_Keywords", [&] {
    const ParamRowInfo* const info = state_.rows.find(grdAtom_.Row());
    if (info == nullptr) return;
    for (const std::string_view name : text::split(info->ExtraValues, ';')) {
      if (!name.empty()) list.emplace_back(name);
    }
    if (info->Unit.empty()) catalogue_.configuration().appendArguments("FREE TEXT", list);
  });
}

void OfferedValues::mnuSubParam_Click(int index) {
  guarded(errors_, "mnuSubParam_Click", [&] {
    if (state_.currentRow == 0) state_.currentRow = 1;
    const std::string caption = mnuSubParam_.itemCaption(index);
    grdAtom_.setValue(1, state_.currentRow, valueOfEntry(caption));
  });
}

}  // namespace mavCycEd
