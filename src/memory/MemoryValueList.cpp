#include "memory/MemoryValueList.h"

#include <algorithm>
#include <memory>

#include "kit/GridUnits.h"
#include "text/LineEnds.h"
#include "text/Utf8.h"

namespace mavCycEd::memory {

using kit::ValueListRows;

MemoryValueList::MemoryValueList(const MemoryFrame* container) : Control(container) {
  list().setScreen(&screen_, &editor_);
}

MemoryValueList::~MemoryValueList() { list().setScreen(nullptr, nullptr); }

kit::GridHit MemoryValueList::Screen::hitAt(kit::Place place) const {
  const int row = kit::units::rowAt(place.y);
  return {.row = row < rows_.rowCount() ? row : -1,
          .onValue = place.x >= kit::units::valueColumnBegin,
          .x = place.x,
          .y = place.y};
}

kit::Place MemoryValueList::Screen::middleOf(int row) const {
  return {kit::units::valueColumnBegin, kit::units::rowHeight * row + kit::units::rowHeight / 2};
}

bool MemoryValueList::Editor::openEditor(int) {
  line_ = {};
  return wanted_;
}

void MemoryValueList::Editor::type(std::string_view character) {
  line_.text.insert(line_.cursor, character);
  line_.cursor += character.size();
}

// What the user does next may destroy the list; false when it has.
bool MemoryValueList::openEditor(int row) {
  const std::weak_ptr<kit::ValueList> alive = sharedList();
  list().chooseRow(row);
  if (alive.expired()) return false;
  editor_.setWanted(true);
  list().editCurrentRow();
  if (alive.expired()) return false;
  editor_.setWanted(false);
  return true;
}

void MemoryValueList::type(int row, std::string_view typed) {
  const std::string line = text::onOneLine(typed);
  const std::weak_ptr<kit::ValueList> alive = sharedList();
  if (!openEditor(row)) return;
  const bool clears = line.empty() && !rows().cell(ValueListRows::valueColumn, list().edit().row()).empty();
  if (clears) list().typedInEditor();
  for (std::string_view text = line; !text.empty() && !alive.expired() && isEditing();) {
    const std::string_view character = text.substr(0, text::firstCharacterSize(text));
    editor_.type(character);
    list().typedInEditor();
    text.remove_prefix(character.size());
  }
  if (!alive.expired()) list().endEdit();
}

void MemoryValueList::pick(int row, std::string_view item) {
  if (!openEditor(row) || !isEditing()) return;
  const auto& items = rows().entry(list().edit().row())->pickList;
  list().pickedInEditor(static_cast<int>(std::ranges::find(items, item) - items.begin()));
}

}  // namespace mavCycEd::memory
