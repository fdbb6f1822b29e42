#pragma once

#include <string>

namespace mavCycEd::kit {

/// The texts of a list, numbered from 0, whoever keeps them.
class ListTexts {
 public:
  virtual ~ListTexts() = default;

  virtual int count() const = 0;
  /// An index beyond the list is run-time error 5.
  virtual std::string text(int index) const = 0;
  /// The text that needs the most room, as far as its length tells; -1 when there is none.
  virtual int longest() const = 0;

  /// `index`, which must be that of a text: anything else is run-time error 5.
  int checked(int index) const;
};

}  // namespace mavCycEd::kit
