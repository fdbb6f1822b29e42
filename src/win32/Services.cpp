#include "win32/Services.h"

#include <array>
#include <cstdio>

#include "win32/Module.h"
#include "win32/NativeWindow.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {

int Win32MessageBox::messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption,
                                int flags) {
  auto over = reinterpret_cast<HWND>(owner);
  if (IsWindow(over) == FALSE) over = ownWindow_();
  // A box over a part of a window keeps its user from the whole window.
  over = shownRootOf(over);
  const UINT alone = over == nullptr ? MB_TASKMODAL : 0;
  const ThemedScope themed;
  return MessageBoxExA(over, toAnsi(message).c_str(), toAnsi(caption).c_str(), static_cast<UINT>(flags) | alone, 0);
}

std::string Win32SystemMessage::formatMessage(std::int32_t code) const {
  std::array<char, 260> buffer{};
  const DWORD size =
      FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, static_cast<DWORD>(code), 0,
                     buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  return fromAnsi({buffer.data(), size});
}

std::int32_t Win32SystemMessage::lastErrorCode() const { return static_cast<std::int32_t>(GetLastError()); }

std::string AnsiCodePage::fromUtf8(std::string_view text) const { return toAnsi(text); }

std::string Win32Clock::localTimestamp() const {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  std::array<char, 32> text{};
  const int size = std::snprintf(text.data(), text.size(), "%04u-%02u-%02uT%02u:%02u:%02u", now.wYear, now.wMonth,
                                 now.wDay, now.wHour, now.wMinute, now.wSecond);
  return {text.data(), static_cast<std::size_t>(size)};
}

}  // namespace mavCycEd::win32
