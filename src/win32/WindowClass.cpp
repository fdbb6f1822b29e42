#include "win32/WindowClass.h"

#include "win32/Module.h"

namespace mavCycEd::win32 {

// A class that exists already makes the registration fail, which is as good. It may outlive this module: nothing of it
// is code or data of ours.
const wchar_t* ownWindowClass(const wchar_t* name, UINT style) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.style = style;
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = ownModule();
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = nullptr;
  windowClass.lpszClassName = name;
  RegisterClassExW(&windowClass);
  return name;
}

}  // namespace mavCycEd::win32
