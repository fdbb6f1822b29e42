#include "com/Keyboard.h"

#include <algorithm>
#include <array>

namespace mavCycEd::com {
namespace {

wchar_t capital(wchar_t key) {
  CharUpperBuffW(&key, 1);
  return key;
}

// The windows that the tab key reaches, in its order.
std::vector<HWND> stopsOf(HWND root) {
  std::vector<HWND> stops;
  // Where nothing takes the keyboard, the system answers with the window that it was given, or with nothing.
  HWND stop = GetNextDlgTabItem(root, nullptr, FALSE);
  while (stop != nullptr && stop != root && std::find(stops.begin(), stops.end(), stop) == stops.end()) {
    stops.push_back(stop);
    stop = GetNextDlgTabItem(root, stop, FALSE);
  }
  return stops;
}

// A text is selected when the keyboard comes to it, as in dialogs.
void focusStop(HWND stop) {
  SetFocus(stop);
  if ((SendMessageW(stop, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) SendMessageW(stop, EM_SETSEL, 0, -1);
}

bool focusNextStop(HWND root, HWND from, bool backwards) {
  const std::vector<HWND> stops = stopsOf(root);
  // An edit that is open stands in the window that is the stop.
  const auto current =
      std::find_if(stops.begin(), stops.end(), [&](HWND stop) { return stop == from || IsChild(stop, from) != FALSE; });
  if (current == stops.end()) return focusFirstStop(root, backwards);
  if (backwards ? current == stops.begin() : current + 1 == stops.end()) return false;
  focusStop(backwards ? *(current - 1) : *(current + 1));
  return true;
}

// Whether the window with the focus takes the key itself.
bool isWanted(HWND focus, MSG& message) {
  const LRESULT code = SendMessageW(focus, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
  if ((code & DLGC_WANTMESSAGE) != 0) return true;
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
      if (message.wParam == VK_TAB) return (code & DLGC_WANTTAB) != 0;
      if (message.wParam >= VK_LEFT && message.wParam <= VK_DOWN) return (code & DLGC_WANTARROWS) != 0;
      return message.wParam != VK_RETURN && message.wParam != VK_ESCAPE;
    case WM_CHAR: return (code & DLGC_WANTCHARS) != 0;
    default: return false;
  }
}

// The character behind the mark of an access key; 0: there is none. Two marks stand for the character itself.
wchar_t accessKeyOf(HWND window) {
  std::array<wchar_t, 256> text{};
  const int size = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  for (int i = 0; i + 1 < size; ++i) {
    if (text[static_cast<std::size_t>(i)] != L'&') continue;
    const wchar_t next = text[static_cast<std::size_t>(++i)];
    if (next != L'&') return capital(next);
  }
  return 0;
}

bool isPushButton(HWND window) {
  return (SendMessageW(window, WM_GETDLGCODE, 0, 0) & (DLGC_BUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

template <typename Visit>
void forEachWindowBelow(HWND root, Visit visit) {
  EnumChildWindows(
      root,
      [](HWND window, LPARAM data) -> BOOL {
        try {
          return (*reinterpret_cast<Visit*>(data))(window) ? TRUE : FALSE;
        } catch (...) {
          return FALSE;
        }
      },
      reinterpret_cast<LPARAM>(&visit));
}

}  // namespace

KeyUse answerKey(HWND root, MSG& message) {
  const HWND focus = GetFocus();
  if (focus == nullptr || (focus != root && IsChild(root, focus) == FALSE)) return KeyUse::HandOver;
  if (message.message == WM_SYSCHAR) {
    return pressAccessKey(root, static_cast<wchar_t>(message.wParam)) ? KeyUse::Done : KeyUse::HandOver;
  }
  if (isWanted(focus, message)) return KeyUse::Wanted;
  const bool isPlainTab = message.message == WM_KEYDOWN && message.wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0;
  if (!isPlainTab) return KeyUse::HandOver;
  return focusNextStop(root, focus, GetKeyState(VK_SHIFT) < 0) ? KeyUse::Done : KeyUse::HandOver;
}

bool focusFirstStop(HWND root, bool last) {
  const std::vector<HWND> stops = stopsOf(root);
  if (stops.empty()) return false;
  focusStop(last ? stops.back() : stops.front());
  return true;
}

std::vector<wchar_t> accessKeys(HWND root) {
  std::vector<wchar_t> keys;
  forEachWindowBelow(root, [&](HWND window) {
    const wchar_t key = isPushButton(window) ? accessKeyOf(window) : L'\0';
    if (key != 0) keys.push_back(key);
    return true;
  });
  return keys;
}

bool pressAccessKey(HWND root, wchar_t key) {
  HWND button = nullptr;
  forEachWindowBelow(root, [&](HWND window) {
    if (isPushButton(window) && accessKeyOf(window) == capital(key) && IsWindowVisible(window) != FALSE &&
        IsWindowEnabled(window) != FALSE) {
      button = window;
    }
    return button == nullptr;
  });
  if (button == nullptr) return false;
  SetFocus(button);
  SendMessageW(button, BM_CLICK, 0, 0);
  return true;
}

}  // namespace mavCycEd::com
