#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/cAtom.h"

namespace mavCycEd {

/// The atom lines of a cycle, in order; a line may also be looked up by a text key (compared without regard to case).
/// Positions count from 1. A position out of range is run-time error 9, an unknown key 5, a key in use 457.
class cAtoms {
  struct Element {
    std::unique_ptr<cAtom> atom;
    std::string key;  // case-folded; empty: the atom has no key
  };
  using Elements = std::vector<Element>;

 public:
  /// Walks the atoms in order; those of a collection that is not to be changed as what is not to be changed.
  template <typename Atom>
  class Enumerator {
   public:
    using difference_type = std::ptrdiff_t;
    using value_type = Atom;
    explicit Enumerator(Elements::const_iterator at) : at_(at) {}
    Atom& operator*() const { return *at_->atom; }
    Atom* operator->() const { return at_->atom.get(); }
    Enumerator& operator++() {
      ++at_;
      return *this;
    }
    Enumerator operator++(int) {
      const Enumerator before = *this;
      ++at_;
      return before;
    }
    bool operator==(const Enumerator& other) const { return at_ == other.at_; }

   private:
    Elements::const_iterator at_;
  };
  /// What NewEnum() gives: a range over the atoms.
  template <typename Atom>
  struct Range {
    Enumerator<Atom> first, last;
    Enumerator<Atom> begin() const { return first; }
    Enumerator<Atom> end() const { return last; }
  };

  /// Adds an atom line at the end and gives it back; an empty key adds it without a key. A key in use fails and leaves
  /// the collection as it was.
  cAtom& Add(std::string AtomName, std::string Duration, std::string GroupIndex, Variant AtomParameters,
             std::string_view sKey = {});

  cAtom& Item(int position);
  cAtom& Item(std::string_view key);
  const cAtom& Item(int position) const;
  const cAtom& Item(std::string_view key) const;
  int Count() const { return static_cast<int>(elements_.size()); }
  /// Removes an atom line; those behind it move up by one.
  void Remove(int position);
  void Remove(std::string_view key);
  /// Removes all atom lines.
  void Clear() { elements_.clear(); }

  Range<cAtom> NewEnum() { return {begin(), end()}; }
  Range<const cAtom> NewEnum() const { return {begin(), end()}; }
  Enumerator<cAtom> begin() { return Enumerator<cAtom>(elements_.begin()); }
  Enumerator<cAtom> end() { return Enumerator<cAtom>(elements_.end()); }
  Enumerator<const cAtom> begin() const { return Enumerator<const cAtom>(elements_.begin()); }
  Enumerator<const cAtom> end() const { return Enumerator<const cAtom>(elements_.end()); }

 private:
  std::size_t indexOf(int position) const;
  std::size_t indexOf(std::string_view key) const;

  Elements elements_;
};

}  // namespace mavCycEd
