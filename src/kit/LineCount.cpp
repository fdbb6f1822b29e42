#include "kit/LineCount.h"

#include "platform/RunTimeError.h"

namespace mavCycEd::kit {

void LineCount::show(const platform::ListLines& lines) {
  lines_ = &lines;
  count_ = lines.count();
  longest_ = unknown;
}

void LineCount::clear() {
  lines_ = nullptr;
  count_ = 0;
  longest_ = unknown;
}

void LineCount::check(const Splice& change) const {
  const bool isShown = change.at >= 0 && change.removed >= 0 && change.added >= 0 && change.behind() <= count_;
  if (lines_ == nullptr || !isShown) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

void LineCount::splice(const Splice& change) {
  check(change);
  count_ += change.shift();
  if (longest_ != unknown) followLongest(change);
}

std::string LineCount::text(int index) const {
  return checked(index) < lines_->count() ? lines_->text(index) : std::string();
}

void LineCount::followLongest(const Splice& change) {
  constexpr int few = 100;  // more are looked at with all others
  if (longest_ >= change.behind()) {
    longest_ += change.shift();
  } else if (longest_ >= change.at) {
    longest_ = unknown;
  }
  if (change.added > few || (longest_ >= 0 && lengthOf(longest_) != most_)) longest_ = unknown;
  for (int i = change.at; longest_ != unknown && i < change.at + change.added; ++i) notice(i);
}

bool LineCount::notice(int index) {
  if (longest() >= 0 && lengthOf(index) <= most_) return false;
  know(index);
  return true;
}

void LineCount::know(int longest) const {
  longest_ = longest;
  most_ = longest < 0 ? 0 : lengthOf(longest);
}

int LineCount::longest() const {
  if (longest_ == unknown) know(lines_ == nullptr ? -1 : lines_->longest());
  return longest_;
}

}  // namespace mavCycEd::kit
