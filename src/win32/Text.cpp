#include "win32/Text.h"

#include <array>
#include <cstdio>

#include "text/Utf8.h"

namespace mavCycEd::win32 {
namespace {

int sizeOf(std::string_view text) { return static_cast<int>(text.size()); }
int sizeOf(std::wstring_view text) { return static_cast<int>(text.size()); }

std::wstring decoded(UINT codePage, std::string_view text) {
  const int size = MultiByteToWideChar(codePage, 0, text.data(), sizeOf(text), nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(codePage, 0, text.data(), sizeOf(text), wide.data(), size);
  return wide;
}

std::string encoded(UINT codePage, DWORD flags, std::wstring_view text, BOOL* substituted) {
  const int size = WideCharToMultiByte(codePage, flags, text.data(), sizeOf(text), nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(codePage, flags, text.data(), sizeOf(text), narrow.data(), size, nullptr, substituted);
  return narrow;
}

}  // namespace

std::wstring toWide(std::string_view text) { return decoded(CP_UTF8, text); }

std::wstring toWideLine(std::string_view text) {
  constexpr std::size_t mostCharacters = 10'000;
  constexpr std::size_t mostBytes = 4;  // of a character
  std::wstring line = toWide(text.substr(0, mostBytes * mostCharacters));
  if (line.size() > mostCharacters) {
    line.resize(IS_HIGH_SURROGATE(line[mostCharacters - 1]) ? mostCharacters - 1 : mostCharacters);
    line += L'\x2026';
  }
  return line;
}

std::string fromWide(std::wstring_view text) { return encoded(CP_UTF8, 0, text, nullptr); }

std::wstring withoutAccessKey(std::string_view text) {
  std::wstring shown;
  for (const wchar_t character : toWideLine(text)) shown.append(character == L'&' ? 2 : 1, character);
  return shown;
}

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::string toAnsi(std::string_view text) {
  if (GetACP() == CP_UTF8) return std::string(text);
  BOOL substituted = FALSE;
  std::string whole = encoded(CP_ACP, WC_NO_BEST_FIT_CHARS, toWide(text), &substituted);
  if (substituted == FALSE) return whole;

  std::string shown;
  while (!text.empty()) {
    const std::size_t size = text::firstCharacterSize(text);
    substituted = FALSE;
    const std::string bytes = encoded(CP_ACP, WC_NO_BEST_FIT_CHARS, toWide(text.substr(0, size)), &substituted);
    if (substituted == FALSE) {
      shown += bytes;
    } else {
      std::array<char, 16> name{};
      std::snprintf(name.data(), name.size(), "<U+%04X>", static_cast<unsigned>(text::firstCharacter(text)));
      shown += name.data();
    }
    text.remove_prefix(size);
  }
  return shown;
}

std::string fromAnsi(std::string_view text) { return fromWide(decoded(CP_ACP, text)); }

}  // namespace mavCycEd::win32
