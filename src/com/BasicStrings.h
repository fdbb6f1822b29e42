#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "com/Com.h"

namespace mavCycEd::com {

/// A text of a caller as UTF-8. No text at all is an empty one; a bad pointer is E_POINTER.
std::string toUtf8(BSTR text);

/// A text for a caller, who frees it. Without memory: std::bad_alloc.
BSTR toBasicString(std::string_view utf8);

/// A text of ours that is freed with its owner.
class BasicString {
 public:
  explicit BasicString(std::string_view utf8) : text_(toBasicString(utf8)) {}
  ~BasicString() { SysFreeString(text_); }
  BasicString(const BasicString&) = delete;
  BasicString& operator=(const BasicString&) = delete;

  BSTR get() const { return text_; }
  BSTR detach() { return std::exchange(text_, nullptr); }

 private:
  BSTR text_;
};

}  // namespace mavCycEd::com
