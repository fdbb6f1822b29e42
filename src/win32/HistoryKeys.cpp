#include "win32/HistoryKeys.h"

#include <array>
#include <optional>
#include <string_view>

namespace mavCycEd::win32 {
namespace {

// The characters that the keys come with.
constexpr WPARAM controlY = 0x19;
constexpr WPARAM controlZ = 0x1A;

bool isDown(int key) { return GetKeyState(key) < 0; }

std::optional<HistoryStep> stepOf(WPARAM key) {
  if (!isDown(VK_CONTROL) || isDown(VK_MENU)) return std::nullopt;
  if (key == 'Y' && !isDown(VK_SHIFT)) return HistoryStep::Redo;
  if (key == 'Z') return isDown(VK_SHIFT) ? HistoryStep::Redo : HistoryStep::Undo;
  return std::nullopt;
}

bool isLineOfTyping(HWND window) {
  std::array<wchar_t, 16> name{};
  const int size = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  const std::wstring_view windowClass(name.data(), static_cast<std::size_t>(size));
  const bool isEdit = CompareStringOrdinal(windowClass.data(), size, L"EDIT", -1, TRUE) == CSTR_EQUAL;
  return isEdit && (GetWindowLongPtrW(window, GWL_STYLE) & ES_MULTILINE) == 0;
}

}  // namespace

bool handOnHistoryKey(HWND window, UINT message, WPARAM wParam) {
  if (message == WM_CHAR) return (wParam == controlY || wParam == controlZ) && !isLineOfTyping(window);
  if (message != WM_KEYDOWN) return false;
  const std::optional<HistoryStep> step = stepOf(wParam);
  if (!step || isLineOfTyping(window)) return false;
  PostMessageW(GetAncestor(window, GA_PARENT), historyMessage, static_cast<WPARAM>(*step), 0);
  return true;
}

}  // namespace mavCycEd::win32
