#include "rules/ParamRowTable.h"

#include <cstddef>

#include "platform/RunTimeError.h"

namespace mavCycEd {

void ParamRowTable::resize(int upperBound) {
  entries_.clear();
  entries_.resize(static_cast<std::size_t>(upperBound) + 1);
}

void ParamRowTable::grow(int rows) { entries_.resize(entries_.size() + static_cast<std::size_t>(rows)); }

const ParamRowInfo* ParamRowTable::find(int number) const {
  return number >= 0 && number <= upperBound() ? &entries_[static_cast<std::size_t>(number)] : nullptr;
}

const ParamRowInfo& ParamRowTable::row(int number) const {
  const ParamRowInfo* const entry = find(number);
  if (entry == nullptr) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return *entry;
}

ParamRowInfo& ParamRowTable::row(int number) {
  const auto& table = *this;
  return const_cast<ParamRowInfo&>(table.row(number));  // the entries of a table that may be changed
}

}  // namespace mavCycEd
