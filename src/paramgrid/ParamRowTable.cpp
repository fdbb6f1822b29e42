#include "paramgrid/ParamRowTable.h"

#include <cstddef>

#include "platform/RunTimeError.h"

namespace mavCycEd {

void ParamRowTable::size(int upperBound) {
  entries_.clear();
  entries_.resize(static_cast<std::size_t>(upperBound) + 1);
}

void ParamRowTable::grow(int rows) { entries_.resize(entries_.size() + static_cast<std::size_t>(rows)); }

ParamRowInfo& ParamRowTable::row(int number) {
  if (number < 0 || number > upperBound()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return entries_[static_cast<std::size_t>(number)];
}

const ParamRowInfo& ParamRowTable::row(int number) const {
  if (number < 0 || number > upperBound()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return entries_[static_cast<std::size_t>(number)];
}

}  // namespace mavCycEd
