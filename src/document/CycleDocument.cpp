#include "mavCycEd/CycleDocument.h"

#include <algorithm>
#include <utility>

namespace mavCycEd {
namespace {

// What an edit has changed, given what it has become by being applied: the inverse of it.
CycleNotice noticeOf(const CycleEdit& inverse) {
  CycleNotice notice;
  const auto& changes = inverse.changes();
  for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
    if (const auto* const lines = std::get_if<LineSplice>(&*change)) {
      notice.lines.push_back({lines->at, lines->added.size(), lines->removed});
    } else if (const auto* const variables = std::get_if<VariableSplice>(&*change)) {
      notice.variables.push_back({variables->at, variables->added.size(), variables->removed});
    } else if (std::holds_alternative<TextSplice>(*change)) {
      notice.description = true;
    } else {
      notice.places = true;
    }
  }
  return notice;
}

bool changesDescriptionOnly(const CycleEdit& edit) {
  return std::ranges::all_of(edit.changes(),
                             [](const CycleEdit::Change& each) { return std::holds_alternative<TextSplice>(each); });
}

}  // namespace

CycleNotice::Range CycleNotice::covering(const std::vector<Range>& ranges) {
  Range all = ranges.front();
  for (auto next = ranges.begin() + 1; next != ranges.end(); ++next) {
    // What stands between the two, and what the second took of the first, counts as changed.
    const std::size_t end = all.at + all.added;
    const std::size_t nextEnd = next->at + next->removed;
    const std::size_t begin = std::min(all.at, next->at);
    const std::size_t before = all.at - begin;                     // untouched lines that come to the range in front
    const std::size_t behind = nextEnd > end ? nextEnd - end : 0;  // and behind it
    all.removed += before + behind;
    all.added = std::max(end, nextEnd) - begin - next->removed + next->added;
    all.at = begin;
  }
  return all;
}

void CycleDocument::load(Cycle cycle) {
  cycle_ = std::move(cycle);
  revision_ = ++lastRevision_;
  forgetHistory();
  tell({.loaded = true, .lines = {}, .variables = {}});
}

void CycleDocument::forgetHistory() {
  const bool had = undoName().has_value() || redoName().has_value();
  done_.clear();
  undone_.clear();
  stretchIsOpen_ = false;
  openEdits_.clear();
  if (had) tellHistory();
}

void CycleDocument::perform(CycleEdit edit, std::string_view stepName) {
  const Transaction transaction(*this, stepName, {});
  const Revision before = revision_;
  edit.apply(cycle_);
  if (edit.empty()) return;
  revision_ = ++lastRevision_;
  tell(record(std::move(edit), before));
}

// What has changed. An edit that there is no memory to keep takes all steps along: without it they lead nowhere.
CycleNotice CycleDocument::record(CycleEdit inverse, Revision before) {
  try {
    CycleNotice notice = noticeOf(inverse);
    if (loading_ > 0) return notice;
    if (openEdits_.empty()) open_->revisionBefore = before;
    openEdits_.push_back(std::move(inverse));
    open_->revisionAfter = revision_;
    return notice;
  } catch (...) {
    forgetHistory();
    throw;
  }
}

void CycleDocument::begin(std::string_view stepName, CycleSelection before, Transaction::Kind kind) {
  if (depth_ == 0) {
    Step step;
    step.name = stepName;
    step.before = before;
    step.after = before;
    open_ = std::move(step);
    openKind_ = kind;
  }
  ++depth_;
}

// A step that there is no memory to keep cannot be taken back, and neither can those before it.
void CycleDocument::end() noexcept {
  if (--depth_ > 0) return;
  Step step = *std::exchange(open_, std::nullopt);
  std::vector<CycleEdit> edits = std::exchange(openEdits_, {});
  if (edits.empty()) return;
  undone_.clear();
  try {
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) step.edit.then(std::move(*edit));
    keep(std::move(step));
  } catch (...) {
    done_.clear();
    stretchIsOpen_ = false;
  }
  tellHistory();
}

void CycleDocument::keep(Step&& step) {
  const bool isStretch = openKind_ == Transaction::Kind::Stretch;
  if (isStretch && stretchIsOpen_ && !done_.empty() && done_.back().name == step.name) {
    joinStretch(done_.back(), std::move(step));
    if (done_.back().edit.empty()) {  // what was typed has been taken out again; what follows joins no older stretch
      revision_ = done_.back().revisionBefore;
      done_.pop_back();
      stretchIsOpen_ = false;
      return;
    }
  } else {
    done_.push_back(std::move(step));
    if (done_.size() > mostSteps) done_.pop_front();
  }
  stretchIsOpen_ = isStretch;
}

void CycleDocument::joinStretch(Step& last, Step&& more) {
  if (changesDescriptionOnly(last.edit) && changesDescriptionOnly(more.edit)) {
    Cycle before;
    before.description = cycle_.description;
    CycleEdit(more.edit).apply(before);
    last.edit.apply(before);
    last.edit = edits::changeDescription(cycle_.description, before.description);
  } else {
    last.edit = std::move(more.edit.then(std::move(last.edit)));
  }
  last.after = more.after;
  last.revisionAfter = more.revisionAfter;
}

std::optional<std::string> CycleDocument::undoName() const {
  if (done_.empty()) return std::nullopt;
  return done_.back().name;
}

std::optional<std::string> CycleDocument::redoName() const {
  if (undone_.empty()) return std::nullopt;
  return undone_.back().name;
}

std::optional<CycleSelection> CycleDocument::undo() {
  if (done_.empty() || depth_ > 0) return std::nullopt;
  done_.back().edit.apply(cycle_);
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return wentTo(undone_.back().revisionBefore, undone_.back().before, undone_.back().edit);
}

std::optional<CycleSelection> CycleDocument::redo() {
  if (undone_.empty() || depth_ > 0) return std::nullopt;
  undone_.back().edit.apply(cycle_);
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return wentTo(done_.back().revisionAfter, done_.back().after, done_.back().edit);
}

CycleSelection CycleDocument::wentTo(Revision revision, CycleSelection selection, const CycleEdit& inverse) {
  revision_ = revision;
  stretchIsOpen_ = false;
  tell(noticeOf(inverse));
  tellHistory();
  return selection;
}

void CycleDocument::addListener(CycleListener& listener) { listeners_.push_back(&listener); }

void CycleDocument::removeListener(CycleListener& listener) { std::erase(listeners_, &listener); }

void CycleDocument::tell(const CycleNotice& notice) {
  const std::vector<CycleListener*> listeners = listeners_;
  for (CycleListener* const listener : listeners) {
    if (std::ranges::find(listeners_, listener) != listeners_.end()) listener->cycleChanged(notice);
  }
}

void CycleDocument::tellHistory() noexcept {
  for (std::size_t i = 0; i < listeners_.size(); ++i) listeners_[i]->historyChanged();
}

CycleDocument::Transaction::Transaction(CycleDocument& document, std::string_view stepName, CycleSelection before,
                                        Kind kind)
    : document_(document) {
  document_.begin(stepName, before, kind);
}

CycleDocument::Transaction::~Transaction() { document_.end(); }

void CycleDocument::Transaction::setAfter(CycleSelection after) {
  if (document_.depth_ == 1 && document_.open_) document_.open_->after = after;
}

CycleDocument::Loading::Loading(CycleDocument& document) : document_(document) {
  document_.forgetHistory();
  ++document_.loading_;
}

}  // namespace mavCycEd
