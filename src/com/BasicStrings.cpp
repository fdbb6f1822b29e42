#include "com/BasicStrings.h"

#include <cstdint>
#include <limits>
#include <new>

#include "com/Pointers.h"
#include "win32/Text.h"

namespace mavCycEd::com {

std::string toUtf8(BSTR text) {
  if (text == nullptr) return {};
  // The size in bytes stands in front of the characters, a closing zero behind them.
  requireReadable(reinterpret_cast<const char*>(text) - sizeof(std::uint32_t), sizeof(std::uint32_t));
  const std::size_t size = SysStringLen(text);
  requireReadable(text, (size + 1) * sizeof(OLECHAR));
  return win32::fromWide({text, size});
}

BSTR toBasicString(std::string_view utf8) {
  const std::wstring wide = win32::toWide(utf8);
  if (wide.size() > std::numeric_limits<UINT>::max() / sizeof(OLECHAR)) throw std::bad_alloc();
  const BSTR text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (text == nullptr) throw std::bad_alloc();
  return text;
}

}  // namespace mavCycEd::com
