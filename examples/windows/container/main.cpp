// A container of the editor in C++: a window with two editors side by side.
//
//   container          shows it, and works until it is closed
//   container --play   plays a user at its keyboard and mouse and looks at what comes of it; the exit code is the
//                      number of what went wrong
//
// The control has to be registered.

#include <cstdio>
#include <cwchar>

#include "HostWindow.h"
#include "User.h"

namespace {

const wchar_t* const catalogue =
    L"<LATESTKAM><ATOMS><ATOM><AtomName>HOME</AtomName></ATOM>"
    L"<ATOM><AtomName>WAIT</AtomName><Param>Time;0;100;5;1;s</Param></ATOM></ATOMS>"
    L"<CLASSES/><OBJECTS/><LISTS/></LATESTKAM>";

/// The play.
class Play {
 public:
  explicit Play(HostWindow& host) : host_(host), user_(host) {}

  int run() {
    SetForegroundWindow(host_.window());
    user_.wait(50);
    hearOfAFailure();
    host_.load(catalogue, L"");
    insertAnAtom();
    describeTheCycle();
    goAroundByTab();
    resize();
    handBack();
    return failures_;
  }

 private:
  void check(bool condition, const char* what) {
    if (condition) return;
    ++failures_;
    std::printf("FAILED: %s\n", what);
  }

  static HWND below(ControlSite& site, const wchar_t* windowClass, const wchar_t* caption = nullptr) {
    return FindWindowExW(site.controlWindow(), nullptr, windowClass, caption);
  }

  void hearOfAFailure() {
    host_.load(L"no catalogue", L"");
    check(host_.errors().size() == 2, "both editors tell that there is no catalogue");
    check(!host_.errors().empty() && host_.errors().front().number == mavCycEdErrorInvalidXML, "and with which number");
    check(!host_.errors().empty() && host_.errors().front().procedure == L"SetXMLStrings ", "and where");
  }

  // By mouse and keys: the atom in the list, its value in the grid, then the access key of Insert.
  void insertAnAtom() {
    const HWND atoms = below(host_.left(), L"ComboBox");
    user_.click(atoms, 10, 10);
    check(host_.left().isActive(), "a click activates the editor");
    check(GetFocus() == atoms, "and gives the list of atoms the keyboard");
    user_.press(VK_ESCAPE);
    user_.type(L"w");
    user_.press(VK_TAB);
    check(GetFocus() == below(host_.left(), L"mavCycEd.ValueList"), "Tab leads to the grid");
    user_.type(L"42");
    user_.press(VK_RETURN);
    user_.press(VK_MENU, 'S');
    user_.wait(50);
    check(HostWindow::cycleOf(host_.left()).find(L"WAIT(42,)") != std::wstring::npos, "the atom is in the cycle");
    check(HostWindow::cycleOf(host_.right()).empty(), "and not in the other editor's");
  }

  void describeTheCycle() {
    user_.click(below(host_.right(), L"Edit"), 20, 10);
    check(host_.right().isActive(), "the right editor has the user's attention");
    check(!host_.left().isActive(), "and the left one has not");
    user_.type(L"note");
    wchar_t text[20] = {};
    GetWindowTextW(GetFocus(), text, 20);
    check(std::wcsstr(text, L"note") != nullptr, "the description is what was typed");
  }

  // From the button through both editors and back to it, and the other way round.
  void goAroundByTab() {
    constexpr int windowsPerEditor = 11;
    for (const bool backwards : {false, true}) {
      SetFocus(host_.button());
      int steps = 0;
      do {
        if (backwards) {
          user_.press(VK_SHIFT, VK_TAB);
        } else {
          user_.press(VK_TAB);
        }
        ++steps;
      } while (GetFocus() != host_.button() && steps < 100);
      check(steps == 2 * windowsPerEditor + 1, backwards ? "Shift+Tab goes around" : "Tab goes around");
      if (steps != 2 * windowsPerEditor + 1) std::printf("  in %d steps\n", steps);
    }
    check(!host_.left().isActive() && !host_.right().isActive(), "the button has the user's attention");
  }

  void resize() {
    SetWindowPos(host_.window(), nullptr, 0, 0, 800, 500, SWP_NOMOVE | SWP_NOZORDER);
    RECT client{};
    RECT control{};
    GetClientRect(host_.window(), &client);
    GetWindowRect(host_.right().controlWindow(), &control);
    MapWindowPoints(nullptr, host_.window(), reinterpret_cast<POINT*>(&control), 2);
    check(control.right == client.right - 8 && control.bottom == client.bottom - 8, "the editors follow the window");
  }

  void handBack() {
    const std::wstring cycle = HostWindow::cycleOf(host_.left());
    VARIANT_BOOL changed = VARIANT_TRUE;
    host_.left().editor().get_CycleChanged(&changed);
    check(changed == VARIANT_FALSE, "what was handed back is not changed");
    host_.load(catalogue, cycle);
    check(HostWindow::cycleOf(host_.right()) == cycle, "the other editor hands the same back");
    check(host_.errors().size() == 2, "nothing else has failed");
  }

  HostWindow& host_;
  User user_;
  int failures_ = 0;
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (FAILED(OleInitialize(nullptr))) return 1;
  int result = 0;
  {
    HostWindow host;
    if (!host.isComplete()) {
      std::puts("The editor could not be made. Is it registered?");
      result = 1;
    } else if (argc > 1 && std::wcscmp(argv[1], L"--play") == 0) {
      result = Play(host).run();
    } else {
      host.load(catalogue, L"");
      host.run();
    }
  }
  // Now nothing is left of the editors, and the system can do without their file.
  CoFreeUnusedLibrariesEx(0, 0);
  if (GetModuleHandleW(L"mavCycEd.dll") != nullptr) {
    std::puts("FAILED: the component does not leave memory");
    ++result;
  }
  OleUninitialize();
  return result;
}
