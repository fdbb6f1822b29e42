// Pop-up menus on the screen: the system shows them in a message loop of its own.

#include "win32/Win32PopupMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestWindow.h"

namespace mavCycEd::win32::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Win32PopupMenuTest : public ::testing::Test {
 protected:
  Win32PopupMenuTest() {
    menu_ = std::make_unique<Win32PopupMenu>(gate_, [this] { return host_.handle(); });
    menu_->setEvents({.Click = [this](int index) { chosen_.push_back(index); }});
    menu_->setPlace([] { return POINT{20, 20}; });
  }
  void fill(int items) {
    for (int i = 0; i < items; ++i) {
      if (i > 0) menu_->createItem(i);
      menu_->setItemCaption(i, "Little will fill it: " + std::to_string(i));
    }
  }
  std::function<void()> press(WPARAM key) {
    return [this, key] {
      const HWND list = menu_->list();
      PostMessageW(list != nullptr ? list : host_.handle(), WM_KEYDOWN, key, 1);
    };
  }
  // Ends what should have closed before.
  std::function<void()> rescue() {
    return [this] {
      GUITHREADINFO thread{};
      thread.cbSize = sizeof thread;
      GetGUIThreadInfo(GetCurrentThreadId(), &thread);
      const bool inList = (menu_ && menu_->list() != nullptr) || GetActiveWindow() != host_.handle();
      rescued_ = inList || (thread.flags & GUI_INMENUMODE) != 0;
      if (!rescued_) return;
      if (inList) SendMessageW(GetActiveWindow(), WM_CLOSE, 0, 0);
      EndMenu();
    };
  }
  void openWhile(std::vector<std::function<void()>> steps) {
    SetFocus(host_.handle());
    rescued_ = false;
    const Meanwhile meanwhile(std::move(steps));
    menu_->popUp();
    settle();
  }

  static constexpr int many = 100'000;
  HostWindow host_;
  kit::CommandGate gate_;
  std::unique_ptr<Win32PopupMenu> menu_;
  std::vector<int> chosen_;
  bool rescued_ = false;
};

TEST_F(Win32PopupMenuTest, TellsTheChoice) {
  fill(3);
  openWhile({press(VK_DOWN), press(VK_DOWN), press(VK_RETURN), press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, ElementsAre(1));
}

// What is chosen would not be what the user saw.
TEST_F(Win32PopupMenuTest, ClosesWhenItsItemsChange) {
  fill(3);
  openWhile({press(VK_DOWN), [this] { menu_->setItemCaption(1, "another"); }, rescue()});
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_FALSE(rescued_);
}

TEST_F(Win32PopupMenuTest, MayBeDestroyedWhileItIsOpen) {
  fill(3);
  openWhile({[this] { menu_.reset(); }, rescue()});
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_FALSE(rescued_);
}

TEST_F(Win32PopupMenuTest, ManyItemsAreAList) {
  fill(many);
  SetFocus(host_.handle());
  openWhile({[this] {
               ASSERT_NE(menu_->list(), nullptr);
               EXPECT_EQ(GetFocus(), menu_->list());
               EXPECT_EQ(SendMessageW(menu_->list(), LB_GETCOUNT, 0, 0), many);
               EXPECT_EQ(GetWindowLongW(menu_->list(), GWL_STYLE) & WS_HSCROLL, 0) << "all of a line is seen";
             },
             press(VK_END), press(VK_RETURN), press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, ElementsAre(many - 1));
  EXPECT_EQ(menu_->list(), nullptr);
  EXPECT_EQ(GetFocus(), host_.handle());
}

TEST_F(Win32PopupMenuTest, AClickChoosesInTheList) {
  fill(many);
  openWhile({[this] {
               const HWND list = menu_->list();
               RECT place{};
               SendMessageW(list, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&place));
               PostMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(5, place.top + 2));  // of the press before
               PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, place.top + 2));
               PostMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(5, place.top + 2));
             },
             press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, ElementsAre(2));
}

TEST_F(Win32PopupMenuTest, TheListClosesAsAMenuDoes) {
  fill(many);
  openWhile({press(VK_ESCAPE), rescue()});
  EXPECT_FALSE(rescued_) << "Esc";
  openWhile({[this] { SetActiveWindow(host_.handle()); }, rescue()});
  EXPECT_FALSE(rescued_) << "another window was used";
  openWhile({[this] { menu_->setItemVisible(7, false); }, rescue()});
  EXPECT_FALSE(rescued_) << "its items changed";
  openWhile({[this] { menu_.reset(); }, rescue()});
  EXPECT_FALSE(rescued_) << "it was destroyed";
  EXPECT_THAT(chosen_, IsEmpty());
}

TEST_F(Win32PopupMenuTest, TheListGoesWithItsWindow) {
  fill(many);
  openWhile({[this] { DestroyWindow(host_.handle()); }, press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_EQ(menu_->list(), nullptr);
}

}  // namespace
}  // namespace mavCycEd::win32::test
