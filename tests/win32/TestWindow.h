#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/MemoryServices.h"
#include "win32/MessageWindow.h"
#include "win32/PanelWindow.h"
#include "win32/Win32Editor.h"

/// What the tests of the Win32 edition share: an editor in a host's window, and a user's keys.
namespace mavCycEd::win32::test {

inline constexpr std::string_view catalogue = R"(<LATESTKAM><ATOMS>
  <ATOM><AtomName>MIX</AtomName><Param>Volume;0;100;5;1;ul</Param><Param>Speed;0;10;1;1;None</Param>
    <Param>Mode#;0;0;1;1</Param></ATOM>
  <ATOM><AtomName>WAIT</AtomName></ATOM></ATOMS>
  <LISTS><LIST><LISTNR>1</LISTNR><LISTVALUES>slow;fast</LISTVALUES></LIST></LISTS></LATESTKAM>)";

/// Deals with every message that waits.
inline void settle() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

inline void key(HWND window, WPARAM key) {
  SendMessageW(window, WM_KEYDOWN, key, 1);
  settle();
}

inline void type(HWND window, std::wstring_view text) {
  for (const wchar_t character : text) {
    SendMessageW(window, WM_CHAR, character, 1);
    settle();
  }
}

/// Does one thing after another while a menu is open.
class Meanwhile : private MessageWindow {
 public:
  explicit Meanwhile(std::vector<std::function<void()>> steps) : steps_(std::move(steps)) {
    SetTimer(handle(), 1, pause, nullptr);
  }

 private:
  static constexpr UINT pause = 50;
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_TIMER) return MessageWindow::onMessage(message, wParam, lParam);
    if (next_ < steps_.size()) steps_[next_++]();
    return 0;
  }

  std::vector<std::function<void()>> steps_;
  std::size_t next_ = 0;
};

/// A host's window on the screen.
class HostWindow : public PanelWindow {
 public:
  HostWindow() : PanelWindow(nullptr, WS_POPUP | WS_CAPTION, 0) {
    constexpr int width = 900;
    constexpr int height = 600;
    SetWindowPos(handle(), nullptr, 0, 0, width, height, SWP_NOZORDER);
    ShowWindow(handle(), SW_SHOW);
  }
};

/// An editor in a host's window.
class TestEditor {
 public:
  explicit TestEditor(HWND parent, std::wstring help = {})
      : helpFile(std::move(help)),
        editor_(std::make_unique<Win32Editor>(parent, std::make_unique<libxml2::Libxml2DocumentFactory>(), onError(),
                                              services())) {
    constexpr RECT place{0, 0, 880, 560};
    editor_->screen().setPlace(place);
    settle();
  }

  Win32Editor& editor() { return *editor_; }
  EditorControls& windows() { return editor_->screen().windows(); }
  void load(std::string_view cycle = {}) { editor_->control().SetXMLStrings(catalogue, cycle); }
  void destroy() { editor_.reset(); }
  bool isDestroyed() const { return editor_ == nullptr; }

  std::vector<std::string> messages;
  std::vector<std::string> errors;
  std::function<void()> onMessage;
  struct HelpShown {
    HWND over;
    std::wstring file;
    std::wstring page;
  };
  std::vector<HelpShown> helpShown;
  std::wstring helpFile;
  bool hasHelpViewer = true;

 private:
  CycleEditorErrorHandler onError() {
    return [this](const CycleEditorErrorEvent& event) { errors.push_back(event.strProcedure); };
  }
  EditorServices services() {
    EditorServices services;
    services.messageBox =
        std::make_shared<memory::MemoryMessageBox>([this](std::string_view message, std::string_view, int) {
          messages.emplace_back(message);
          if (onMessage) onMessage();
        });
    services.helpFile = helpFile;
    services.helpViewer = [this](HWND over, const std::wstring& file, const std::wstring& page) {
      helpShown.push_back({over, file, page});
      return hasHelpViewer;
    };
    return services;
  }

  std::unique_ptr<Win32Editor> editor_;
};

}  // namespace mavCycEd::win32::test
