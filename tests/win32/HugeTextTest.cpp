// Texts far beyond what a screen shows: some of these take hours where a window's work grows with the square of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestWindow.h"
#include "win32/CellEditor.h"
#include "win32/ComboLine.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32::test {
namespace {

constexpr std::size_t beyondAnyLimit = 100'000;  // of the system's own for a line to type into

std::string catalogueOf(const std::string& atom) {
  return "<LATESTKAM><ATOMS><ATOM><AtomName>" + atom +
         "</AtomName><Param>Volume;1;100;1;1;ul</Param></ATOM></ATOMS></LATESTKAM>";
}

std::string cycleOf(const std::string& description, const std::string& variables, const std::string& atom,
                    const std::string& value) {
  return "<CYCLE><DESCRIPTION>//" + description + "</DESCRIPTION><VARIABLES>" + variables +
         "</VARIABLES><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>" + atom +
         "</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume</PARAMNAME><PARAMVALUE>" + value +
         "</PARAMVALUE></PARAMETER></PARAMETERS></ATOM></ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>";
}

class Win32HugeText : public ::testing::Test {
 protected:
  void load(const std::string& description, const std::string& variables, const std::string& atom,
            const std::string& value) {
    editor_.editor().control().SetXMLStrings(catalogueOf(atom), cycleOf(description, variables, atom, value));
    settle();
  }
  HWND view() { return editor_.windows().GrdAtom.view().handle(); }
  HWND line() { return editor_.windows().GrdAtom.view().cellEditor().window(); }
  HWND description() { return editor_.windows().txtCycleDescription.handle(); }
  bool isHandedBack(const std::string& text) {
    return editor_.editor().control().RetrieveCycle().find(text) != std::string::npos;
  }
  static bool wraps(HWND box) { return (GetWindowLongW(box, GWL_STYLE) & ES_AUTOHSCROLL) == 0; }

  HostWindow host_;
  TestEditor editor_{host_.handle()};
};

TEST_F(Win32HugeText, AHundredThousandVariablesAreOffered) {
  std::string variables;
  for (int i = 0; i < 100'000; ++i) variables += "<VALUE>V" + std::to_string(i) + " (ul);10;1;100</VALUE>";
  load({}, variables, "FILL", "5");
  EXPECT_EQ(editor_.windows().lstVariables.itemCount(), 100'000);
  editor_.windows().cboAtom.setText("FILL");
  settle();
  Win32PopupMenu& menu = editor_.windows().mnuSubParam;
  const Meanwhile meanwhile({[&] { PostMessageW(menu.list(), WM_KEYDOWN, VK_END, 1); },
                             [&] { PostMessageW(menu.list(), WM_KEYDOWN, VK_RETURN, 1); }});
  SendMessageW(view(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(view()), -1);
  settle();
  EXPECT_EQ(editor_.windows().GrdAtom.cellText(1, 1), "V99999");
}

TEST_F(Win32HugeText, ADescriptionOfOneWordIsShown) {
  const std::string word(2'000'000, 'x');
  SetFocus(description());
  load(word, {}, "FILL", "5");
  EXPECT_EQ(fromWide(textOf(description())), word);
  EXPECT_FALSE(wraps(description()));
  EXPECT_EQ(GetFocus(), description());
  SendMessageW(description(), EM_SETSEL, 2, 2);
  type(description(), L"!");
  EXPECT_TRUE(isHandedBack("//xx!xx"));
  EXPECT_EQ(editor_.windows().txtCycleDescription.text().size(), word.size() + 1);
  load("some words", {}, "FILL", "5");
  EXPECT_TRUE(wraps(description()));
}

// The box may be made anew: it keeps its place on the screen and in the order of the Tab key.
TEST_F(Win32HugeText, TheBoxOfALongLineStandsWhereTheOtherStood) {
  load("some words", {}, "FILL", "5");
  const auto placeOf = [](HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return std::vector<LONG>{place.left, place.top, place.right, place.bottom};
  };
  const auto before = placeOf(description());
  const auto font = SendMessageW(description(), WM_GETFONT, 0, 0);
  const HWND panel = editor_.editor().screen().window();
  const HWND next = GetNextDlgTabItem(panel, description(), FALSE);
  load(std::string(20'000, 'x'), {}, "FILL", "5");
  EXPECT_EQ(placeOf(description()), before);
  EXPECT_EQ(SendMessageW(description(), WM_GETFONT, 0, 0), font);
  EXPECT_EQ(GetNextDlgTabItem(panel, description(), FALSE), next);
  EXPECT_EQ(IsWindowEnabled(description()), TRUE);
}

TEST_F(Win32HugeText, NamesAndValuesAreKept) {
  const std::string name(5'000'000, 'x');
  load({}, "<VALUE>" + name + " (ul);10;1;100</VALUE>", name, name);
  editor_.windows().lstAtomSequence.setIndex(0);
  UpdateWindow(host_.handle());
  settle();
  EXPECT_EQ(editor_.windows().GrdAtom.cellText(1, 1), name);
  EXPECT_TRUE(isHandedBack(name));
}

TEST_F(Win32HugeText, TypingGoesOnInALongValue) {
  const std::string value(beyondAnyLimit, 'x');
  load({}, {}, "FILL", value);
  editor_.windows().lstAtomSequence.setIndex(0);
  settle();
  SetFocus(view());
  key(view(), VK_F2);
  ASSERT_NE(line(), nullptr);
  key(line(), VK_END);
  type(line(), L"y");
  EXPECT_EQ(editor_.windows().GrdAtom.cellText(1, 1), value + "y");
}

TEST_F(Win32HugeText, TypingGoesOnInALongTextOfAComboBox) {
  const std::wstring text(beyondAnyLimit, L'x');
  const auto typeBehind = [&text](HWND edit) {
    SendMessageW(edit, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
    type(edit, L"y");
  };
  kit::CommandGate gate;
  Win32ComboBox box(gate, Win32ComboBox::Mode::TypedToo, host_.handle(), nullptr);
  box.setText(fromWide(text));
  typeBehind(lineOfCombo(box.handle()));
  EXPECT_EQ(box.text().size(), text.size() + 1);

  const FontHandle font = makeFont(systemFont(USER_DEFAULT_SCREEN_DPI));
  CellEditor editor(view(), {"slow", "fast"}, font, USER_DEFAULT_SCREEN_DPI, {});
  editor.setText(fromWide(text));
  typeBehind(editor.line());
  EXPECT_EQ(editor.text().size(), text.size() + 1);
}

TEST(Win32Text, ALineIsCutWhereNobodyReadsOn) {
  EXPECT_EQ(toWideLine(std::string(10'000, 'x')), std::wstring(10'000, L'x'));
  EXPECT_EQ(toWideLine(std::string(5'000'000, 'x')), std::wstring(10'000, L'x') + L'\x2026');
  std::string pairs = "x";
  for (int i = 0; i < 10'000; ++i) pairs += "😀";
  const std::wstring cut = toWideLine(pairs);
  EXPECT_EQ(cut.size(), 10'000U);
  EXPECT_FALSE(IS_HIGH_SURROGATE(cut[cut.size() - 2])) << "no half of a character";
  EXPECT_EQ(withoutAccessKey(std::string(5'000'000, 'x')).size(), 10'001U);
}

}  // namespace
}  // namespace mavCycEd::win32::test
