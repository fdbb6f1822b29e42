#pragma once

#include <memory>

#include "ControlSite.h"
#include "Library.h"
#include "Win32OwnDesktop.h"

namespace mavCycEd::test {

// For all tests of this program.
inline const bool isAlone = play::moveToOwnDesktop();

/// The control in a container's window.
class ContainerTest : public ComTest {
 protected:
  ~ContainerTest() override { DestroyWindow(frame_); }

  static HWND newFrame() {
    return CreateWindowExW(0, L"STATIC", L"container", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 900,
                           700, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  }

  struct Close {
    void operator()(ControlSite* site) const { site->close(); }
  };
  using Placed = std::unique_ptr<ControlSite, Close>;
  Placed placed() { return placed(library_); }
  Placed placed(const Library& library) { return Placed(ControlSite::create(frame_, place_, library.control().get())); }

  static HWND button(HWND window, const wchar_t* caption) { return FindWindowExW(window, nullptr, L"Button", caption); }
  static std::wstring cycleOf(ControlSite& site) {
    BSTR text = nullptr;
    EXPECT_EQ(site.editor().RetrieveCycle(&text), S_OK);
    std::wstring copy(text, SysStringLen(text));
    SysFreeString(text);
    return copy;
  }

  HWND frame_ = newFrame();
  RECT place_{10, 20, 710, 520};
};

}  // namespace mavCycEd::test
