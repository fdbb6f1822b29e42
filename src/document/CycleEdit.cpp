#include "mavCycEd/CycleEdit.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace mavCycEd {
namespace {

template <typename... Kinds>
struct Overloaded : Kinds... {
  using Kinds::operator()...;
};

template <typename List, typename Change>
void requireWithin(const List& list, const Change& change) {
  if (change.at > list.size() || change.removed > list.size() - change.at) {
    throw std::out_of_range("An edit reaches beyond the cycle.");
  }
}

// Exchanges what is in the list for what is in the splice. Nothing fails once the first item has been moved.
template <typename Item>
void exchange(std::vector<Item>& list, Splice<Item>& splice) {
  requireWithin(list, splice);
  const std::size_t incoming = splice.added.size();
  const std::size_t common = std::min(splice.removed, incoming);
  const std::size_t needed = list.size() + incoming - splice.removed;
  if (needed > list.capacity()) list.reserve(std::max(needed, 2 * list.capacity()));
  if (splice.removed > incoming) splice.added.reserve(splice.removed);
  const auto at = list.begin() + static_cast<std::ptrdiff_t>(splice.at);
  const auto behind = at + static_cast<std::ptrdiff_t>(common);
  std::swap_ranges(at, behind, splice.added.begin());
  if (incoming > common) {
    const auto rest = splice.added.begin() + static_cast<std::ptrdiff_t>(common);
    list.insert(behind, std::make_move_iterator(rest), std::make_move_iterator(splice.added.end()));
    splice.added.erase(rest, splice.added.end());
    splice.added.shrink_to_fit();
  } else {
    const auto end = at + static_cast<std::ptrdiff_t>(splice.removed);
    splice.added.insert(splice.added.end(), std::make_move_iterator(behind), std::make_move_iterator(end));
    list.erase(behind, end);
  }
  splice.removed = incoming;
}

void exchange(std::string& text, TextSplice& splice) {
  requireWithin(text, splice);
  std::string gone = text.substr(splice.at, splice.removed);
  const std::size_t incoming = splice.added.size();
  text.replace(splice.at, splice.removed, splice.added);
  splice.added = std::move(gone);
  splice.removed = incoming;
}

// The places are kept as far as the last one that holds something; what goes behind that was nothing.
void exchangePlaces(std::vector<LinePlace>& places, PlaceSplice& splice, std::size_t lineCount) {
  if (splice.at > std::max(lineCount, places.size())) throw std::out_of_range("An edit reaches beyond the cycle.");
  if (splice.at > places.size() && !splice.added.empty()) places.resize(splice.at);
  splice.at = std::min(splice.at, places.size());
  splice.removed = std::min(splice.removed, places.size() - splice.at);
  exchange(places, splice);
  while (!places.empty() && places.back().empty()) places.pop_back();
}

bool changesNothing(const Cycle& cycle, const CycleEdit::Change& change) {
  const auto isSame = [](const auto& list, const auto& splice) {
    if (splice.removed != splice.added.size()) return false;
    if (splice.at > list.size() || splice.removed > list.size() - splice.at) return false;
    return std::equal(splice.added.begin(), splice.added.end(), list.begin() + static_cast<std::ptrdiff_t>(splice.at));
  };
  return std::visit(Overloaded{[&](const LineSplice& splice) { return isSame(cycle.lines, splice); },
                               [&](const PlaceSplice& splice) {
                                 const bool empty = std::ranges::all_of(splice.added, &LinePlace::empty);
                                 return (empty && splice.at >= cycle.places.size()) || isSame(cycle.places, splice);
                               },
                               [&](const VariableSplice& splice) { return isSame(cycle.variables, splice); },
                               [&](const TextSplice& splice) { return isSame(cycle.description, splice); }},
                    change);
}

void applyChange(Cycle& cycle, CycleEdit::Change& change) {
  std::visit(Overloaded{[&](LineSplice& splice) { exchange(cycle.lines, splice); },
                        [&](PlaceSplice& splice) { exchangePlaces(cycle.places, splice, cycle.lines.size()); },
                        [&](VariableSplice& splice) { exchange(cycle.variables, splice); },
                        [&](TextSplice& splice) { exchange(cycle.description, splice); }},
             change);
}

}  // namespace

CycleEdit& CycleEdit::then(CycleEdit other) {
  changes_.insert(changes_.end(), std::make_move_iterator(other.changes_.begin()),
                  std::make_move_iterator(other.changes_.end()));
  return *this;
}

void CycleEdit::apply(Cycle& cycle) {
  std::vector<Change> inverses;
  inverses.reserve(changes_.size());
  std::vector<std::size_t> applied;  // which of the changes the inverses belong to
  applied.reserve(changes_.size());
  try {
    for (std::size_t i = 0; i < changes_.size(); ++i) {
      if (changesNothing(cycle, changes_[i])) continue;
      applyChange(cycle, changes_[i]);
      inverses.push_back(std::move(changes_[i]));
      applied.push_back(i);
    }
  } catch (...) {
    while (!inverses.empty()) {
      applyChange(cycle, inverses.back());
      changes_[applied.back()] = std::move(inverses.back());
      inverses.pop_back();
      applied.pop_back();
    }
    throw;
  }
  std::ranges::reverse(inverses);
  changes_ = std::move(inverses);
}

namespace edits {

CycleEdit insertLines(std::size_t at, std::vector<AtomLine> lines) {
  return CycleEdit(LineSplice{at, 0, std::move(lines)});
}

CycleEdit replaceLine(std::size_t at, AtomLine line) {
  LineSplice splice{at, 1, {}};
  splice.added.push_back(std::move(line));
  return CycleEdit(std::move(splice));
}

CycleEdit removeLines(std::size_t at, std::size_t count) {
  return CycleEdit(LineSplice{at, count, {}}).then(CycleEdit(PlaceSplice{at, count, {}}));
}

CycleEdit setPlace(std::size_t at, LinePlace place) { return CycleEdit(PlaceSplice{at, 1, {std::move(place)}}); }

CycleEdit insertVariable(std::size_t at, VariableDefinition variable) {
  return CycleEdit(VariableSplice{at, 0, {std::move(variable)}});
}

CycleEdit replaceVariable(std::size_t at, VariableDefinition variable) {
  return CycleEdit(VariableSplice{at, 1, {std::move(variable)}});
}

CycleEdit removeVariable(std::size_t at) { return CycleEdit(VariableSplice{at, 1, {}}); }

CycleEdit changeDescription(std::string_view before, std::string_view text) {
  const std::size_t shorter = std::min(before.size(), text.size());
  const auto start = static_cast<std::size_t>(
      std::mismatch(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(shorter), text.begin()).first -
      before.begin());
  std::size_t end = 0;
  while (end < shorter - start && before[before.size() - 1 - end] == text[text.size() - 1 - end]) ++end;
  if (start + end == before.size() && before.size() == text.size()) return {};
  return CycleEdit(
      TextSplice{start, before.size() - start - end, std::string(text.substr(start, text.size() - start - end))});
}

}  // namespace edits

}  // namespace mavCycEd
