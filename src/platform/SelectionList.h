#pragma once

#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// A list of texts of which any number can be selected. Items are numbered from 0. An index beyond the list is run-time
/// error 5.
class SelectionList {
 public:
  virtual ~SelectionList() = default;

  virtual void clear() = 0;
  /// Adds an item at the end.
  virtual void addItem(std::string_view text, bool selected) = 0;

  virtual int itemCount() const = 0;
  virtual std::string itemText(int index) const = 0;
  virtual bool isSelected(int index) const = 0;
};

}  // namespace mavCycEd::platform
