// F1 on its whole way: from the keyboard, through the container's message loop, to the help.

#include <string>
#include <utility>
#include <vector>

#include "Container.h"

namespace mavCycEd::test {
namespace {

/// A copy of the component in a folder of its own, where no help file lies beside it.
class LoneCopy {
 public:
  LoneCopy() : folder_(temporaryFolder() + L"mavCycEd-" + std::to_wstring(GetCurrentProcessId())) {
    CreateDirectoryW(folder_.c_str(), nullptr);
    wchar_t original[MAX_PATH]{};
    GetModuleFileNameW(GetModuleHandleW(L"mavCycEd.dll"), original, MAX_PATH);
    EXPECT_NE(CopyFileW(original, file().c_str(), FALSE), FALSE);
  }
  ~LoneCopy() {
    DeleteFileW(file().c_str());
    RemoveDirectoryW(folder_.c_str());
  }
  LoneCopy(const LoneCopy&) = delete;
  LoneCopy& operator=(const LoneCopy&) = delete;

  std::wstring file() const { return folder_ + L"\\mavCycEd.dll"; }
  std::wstring helpFile() const { return folder_ + L"\\mavCycEd.chm"; }

 private:
  static std::wstring temporaryFolder() {
    wchar_t path[MAX_PATH]{};
    GetTempPathW(MAX_PATH, path);
    return path;
  }

  std::wstring folder_;
};

/// The control with the keyboard in it, and somebody who reads and closes the messages that the help shows.
class HelpKeyTest : public ContainerTest {
 protected:
  HelpKeyTest() {
    current_ = this;
    EXPECT_EQ(site_->editor().SetXMLStrings(Text(catalogue), Text(macroText)), S_OK);
    SetForegroundWindow(frame_);
    site_->activate(nullptr);
    SetTimer(frame_, timer, 20, [](HWND, UINT, UINT_PTR, DWORD) { current_->look(); });
  }
  ~HelpKeyTest() override {
    KillTimer(frame_, timer);
    current_ = nullptr;
    site_.reset();
    pump();
    EXPECT_EQ(lone_.canUnload(), S_OK);
  }

  static void pressF1() {
    INPUT down{};
    down.type = INPUT_KEYBOARD;
    down.ki.wVk = VK_F1;
    down.ki.wScan = static_cast<WORD>(MapVirtualKeyW(VK_F1, MAPVK_VK_TO_VSC));
    INPUT up = down;
    up.ki.dwFlags = KEYEVENTF_KEYUP;
    INPUT inputs[]{down, up};
    SendInput(2, inputs, sizeof(INPUT));
  }

  /// The container's message loop, until as many messages have been read.
  void runUntilRead(std::size_t count) {
    MSG message{};
    while (read_.size() < count && !isTooLate()) {
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_KEYDOWN && message.wParam == VK_F1) ++keysSeen_;
        if (site_->translate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
      }
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
  }

  bool isTooLate() const { return GetTickCount64() > end_; }

  static HWND variableDialog() { return FindWindowW(nullptr, L"Add New Parameter"); }

  struct Read {
    std::wstring text;
    HWND over;
  };
  LoneCopy copy_;
  Library lone_{copy_.file().c_str()};
  Placed site_ = placed(lone_);
  std::vector<Read> read_;
  int keysSeen_ = 0;
  /// What is left to do once the variable dialog is open.
  void (*inDialog_)() = nullptr;

 private:
  void look() {
    if (const HWND box = FindWindowW(L"#32770", L"mavCycEd"); box != nullptr) {
      wchar_t text[1024]{};
      HWND label = nullptr;  // the icon is one, too
      while (text[0] == L'\0' && (label = FindWindowExW(box, label, L"Static", nullptr)) != nullptr) {
        GetWindowTextW(label, text, 1024);
      }
      read_.push_back({text, GetWindow(box, GW_OWNER)});
      PostMessageW(box, WM_COMMAND, IDOK, 0);
      return;
    }
    const HWND dialog = variableDialog();
    if (dialog == nullptr || IsWindowVisible(dialog) == FALSE) return;
    if (!read_.empty() || isTooLate()) {
      PostMessageW(dialog, WM_CLOSE, 0, 0);
    } else if (inDialog_ != nullptr) {
      std::exchange(inDialog_, nullptr)();
    }
  }

  static constexpr UINT_PTR timer = 1;
  const ULONGLONG end_ = GetTickCount64() + 10000;
  static inline HelpKeyTest* current_ = nullptr;
};

TEST_F(HelpKeyTest, TheContainerHandsItOn) {
  ASSERT_NE(IsChild(site_->controlWindow(), GetFocus()), FALSE);
  pressF1();
  runUntilRead(1);
  EXPECT_EQ(keysSeen_, 1) << "the container's loop gets the key first";
  ASSERT_EQ(read_.size(), 1U);
  EXPECT_EQ(read_[0].text, L"The help file is missing: " + copy_.helpFile());
  EXPECT_EQ(read_[0].over, frame_);
}

TEST_F(HelpKeyTest, TheVariableDialogTakesItItself) {
  static HWND dialog;
  inDialog_ = [] {
    dialog = variableDialog();
    pressF1();
  };
  PostMessageW(button(site_->controlWindow(), L"&Insert "), BM_CLICK, 0, 0);
  runUntilRead(1);
  EXPECT_EQ(keysSeen_, 0) << "its own loop gets the key";
  ASSERT_EQ(read_.size(), 1U);
  EXPECT_EQ(read_[0].text, L"The help file is missing: " + copy_.helpFile());
  EXPECT_EQ(read_[0].over, dialog);
}

}  // namespace
}  // namespace mavCycEd::test
