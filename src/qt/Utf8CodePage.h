#pragma once

#include "platform/CodePage.h"

namespace mavCycEd::qt {

/// A code page that is UTF-8 itself.
class Utf8CodePage : public platform::CodePage {
 public:
  std::string fromUtf8(std::string_view text) const override { return std::string(text); }
};

}  // namespace mavCycEd::qt
