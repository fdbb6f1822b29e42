#include "libxml2/Layout.h"

#include <cstring>

namespace mavCycEd::libxml2 {

bool isLayout(const char* text, bool besideMarkup) {
  if (text[std::strspn(text, " \t\r\n")] != '\0') return false;
  return besideMarkup || std::strpbrk(text, "\r\n") != nullptr;
}

}  // namespace mavCycEd::libxml2
