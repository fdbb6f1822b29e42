#pragma once

#include <string>

namespace mavCycEd::platform {

/// Lines that a list box shows but does not keep: it asks for the text of those that it draws. Lines are numbered from
/// 0.
class ListLines {
 public:
  virtual ~ListLines() = default;

  virtual int count() const = 0;
  /// The text of a line, which is one of those counted.
  virtual std::string text(int index) const = 0;
  /// The line that needs the most room, as far as its length tells; -1 when there is none.
  virtual int longest() const = 0;
};

}  // namespace mavCycEd::platform
