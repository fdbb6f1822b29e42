#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kit/ListTexts.h"
#include "text/FirstIndex.h"

namespace mavCycEd::kit {

/// The items that a list box or a combo box keeps. An index beyond them is run-time error 5.
class ListItems : public ListTexts {
 public:
  void assign(std::vector<std::string> items);
  void append(std::string_view text);
  /// In front of the item at `index`, or at the end when `index` is the number of items.
  void insert(int index, std::string_view text);
  void remove(int index);
  void setText(int index, std::string_view text);

  int count() const override { return static_cast<int>(items_.size()); }
  std::string text(int index) const override { return items_[at(index)]; }
  int longest() const override;

  const std::vector<std::string>& all() const { return items_; }
  /// The first item of exactly this text, -1 when there is none.
  int indexOf(std::string_view text) { return places_.of(text, items_); }

 private:
  std::size_t at(int index) const { return static_cast<std::size_t>(checked(index)); }
  void changed();

  static constexpr int unknown = -2;

  std::vector<std::string> items_;
  text::FirstIndex places_;
  mutable int longest_ = unknown;
};

}  // namespace mavCycEd::kit
