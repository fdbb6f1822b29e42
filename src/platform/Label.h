#pragma once

#include <string_view>

namespace mavCycEd::platform {

/// A text in front of a control.
class Label {
 public:
  virtual ~Label() = default;

  virtual void setCaption(std::string_view caption) = 0;
};

}  // namespace mavCycEd::platform
