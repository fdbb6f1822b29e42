#pragma once

#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// The system's 8-bit code page.
class CodePage {
 public:
  virtual ~CodePage() = default;

  /// A UTF-8 text as the bytes that stand for it in the code page. Where the platform's code page is UTF-8 itself the
  /// text comes back as it is; elsewhere a character that the code page lacks becomes a substitute.
  virtual std::string fromUtf8(std::string_view text) const = 0;
};

}  // namespace mavCycEd::platform
