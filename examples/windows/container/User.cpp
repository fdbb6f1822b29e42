#include "User.h"

#include <cwctype>

namespace {

INPUT keyInput(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

INPUT mouseInput(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

}  // namespace

// The first keys are held while the last one is pressed.
void User::keys(std::initializer_list<WORD> keys) {
  std::vector<INPUT> inputs;
  for (const WORD key : keys) inputs.push_back(keyInput(key, 0));
  for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) inputs.push_back(keyInput(*key, KEYEVENTF_KEYUP));
  send(inputs);
}

// Letters and digits, whose keys are their capitals.
void User::type(const std::wstring& text) {
  for (const wchar_t character : text) press(static_cast<WORD>(std::towupper(character)));
}

void User::click(HWND window, int x, int y) {
  POINT point{x, y};
  ClientToScreen(window, &point);
  SetCursorPos(point.x, point.y);
  send({mouseInput(MOUSEEVENTF_LEFTDOWN), mouseInput(MOUSEEVENTF_LEFTUP)});
}

void User::send(const std::vector<INPUT>& inputs) {
  SendInput(static_cast<UINT>(inputs.size()), const_cast<INPUT*>(inputs.data()), sizeof(INPUT));
  wait(0);
}

void User::wait(DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  MSG message{};
  for (;;) {
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) host_.dispatch(message);
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
  }
}
