#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "mavCycEd/CycleDocument.h"

namespace mavCycEd {
namespace {

rc::Gen<std::string> shortText() {
  return rc::gen::map(rc::gen::inRange(0, 6), [](int i) { return std::string(1, static_cast<char>('A' + i)); });
}

std::size_t upTo(std::size_t most) { return *rc::gen::inRange<std::size_t>(0, most + 1); }

std::vector<AtomLine> someLines() {
  std::vector<AtomLine> lines;
  for (std::size_t i = upTo(4); i > 0; --i) lines.push_back({*shortText(), ParameterText(*shortText())});
  return lines;
}

/// An edit that fits the cycle.
CycleEdit anyEdit(const Cycle& cycle) {
  const std::size_t line = upTo(cycle.lines.size());
  const std::size_t lines = upTo(std::min<std::size_t>(cycle.lines.size() - line, 3));
  const std::size_t variable = upTo(cycle.variables.size());
  switch (*rc::gen::inRange(0, 8)) {
    case 0: return edits::insertLines(line, someLines());
    case 1: return edits::removeLines(line, lines);
    case 2: return CycleEdit(LineSplice{line, lines, someLines()});
    case 3: return edits::setPlace(line, {*shortText(), ""});
    case 4: return edits::setPlace(line, {});
    case 5: return edits::insertVariable(variable, VariableDefinition(*shortText()));
    case 6: return CycleEdit(VariableSplice{variable, std::min<std::size_t>(cycle.variables.size() - variable, 1), {}});
    default:
      return edits::changeDescription(cycle.description, *rc::gen::container<std::string>(rc::gen::inRange('a', 'd')));
  }
}

/// Follows a list of lines by what the notices say of it.
class Follower : public CycleListener {
 public:
  explicit Follower(const CycleDocument& document) : document_(document), lines_(document.cycle().lines) {}
  void cycleChanged(const CycleNotice& notice) override {
    if (notice.lines.empty()) return;
    const CycleNotice::Range range = CycleNotice::covering(notice.lines);
    const auto& now = document_.cycle().lines;
    RC_ASSERT(range.at + range.removed <= lines_.size());
    const auto at = lines_.begin() + static_cast<std::ptrdiff_t>(range.at);
    const auto behind = lines_.erase(at, at + static_cast<std::ptrdiff_t>(range.removed));
    const auto first = now.begin() + static_cast<std::ptrdiff_t>(range.at);
    lines_.insert(behind, first, first + static_cast<std::ptrdiff_t>(range.added));
    RC_ASSERT(lines_ == now);
  }

 private:
  const CycleDocument& document_;
  std::vector<AtomLine> lines_;
};

void performAny(CycleDocument& document) {
  if (*rc::gen::inRange(0, 4) > 0) {
    document.perform(anyEdit(document.cycle()), *shortText());
    return;
  }
  const auto kind =
      *rc::gen::element(CycleDocument::Transaction::Kind::Step, CycleDocument::Transaction::Kind::Stretch);
  const CycleDocument::Transaction step(document, "several", {}, kind);
  for (std::size_t i = upTo(4); i > 0; --i) document.perform(anyEdit(document.cycle()));
}

RC_GTEST_PROP(Document, IsLedBackAndForthByItsHistory, ()) {
  CycleDocument document;
  document.load({"", {}, someLines(), {}});
  Follower follower(document);
  document.addListener(follower);
  const Cycle loaded = document.cycle();
  const auto loadedRevision = document.revision();
  for (std::size_t i = upTo(30); i > 0; --i) performAny(document);
  const Cycle last = document.cycle();
  const auto lastRevision = document.revision();

  while (document.undo()) {
  }
  RC_ASSERT(document.cycle() == loaded);
  RC_ASSERT(document.revision() == loadedRevision);
  while (document.redo()) {
  }
  RC_ASSERT(document.cycle() == last);
  RC_ASSERT(document.revision() == lastRevision);
  document.removeListener(follower);
}

RC_GTEST_PROP(Edit, OfSeveralChangesIsItsOwnInverse, ()) {
  Cycle cycle{"", {}, someLines(), {}};
  const Cycle before = cycle;
  CycleEdit edit;
  Cycle ahead = cycle;
  for (std::size_t i = upTo(5); i > 0; --i) {
    CycleEdit next = anyEdit(ahead);
    edit.then(next);
    next.apply(ahead);
  }
  edit.apply(cycle);
  RC_ASSERT(cycle == ahead);
  edit.apply(cycle);
  RC_ASSERT(cycle == before);
}

}  // namespace
}  // namespace mavCycEd
