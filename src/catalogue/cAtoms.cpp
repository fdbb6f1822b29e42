#include "catalogue/cAtoms.h"

#include <algorithm>

#include "platform/RunTimeError.h"
#include "text/CaseFold.h"

namespace mavCycEd {

cAtom& cAtoms::Add(std::string AtomName, std::string Duration, std::string GroupIndex, Variant AtomParameters,
                   std::string_view sKey) {
  auto atom = std::make_unique<cAtom>();
  atom->setAtomName(std::move(AtomName));
  atom->setDuration(std::move(Duration));
  atom->setGroupIndex(std::move(GroupIndex));
  if (auto* object = std::get_if<ObjectReference>(&AtomParameters)) {
    atom->setAtomParametersObject(std::move(*object));
  } else {
    atom->setAtomParameters(std::move(AtomParameters));
  }
  std::string key = text::foldCase(sKey);
  if (!key.empty() && std::ranges::find(elements_, key, &Element::key) != elements_.end()) {
    throw RunTimeError(ErrorNumber::KeyInUse);
  }
  elements_.push_back({std::move(atom), std::move(key)});
  return *elements_.back().atom;
}

std::size_t cAtoms::indexOf(int position) const {
  if (position < 1 || position > Count()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return static_cast<std::size_t>(position) - 1;
}

std::size_t cAtoms::indexOf(std::string_view key) const {
  const std::string folded = text::foldCase(key);
  const auto found = std::ranges::find(elements_, folded, &Element::key);
  if (folded.empty() || found == elements_.end()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return static_cast<std::size_t>(found - elements_.begin());
}

cAtom& cAtoms::Item(int position) { return *elements_[indexOf(position)].atom; }

cAtom& cAtoms::Item(std::string_view key) { return *elements_[indexOf(key)].atom; }

const cAtom& cAtoms::Item(int position) const { return *elements_[indexOf(position)].atom; }

const cAtom& cAtoms::Item(std::string_view key) const { return *elements_[indexOf(key)].atom; }

void cAtoms::Remove(int position) {
  elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(indexOf(position)));
}

void cAtoms::Remove(std::string_view key) {
  elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(indexOf(key)));
}

}  // namespace mavCycEd
