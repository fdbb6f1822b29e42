#include "win32/Services.h"

#include <gtest/gtest.h>

#include <regex>

#include "win32/MessageWindow.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

bool isWestern() { return GetACP() == 1252; }

TEST(Win32Text, ComesBackFromAWindowAsItWas) {
  EXPECT_EQ(fromWide(toWide("Größe µl 😀")), "Größe µl 😀");
  EXPECT_EQ(fromWide(toWide("")), "");
  EXPECT_EQ(withoutAccessKey("a & b"), L"a && b");
}

TEST(AnsiCodePage, GivesTheBytesOfTheProcesssCodePage) {
  if (!isWestern()) GTEST_SKIP() << "this machine's code page is another one";
  EXPECT_EQ(AnsiCodePage().fromUtf8("Größe µ"),
            "Gr\xF6\xDF"
            "e \xB5");
}

TEST(AnsiCodePage, NamesWhatItLacksByItsNumber) {
  if (!isWestern()) GTEST_SKIP() << "this machine's code page is another one";
  EXPECT_EQ(AnsiCodePage().fromUtf8("5 µl \u03A9 \u0141 😀"), "5 \xB5l <U+03A9> <U+0141> <U+1F600>");
  EXPECT_NE(AnsiCodePage().fromUtf8("\u03A9"), AnsiCodePage().fromUtf8("\u0416"));
  EXPECT_EQ(fromAnsi("\xB5l"), "µl");
}

// Reads the message box that appears, and presses its button.
class BoxReader : public MessageWindow {
 public:
  BoxReader() {
    constexpr UINT soon = 50;
    SetTimer(handle(), 1, soon, nullptr);
  }
  std::wstring caption;
  std::wstring text;

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_TIMER) return MessageWindow::onMessage(message, wParam, lParam);
    const HWND box = FindWindowW(L"#32770", L"Größe <U+0141>");
    if (box == nullptr) return 0;
    caption = textOf(box);
    for (HWND part = GetWindow(box, GW_CHILD); part != nullptr; part = GetWindow(part, GW_HWNDNEXT)) {
      const std::wstring shown = textOf(part);
      if (shown.size() > text.size()) text = shown;
    }
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    return 0;
  }
};

TEST(Win32MessageBox, ShowsTheSystemsBox) {
  if (!isWestern()) GTEST_SKIP() << "this machine's code page is another one";
  const BoxReader reader;
  Win32MessageBox box([] { return HWND{}; });
  EXPECT_EQ(box.messageBox(0, "Mind the 5 µl and the \u03A9.", "Größe \u0141", platform::Exclamation),
            platform::OkButton);
  EXPECT_EQ(reader.caption, L"Größe <U+0141>");
  EXPECT_EQ(reader.text, L"Mind the 5 µl and the <U+03A9>.");
}

TEST(Win32SystemMessage, KnowsTheSystemsErrors) {
  const Win32SystemMessage system;
  EXPECT_FALSE(system.formatMessage(ERROR_FILE_NOT_FOUND).empty());
  EXPECT_EQ(system.formatMessage(0x2FFFFFFF), "");
  SetLastError(ERROR_ACCESS_DENIED);
  EXPECT_EQ(system.lastErrorCode(), ERROR_ACCESS_DENIED);
}

TEST(Win32Clock, GivesLocalTime) {
  const std::regex timestamp("[0-9]{4}-[01][0-9]-[0-3][0-9]T[0-2][0-9]:[0-5][0-9]:[0-6][0-9]");
  EXPECT_TRUE(std::regex_match(Win32Clock().localTimestamp(), timestamp));
}

}  // namespace
}  // namespace mavCycEd::win32
