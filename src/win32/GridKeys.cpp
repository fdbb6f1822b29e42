#include "win32/GridKeys.h"

namespace mavCycEd::win32 {
namespace {

kit::Key namedKey(WPARAM key, const kit::KeyPress& held) {
  using kit::Key;
  const bool onlyControl = held.control && !held.shift && !held.alt;
  const bool onlyShift = held.shift && !held.control && !held.alt;
  switch (key) {
    case VK_UP: return Key::Up;
    case VK_DOWN: return Key::Down;
    case VK_PRIOR: return Key::PageUp;
    case VK_NEXT: return Key::PageDown;
    case VK_HOME: return Key::Home;
    case VK_END: return Key::End;
    case VK_TAB: return Key::Tab;
    case VK_RETURN: return Key::Enter;
    case VK_ESCAPE: return Key::Escape;
    case VK_F2: return Key::F2;
    case VK_F4: return Key::F4;
    case VK_DELETE: return Key::Delete;
    case VK_BACK: return Key::Backspace;
    case 'C': return onlyControl ? Key::Copy : Key::Other;
    case 'V': return onlyControl ? Key::Paste : Key::Other;
    case VK_INSERT: return onlyControl ? Key::Copy : onlyShift ? Key::Paste : Key::Other;
    default: return Key::Other;
  }
}

}  // namespace

kit::KeyPress keyPressOf(WPARAM key) {
  kit::KeyPress press{.shift = isDown(VK_SHIFT), .control = isDown(VK_CONTROL), .alt = isDown(VK_MENU)};
  press.key = namedKey(key, press);
  return press;
}

}  // namespace mavCycEd::win32
