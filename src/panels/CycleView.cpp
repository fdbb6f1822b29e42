#include "panels/CycleView.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace mavCycEd {

CycleView::CycleView(CycleState& cycle, const CycleScreen& screen, ExtraValues& extraValues, ErrorSink& errors)
    : cycle_(cycle), screen_(screen), extraValues_(extraValues), errors_(errors) {
  cycle_.document.addListener(*this);
}

CycleView::~CycleView() { cycle_.document.removeListener(*this); }

void CycleView::cycleChanged(const CycleNotice& notice) {
  if (notice.loaded) {
    followed_ = -1;
    showAll();
    return;
  }
  cycle_.changed = true;
  for (const CycleNotice::Range& range : notice.lines) follow(range);
  if (!notice.variables.empty()) showVariables(CycleNotice::covering(notice.variables));
  if (shownByProcedure_ > 0) return;
  if (notice.description) screen_.txtCycleDescription.setText(cycle_.cycle().description);
  if (!notice.variables.empty()) extraValues_.followVariables();
  if (!notice.lines.empty()) lstRefresh(notice.lines);
}

// The lines are shown when all of them have been loaded.
void CycleView::showAll() {
  screen_.txtCycleDescription.setText(cycle_.cycle().description);
  std::vector<std::string> entries;
  entries.reserve(cycle_.cycle().variables.size());
  for (const VariableDefinition& variable : cycle_.cycle().variables) entries.push_back(variable.text());
  screen_.lstVariables.assign(std::move(entries));
  cycle_.display.clear();
  screen_.lstAtomSequence.clear();
}

void CycleView::showVariables(const CycleNotice::Range& range) {
  const auto& variables = cycle_.cycle().variables;
  const std::size_t common = std::min(range.removed, range.added);
  for (std::size_t i = range.at; i < range.at + common; ++i) {
    screen_.lstVariables.setItemText(static_cast<int>(i), variables[i].text());
  }
  for (std::size_t i = range.at + range.removed; i > range.at + common; --i) {
    screen_.lstVariables.removeItem(static_cast<int>(i - 1));
  }
  for (std::size_t i = range.at + common; i < range.at + range.added; ++i) {
    screen_.lstVariables.insertItem(static_cast<int>(i), variables[i].text());
  }
}

void CycleView::follow(const CycleNotice::Range& range) {
  if (followed_ < 0) return;
  const auto line = static_cast<std::size_t>(followed_);
  if (line >= range.at + range.removed) {
    followed_ += static_cast<int>(range.added) - static_cast<int>(range.removed);
  } else if (line >= range.at) {
    followed_ = -1;
  }
}

void CycleView::lstRefresh(const std::vector<CycleNotice::Range>& changes) {
  guarded(errors_, "lstRefresh", [&] { showLines(changes); });
}

void CycleView::showLines(const std::vector<CycleNotice::Range>& changes) {
  platform::LineListBox& list = screen_.lstAtomSequence;
  const int before = cycle_.display.count();
  const CycleNotice::Range all = changes.empty() ? CycleNotice::Range() : CycleNotice::covering(changes);
  cycle_.display.rebuildAround(all.at, all.removed, all.added);
  const int moreLines = static_cast<int>(all.added) - static_cast<int>(all.removed);
  const bool listFollows = before > 0 && list.itemCount() == before && cycle_.display.count() == before + moreLines;
  if (!listFollows) {
    list.showLines(cycle_.display);
  } else if (changes.empty()) {
    list.spliced(0, 0, 0);  // the same lines, at other indents
  } else {
    for (const CycleNotice::Range& each : changes) {
      list.spliced(static_cast<int>(each.at), static_cast<int>(each.removed), static_cast<int>(each.added));
    }
  }
}

}  // namespace mavCycEd
